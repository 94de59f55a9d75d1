"""Borders that are turned on a lathe: plain rims, and rims with a worked surface."""

import numpy

from borders.shapes import EDGE, polar
from kit.relief import TURN, bevelled, blurred


def thin(relief):
    relief.half_round(230, EDGE, height=5)


def medium(relief):
    relief.half_round(219, EDGE, height=8)


def wide(relief):
    relief.flat_ring(192, EDGE, height=6, bevel=6)


def stepped(relief):
    relief.flat_ring(188, EDGE, height=4, bevel=4)
    relief.flat_ring(205, EDGE, height=4, bevel=4, base=4)
    relief.flat_ring(222, EDGE, height=4, bevel=4, base=8)


def double(relief):
    relief.half_round(225, EDGE, height=6)
    relief.half_round(206, 215, height=4)


def dished(relief):
    """A hollow moulding between two beads, like the frame of an old picture."""
    share = (relief.radius - 198) / 30
    hollow = 11 * (1 - numpy.sqrt(numpy.clip(1 - numpy.clip(share, 0, 1) ** 2, 0, 1)))
    relief.lay((relief.radius >= 194) & (relief.radius <= EDGE), hollow)
    relief.half_round(192, 200, height=4)
    relief.half_round(227, EDGE, height=5, base=9)


def reeded(relief):
    """The milled edge of a coin, seen from the front."""
    relief.flat_ring(198, EDGE, height=5, bevel=3)
    wave = numpy.cos(relief.angle * 120)
    ridges = 3.2 * numpy.sqrt(numpy.clip(0.5 + 0.5 * wave, 0, 1))
    fade = bevelled(numpy.minimum(relief.radius - 207, EDGE - 2 - relief.radius) / 3)
    relief.height += (ridges * fade).astype("float32")
    relief.half_round(196, 206, height=4, base=3)


def hammered(relief):
    """Planished metal: shallow hollows left by a round hammer, each cut off by its neighbours."""
    chance = numpy.random.default_rng(11)
    surface = numpy.full(relief.x.shape, numpy.float32(9))
    for row, (radius, count) in enumerate([(188, 72), (202, 78), (216, 83), (230, 88), (244, 93)]):
        for place in range(count):
            angle = (place + 0.5 * (row % 2) + chance.uniform(-0.3, 0.3)) * TURN / count
            x, y = polar(radius + chance.uniform(-4, 4), angle)
            strike(relief, surface, x, y, chance.uniform(0, 0.5))
    edge = 5 * bevelled(numpy.minimum(relief.radius - 194, EDGE - relief.radius) / 5)
    relief.lay((relief.radius >= 194) & (relief.radius <= EDGE), blurred(surface, 1.5) + edge)


def strike(relief, surface, x, y, bottom, reach=16):
    """One blow of the hammer, which leaves a hollow down to `bottom`."""
    box = relief.box(x, y, reach)
    square = (relief.x[box] - x) ** 2 + (relief.y[box] - y) ** 2
    numpy.minimum(surface[box], bottom + square * 0.022, out=surface[box])


BORDERS = {
    "Rim 1 thin": thin,
    "Rim 2 medium": medium,
    "Rim 3 wide": wide,
    "Rim double": double,
    "Rim stepped": stepped,
    "Rim dished": dished,
    "Rim hammered": hammered,
    "Rim milled": reeded,
}
