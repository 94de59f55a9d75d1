"""The look of the four metals: the same light on the same polish, wherever a picture shows metal.

A relief is lit once. The light on each point is a single number, its tone, from the darkest crevice (0) to
the gleam (1); every metal is a row of colours for the tones. So a picture of all four metals needs 4 x 48
colours: no banding, in a palette of 256.
"""

import numpy
from PIL import Image

from kit import gif
from kit.relief import SAMPLES, blurred, depth_inside

# In the order in which pictures show them, each with its colours from tone 0 to tone 1 in even steps. The
# brightest stays below the white that stands for "no metal here".
METALS = {
    "Black Nickel": [(6, 7, 10), (20, 23, 29), (44, 49, 59), (82, 90, 104), (142, 151, 167), (218, 225, 233)],
    "Shiny Copper": [
        (38, 12, 4), (98, 36, 9), (170, 74, 18), (224, 112, 36), (246, 166, 104), (255, 228, 200),
    ],
    "Shiny Silver": [
        (24, 24, 28), (70, 71, 77), (120, 121, 127), (170, 171, 177), (211, 212, 216), (233, 233, 234),
    ],
    "Shiny Gold": [(48, 27, 0), (112, 70, 0), (184, 124, 0), (236, 172, 8), (252, 213, 82), (255, 245, 186)],
}
SHADES = 48
WHITE = 255
MOST_SLACK = 5

# Where the light comes from: the upper left.
LIGHT = (-0.55, -0.835)

# What polished metal mirrors when its surface leans towards the light (1) or away from it (-1): a bright sky
# with a darker zenith, the horizon, the ground and a glow from below.
ROOM = [
    (-1.0, 0.10), (-0.85, 0.30), (-0.70, 0.36), (-0.52, 0.20), (-0.34, 0.13), (-0.16, 0.33), (0.0, 0.53),
    (0.14, 0.62), (0.28, 0.84), (0.42, 1.0), (0.58, 0.95), (0.74, 0.66), (0.88, 0.50), (1.0, 0.56),
]

# Two lamps at the sides, for what leans neither towards nor away from the light: where their reflection
# stands (x, y of the surface's normal), how wide and how bright it is.
LAMPS = [((0.52, -0.22), 0.22, 0.30), ((-0.34, 0.46), 0.20, 0.26), ((0.55, 0.62), 0.16, 0.22)]


def turned(angle):
    """The gleam of flat metal turned on a lathe: fans of light and shade round the centre, from -1 to 1."""
    fans = [(-0.58, 0.34, 1.0), (2.62, 0.36, 0.9), (0.62, 0.20, 0.45), (-2.15, 0.22, 0.5), (1.65, 0.16, 0.3)]
    light = numpy.full_like(angle, -0.34)
    for middle, width, strength in fans:
        off = (angle - middle + numpy.pi) % (2 * numpy.pi) - numpy.pi
        light += strength * numpy.exp(-0.5 * (off / width) ** 2)
    return light


def mirrored(lean):
    """The tone of the room at a lean, its corners smoothed."""
    places = numpy.linspace(-1, 1, 513)
    table = numpy.interp(places, *zip(*ROOM))
    kernel = numpy.exp(-0.5 * (numpy.arange(-24, 25) / 9) ** 2)
    table = numpy.convolve(numpy.pad(table, 24, mode="edge"), kernel / kernel.sum(), "valid")
    return numpy.interp(lean, places, table).astype("float32")


def tones(relief):
    """The light on each sample of a relief, from 0 to 1."""
    down, right = numpy.gradient(relief.height * SAMPLES)
    upright = 1 / numpy.sqrt(1 + down * down + right * right)
    x, y = -right * upright, -down * upright
    light = mirrored(x * LIGHT[0] + y * LIGHT[1])
    for (lamp_x, lamp_y), width, strength in LAMPS:
        light += strength * numpy.exp(-((x - lamp_x) ** 2 + (y - lamp_y) ** 2) / (2 * width * width))
    light += 0.46 * upright**6 * turned(relief.angle)
    # Less light reaches what lies beside something higher.
    for reach, strength in ((1.0, 0.30), (3.0, 0.10)):
        hollow = blurred(relief.height, reach * SAMPLES) - relief.height
        light -= strength * numpy.clip(hollow, 0, 2)
    return numpy.clip(light, 0.03, 1) * relief.polish


