"""Metal that is stamped over other metal by AND, bit by bit: the ring of a hole over a border.

Of two shades of one metal, AND makes any colour: copper and copper give red and green specks. So such a ring has
few tones, and the shades of the borders step aside, by as little as nobody sees, to where all of them together
with each of those tones stay on the metal's line, which its colours run through from black to the gleam.
"""

import functools

import numpy
from PIL import Image

from kit import metals

# By metal the tones of a ring: from which light on, and the colour. They were found by trying: the dark ones have
# few bits, the light ones nearly all of those that the metal's shades use, and what lies between has none.
TONES = {
    "Black Nickel": [
        (0, (8, 8, 15)), (0.12, (32, 40, 47)), (0.27, (64, 72, 79)), (0.50, (128, 136, 151)), (0.70, (192, 200, 215)),
        (0.90, (216, 224, 231)),
    ],
    "Shiny Copper": [(0, (28, 11, 7)), (0.15, (114, 46, 6)), (0.56, (247, 236, 207))],
    "Shiny Silver": [
        (0, (24, 24, 31)), (0.12, (64, 64, 71)), (0.24, (96, 96, 103)), (0.44, (192, 192, 199)), (0.64, (208, 208, 215)),
        (0.82, (224, 224, 231)), (0.94, (232, 232, 234)),
    ],
    "Shiny Gold": [(0, (40, 23, 0)), (0.13, (247, 216, 72)), (0.76, (248, 247, 200))],
}

# How far a colour may lie from the metal's line at its lightness, in the plane of hue and chroma (CIE Lab).
FARTHEST = 7.9
# Cubes around a shade in which its new colour is looked for: half their side, and the step.
CUBES = [(8, 1), (24, 2), (40, 3)]
# By how much a shade may be darker than the one before it.
SLACK = 1
LIGHTEST = 234

TO_XYZ = numpy.array([
    [0.4124564, 0.3575761, 0.1804375], [0.2126729, 0.7151522, 0.0721750], [0.0193339, 0.1191920, 0.9503041],
])
WHITE_POINT = numpy.array([0.95047, 1.0, 1.08883])


def lab(colours):
    """Lightness, and the two axes of hue and chroma, of colours from 0 to 255 (sRGB)."""
    shares = numpy.asarray(colours, float) / 255
    linear = numpy.where(shares <= 0.04045, shares / 12.92, ((shares + 0.055) / 1.055) ** 2.4)
    parts = linear @ TO_XYZ.T / WHITE_POINT
    x, y, z = numpy.moveaxis(numpy.where(parts > 0.008856, numpy.cbrt(parts), 7.787 * parts + 16 / 116), -1, 0)
    return numpy.stack([116 * y - 16, 500 * (x - y), 200 * (y - z)], axis=-1)


@functools.cache
def line(metal):
    """Lightness and hue axes of the metal's line, a row each, from black on."""
    shadows = numpy.linspace((0, 0, 0), metals.METALS[metal][0], 40, endpoint=False)
    return lab(numpy.concatenate([shadows, metals.colours_at(metal, numpy.linspace(0, 1, 512))])).T


def strays(metal, colours):
    """How far colours lie from the metal's line at their lightness."""
    lightness, first, second = line(metal)
    here = lab(colours)
    return numpy.hypot(here[..., 1] - numpy.interp(here[..., 0], lightness, first),
                       here[..., 2] - numpy.interp(here[..., 0], lightness, second))


def kept(metal, wanted, darkest):
    """The nearest colour to a wanted one that stays on the metal's line, alone and with each tone of a ring, and
    isn't darker than a lightness."""
    for half, step in CUBES:
        side = numpy.arange(-half, half + 1, step)
        found = wanted + numpy.stack(numpy.meshgrid(side, side, side, indexing="ij"), axis=-1).reshape(-1, 3)
        found = found[((found >= 0) & (found <= 255)).all(axis=1) & (found <= LIGHTEST).any(axis=1)]
        found = found[lab(found)[:, 0] >= darkest]
        found = found[numpy.argsort(numpy.round(((lab(found) - lab(wanted)) ** 2).sum(axis=1), 6), kind="stable")]
        for tone in [(255, 255, 255), *(colour for _, colour in TONES[metal])]:
            found = found[strays(metal, found & numpy.array(tone)) <= FARTHEST]
        if len(found):
            return found[0]
    raise SystemExit(f"{metal}: no colour near {tuple(wanted)} goes with the tones of its ring")


def shaded(metal):
    """The colours of all shades of a metal over which a ring may be stamped."""
    shades, darkest = [], 0
    for wanted in metals.shaded(metal):
        shades.append(kept(metal, wanted, darkest))
        darkest = lab(shades[-1])[0] - SLACK
    return numpy.stack(shades)


def strip(relief):
    """A relief in the tones of a ring, in all four metals side by side, pure white where there is none."""
    tone, metal = metals.lit(relief)
    frames = []
    for name in metals.METALS:
        lights, colours = zip(*TONES[name])
        picture = numpy.array(colours, "uint8")[numpy.searchsorted(lights, tone, side="right") - 1]
        picture[~metal] = 255
        frames.append(picture)
    return Image.fromarray(numpy.concatenate(frames, axis=1))
