"""A monoline alphabet of our own, for the words in our pictures.

A letter is a path on a grid: capitals reach from 0 to 10, small letters from 3 to 10, tails to 13.
M and L move and draw; C is a cubic curve; E cx cy rx ry from to is a piece of an ellipse in degrees
(0 right, 90 down), joined to what stands before it.
"""

import math

from raster import Strokes

BOWL = "M6.6 6.5 E3.3 6.5 3.3 3.5 0 360 "

GLYPHS = {
    "A": "M0 10 L3.7 0 L7.4 10 M1.3 6.6 L6.1 6.6",
    "B": "M0 4.8 L0 0 L3.4 0 E3.4 2.4 2.4 2.4 -90 90 L0 4.8 L3.7 4.8 E3.7 7.4 2.6 2.6 -90 90 L0 10 L0 4.8",
    "C": "E4.7 5 4.7 5 -48 -312",
    "D": "M0 0 L2.7 0 E2.7 5 4.8 5 -90 90 L0 10 L0 0",
    "E": "M5.6 0 L0 0 L0 10 L5.6 10 M0 5 L4.8 5",
    "F": "M5.4 0 L0 0 L0 10 M0 5 L4.6 5",
    "G": "E4.8 5 4.8 5 -45 -360 L5.4 5",
    "H": "M0 0 L0 10 M7 0 L7 10 M0 5 L7 5",
    "I": "M0 0 L0 10",
    "J": "M4.4 0 L4.4 7.4 E2.2 7.4 2.2 2.6 0 150",
    "K": "M0 0 L0 10 M6 0 L0 6 M2.2 4 L6.3 10",
    "L": "M0 0 L0 10 L5.2 10",
    "M": "M0 10 L0 0 L4.2 6.6 L8.4 0 L8.4 10",
    "N": "M0 10 L0 0 L6.8 10 L6.8 0",
    "O": "E5 5 5 5 0 360",
    "P": "M0 10 L0 0 L3.3 0 E3.3 2.8 2.8 2.8 -90 90 L0 5.6",
    "Q": "E5 5 5 5 0 360 M6.2 7 L9.4 10.6",
    "R": "M0 10 L0 0 L3.3 0 E3.3 2.8 2.8 2.8 -90 90 L0 5.6 M3 5.6 L6.3 10",
    "S": "M5.8 1.6 C5 .4 4 0 3 0 C1.3 0 .4 1.1 .4 2.5 C.4 4.2 1.8 4.6 3.2 5"
    " C4.8 5.5 6 6 6 7.6 C6 9.1 4.8 10 3.2 10 C1.8 10 .8 9.4 0 8.2",
    "T": "M0 0 L7 0 M3.5 0 L3.5 10",
    "U": "M0 0 L0 6.7 E3.4 6.7 3.4 3.3 180 0 L6.8 0",
    "V": "M0 0 L3.6 10 L7.2 0",
    "W": "M0 0 L2.6 10 L5.3 1.4 L8 10 L10.6 0",
    "X": "M0 0 L6.6 10 M6.6 0 L0 10",
    "Y": "M0 0 L3.4 5.2 L6.8 0 M3.4 5.2 L3.4 10",
    "Z": "M0 0 L6.2 0 L0 10 L6.2 10",
    "a": BOWL + "M6.6 3 L6.6 10",
    "b": "M0 0 L0 10 " + BOWL,
    "c": "E3.3 6.5 3.3 3.5 -50 -310",
    "d": BOWL + "M6.6 0 L6.6 10",
    "e": "M0 6.5 L6.4 6.5 E3.2 6.5 3.2 3.5 0 -318",
    "f": "M4 .3 C2 -.4 1.4 .8 1.4 2 L1.4 10 M0 3.2 L3.5 3.2",
    "g": BOWL + "M6.6 3 L6.6 10.4 E3.4 10.4 3.2 2.8 0 150",
    "h": "M0 0 L0 10 M0 6 E3 6 3 3 180 360 L6 10",
    "i": "M0 3.2 L0 10 M0 .3 L0 .5",
    "j": "M1.6 3.2 L1.6 11 E-.4 11 2 2.2 0 90 M1.6 .3 L1.6 .5",
    "k": "M0 0 L0 10 M5 3.2 L0 7.4 M1.9 5.9 L5.4 10",
    "l": "M0 0 L0 10",
    "m": "M0 3 L0 10 M0 5.7 E2.6 5.7 2.6 2.7 180 360 L5.2 10 M5.2 5.7 E7.8 5.7 2.6 2.7 180 360 L10.4 10",
    "n": "M0 3 L0 10 M0 6 E3 6 3 3 180 360 L6 10",
    "o": "E3.4 6.5 3.4 3.5 0 360",
    "p": "M0 3 L0 13 " + BOWL,
    "q": BOWL + "M6.6 3 L6.6 13",
    "r": "M0 3 L0 10 M0 6 C0 4 1.6 2.8 3.6 3.2",
    "s": "M4.8 4.2 C4.2 3.3 3.4 3 2.5 3 C1.2 3 .4 3.8 .4 4.8 C.4 6 1.6 6.2 2.6 6.5"
    " C3.8 6.8 4.9 7.2 4.9 8.3 C4.9 9.4 3.9 10 2.6 10 C1.5 10 .6 9.6 0 8.7",
    "t": "M1.5 .8 L1.5 8 C1.5 9.6 2.5 10.2 4 9.9 M0 3.2 L3.9 3.2",
    "u": "M0 3 L0 7 E3 7 3 3 180 0 L6 3 M6 3 L6 10",
    "v": "M0 3 L3 10 L6 3",
    "w": "M0 3 L2.3 10 L4.6 4 L6.9 10 L9.2 3",
    "x": "M0 3 L5.4 10 M5.4 3 L0 10",
    "y": "M0 3 L3.1 9.8 M6.1 3 L2.4 11.4 C2 12.6 1.2 13 0 12.8",
    "z": "M0 3 L5.2 3 L0 10 L5.2 10",
    " ": "",
}
SPACE = 3.2


