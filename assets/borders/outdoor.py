"""Borders for walkers, sailors and collectors: figures from the trail, the shore and the post."""

import math

import cairo
import numpy

from borders.motifs import ball, leaf_motif
from borders.shapes import EDGE, closed, closing_rim, curve, filled, polar, ring_sector
from borders.strands import rope
from borders.windows import window
from kit.relief import TURN, Motif, bevelled


def boot_prints(relief):
    """The prints of two boots, one before the other, all round."""
    relief.half_round(231, EDGE, height=5)
    feet = [Motif(lambda context, side=side: sole(context, side), 20, 4.5, 3,
                  engraved=lambda context, side=side: tread(context, side), depth=3) for side in (-1, 1)]
    count = 26
    for place in range(count):
        side = place % 2
        relief.stamp(feet[side], 217 if side else 197, place * TURN / count, turn=TURN / 4, scale=1.25)


def sole(context, side):
    """A sole and its heel, the toe upwards; side 1 is the right foot."""
    context.scale(side, 1)
    curve(context, (0, -18), (7, -18, 9, -9, 7.5, -1), (7, 2.5, 5.6, 5, 0, 5), (-5.6, 5, -6.4, 2.5, -7, -2),
          (-8, -10, -6, -18, 0, -18))
    context.fill()
    curve(context, (0, 7.6), (5.6, 7.6, 6.4, 10, 5.8, 13), (5.2, 16.6, 3, 18, 0, 18), (-3, 18, -5.2, 16.6, -5.8, 13),
          (-6.4, 10, -5.6, 7.6, 0, 7.6))
    context.fill()


def tread(context, side):
    context.scale(side, 1)
    context.set_line_width(1.7)
    for row in (-12, -7, -2, 12.5):
        for x, y in ((-9, row + 2), (0, row - 1), (9, row + 2)):
            context.line_to(x, y)
        context.stroke()


def acorns(relief):
    """Oak leaves and acorns on a twig."""
    relief.half_round(232, EDGE, height=5)
    oak = Motif(oak_leaf, 22, 4.5, 5, engraved=oak_veins, depth=1.5)
    nut, cup = Motif(acorn_nut, 14, 6, 6), Motif(acorn_cup, 14, 6.5, 5, engraved=cup_lines, depth=1.2)
    relief.half_round(210, 213, height=2)
    count = 14
    for place in range(count):
        angle = place * TURN / count
        relief.stamp(oak, 216, angle, turn=TURN * 0.21)
        relief.stamp(oak, 207, angle + 0.02, turn=TURN * 0.30)
        for radius, aside, turn in ((202, 0.20, 0.62), (219, 0.245, 0.30)):
            for motif in (nut, cup):
                relief.stamp(motif, radius, angle + aside, turn=turn * TURN, scale=0.92)


def oak_leaf(context):
    curve(context, (0, 19), (2, 15, 3, 13, 3, 12), (8, 13, 9, 8, 6.4, 6.5), (11, 6, 11.5, 0, 7.4, -0.8),
          (11.5, -2.6, 11, -8.4, 6.2, -8.4), (8.6, -11.5, 6.5, -15.6, 3.4, -14.6), (3, -17.5, 1.5, -19, 0, -19),
          mirrored=True)
    context.fill()


def oak_veins(context):
    context.set_line_width(1.2)
    context.move_to(0, 18)
    context.line_to(0, -15)
    for y, reach in ((8, 5.5), (1, 6.5), (-6, 5.5)):
        for side in (-1, 1):
            context.move_to(0, y + 3)
            context.line_to(side * reach, y - 1.5)
    context.stroke()


def acorn_nut(context):
    curve(context, (0, 12), (1.2, 10.6, 2, 10, 3.4, 9), (7, 6, 7.4, 1, 7, -3), mirrored=True)
    context.fill()


def acorn_cup(context):
    curve(context, (0, -13.5), (1.5, -13.5, 1.4, -10.4, 1.4, -9.6), (6, -9, 9.4, -6, 9, -1.6), (5, 0.4, 2.5, 0.6, 0, 0.6),
          mirrored=True)
    context.fill()