def lit(relief):
    """The tone of each pixel of a relief, from 0 to 1, and where it is metal. A dark line bounds the metal, so
    that it stands out from any design; no pixel is half metal."""
    depth = depth_inside(relief.solid, 2 * SAMPLES) / SAMPLES
    edge = numpy.clip((depth - 0.7) / 1.2, 0, 1)
    light = tones(relief) * edge * edge * (3 - 2 * edge) * relief.solid
    cover = by_pixel(relief.solid.astype("float32"), relief.side)
    metal = cover >= 0.4
    tone = by_pixel(light, relief.side) / numpy.maximum(cover, 0.01)
    # The line is a little paler where less of the pixel is covered, which takes the steps out of its edge.
    tone += 0.22 * (1 - cover)
    return numpy.clip(tone, 0, 1), metal


def by_pixel(field, side):
    return field.reshape(side, SAMPLES, side, SAMPLES).mean(axis=(1, 3))


def dithered(tone):
    """Tones as whole numbers of shades, with a fine fixed pattern instead of steps between two shades."""
    pattern = numpy.array([[0, 8, 2, 10], [12, 4, 14, 6], [3, 11, 1, 9], [15, 7, 13, 5]]) / 16 + 1 / 32
    rows, columns = tone.shape
    tiled = numpy.tile(pattern, (-(-rows // 4), -(-columns // 4)))[:rows, :columns]
    return numpy.minimum(numpy.floor(tone * (SHADES - 1) + tiled), SHADES - 1).astype("uint8")


def colours_at(metal, places):
    """The colours of a metal for tones from 0 to 1, a row each, not rounded."""
    stops = numpy.linspace(0, 1, len(METALS[metal]))
    return numpy.stack([numpy.interp(places, stops, channel) for channel in zip(*METALS[metal])], axis=1)


def shaded(metal):
    """The colours of all shades of a metal."""
    return numpy.rint(colours_at(metal, numpy.linspace(0, 1, SHADES))).astype(int)


def palette(shading=shaded):
    """The colours of all four metals, then pure white up to the end. `shading` tells a metal's colours."""
    rows = [channel for metal in METALS for channel in shading(metal).flatten().tolist()]
    return rows + [255] * (768 - len(rows))


def strip(relief):
    """A relief in all four metals side by side, pure white where there is none."""
    tone, metal = lit(relief)
    shade = dithered(tone)
    frames = [numpy.where(metal, shade + column * SHADES, WHITE) for column in range(len(METALS))]
    picture = Image.fromarray(numpy.concatenate(frames, axis=1).astype("uint8"), "P")
    picture.putpalette(palette())
    return picture


def neighbours(level):
    """For each index of a strip the shades of its own metal that are at most `level` away, nearest first."""
    alike = [()] * 256
    for first in range(0, len(METALS) * SHADES, SHADES):
        for shade in range(SHADES):
            beside = [shade + side * away for away in range(1, level + 1) for side in (-1, 1)]
            alike[first + shade] = tuple(first + other for other in beside if 0 <= other < SHADES)
    return alike


def slack(pixels):
    """By how many shades each pixel of a strip may be off: one on smooth metal, more where it is next to much
    lighter or darker metal."""
    metal = pixels // SHADES
    padded = numpy.pad(pixels.astype(int), 1, mode="edge")
    lightest, darkest = pixels.astype(int), pixels.astype(int)
    for row in range(3):
        for column in range(3):
            beside = padded[row : row + pixels.shape[0], column : column + pixels.shape[1]]
            same = beside // SHADES == metal
            lightest = numpy.where(same, numpy.maximum(lightest, beside), lightest)
            darkest = numpy.where(same, numpy.minimum(darkest, beside), darkest)
    return numpy.clip((lightest - darkest) // 2, 1, MOST_SLACK)


def save_strip(picture, path, colours):
    """Writes a strip as a GIF with the colours of a palette. What is white stays white, and metal keeps to its
    own colours."""
    pixels = numpy.asarray(picture)
    alike = [neighbours(level) for level in range(MOST_SLACK + 1)]
    gif.save_gif(pixels, colours, path, alike, slack(pixels))
