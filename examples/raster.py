"""A small anti-aliased rasteriser, and the same shapes as SVG.

Every shape knows its distance to a point (negative inside), which gives smooth edges, outlines and glows
from one function. Colours are "#RRGGBB" or "#RRGGBBAA"; a gradient may stand wherever a colour does.
Only the standard library is used.
"""

import math
import struct
import zlib


def rgba(text):
    """'#RRGGBB' or '#RRGGBBAA' as four numbers from 0 to 1."""
    digits = text.lstrip("#")
    parts = [int(digits[i : i + 2], 16) / 255 for i in range(0, len(digits), 2)]
    return tuple(parts) if len(parts) == 4 else (*parts, 1.0)


def mix(a, b, t):
    """Between two colours given as tuples; t runs from 0 to 1."""
    return tuple(p + (q - p) * t for p, q in zip(a, b))


class Gradient:
    """A linear gradient from (x1, y1) to (x2, y2) in the shape's units; stops are (place, colour)."""

    def __init__(self, x1, y1, x2, y2, *stops):
        self.start, self.end = (x1, y1), (x2, y2)
        self.stops = [(place, rgba(colour), colour) for place, colour in stops]
        self.dx, self.dy = x2 - x1, y2 - y1
        self.square = self.dx * self.dx + self.dy * self.dy

    def at(self, x, y):
        t = ((x - self.start[0]) * self.dx + (y - self.start[1]) * self.dy) / self.square
        return self.along(t)

    def along(self, t):
        stops = self.stops
        if t <= stops[0][0]:
            return stops[0][1]
        for (a, first, _), (b, second, _) in zip(stops, stops[1:]):
            if t <= b:
                return mix(first, second, (t - a) / (b - a))
        return stops[-1][1]


class Radial(Gradient):
    """A gradient from a middle outwards."""

    def __init__(self, cx, cy, radius, *stops):
        super().__init__(cx, cy, cx + radius, cy, *stops)
        self.radius = radius

    def at(self, x, y):
        return self.along(math.hypot(x - self.start[0], y - self.start[1]) / self.radius)


class Conic:
    """Colour by direction from a middle; `colour` takes the angle in radians. Rasters only."""

    def __init__(self, cx, cy, colour):
        self.cx, self.cy, self.colour = cx, cy, colour

    def at(self, x, y):
        return self.colour(math.atan2(y - self.cy, x - self.cx))


class RoundRect:
    def __init__(self, x, y, w, h, r=0):
        self.args = (x, y, w, h, r)
        self.box = (x, y, x + w, y + h)
        self.cx, self.cy = x + w / 2, y + h / 2
        self.hw, self.hh, self.r = w / 2 - r, h / 2 - r, r

    def distance(self, x, y):
        dx, dy = abs(x - self.cx) - self.hw, abs(y - self.cy) - self.hh
        outside = math.hypot(max(dx, 0), max(dy, 0))
        return outside + min(max(dx, dy), 0) - self.r

    def svg(self):
        x, y, w, h, r = self.args
        return f'<rect x="{x:g}" y="{y:g}" width="{w:g}" height="{h:g}" rx="{r:g}"'


class Circle:
    def __init__(self, cx, cy, r):
        self.cx, self.cy, self.r = cx, cy, r
        self.box = (cx - r, cy - r, cx + r, cy + r)

    def distance(self, x, y):
        return math.hypot(x - self.cx, y - self.cy) - self.r

    def svg(self):
        return f'<circle cx="{self.cx:g}" cy="{self.cy:g}" r="{self.r:g}"'


class Ring:
    """The area between two circles. Rasters only."""

    def __init__(self, cx, cy, inner, outer):
        self.cx, self.cy = cx, cy
        self.middle, self.half = (inner + outer) / 2, (outer - inner) / 2
        self.box = (cx - outer, cy - outer, cx + outer, cy + outer)

    def distance(self, x, y):
        return abs(math.hypot(x - self.cx, y - self.cy) - self.middle) - self.half


class Polygon:
    def __init__(self, *points):
        self.points = points
        self.edges = list(zip(points, points[1:] + points[:1]))
        xs, ys = [p[0] for p in points], [p[1] for p in points]
        self.box = (min(xs), min(ys), max(xs), max(ys))

    def distance(self, x, y):
        nearest, inside = math.inf, False
        for (ax, ay), (bx, by) in self.edges:
            nearest = min(nearest, segment_square(x, y, ax, ay, bx, by))
            if (ay > y) != (by > y) and x < (bx - ax) * (y - ay) / (by - ay) + ax:
                inside = not inside
        return -math.sqrt(nearest) if inside else math.sqrt(nearest)

    def svg(self):
        points = " ".join(f"{x:g},{y:g}" for x, y in self.points)
        return f'<polygon points="{points}"'


