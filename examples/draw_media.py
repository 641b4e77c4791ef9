"""The small pictures of the example skins: logos, symbols, and the covers on their panels."""

import math

from lettering import lettering, path
from raster import Canvas, Circle, Gradient, Polygon, Radial, Ring, RoundRect, Strokes

TEAL, ICE = "#7FF0D0", "#E6F7FF"


def wave(x1, x2, y, size, turns, start, steps=40):
    """Points of a sine wave from x1 to x2."""
    parts = [i / steps for i in range(steps + 1)]
    return [(x1 + (x2 - x1) * t, y + size * math.sin(start + math.tau * turns * t)) for t in parts]


def beam(canvas, x, y, tall, width, colour, opacity):
    """A line upwards that fades out at its top."""
    fading = Gradient(x, y, x, y - tall, (0, colour), (1, colour + "00"))
    canvas.fill(Strokes([[(x, y), (x, y - tall)]], width), fading, opacity)


def word(canvas, text, x, top, height, weight, paint, glow, reach, spacing):
    """Letters with light around them; gives their width."""
    shapes, width = lettering(text, x, top, height, weight, spacing)
    for shape in shapes:
        canvas.glow(shape, reach, glow, 0.55)
    for shape in shapes:
        canvas.fill(shape, paint)
    return width


def aurora_logo():
    """Three bands of light and the name, 236 x 44."""
    canvas = Canvas(236, 44)
    for i, (colour, end) in enumerate((("#5A7BFF", "#5A7BFF20"), ("#2FC5D8", "#2FC5D820"), ("#7CFFB8", "#7CFFB840"))):
        line = wave(5, 43, 33 - i * 4.5, 4.2, 0.9, 2.2 + i * 0.8, 60)
        for x, y in line:
            beam(canvas, x, y, 13 + 6 * math.sin(x * 0.45 + i * 2), 0.9, colour, 0.6)
        canvas.fill(Strokes([line], 1.6), Gradient(5, 0, 43, 0, (0, colour), (1, end)))
    paint = Gradient(0, 10, 0, 33, (0, "#FFFFFF"), (0.55, "#C9FBEA"), (1, "#62D6D8"))
    word(canvas, "AURORA", 58, 11.5, 21, 3, paint, "#1FB8C4", 5, 3.6)
    return canvas


def aurora_title():
    """The name in large letters over a bow of light, 420 x 130."""
    canvas = Canvas(420, 130)
    for i, colour in enumerate(("#5A5FE8", "#2FA5E0", "#35D6B8")):
        line = wave(8, 412, 96 - i * 9, 9 - i, 0.85, 0.3 + i * 0.5, 202)
        for n, (x, y) in enumerate(line):
            edge = math.sin(math.pi * (x - 8) / 404)
            tall = (34 + 16 * math.sin(n * 0.21 + i) + 9 * math.sin(n * 0.57)) * edge
            if tall > 1:
                beam(canvas, x, y, tall, 1.4, colour, 0.30 * edge)
        ends = ((0, colour + "00"), (0.3, colour), (0.7, colour), (1, colour + "00"))
        canvas.fill(Strokes([line], 2), Gradient(8, 0, 412, 0, *ends), 0.85)
    paint = Gradient(0, 28, 0, 84, (0, "#FFFFFF"), (0.5, "#D5FFF1"), (1, "#5FD8DC"))
    _, width = lettering("AURORA", 0, 0, 50, 7, 3.6)
    word(canvas, "AURORA", 210 - width / 2, 32, 50, 7, paint, "#0B5C78", 12, 3.6)
    return canvas


def shine():
    """A strip of light for the head of a panel, 422 x 26."""
    canvas = Canvas(422, 26)
    paint = Gradient(0, 0, 422, 0, (0, "#2FC5D866"), (0.45, "#2F7FD033"), (1, "#2F7FD000"))
    canvas.fill(RoundRect(0, 0, 422, 26), paint)
    canvas.fill(RoundRect(0, 0, 422, 1), Gradient(0, 0, 422, 0, (0, "#CFFFF4B0"), (1, "#CFFFF400")))
    return canvas


