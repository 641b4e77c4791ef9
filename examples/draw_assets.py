"""The pictures that belong to the program itself: its icon, the program disc and the game list."""

import math

from lettering import write
from raster import Canvas, Circle, Conic, Drawing, Gradient, Polygon, Radial, Ring, RoundRect, Strokes


def app_icon():
    """A television with three layers on its screen, the front one selected."""
    icon = Drawing(256, 256)
    neck = Polygon((106, 186), (150, 186), (160, 222), (96, 222))
    icon.fill(neck, Gradient(0, 186, 0, 222, (0, "#1B2536"), (1, "#34435C")))
    icon.fill(RoundRect(68, 216, 120, 14, 7), Gradient(0, 216, 0, 230, (0, "#5A6F8F"), (1, "#3A4A64")))
    icon.fill(RoundRect(10, 26, 236, 172, 24), Gradient(0, 26, 0, 198, (0, "#53678A"), (1, "#26324A")))
    icon.outline(RoundRect(11.5, 27.5, 233, 169, 22.5), 3, "#8FA6C8", 0.55)
    icon.fill(RoundRect(26, 42, 204, 140, 12), Gradient(60, 42, 200, 182, (0, "#0B1B3C"), (1, "#0F4C63")))
    icon.fill(RoundRect(46, 60, 96, 62, 8), Gradient(46, 60, 142, 122, (0, "#37D0C4"), (1, "#1E9FB8")))
    icon.fill(RoundRect(80, 80, 96, 62, 8), "#0B1B3C", 0.35)
    icon.fill(RoundRect(78, 78, 96, 62, 8), Gradient(78, 78, 174, 140, (0, "#5B9BF6"), (1, "#2F66D0")))
    icon.fill(RoundRect(114, 100, 96, 62, 8), "#0B1B3C", 0.35)
    icon.fill(RoundRect(112, 98, 96, 62, 8), Gradient(112, 98, 208, 160, (0, "#FFC861"), (1, "#F3913C")))
    icon.outline(RoundRect(112, 98, 96, 62, 2), 4, "#FFFFFF")
    for x in (112, 208):
        for y in (98, 160):
            icon.fill(RoundRect(x - 8, y - 8, 16, 16, 3), "#FFFFFF")
            icon.fill(RoundRect(x - 4.5, y - 4.5, 9, 9, 1), "#2F66D0")
    return icon


def small_app_icon():
    """The same on a grid of 16, with only what can be seen at that size."""
    icon = Drawing(16, 16)
    icon.fill(RoundRect(7, 12, 2, 2), "#34435C")
    icon.fill(RoundRect(4, 14, 8, 1, 0.5), "#4A5E7D")
    icon.fill(RoundRect(0, 1, 16, 12, 2), Gradient(0, 1, 0, 13, (0, "#5E759B"), (1, "#33435F")))
    icon.fill(RoundRect(1, 2, 14, 10, 1), Gradient(2, 2, 14, 12, (0, "#0B1B3C"), (1, "#0F4C63")))
    icon.fill(RoundRect(2, 3, 6, 4, 0.5), "#2FC3BE")
    icon.fill(RoundRect(4, 4.5, 7, 4.5, 0.5), "#0B1B3C", 0.5)
    icon.fill(RoundRect(4.5, 5, 6, 4, 0.5), "#4A8AEC")
    icon.fill(RoundRect(7.5, 6.5, 6, 4.5, 0.5), "#0B1B3C", 0.5)
    icon.fill(RoundRect(8, 7, 6, 4, 0.5), "#FFB84F")
    return icon


def program_picture():
    """The picture that stands for a program: a window with a disc before it."""
    canvas = Canvas(128, 128)
    window = RoundRect(8, 12, 96, 82, 9)
    canvas.glow(RoundRect(10, 16, 92, 80, 9), 5, "#000814", 0.45)
    canvas.fill(window, Gradient(0, 12, 0, 94, (0, "#F4F8FD"), (1, "#C9D6E6")))
    inside = Canvas(128, 128, clip=window)
    inside.fill(RoundRect(8, 12, 96, 19), Gradient(8, 0, 104, 0, (0, "#2FA9B8"), (1, "#2F66D0")))
    inside.fill(RoundRect(8, 12, 96, 1), "#FFFFFF", 0.5)
    _lay(canvas, inside)
    for i, colour in enumerate(("#FFD27A", "#BDF0E6", "#FFFFFF")):
        canvas.fill(Circle(19 + i * 11, 21.5, 3.2), colour)
    for y, width in ((40, 46), (50, 62), (60, 38), (70, 26)):
        canvas.fill(RoundRect(18, y, width, 4, 2), "#8FA5BF", 0.75)
    canvas.outline(window, 1, "#6F86A6", 0.8)

    cx, cy = 82, 82
    canvas.glow(Circle(cx, cy + 2, 38), 5, "#000814", 0.5)
    rainbow = ("#BFE3F2", "#D9C8F4", "#F7DCE2", "#F3F0C9", "#C5EFD2", "#BFE3F2")
    hues = Gradient(0, 0, 1, 0, *((i / 5, colour) for i, colour in enumerate(rainbow)))

    def sheen(angle):
        r, g, b, a = hues.along((angle / math.tau * 2) % 1)
        light = 0.80 + 0.20 * math.cos(2 * angle + 1.2) ** 2
        return r * light, g * light, b * light, a

    canvas.fill(Ring(cx, cy, 7, 39), Conic(cx, cy, sheen))
    canvas.outline(Circle(cx, cy, 38.5), 1, "#5C6F8C", 0.9)
    for radius in (34, 30, 26, 22):
        canvas.outline(Circle(cx, cy, radius), 0.6, "#FFFFFF", 0.45)
    canvas.fill(Ring(cx, cy, 7, 14), Radial(cx, cy, 14, (0, "#F7FAFD"), (0.5, "#F7FAFD"), (1, "#CBD7E5")))
    canvas.outline(Circle(cx, cy, 14), 0.9, "#7C90AC", 0.9)
    canvas.outline(Circle(cx, cy, 7), 0.9, "#7C90AC", 0.9)
    return canvas


