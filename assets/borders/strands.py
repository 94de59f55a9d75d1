"""Borders of strands that run over and under each other: ropes, braids, knots, chains, wire."""

import numpy

from borders.shapes import EDGE, filled, framed_floor
from kit.relief import TURN, Motif


def rope(relief, inner, outer, strands, lean=0.75):
    """A laid rope: strands wind round it, so that each shows as a slanting S.

    A helix on a cylinder is seen at the sine of its angle, so across the rope it lies at the arc sine."""
    middle, half = (inner + outer) / 2, (outer - inner) / 2
    across = numpy.clip((relief.radius - middle) / half, -1, 1)
    phase = relief.angle * strands / TURN + lean * numpy.arcsin(across * 0.97) / 1.5708
    strand = 2 * (phase % 1) - 1
    round_back = numpy.sqrt(numpy.clip(1 - across * across, 0, 1))
    round_strand = numpy.sqrt(numpy.clip(1 - (0.96 * strand) ** 2, 0, 1))
    height = half * (0.55 * round_back + 0.42 * round_strand)
    relief.lay((relief.radius >= inner) & (relief.radius <= outer), height.astype("float32"))


def interlaced(relief, strands, half, height, lift, gap=1.8, ribbon=False):
    """Strands laid over and under each other. A strand is the distance of every sample from its middle line
    and its level there, from -1 to 1; the higher one passes over. `gap` is the dark seam beside the upper
    one."""
    distances = numpy.stack([distance for distance, _ in strands])
    levels = numpy.stack([level for _, level in strands])
    order = numpy.argsort(levels, axis=0)
    for rank in range(len(strands)):
        pick = order[rank : rank + 1]
        distance = numpy.take_along_axis(distances, pick, axis=0)[0]
        level = numpy.take_along_axis(levels, pick, axis=0)[0]
        seam = (distance < half + gap) & relief.solid
        relief.height = numpy.where(seam, numpy.minimum(relief.height, 0), relief.height)
        share = numpy.clip(distance / half, 0, 1)
        profile = numpy.sqrt(1 - share**4 if ribbon else 1 - share**2)
        if ribbon:
            profile = profile - 0.28 * numpy.exp(-0.5 * (distance / (0.22 * half)) ** 2)
        relief.lay(distance < half, (lift * (1 + level) / 2 + height * profile).astype("float32"))


def wave_strand(relief, middle, swing, waves, phase, crossings):
    """A strand that swings about the middle of the ring; it changes its level `crossings` times a wave."""
    run = relief.angle * waves + phase
    off = relief.radius - middle - swing * numpy.cos(run)
    slope = swing * waves * numpy.sin(run) / middle
    return abs(off) / numpy.sqrt(1 + slope * slope), numpy.sin(crossings * run)


def plait(relief, count, middle, swing, waves, **look):
    """A plait of so many strands: each lies under and over the others in turn."""
    strands = [
        wave_strand(relief, middle, swing, waves, place * TURN / count, count - 1) for place in range(count)
    ]
    interlaced(relief, strands, **look)


def rope_thin(relief):
    rope(relief, 223, EDGE, 90)


def rope_thick(relief):
    rope(relief, 205, EDGE, 44)


def celtic_braid(relief):
    framed_floor(relief, 191)
    plait(relief, 3, 213, 10, 20, half=4.6, height=4.2, lift=4.5, ribbon=True)


def link(relief, count, first, middle, straight, bend):
    """Every second link of a chain round the ring: an oval of two straight lines and two bends."""
    cell = 2 * TURN / count
    along = ((relief.angle - first * TURN / count + cell / 2) % cell - cell / 2) * middle
    off = relief.radius - middle
    oval = abs(numpy.hypot(numpy.maximum(abs(along) - straight, 0), off) - bend)
    return oval, numpy.clip(along * off / (bend * bend), -1, 1)


def chain(relief):
    strands = [link(relief, 32, first, 224, 18, 10.2) for first in (0, 1)]
    interlaced(relief, strands, half=5.1, height=5, lift=5)


def barbed_wire(relief):
    relief.half_round(232, EDGE, height=4)
    plait(relief, 2, 211, 3.2, 36, half=2.7, height=2.7, lift=2.5, gap=0.8)
    barb = Motif(barb_points, 20, 2.8, 2)
    coil = Motif(barb_coil, 10, 3.0, 1.5)
    relief.around(barb, 18, 211, base=1.5)
    for side in (-1, 0, 1):
        relief.around(coil, 18, 211, first=side * 0.019, base=3)


def barb_points(context):
    for side in (1, -1):
        filled(context, [(-5 * side, 19 * side), (-2.5 * side, -3 * side), (2.2 * side, -3 * side)])
        filled(context, [(-10 * side, -15 * side), (-4.5 * side, 4 * side), (0, 2 * side)])


def barb_coil(context):
    context.set_line_width(3.6)
    context.move_to(1.2, -6.2)
    context.line_to(-1.2, 6.2)
    context.stroke()


BORDERS = {
    "Barbed wire": barbed_wire,
    "Celtic braid": celtic_braid,
    "Chain": chain,
    "Rope 1 thin": rope_thin,
    "Rope 2 thick": rope_thick,
}