def arrow(up):
    canvas = Canvas(18, 12)
    points = ((3, 9.5), (9, 2.5), (15, 9.5)) if up else ((3, 2.5), (9, 9.5), (15, 2.5))
    canvas.fill(Strokes([list(points)], 2.4), TEAL)
    return canvas


def lock():
    canvas = Canvas(20, 20)
    canvas.fill(Strokes(path("M6 9 L6 6.5 E10 6.5 4 4 180 360 L14 9"), 2), "#FFD27A")
    canvas.fill(RoundRect(3.5, 8.5, 13, 9.5, 2), Gradient(0, 8, 0, 18, (0, "#FFE1A0"), (1, "#E79A3C")))
    canvas.fill(Circle(10, 12.3, 1.5), "#5A3512")
    canvas.fill(RoundRect(9.3, 12.5, 1.4, 3.2, 0.6), "#5A3512")
    return canvas


def clock():
    canvas = Canvas(16, 16)
    canvas.outline(Circle(8, 8, 6.3), 1.6, TEAL)
    canvas.fill(Strokes([[(8, 4.5), (8, 8), (10.5, 9.5)]], 1.5), ICE)
    return canvas


def disk():
    canvas = Canvas(16, 16)
    canvas.outline(RoundRect(1.8, 4.8, 12.4, 6.9, 1.5), 1.6, TEAL)
    canvas.fill(RoundRect(4, 7.5, 4.5, 1.5), ICE)
    canvas.fill(Circle(11.4, 8.25, 1.1), ICE)
    return canvas


def chip():
    canvas = Canvas(16, 16)
    for at in (5, 8, 11):
        canvas.fill(RoundRect(at - 0.5, 1, 1, 14), TEAL, 0.9)
        canvas.fill(RoundRect(1, at - 0.5, 14, 1), TEAL, 0.9)
    canvas.fill(RoundRect(3, 3, 10, 10, 1.5), "#0E3550")
    canvas.outline(RoundRect(3.7, 3.7, 8.6, 8.6, 1), 1.4, TEAL)
    canvas.fill(RoundRect(6.5, 6.5, 3, 3), ICE)
    return canvas


def network():
    canvas = Canvas(16, 16)
    canvas.outline(Circle(8, 8, 6.3), 1.4, TEAL)
    canvas.fill(Strokes(path("E8 8 2.8 6.3 0 360"), 1.1), ICE, 0.9)
    canvas.fill(Strokes([[(2, 8), (14, 8)]], 1.1), ICE, 0.9)
    return canvas


def record():
    """The cover of a record, 96 x 96, without transparency."""
    canvas = Canvas(96, 96)
    canvas.fill(RoundRect(0, 0, 96, 96), Gradient(0, 0, 96, 96, (0, "#124A66"), (1, "#081A34")))
    for i in range(7):
        line = wave(-4, 100, 30 + i * 9, 7, 1.1, i * 0.5)
        canvas.fill(Strokes([line], 1.2), Gradient(0, 0, 96, 0, (0, "#2FC5D8"), (1, "#5A5FE8")), 0.35)
    canvas.glow(Circle(48, 49, 35), 4, "#000000", 0.6)
    canvas.fill(Circle(48, 48, 35), Radial(48, 48, 35, (0, "#26303F"), (0.7, "#10151F"), (1, "#1C2432")))
    for radius in range(17, 34, 3):
        canvas.outline(Circle(48, 48, radius), 0.7, "#6F87A8", 0.4)
    for start in (200, 20):
        for radius in (20, 25, 30):
            canvas.fill(Strokes(path(f"E48 48 {radius} {radius} {start} {start + 50}"), 3), "#BFD9F2", 0.12)
    canvas.fill(Circle(48, 48, 13), Gradient(38, 36, 58, 60, (0, "#7CFFB8"), (1, "#1F9FC4")))
    canvas.outline(Circle(48, 48, 9), 0.8, "#FFFFFF", 0.6)
    canvas.fill(Circle(48, 48, 2.4), "#081A34")
    return canvas