def _lay(canvas, above):
    """Lays a canvas of the same size over another."""
    for at in range(0, len(canvas.pixels), 4):
        rest = 1 - above.pixels[at + 3]
        for i in range(4):
            canvas.pixels[at + i] = canvas.pixels[at + i] * rest + above.pixels[at + i]


ROWS = (
    ("Night Garden", "Puzzle for two players"),
    ("Starlight Rally", "Race around the rings"),
    ("Deep Harbour", "Salvage and trade"),
    ("Tower of Tiles", "Stack them to the sky"),
    ("Paper Planes", "Calm flying at dusk"),
)
SELECTED = 1


def game_list():
    """Five rows with thumbnails, the second one selected, and a scroll bar: the look of the item menu."""
    canvas = Canvas(400, 240)
    canvas.fill(RoundRect(0, 0, 400, 240, 8), "#070D1A", 0.56)
    for row, (title, about) in enumerate(ROWS):
        top = row * 47 + 4
        if row == SELECTED:
            bar = RoundRect(4, top, 378, 44, 6)
            canvas.fill(bar, Gradient(4, 0, 382, 0, (0, "#3FA9E8D0"), (0.6, "#2F7FD09A"), (1, "#2F7FD040")))
            canvas.outline(RoundRect(4.5, top + 0.5, 377, 43, 5.5), 1, "#A8DCFF", 0.75)
        elif row > SELECTED + 1:
            canvas.fill(RoundRect(10, top - 2, 366, 1), "#FFFFFF", 0.10)
        _thumbnail(canvas, row, 12, top + 5)
        strong = row == SELECTED
        write(canvas, title, 70, top + 9, 10.5, 1.7 if strong else 1.5, "#FFFFFF", 1 if strong else 0.88)
        write(canvas, about, 70, top + 27, 7.2, 1.05, "#EAF4FF" if strong else "#B9C7DA", 1 if strong else 0.85)
        canvas.fill(Polygon((364, top + 17), (370, top + 22), (364, top + 27)), "#FFFFFF", 0.95 if strong else 0.25)
    canvas.fill(RoundRect(388, 8, 4, 224, 2), "#FFFFFF", 0.14)
    canvas.fill(RoundRect(388, 8, 4, 86, 2), "#8FD0FF", 0.85)
    return canvas


PICTURES = 9


def game_pictures():
    """The small pictures of all games of the playing list, side by side."""
    canvas = Canvas(PICTURES * 46, 34)
    for row in range(PICTURES):
        _thumbnail(canvas, row, row * 46, 0)
    return canvas


