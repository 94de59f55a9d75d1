"""Borders whose ring carries a running pattern, or lettering of the user's own."""

import cairo
import numpy

from borders.motifs import ball, cut_star
from borders.shapes import EDGE, bent, closed, closing_rim, framed_floor, polar, ring_sector
from kit.relief import TURN, Motif, bevelled


def greek_key(relief):
    """Hooks that spring from a base line, each turning back into itself."""
    count, low, step = 28, 198.5, 7.0
    pitch = TURN / count
    hook = [(0, 0), (4.1, 0), (4.1, 0.74), (1.45, 0.74), (1.45, 0.27), (2.85, 0.27), (2.85, 0.5)]

    def painter(context):
        context.set_line_width(5)
        context.set_line_join(cairo.LINE_JOIN_MITER)
        context.set_line_cap(cairo.LINE_CAP_BUTT)
        for place in range(count):
            for point in bent([(low + row * step, (place + column) * pitch) for row, column in hook]):
                context.line_to(*point)
            context.stroke()

    framed_floor(relief, 194)
    relief.plate(painter, height=5, bevel=2.5, polish=1.2)


def waves(relief):
    """Breakers that run after each other."""
    framed_floor(relief, 190)
    relief.around(Motif(breaker, 33, 5, 5), 26, 206)
    relief.half_round(188, 197, height=5)


def breaker(context):
    context.move_to(-30, 18)
    context.line_to(-30, 9)
    context.curve_to(-12, 9, -16, -15, 4, -15)
    context.curve_to(17, -15, 22, -3, 16, 2)
    context.curve_to(11, 6, 4, 1, 8, -3.5)
    context.curve_to(9.5, -1, 13.5, -1.5, 13, -5.5)
    context.curve_to(12.5, -10, 4, -10, 1.5, -4)
    context.curve_to(-1, 3, 6, 9, 30, 9)
    context.line_to(30, 18)
    context.close_path()
    context.fill()


def film_strip(relief):
    frames, holes = 20, 80

    def painter(context):
        ring_sector(context, EDGE, 190, 0, TURN)
        context.fill()
        context.set_operator(cairo.OPERATOR_CLEAR)
        windows_round(context, 204.5, 225.5, frames, 0.88)
        windows_round(context, 229.5, 235.5, holes, 0.5)
        windows_round(context, 194.5, 200.5, holes, 0.5)

    relief.plate(painter, height=2.5, bevel=1.6)


def windows_round(context, inner, outer, count, share):
    """So many pieces of a ring with rounded corners; `share` of the ring is theirs."""
    for place in range(count):
        middle, half = (place + 0.5) * TURN / count, share / 2 * TURN / count
        rounded_sector(context, inner, outer, middle - half, middle + half)


def rounded_sector(context, inner, outer, start, end, corner=1.5):
    """A piece of a ring with its corners rounded off."""
    angle = corner / outer
    ring_sector(context, inner + corner, outer - corner, start + angle, end - angle)
    context.set_line_width(2 * corner)
    context.fill_preserve()
    context.stroke()


def castle_wall(relief):
    """Courses of hewn stones, and battlements all round."""
    closing_rim(relief)
    battlements, pitch = 36, TURN / 36
    stones = [(186, 199, 60, 0.0), (200.5, 213.5, 60, 0.5), (215, 227, 72, 0.25)]

    def wall(context):
        for place in range(battlements):
            ring_sector(context, 222, EDGE, (place - 0.28) * pitch, (place + 0.28) * pitch)
        ring_sector(context, 185, 228, 0, TURN)
        context.fill()

    relief.plate(wall, height=1, bevel=1.5, polish=0.6)
    for inner, outer, count, shift in stones:
        across = (relief.angle * count / TURN + shift) % 1
        beside = numpy.minimum(across, 1 - across) * TURN / count * relief.radius - 0.8
        depth = numpy.minimum(numpy.minimum(relief.radius - inner, outer - relief.radius), beside)
        relief.lay(depth > 0, (1 + 3 * bevelled(depth / 3.2)).astype("float32"))
    across = abs((relief.angle / pitch + 0.5) % 1 - 0.5) * pitch * relief.radius
    depth = numpy.minimum(relief.radius - 228.5, EDGE - 0.6 - relief.radius)
    depth = numpy.minimum(depth, 0.26 * pitch * 234 - across)
    relief.lay(depth > 0, (1 + 3 * bevelled(depth / 3.2)).astype("float32"))