def _curve(start, n):
    for step in range(1, 11):
        t, s = step / 10, 1 - step / 10
        weights = (s * s * s, 3 * s * s * t, 3 * s * t * t, t * t * t)
        points = (start, n[0:2], n[2:4], n[4:6])
        yield tuple(sum(w * p[i] for w, p in zip(weights, points)) for i in (0, 1))


def _arc(cx, cy, rx, ry, first, last):
    steps = max(2, round(abs(last - first) / 15))
    for step in range(steps + 1):
        angle = math.radians(first + (last - first) * step / steps)
        yield cx + rx * math.cos(angle), cy + ry * math.sin(angle)


def path(text):
    """The strokes of a path, curves as short lines: lists of points."""
    strokes, commands = [], []
    for c in text:
        if c in "MLCE":
            commands.append([c, ""])
        else:
            commands[-1][1] += c
    for command, numbers in commands:
        n = [float(number) for number in numbers.split()]
        if command == "M" or not strokes:
            strokes.append([])
        if command in "ML":
            strokes[-1].append((n[0], n[1]))
        elif command == "C":
            strokes[-1] += list(_curve(strokes[-1][-1], n))
        else:
            strokes[-1] += list(_arc(*n))
    return strokes


def lettering(text, x, top, height, weight, spacing=2.6):
    """The letters of a text as (list of Strokes, width). `height` is that of a capital."""
    unit = height / 10
    shapes, pen = [], x
    for letter in text:
        strokes = path(GLYPHS[letter])
        if not strokes:
            pen += SPACE * unit + spacing * unit / 2
            continue
        left = min(p[0] for s in strokes for p in s)
        right = max(p[0] for s in strokes for p in s)
        placed = [[(pen + (px - left) * unit, top + py * unit) for px, py in s] for s in strokes]
        shapes.append(Strokes(placed, weight))
        pen += (right - left + spacing) * unit
    return shapes, pen - spacing * unit - x


def write(canvas, text, x, top, height, weight, paint, opacity=1.0, right=False):
    """Draws a text; x is its left edge, or its right edge with right=True."""
    shapes, width = lettering(text, x, top, height, weight)
    if right:
        shapes, _ = lettering(text, x - width, top, height, weight)
    for shape in shapes:
        canvas.fill(shape, paint, opacity)
    return width