def _thumbnail(canvas, row, x, y):
    """A tile of 46 x 34 with a scene for the row's title."""
    tile = RoundRect(x, y, 46, 34, 4)
    art = Canvas(canvas.width, canvas.height, clip=tile)
    if row == 0:  # a garden under the moon
        art.fill(tile, Gradient(0, y, 0, y + 34, (0, "#1B2A5E"), (1, "#31638B")))
        art.fill(Circle(x + 34, y + 9, 5), "#F6EFC8")
        art.fill(Circle(x + 10, y + 40, 18), "#1F6B52")
        art.fill(Circle(x + 36, y + 44, 20), "#164C46")
        for dx, dy in ((8, 17), (17, 22), (32, 22), (40, 25)):
            art.fill(Circle(x + dx, y + dy, 2), "#F29CC0")
    elif row == 1:  # a planet with its ring
        art.fill(tile, Gradient(x, y, x + 46, y + 34, (0, "#140F33"), (1, "#4B2A7B")))
        for dx, dy in ((6, 7), (14, 26), (39, 6), (41, 22), (20, 5), (5, 17)):
            art.fill(Circle(x + dx, y + dy, 0.8), "#FFFFFF")
        art.fill(Circle(x + 25, y + 18, 9), Gradient(x + 18, y + 10, x + 32, y + 26, (0, "#FFC27A"), (1, "#D9573F")))
        art.fill(Strokes([[(x + 9, y + 24), (x + 25, y + 20.5), (x + 41, y + 12)]], 2), "#FFE9B8")
    elif row == 2:  # a boat on the water
        art.fill(tile, Gradient(0, y, 0, y + 34, (0, "#F7C978"), (0.6, "#E88B5A"), (0.61, "#17566F"), (1, "#0C3550")))
        art.fill(Polygon((x + 12, y + 22), (x + 36, y + 22), (x + 31, y + 27), (x + 16, y + 27)), "#3A1F2B")
        art.fill(Polygon((x + 24, y + 6), (x + 24, y + 20), (x + 34, y + 20)), "#FFF6E3")
        art.fill(Polygon((x + 22, y + 9), (x + 22, y + 20), (x + 14, y + 20)), "#FFE1B0")
    elif row == 3:  # tiles in a tower
        art.fill(tile, Gradient(0, y, 0, y + 34, (0, "#D9ECF7"), (1, "#93BEDC")))
        tiles = ((12, 27, 22, "#D24B57"), (15, 20.5, 18, "#EFA33B"), (13, 14, 16, "#4FA56B"), (18, 7.5, 12, "#3B72C4"))
        for dx, dy, width, colour in tiles:
            art.fill(RoundRect(x + dx, y + dy, width, 5.5, 1), colour)
    elif row == 4:  # a paper plane at dusk
        art.fill(tile, Gradient(0, y, 0, y + 34, (0, "#5B4B8A"), (1, "#EFA27E")))
        art.fill(Polygon((x + 7, y + 19), (x + 39, y + 6), (x + 26, y + 27), (x + 20, y + 21)), "#FFFFFF")
        art.fill(Polygon((x + 20, y + 21), (x + 39, y + 6), (x + 21, y + 29)), "#C9CDE6")
    else:
        _further_thumbnail(art, row, x, y, tile)
    art.outline(RoundRect(x + 0.5, y + 0.5, 45, 33, 3.5), 1, "#FFFFFF", 0.35)
    _lay(canvas, art)


def _further_thumbnail(art, row, x, y, tile):
    """The games that only the playing list has."""
    if row == 5:  # a folder with games in it
        art.fill(tile, Gradient(0, y, 0, y + 34, (0, "#22304A"), (1, "#3E5578")))
        art.fill(RoundRect(x + 9, y + 6, 13, 8, 2), "#D99A32")
        art.fill(RoundRect(x + 9, y + 9, 28, 19, 2), "#E9AE45")
        art.fill(RoundRect(x + 13, y + 7, 20, 8, 1), "#F6F8FC")
        art.fill(RoundRect(x + 9, y + 13, 28, 15, 2), Gradient(0, y + 13, 0, y + 28, (0, "#FFD27A"), (1, "#F0AC3C")))
    elif row == 6:  # a shaft with ore in its walls
        art.fill(tile, Gradient(0, y, 0, y + 34, (0, "#4A342B"), (1, "#1E1513")))
        art.fill(Polygon((x + 17, y + 34), (x + 19, y + 12), (x + 27, y + 12), (x + 29, y + 34)), "#0C0807")
        for dx, dy, size in ((8, 9, 2.6), (12, 22, 3.2), (37, 14, 3), (34, 27, 2.4), (40, 6, 1.8)):
            art.fill(Circle(x + dx, y + dy, size), Gradient(0, y, 0, y + 34, (0, "#FFB27A"), (1, "#C8632F")))
        art.fill(Strokes([[(x + 16, y + 11), (x + 30, y + 11)]], 2.4), "#8C6239")
    elif row == 7:  # a lock
        art.fill(tile, Gradient(0, y, 0, y + 34, (0, "#2A1F45"), (1, "#0F0B1F")))
        art.fill(Ring(x + 23, y + 13, 4.5, 7), "#C8D2E4")
        art.fill(RoundRect(x + 14, y + 14, 18, 14, 2.5), Gradient(0, y + 14, 0, y + 28, (0, "#F3CF6B"), (1, "#C8932C")))
        art.fill(Circle(x + 23, y + 20, 2.2), "#3A2A12")
        art.fill(RoundRect(x + 22.1, y + 20, 1.8, 5, 0.8), "#3A2A12")
    else:  # a letter in the snow
        art.fill(tile, Gradient(0, y, 0, y + 34, (0, "#7FA6CF"), (1, "#E6F0FA")))
        for dx, dy in ((5, 6), (13, 4), (24, 5), (36, 7), (41, 15), (6, 18), (40, 26)):
            art.fill(Circle(x + dx, y + dy, 1.1), "#FFFFFF")
        art.fill(RoundRect(x + 11, y + 11, 24, 16, 1.5), "#FFFDF6")
        art.fill(Strokes([[(x + 12, y + 12.5), (x + 23, y + 20.5), (x + 34, y + 12.5)]], 1.3), "#C2483F")