class Strokes:
    """Lines of one width with round ends: a list of strokes, each a list of points."""

    def __init__(self, strokes, width):
        self.strokes, self.half = strokes, width / 2
        self.segments = []
        for points in strokes:
            if len(points) == 1:
                points = points * 2
            self.segments += [(*a, *b) for a, b in zip(points, points[1:])]
        xs = [p[0] for points in strokes for p in points]
        ys = [p[1] for points in strokes for p in points]
        grow = self.half
        self.box = (min(xs) - grow, min(ys) - grow, max(xs) + grow, max(ys) + grow)

    def distance(self, x, y):
        nearest = min(segment_square(x, y, *segment) for segment in self.segments)
        return math.sqrt(nearest) - self.half

    def svg(self):
        path = " ".join("M" + " L".join(f"{x:g} {y:g}" for x, y in s) for s in self.strokes)
        return f'<path d="{path}" stroke-linecap="round" stroke-linejoin="round"'


def segment_square(x, y, ax, ay, bx, by):
    """Square of the distance from a point to the line from a to b."""
    px, py, dx, dy = x - ax, y - ay, bx - ax, by - ay
    square = dx * dx + dy * dy
    t = max(0.0, min(1.0, (px * dx + py * dy) / square)) if square else 0.0
    px -= t * dx
    py -= t * dy
    return px * px + py * py


class Canvas:
    """Pixels with premultiplied colour. Drawing uses units; a unit is `scale` pixels."""

    def __init__(self, width, height, scale=1.0, clip=None):
        self.width, self.height, self.scale, self.clip = width, height, scale, clip
        self.pixels = [0.0] * (width * height * 4)

    def fill(self, shape, paint, opacity=1.0):
        scale = self.scale
        self._paint(shape, 1 / scale, paint, opacity, lambda d: 0.5 - d * scale)

    def outline(self, shape, width, paint, opacity=1.0):
        """A line of this width, centred on the edge of the shape."""
        scale, half = self.scale, width / 2
        self._paint(shape, half + 1 / scale, paint, opacity, lambda d: 0.5 - (abs(d) - half) * scale)

    def glow(self, shape, reach, paint, opacity=1.0):
        """Light that fades away from the shape over about `reach` units."""
        self._paint(
            shape, reach * 2.2, paint, opacity, lambda d: math.exp(-((max(d, 0) / reach) ** 2) * 1.5) - 0.0007
        )

    def _paint(self, shape, grow, paint, opacity, coverage):
        scale, width, pixels, clip = self.scale, self.width, self.pixels, self.clip
        left, top, right, bottom = shape.box
        x0, y0 = max(0, math.floor((left - grow) * scale)), max(0, math.floor((top - grow) * scale))
        x1 = min(width, math.ceil((right + grow) * scale))
        y1 = min(self.height, math.ceil((bottom + grow) * scale))
        fixed = rgba(paint) if isinstance(paint, str) else None
        for row in range(y0, y1):
            y = (row + 0.5) / scale
            for column in range(x0, x1):
                x = (column + 0.5) / scale
                covered = coverage(shape.distance(x, y))
                if covered <= 0:
                    continue
                if covered > 1:
                    covered = 1.0
                if clip is not None:
                    covered *= max(0.0, min(1.0, 0.5 - clip.distance(x, y) * scale))
                r, g, b, a = fixed or paint.at(x, y)
                a *= covered * opacity
                at, rest = (row * width + column) * 4, 1 - a
                pixels[at] = pixels[at] * rest + r * a
                pixels[at + 1] = pixels[at + 1] * rest + g * a
                pixels[at + 2] = pixels[at + 2] * rest + b * a
                pixels[at + 3] = pixels[at + 3] * rest + a

    def rgba_bytes(self):
        """Rows of R, G, B, A bytes, not premultiplied."""
        out, pixels = bytearray(len(self.pixels)), self.pixels
        for at in range(0, len(pixels), 4):
            alpha = pixels[at + 3]
            if alpha > 0.002:
                for i in range(3):
                    out[at + i] = min(255, int(pixels[at + i] / alpha * 255 + 0.5))
                out[at + 3] = min(255, int(alpha * 255 + 0.5))
        return bytes(out)

    def rgb_bytes(self):
        """Rows of R, G, B bytes; what is transparent is black."""
        return bytes(
            min(255, int(self.pixels[at + i] * 255 + 0.5)) for at in range(0, len(self.pixels), 4) for i in range(3)
        )