def cup_lines(context):
    context.set_line_width(0.9)
    for x in (-6, -2, 2, 6):
        context.move_to(x - 3, -8)
        context.line_to(x + 3, 0)
        context.move_to(x + 3, -8)
        context.line_to(x - 3, 0)
    context.stroke()


def mountains(relief):
    """A range of peaks round the tag, their tops towards the middle, with snow on the high ones."""
    relief.flat_ring(222, EDGE, height=1, bevel=2, polish=0.7)
    high = Motif(high_peak, 32, 11, 16, engraved=snow_line, depth=2.4, shape=bevelled, soft=0.8)
    low = Motif(low_peak, 24, 7, 10, shape=bevelled, soft=0.8)
    count = 18
    for place in range(count):
        for aside, radius in ((0.30, 222), (0.68, 225)):
            relief.stamp(low, radius, (place + aside) * TURN / count, turn=math.pi)
    for place in range(count):
        relief.stamp(high, 213, place * TURN / count, turn=math.pi, scale=1 if place % 2 else 0.86)
    relief.open(relief.radius > EDGE)
    relief.half_round(231, EDGE, height=6, base=2)


def high_peak(context):
    filled(context, [(0, -26), (6, -15), (9, -14), (17, 2), (21, 5), (30, 26), (-30, 26), (-22, 8), (-17, 6), (-9, -11), (-5, -14)])


def snow_line(context):
    context.set_line_width(2)
    for point in ((-12, -7), (-7, -3), (-4, -8), (0, -1), (4, -7), (8, -3), (13, -8)):
        context.line_to(*point)
    context.stroke()


def low_peak(context):
    filled(context, [(0, -14), (6, -4), (10, -2), (22, 16), (-22, 16), (-11, 0), (-6, -3)])


def anchors(relief):
    """Anchors between two ropes."""
    rope(relief, 229, EDGE, 84)
    rope(relief, 187, 195, 76)
    motif = Motif(anchor, 18, 4.4, 2.6)
    relief.around(motif, 20, 212)
    relief.around(ball(3.2), 20, 212, first=TURN / 40)


def anchor(context):
    context.set_line_width(3.4)
    context.arc(0, -12, 2.8, 0, TURN)
    context.stroke()
    context.move_to(0, -9)
    context.line_to(0, 13)
    context.move_to(-6.5, -5)
    context.line_to(6.5, -5)
    context.stroke()
    context.arc(0, 1.5, 11.5, 0.25, math.pi - 0.25)
    context.stroke()
    for side in (-1, 1):
        filled(context, [(side * 11.2, -3.5), (side * 14.6, 5.5), (side * 7.4, 4.6)])


def feathers(relief):
    """Feathers in a ring, each laid over the next."""
    relief.half_round(232, EDGE, height=5)
    quill = Motif(feather, 24, 4.6, 7, engraved=feather_lines, depth=1.3)
    shaft = Motif(feather_shaft, 24, 2.6, 1.2)
    count = 26
    for place in range(count):
        for motif, base in ((quill, 0), (shaft, 2.8)):
            relief.stamp(motif, 210, place * TURN / count, turn=TURN * 0.2, base=base)


def feather(context):
    curve(context, (0, 14), (5, 14, 8.5, 6, 8.2, -3), (8, -12, 4, -20, 0, -23), (-5, -19, -8, -12, -8, -3),
          (-8, 6, -5, 13, 0, 14))
    context.fill()
    context.set_operator(cairo.OPERATOR_CLEAR)
    for side, y in ((1, -9), (-1, 1)):
        filled(context, [(side * 1.5, y + 2.5), (side * 12, y - 5), (side * 12, y - 2.2)])
    context.set_operator(cairo.OPERATOR_OVER)


def feather_lines(context):
    context.set_line_width(0.9)
    for y in range(-18, 14, 3):
        for side in (-1, 1):
            context.move_to(0, y + 3)
            context.line_to(side * 9, y - 4)
    context.stroke()


def feather_shaft(context):
    context.set_line_width(2.2)
    context.move_to(0, 22)
    context.line_to(0, -17)
    context.stroke()


