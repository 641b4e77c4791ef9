"""Landscapes for the example skins: a northern night, dunes at sunset, and sparks over a fire."""

import math
import random

from raster import Gradient, mix, rgba

TAU = math.tau


class Noise:
    """Smooth random values from 0 to 1 along a line; the same ones for the same seed."""

    def __init__(self, seed):
        source = random.Random(seed)
        self.values = [source.random() for _ in range(256)]

    def __call__(self, x):
        cell = math.floor(x)
        t = x - cell
        t = t * t * (3 - 2 * t)
        return self.values[cell & 255] * (1 - t) + self.values[(cell + 1) & 255] * t

    def layered(self, x, octaves=4):
        total = weight = 0.0
        for octave in range(octaves):
            share = 0.5**octave
            total += share * self(x * 2**octave + octave * 37)
            weight += share
        return total / weight


class Curtain:
    """One band of northern lights; heights are parts of the picture's height."""

    def __init__(self, base, reach, strength, waves, seed):
        self.base, self.reach, self.strength = base, reach, strength
        self.waves = waves  # (size, waves across the picture, start, turns in a loop)
        self.noise = Noise(seed)

    def column(self, u, phase):
        """Base line, reach and strength at u (0 left, 1 right)."""
        base = self.base
        for size, across, start, turns in self.waves:
            base += size * math.sin(TAU * (across * u + start) + turns * phase)
        drift = 0.35 * math.sin(phase)
        rays = 0.45 + 0.75 * self.noise.layered(u * 42 + drift, 2)
        body = self.noise.layered(u * 4.2 + 11 + 0.25 * math.cos(phase), 2)
        reach = self.reach * (0.55 + 0.9 * self.noise(u * 15 + 5 + drift))
        return base, reach, self.strength * rays * max(0.0, body * 1.7 - 0.35)


