"""A portrait for the badge, drawn here: a hooded figure before an evening sky."""

import functools
import struct
import zlib

SIZE = 84
SAMPLES = 3  # each way in a pixel, for smooth edges

SKY_ABOVE, SKY_BELOW = (28, 34, 74), (196, 104, 62)
MOON, CLOAK, FOLD, TRIM = (250, 226, 168), (34, 74, 72), (22, 50, 52), (255, 180, 0)
MOON_MIDDLE = 65, 18
FACE, SHADE, EYE = (222, 170, 128), (46, 24, 26), (250, 236, 190)


def is_in_ellipse(x, y, middle, radii):
    return sum(((a - b) / radius) ** 2 for a, b, radius in zip((x, y), middle, radii)) <= 1


def cloak_half_width(y):
    """Shoulders that widen downwards."""
    return max(0, y - 50) ** 0.5 * 6.4


def colour_at(x, y):
    """The topmost thing at a point, from the upper left corner."""
    aside = abs(x - 42)
    if is_in_ellipse(aside, y, (5.5, 40), (2.2, 1.5)):
        return EYE
    if is_in_ellipse(x, y, (42, 46), (10.5, 13)) and y > 37 + aside * 0.2:
        return FACE if y > 43 else SHADE
    if is_in_ellipse(x, y, (42, 43), (14, 18)):
        return SHADE
    if is_in_ellipse(x, y, (42, 43), (16, 20.5)) and y < 60:
        return TRIM
    if is_in_ellipse(x, y, (42, 44), (23, 27)) or aside < 14 - abs(y - 20):
        return CLOAK
    if aside < cloak_half_width(y):
        return FOLD if y - aside > 62 else CLOAK
    if is_in_ellipse(x, y, MOON_MIDDLE, (9, 9)):
        return MOON
    return tuple(above + (below - above) * y / SIZE for above, below in zip(SKY_ABOVE, SKY_BELOW))


def pixel(column, row):
    offsets = [(step + 0.5) / SAMPLES for step in range(SAMPLES)]
    colours = [colour_at(column + x, row + y) for x in offsets for y in offsets]
    return bytes(round(sum(part) / len(colours)) for part in zip(*colours))


def chunk(kind, content):
    body = kind + content
    return struct.pack(">I", len(content)) + body + struct.pack(">I", zlib.crc32(body))


@functools.cache
def draw_portrait():
    """The content of a PNG file."""
    rows = (b"\0" + b"".join(pixel(column, row) for column in range(SIZE)) for row in range(SIZE))
    header = struct.pack(">IIBBBBB", SIZE, SIZE, 8, 2, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) +
            chunk(b"IDAT", zlib.compress(b"".join(rows))) + chunk(b"IEND", b""))