class Drawing:
    """Shapes in order, from the back to the front, to be rasterised at any size or saved as SVG."""

    def __init__(self, width, height):
        self.width, self.height = width, height
        self.items = []

    def fill(self, shape, paint, opacity=1.0):
        self.items.append((shape, paint, None, opacity))

    def outline(self, shape, width, paint, opacity=1.0):
        self.items.append((shape, paint, width, opacity))

    def render(self, size):
        scale = size / self.width
        canvas = Canvas(size, round(self.height * scale), scale)
        for shape, paint, width, opacity in self.items:
            if width is None:
                canvas.fill(shape, paint, opacity)
            else:
                canvas.outline(shape, width, paint, opacity)
        return canvas

    def svg(self, title):
        body, defs = [], []
        for shape, paint, width, opacity in self.items:
            ink = paint if isinstance(paint, str) else f"url(#{self._svg_gradient(defs, paint)})"
            if isinstance(shape, Strokes):
                style = f'fill="none" stroke="{ink}" stroke-width="{shape.half * 2:g}"'
            elif width is None:
                style = f'fill="{ink}"'
            else:
                style = f'fill="none" stroke="{ink}" stroke-width="{width:g}"'
            if opacity < 1:
                style += f' opacity="{opacity:g}"'
            body.append(f"  {shape.svg()} {style}/>")
        return "\n".join(
            [
                f'<svg xmlns="http://www.w3.org/2000/svg" width="{self.width}" height="{self.height}"'
                f' viewBox="0 0 {self.width} {self.height}">',
                f"  <title>{title}</title>",
                "  <defs>",
                *defs,
                "  </defs>",
                *body,
                "</svg>",
                "",
            ]
        )

    @staticmethod
    def _svg_gradient(defs, paint):
        name = f"g{len(defs) + 1}"
        (x1, y1), (x2, y2) = paint.start, paint.end
        stops = "".join(f'<stop offset="{place:g}" stop-color="{colour}"/>' for place, _, colour in paint.stops)
        defs.append(
            f'    <linearGradient id="{name}" gradientUnits="userSpaceOnUse" x1="{x1:g}" y1="{y1:g}"'
            f' x2="{x2:g}" y2="{y2:g}">{stops}</linearGradient>'
        )
        return name


def png_bytes(width, height, data):
    """A PNG file of RGB or RGBA bytes (told by their number)."""
    depth = len(data) // (width * height)
    stride = width * depth
    rows, above = bytearray(), bytes(stride)
    for start in range(0, height * stride, stride):
        row = data[start : start + stride]
        rows += min(_filtered(row, above, depth), key=_weight)
        above = row
    header = struct.pack(">IIBBBBB", width, height, 8, 2 if depth == 3 else 6, 0, 0, 0)
    chunks = ((b"IHDR", header), (b"IDAT", zlib.compress(bytes(rows), 9)), (b"IEND", b""))
    return b"\x89PNG\r\n\x1a\n" + b"".join(
        struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body)) for kind, body in chunks
    )


def _filtered(row, above, depth):
    """The row in each of PNG's five filters, filter byte first."""
    left = bytes(depth) + row[:-depth]
    corner = bytes(depth) + above[:-depth]
    yield b"\x00" + row
    yield b"\x01" + bytes((a - b) & 255 for a, b in zip(row, left))
    yield b"\x02" + bytes((a - b) & 255 for a, b in zip(row, above))
    yield b"\x03" + bytes((a - (b + c) // 2) & 255 for a, b, c in zip(row, left, above))
    yield b"\x04" + bytes((v - _paeth(a, b, c)) & 255 for v, a, b, c in zip(row, left, above, corner))


def _paeth(a, b, c):
    p = a + b - c
    pa, pb, pc = abs(p - a), abs(p - b), abs(p - c)
    return a if pa <= pb and pa <= pc else b if pb <= pc else c


def _weight(line):
    return sum(v if v < 128 else 256 - v for v in line[1:])


def bmp_bytes(width, height, rgb):
    """A Windows bitmap with 24 bits a pixel, bottom row first."""
    stride = width * 3
    padding = bytes(-stride % 4)
    rows = bytearray()
    for start in range((height - 1) * stride, -1, -stride):
        row = bytearray(rgb[start : start + stride])
        row[0::3], row[2::3] = row[2::3], row[0::3]
        rows += row + padding
    header = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(rows), 2835, 2835, 0, 0)
    return struct.pack("<2sIHHI", b"BM", 54 + len(rows), 0, 0, 54) + header + bytes(rows)