def perforated(relief, count, hole, inner):
    """A ring whose edge is bitten by half circles, as of a stamp."""
    bite = numpy.full(relief.x.shape, numpy.float32(99))
    for place in range(count):
        x, y = polar(EDGE - 3.6, place * TURN / count)
        box = relief.box(x, y, hole + 9)
        bite[box] = numpy.minimum(bite[box], numpy.hypot(relief.x[box] - x, relief.y[box] - y))
    outer = numpy.minimum(EDGE - 3.6 - relief.radius, bite - hole)
    depth = numpy.minimum(outer, relief.radius - inner)
    relief.lay(depth > 0, (4 * bevelled(depth / 3)).astype("float32"))


def stamp_edge(relief):
    """The perforated edge of a postage stamp, with a line inside it."""
    closing_rim(relief)
    perforated(relief, 64, 6.4, 208)
    relief.half_round(212, 216, height=2.5, base=4)


def ticket_edge(relief):
    """A ticket for the round trip: a stub to tear off at both sides, and punched holes between."""
    relief.flat_ring(196, EDGE, height=3, bevel=3)
    relief.half_round(233, EDGE, height=3, base=3)
    for side in (-1, 1):
        for aside in (-0.16, 0.16):
            middle = side * TURN / 4 + aside
            for row in range(7):
                x, y = polar(199.5 + row * 5.6, middle)
                relief.open(numpy.hypot(relief.x - x, relief.y - y) < 1.9)
        relief.stamp(Motif(ticket_star, 13, 4, 4.5, shape=bevelled, soft=0.8), 215.5, side * TURN / 4, base=2.5)
    # The notches that a conductor leaves.
    for place in range(40):
        angle = place * TURN / 40
        if abs(abs(math.sin(angle)) - 1) > 0.035:
            x, y = polar(196, angle)
            relief.open(numpy.hypot(relief.x - x, relief.y - y) < 6.5)


def ticket_star(context):
    filled(context, [polar(12.5 if k % 2 == 0 else 5.4, k * TURN / 10) for k in range(10)])


def name_plate(relief):
    """A slim rim above and a plate below on which a name can stand."""
    relief.half_round(231, EDGE, height=5)

    def plate(context):
        ring_sector(context, 188, 233, TURN * 0.315, TURN * 0.685)
        context.fill()

    relief.plate(plate, height=4, bevel=3)

    def line(context):
        context.set_line_width(1.8)
        for radius in (193.5, 227):
            context.new_sub_path()
            context.arc(0, 0, radius, TURN * (0.324 - 0.25), TURN * (0.676 - 0.25))
            context.stroke()

    relief.engrave(line, depth=1.6)
    blade = leaf_motif(26, 15)
    for side in (-1, 1):
        for step, lean in ((0, 0.0), (1, 0.0), (2, 0.0)):
            angle = side * (TURN * 0.305 - step * 0.115)
            for tilt in (-0.5, 0.5):
                relief.stamp(blade, 210, angle, turn=-side * TURN / 4 + tilt, scale=1 - 0.1 * step)
        relief.stamp(ball(5), 210, side * TURN * 0.308, base=3)


def oval_window(relief):
    """Room for a portrait, with sprays of leaves at both sides."""
    def painter(context):
        context.save()
        context.scale(150, 205)
        context.arc(0, 0, 1, 0, TURN)
        context.restore()
        context.fill()

    window(relief, painter)
    blade = leaf_motif(34, 20)
    for side in (-1, 1):
        for up in (-1, 1):
            for step in range(3):
                angle = side * (TURN / 4 - up * (0.05 + step * 0.17))
                relief.stamp(blade, 193 + 4 * step, angle, turn=-side * up * (TURN / 4 - 0.05 * step),
                             scale=1.05 - 0.16 * step)
        relief.stamp(ball(10), 191, side * TURN / 4, base=1)
        for up in (-1, 1):
            relief.stamp(ball(4), 191, side * (TURN / 4 + up * 0.08), base=2)


BORDERS = {
    "Acorns": acorns,
    "Anchors": anchors,
    "Boot prints": boot_prints,
    "Feathers": feathers,
    "Mountains": mountains,
    "Name plate": name_plate,
    "Stamp edge": stamp_edge,
    "Ticket edge": ticket_edge,
    "Window oval": oval_window,
}