FLAME = (
    "M22 2 C25 11 36 17 36 30 C36 39 30 44 22 44 C14 44 8 39 8 30"
    " C8 24 11 20 14 17 C14.5 21 16 23 18.5 24 C17 16 18 8 22 2"
)
CORE = (
    "M23 22 C25 27 30 29 30 35 C30 40 26.5 42.5 22.5 42.5 C18 42.5 15 40 15 35.5"
    " C15 32 17 30 18.5 28.5 C19 30.5 20 31.5 21.5 32 C21 28 21.5 25 23 22"
)


def _scaled(text, scale, dx, dy):
    return Polygon(*[(x * scale + dx, y * scale + dy) for x, y in path(text)[0]])


def flame(canvas, scale=1.0, dx=0.0, dy=0.0):
    body, core = _scaled(FLAME, scale, dx, dy), _scaled(CORE, scale, dx, dy)
    canvas.glow(body, 5 * scale, "#FF7A1A", 0.5)
    canvas.fill(body, Gradient(0, dy + 2 * scale, 0, dy + 44 * scale, (0, "#FFC24A"), (0.5, "#FF7A2A"), (1, "#D5321F")))
    canvas.fill(core, Gradient(0, dy + 20 * scale, 0, dy + 43 * scale, (0, "#FFF7C8"), (1, "#FFB93F")))


def ember_logo():
    """A flame and the name, 230 x 52."""
    canvas = Canvas(230, 52)
    flame(canvas, 1.0, 2, 2)
    paint = Gradient(0, 15, 0, 39, (0, "#FFF3D0"), (0.5, "#FFC46B"), (1, "#F2722E"))
    word(canvas, "EMBER", 58, 16, 22, 3.6, paint, "#7A1E10", 6, 4.2)
    return canvas


def ember_flame():
    """The flame alone, 24 x 24."""
    canvas = Canvas(24, 24)
    flame(canvas, 0.48, 1.5, 0.8)
    return canvas


def star():
    """A small star, 16 x 16."""
    canvas = Canvas(16, 16)
    points = []
    for i in range(10):
        radius, angle = (7, 3)[i % 2], math.radians(i * 36 - 90)
        points.append((8 + radius * math.cos(angle), 8.6 + radius * math.sin(angle)))
    canvas.fill(Polygon(*points), Gradient(0, 2, 0, 15, (0, "#FFF0B8"), (1, "#FFA63A")))
    return canvas


def stones():
    """A cairn before the evening sky, 96 x 96, without transparency."""
    canvas = Canvas(96, 96)
    sky = Gradient(0, 0, 0, 96, (0, "#5A2440"), (0.55, "#E0703C"), (0.8, "#FFC878"), (1, "#FFD99A"))
    canvas.fill(RoundRect(0, 0, 96, 96), sky)
    canvas.fill(Circle(70, 66, 13), "#FFF4CC")
    canvas.fill(Polygon((0, 78), (30, 72), (60, 77), (96, 70), (96, 96), (0, 96)), "#6A2B20")
    for x, y, w, h, light in (
        (24, 68, 44, 15, "#A8694C"),
        (29, 55, 34, 14, "#8E5442"),
        (34, 43, 26, 13, "#B87A58"),
        (38, 33, 17, 11, "#98604A"),
        (42, 26, 10, 8, "#C08A66"),
    ):
        canvas.fill(RoundRect(x, y, w, h, h / 2), Gradient(x, y, x + w, y + h, (0, "#4A2428"), (1, light)))
    canvas.fill(RoundRect(0, 83, 96, 13), Gradient(0, 83, 0, 96, (0, "#4A1E1C"), (1, "#2C1020")))
    return canvas