def dragon_scales(relief):
    """Overlapping scales in rows, each pointing inwards."""
    relief.floor(196, EDGE, polish=0.4)
    scale = Motif(scale_shape, 20, 5.5, 9, engraved=scale_ridge, depth=-1.2)
    for row, radius in enumerate((205, 214, 223, 232)):
        relief.around(scale, 54, radius, first=0.5 * (row % 2) * TURN / 54)
    relief.open(relief.radius > EDGE)
    relief.half_round(230, EDGE, height=7, base=2)


def scale_shape(context):
    context.move_to(-14, -14)
    context.line_to(14, -14)
    context.curve_to(15, 0, 8, 8, 0, 15)
    context.curve_to(-8, 8, -15, 0, -14, -14)
    context.fill()


def scale_ridge(context):
    context.set_line_width(1.4)
    context.move_to(0, -4)
    context.line_to(0, 11)
    context.stroke()


def tyre(relief):
    """A tyre with lugs on its shoulder and a ring of chevrons on its side."""
    closing_rim(relief)
    count, pitch = 60, TURN / 60

    def lugs(context):
        for place in range(count):
            middle = place * pitch
            closed(context, [polar(EDGE, middle - 0.30 * pitch), polar(EDGE, middle + 0.30 * pitch),
                             polar(222, middle + 0.55 * pitch), polar(222, middle - 0.05 * pitch)])
        ring_sector(context, 186, 230, 0, TURN)
        context.fill()

    relief.plate(lugs, height=4, bevel=3)
    relief.floor(199, 221, polish=0.5)
    relief.height += (3.0 * ((relief.radius > 199) & (relief.radius < 221))).astype("float32")
    chevron = Motif(chevron_shape, 13, 3.2, 2.2)
    relief.around(chevron, 56, 210, base=3)
    relief.half_round(219, 224, height=3, base=3)
    relief.half_round(186, 200, height=7)


def chevron_shape(context):
    closed(context, [(-6, -8.5), (-0.5, -8.5), (5.5, 0), (-0.5, 8.5), (-6, 8.5), (0, 0)])
    context.fill()


def plain_band(relief):
    relief.flat_ring(190, EDGE, height=0, bevel=1)
    relief.half_round(230, EDGE, height=6)
    relief.half_round(188, 197, height=5)


def text_band(relief):
    """A smooth band to write on between two rows of pearls."""
    relief.flat_ring(188, EDGE, height=0, bevel=1)
    relief.half_round(235, EDGE, height=3)
    relief.half_round(187, 190.5, height=2.5)
    relief.around(ball(3.1), 180, 231.2)
    relief.around(ball(2.9), 160, 194)


def text_band_stars(relief):
    """A band to write on above and below, with stars between the two lines."""
    plain_band(relief)
    big, small = cut_star(14), cut_star(8.5)
    for side in (-1, 1):
        relief.stamp(big, 213.5, side * TURN / 4)
        for aside in (-0.105, 0.105):
            relief.stamp(small, 213.5, side * TURN / 4 + aside)


def text_band_open(relief):
    """Two rims with the design between them, joined by bars at both sides."""
    relief.half_round(231, EDGE, height=5)
    relief.half_round(190, 198, height=4.5)
    for side in (-1, 1):
        for aside in (-0.052, 0.052):
            bar = Motif(bar_shape, 20, 4, 4)
            relief.stamp(bar, 214.5, side * TURN / 4 + aside)


def bar_shape(context):
    context.rectangle(-4, -18.5, 8, 37)
    context.fill()


BORDERS = {
    "Castle wall": castle_wall,
    "Dragon scales": dragon_scales,
    "Film strip": film_strip,
    "Greek key": greek_key,
    "Text band": text_band,
    "Text band open": text_band_open,
    "Text band stars": text_band_stars,
    "Tyre": tyre,
    "Waves": waves,
}