class Night:
    """Stars, curtains of light, mountains, and a lake that mirrors them."""

    def __init__(self, width, height, sky, light, curtains, seed, horizon=0.82):
        self.width, self.height = width, height
        self.sky = [rgba(colour) for colour in sky]
        self.curtains = curtains
        self.horizon = round(height * horizon)
        colours = [rgba(colour) for colour in light]
        self.light = [self._profile(i / 48 - 0.5, colours) for i in range(48 * 6)]
        source = random.Random(seed)
        area = width * self.horizon
        self.stars = [
            (source.random() * width, source.random() ** 1.2 * self.horizon, source.random() ** 3, source.random())
            for _ in range(area // 900)
        ]
        self.ridges = [self._ridge(Noise(seed + 1), 4.2, 0.21, 0.02), self._ridge(Noise(seed + 2), 6.5, 0.11, 0.0)]

    @staticmethod
    def _profile(q, colours):
        """Colour of a curtain at q reaches above its base line, brightness included."""
        if q < 0.9:
            shade = mix(colours[0], colours[1], max(0, q / 0.9))
        else:
            shade = mix(colours[1], colours[2], min(1, (q - 0.9) / 1.6))
        level = math.exp(-q * 1.05) if q > 0 else math.exp(-((q / 0.14) ** 2)) * 0.8 + math.exp(q / 0.12) * 0.2
        return tuple(c * level for c in shade[:3])

    def _ridge(self, noise, across, size, lift):
        """Height of a chain of mountains above the horizon, a value a column."""
        top = []
        for x in range(self.width):
            u, peaks = x / self.width * across, 0.0
            for octave in range(5):
                peaks += 0.5**octave * (1 - abs(noise(u * 2**octave + octave * 19) * 2 - 1)) ** 1.4
            top.append(self.height * (lift + size * (0.1 + 0.5 * peaks * (0.35 + noise(u * 0.7 + 80)))))
        return top

    def frame(self, phase=0.0):
        """R, G, B bytes at a place of the loop (0 to 2 pi)."""
        rows = self._heavens(phase)
        self._mountains(rows)
        self._lake(rows, phase)
        return to_bytes(rows)

    def _heavens(self, phase):
        width, horizon, height = self.width, self.horizon, self.height
        top, middle, low = self.sky
        rows = []
        for y in range(horizon):
            t = y / horizon
            r, g, b, _ = mix(top, middle, t / 0.55) if t < 0.55 else mix(middle, low, (t - 0.55) / 0.45)
            rows.append([r, g, b] * width)
        for x, y, size, start in self.stars:
            level = (0.25 + 0.75 * size) * (0.85 + 0.15 * math.sin(phase + TAU * start))
            splat(rows, x, y, 0.45 + 0.5 * size, (0.85, 0.93, 1.0), level)
        light, last = self.light, len(self.light) - 1
        for curtain in self.curtains:
            for x in range(width):
                base, reach, strength = curtain.column(x / width, phase)
                if strength <= 0.01:
                    continue
                base, reach, at = base * height, reach * height, x * 3
                for y in range(max(0, int(base - reach * 5.4)), min(horizon, int(base + reach * 0.5))):
                    r, g, b = light[min(last, int(((base - y) / reach + 0.5) * 48))]
                    row = rows[y]
                    row[at] += r * strength
                    row[at + 1] += g * strength
                    row[at + 2] += b * strength
        return rows

    def _mountains(self, rows):
        far, near = mix(self.sky[2], self.sky[0], 0.45), mix(self.sky[0], (0, 0, 0, 1), 0.35)
        for ridge, colour in zip(self.ridges, (far, near)):
            for x in range(self.width):
                edge = self.horizon - ridge[x]
                first = int(edge)
                for y in range(max(0, first), self.horizon):
                    cover = 1 - (edge - first) if y == first else 1.0
                    haze = 0.30 * max(0.0, 1 - (self.horizon - y) / (0.06 * self.height))
                    row, at = rows[y], x * 3
                    for i in range(3):
                        shade = colour[i] + (self.sky[2][i] - colour[i]) * haze
                        row[at + i] += (shade - row[at + i]) * cover

    def _lake(self, rows, phase):
        """The sky upside down, compressed, darker, and shaken sideways by ripples."""
        noise = Noise(99)
        depth = self.height - self.horizon
        for y in range(depth):
            source = rows[max(0, self.horizon - 1 - int(y * 2.2 + y * y * 0.012))]
            shift = (noise(y * 0.9 + 0.5 * math.sin(phase)) - 0.5) * (1.5 + y * 0.12)
            dim = 0.62 - 0.30 * y / depth
            glint = 0.02 * noise(y * 1.7 + 40)
            row = []
            for x in range(self.width):
                at = min(self.width - 1, max(0, int(x + shift + 1.2 * math.sin(x * 0.05 + y)))) * 3
                row += [source[at] * dim, source[at + 1] * dim + glint, source[at + 2] * dim + glint * 1.5]
            rows.append(row)


def aurora(width, height):
    """The night of the Aurora skin."""
    return Night(
        width,
        height,
        ("#030817", "#07203D", "#10506A"),
        ("#7CFFB8", "#1FB8C4", "#5A3FC8"),
        [
            Curtain(0.62, 0.16, 0.95, ((0.050, 1.1, 0.05, 1), (0.020, 3.0, 0.3, 2)), 21),
            Curtain(0.46, 0.15, 0.75, ((0.060, 0.8, 0.55, -1), (0.018, 2.6, 0.1, 1)), 45),
            Curtain(0.34, 0.13, 0.45, ((0.045, 1.3, 0.8, 1), (0.015, 3.4, 0.6, -2)), 8),
        ],
        7,
    )


def violet_night(width, height):
    """Another night, for a small picture beside the first."""
    return Night(
        width,
        height,
        ("#0A0622", "#241250", "#6A3E86"),
        ("#FFB3E4", "#8D6BFF", "#3B2BB0"),
        [
            Curtain(0.58, 0.2, 1.0, ((0.07, 0.9, 0.3, 1), (0.02, 2.7, 0.0, 1)), 63),
            Curtain(0.4, 0.15, 0.6, ((0.05, 1.2, 0.7, 1),), 17),
        ],
        31,
        0.78,
    )


def dunes(width, height):
    """Sand hills before a low sun. Gives R, G, B bytes."""
    sun = (0.70 * width, 0.545 * height)
    rows = _evening_sky(width, height, sun)
    hills = (  # base line, size, waves across, lit side, shaded side
        (0.62, 0.05, 2.6, "#D9804A", "#A8503C"),
        (0.70, 0.08, 1.9, "#C4632F", "#7E3430"),
        (0.80, 0.10, 1.4, "#9C4526", "#55202B"),
        (0.92, 0.13, 1.0, "#6A2B20", "#2C1020"),
    )
    for number, (base, size, across, lit, shaded) in enumerate(hills):
        _hill(rows, sun, Noise(70 + number), (base, size, across), rgba(lit), rgba(shaded))
    grain = random.Random(3)
    for row in rows:
        for at in range(0, len(row), 3):
            speck = (grain.random() - 0.5) * 0.012
            for i in range(3):
                row[at + i] += speck
    return to_bytes(rows)


def _evening_sky(width, height, sun):
    """From dark red to gold, with streaks of cloud and the sun's disc."""
    noise = Noise(5)
    colours = Gradient(
        0, 0, 0, height, (0, "#2B1635"), (0.28, "#7A2E45"), (0.47, "#D2623C"), (0.58, "#F6A24B"), (0.66, "#FFD98A")
    )
    rows = []
    for y in range(height):
        t, row = y / height, []
        red, green, blue, _ = colours.at(0, y)
        for x in range(width):
            u, far = x / width, math.hypot(x - sun[0], y - sun[1]) / height
            disc = max(0.0, min(1.0, (0.062 - far) * height + 0.5))
            warmth = 0.55 * math.exp(-far * 5.5) + 0.25 * math.exp(-far * 16)
            cloud = 0.10 * max(0.0, noise.layered(u * 2.4 + t * 1.5, 3) - 0.5)
            cloud *= max(0.0, math.sin(t * 46 + 2.2 * noise(u * 3 + 9)))
            row += [
                red + warmth + cloud + disc * (1 - red),
                green + warmth * 0.62 + cloud * 0.7 + disc * (0.95 - green),
                blue + warmth * 0.25 + disc * (0.70 - blue),
            ]
        rows.append(row)
    return rows


def _hill(rows, sun, noise, shape, lit, shaded):
    """One hill over what is there: lit towards the sun, with a bright crest and ripples in the sand."""
    base, size, across = shape
    width, height = len(rows[0]) // 3, len(rows)
    crest = []
    for x in range(width):
        u = x / width * across
        swell = 1.8 * (noise(u + 0.5) - 0.5) + 0.25 * (noise(u * 2.6 + 8) - 0.5)
        crest.append(height * (base - size * swell))
    for x in range(width):
        slope = crest[min(width - 1, x + 3)] - crest[max(0, x - 3)]
        side = math.tanh((sun[0] - x) / (0.12 * width))
        near = math.exp(-abs(sun[0] - x) / (0.22 * width))
        toward = max(0.0, min(1.0, 0.42 + slope * 0.25 * side + 0.22 * near))
        first = int(crest[x])
        for y in range(max(0, first), height):
            cover = 1 - (crest[x] - first) if y == first else 1.0
            depth = (y - crest[x]) / height
            ripple = 0.05 * math.sin(y * 1.1 + 9 * noise(x / width * 9) + x * 0.06) * math.exp(-depth * 7)
            shade = mix(shaded, lit, max(0.0, min(1.0, toward * math.exp(-depth * 5) + ripple)))
            rim = 0.28 * math.exp(-depth * height / 2.0)
            row, at = rows[y], x * 3
            for i, warmth in enumerate((1.0, 0.75, 0.35)):
                row[at + i] += (shade[i] + rim * warmth - row[at + i]) * cover


class Sparks:
    """Sparks that rise over a glow, in a loop."""

    def __init__(self, width, height, number, seed):
        self.width, self.height = width, height
        source = random.Random(seed)
        self.sparks = [
            (source.random(), source.random(), source.choice((1, 1, 2)), 0.4 + source.random() * 0.9, source.random())
            for _ in range(number)
        ]

    def frame(self, phase):
        width, height = self.width, self.height
        rows = []
        for y in range(height):
            t = y / height
            row = []
            for x in range(width):
                middle = 1 - abs(x / width - 0.5) * 1.5
                flicker = 1 + 0.10 * math.sin(2 * phase + x * 0.05) + 0.06 * math.sin(3 * phase + y * 0.08)
                heat = max(0.0, middle) * math.exp((t - 1) * 3.2) * flicker
                row += [0.07 + 0.85 * heat, 0.02 + 0.36 * heat * heat + 0.10 * heat, 0.04 + 0.05 * heat]
            rows.append(row)
        for x, start, turns, size, sway in self.sparks:
            life = (start + turns * phase / TAU) % 1
            px = width * (0.12 + 0.76 * x) + 7 * math.sin(TAU * (sway + life * 1.5))
            level = math.sin(math.pi * life) ** 0.7
            splat(rows, px, height * (1.05 - 1.1 * life), 0.7 + size, (1.0, 0.62, 0.22), level)
        return to_bytes(rows)


def splat(rows, x, y, size, colour, level):
    """Adds a soft dot of light."""
    reach = math.ceil(size * 3)
    width = len(rows[0]) // 3
    for row in range(max(0, int(y) - reach), min(len(rows), int(y) + reach + 1)):
        for column in range(max(0, int(x) - reach), min(width, int(x) + reach + 1)):
            square = (row + 0.5 - y) ** 2 + (column + 0.5 - x) ** 2
            strength = level * math.exp(-square / (size * size))
            for i in range(3):
                rows[row][column * 3 + i] += colour[i] * strength


def to_bytes(rows):
    """Rows of numbers as bytes; what is too bright is softened, not cut."""
    out = bytearray()
    for row in rows:
        for v in row:
            if v > 0.85:
                v = 0.85 + 0.15 * (1 - math.exp((0.85 - v) / 0.15))
            out.append(max(0, min(255, int(v * 255 + 0.5))))
    return bytes(out)
