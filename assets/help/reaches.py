"""How near to the middle of the tag the borders come that are delivered."""

import functools
import math
import pathlib

import numpy
from PIL import Image

BORDERS = pathlib.Path(__file__).resolve().parents[2] / "data" / "Borders"
SIDE = 500
MIDDLE = SIDE // 2
LEFT_OUT = 8  # one border in so many is counted among the slim ones, and one among the wide ones


@functools.cache
def of_borders():
    """For each border by its name the distance in pixels from the middle to its nearest metal, rounded down."""
    row, column = numpy.mgrid[0:SIDE, 0:SIDE] - MIDDLE
    away = numpy.hypot(row, column)
    found = {}
    for file in sorted(BORDERS.glob("*.gif")):
        frame = numpy.asarray(Image.open(file).convert("RGB"))[:, :SIDE]
        found[file.stem] = math.floor(away[(frame != 255).any(axis=2)].min())
    return found


def of_most():
    """Between which distances three of four borders lie: the slimmest and the widest eighth are left out."""
    distances = sorted(of_borders().values())
    aside = len(distances) // LEFT_OUT
    return {"from": distances[aside], "to": distances[-1 - aside]}


def within(limit):
    """The borders that come nearer to the middle than a limit, with their distances."""
    return [(name, reach) for name, reach in of_borders().items() if reach < limit]
