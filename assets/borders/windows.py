"""Borders that are a whole plate with a window in the shape of a figure."""

import math

import numpy

from borders.motifs import ball, cut_star, disc
from borders.shapes import EDGE, closed, curve, figure, heart, leaf, polar, polygon, star
from kit.relief import SAMPLES, TURN, Motif, bevelled, depth_inside


def window(relief, painter, rim=10):
    """A plate with a round rim, and another rim along the window that the painter draws."""
    plate = relief.drawn(painter) < 0.5
    relief.lay(plate & (relief.radius <= EDGE), 0.0, polish=0.8)
    relief.half_round(229, EDGE, height=6)
    depth = depth_inside(plate, math.ceil(rim * SAMPLES)) / SAMPLES
    bow = numpy.sqrt(numpy.clip(1 - (2 * depth / rim - 1) ** 2, 0, 1))
    along = plate & (depth < rim) & (relief.radius <= EDGE)
    outer_rim = relief.height * (relief.radius > 229)
    relief.lay(along, numpy.maximum(0.42 * rim * bow, outer_rim))


def filling(painter):
    def filled_path(context):
        painter(context)
        context.fill()
    return filled_path


def corners_rounded(points, radius):
    """A painter of a polygon with round corners: its inside, drawn over with a round pen."""
    def painter(context):
        closed(context, points)
        context.set_line_width(2 * radius)
        context.fill_preserve()
        context.stroke()
    return painter


def heart_window(relief):
    def painter(context):
        context.translate(0, 8)
        heart(context, 192)
        context.fill()

    window(relief, painter)
    bud = Motif(filling(lambda context: heart(context, 15)), 17, 7, 11)
    relief.stamp(bud, 164, 0)
    for side in (-1, 1):
        relief.stamp(bud, 199, side * 2.32, turn=-side * 2.32)
        relief.stamp(ball(5), 205, side * 2.10)
        relief.stamp(ball(5), 205, side * 2.54)


def shield_window(relief):
    def painter(context):
        curve(context, (0, -146), (50, -146, 110, -152, 160, -162), (166, -30, 176, 130, 0, 222),
              mirrored=True)
        context.fill()

    window(relief, painter)
    relief.stamp(cut_star(20), 192, 0)
    for side in (-1, 1):
        relief.stamp(cut_star(13), 196, side * 0.26)
        for angle, size in ((1.25, 4), (1.5, 6), (1.75, 6), (2.0, 6), (2.25, 6), (2.5, 4)):
            relief.stamp(ball(size), 208, side * angle)


def straight_window(relief, corners, first, reach=214):
    """A polygon with a bolt behind each side."""
    window(relief, corners_rounded(polygon(corners, reach - 8, first), 8))
    middle = (reach * math.cos(TURN / (2 * corners)) + 10 + 229) / 2
    bolt = Motif(disc(9), 10, 2, 2.5)
    for side in range(corners):
        angle = first + (side + 0.5) * TURN / corners
        if 229 - reach * math.cos(TURN / (2 * corners)) > 34:
            relief.stamp(bolt, middle, angle)
            relief.stamp(ball(6.4), middle, angle, base=1.5)
        for aside in (-0.13, 0.13):
            relief.stamp(ball(4.2), middle, angle + aside)


def hexagon_window(relief):
    straight_window(relief, 6, TURN / 12)


def octagon_window(relief):
    straight_window(relief, 8, TURN / 16)


def square_window(relief):
    """Room for a square picture, with leaves in the four segments."""
    window(relief, corners_rounded(polygon(4, 196, TURN / 8), 16))
    spray = Motif(filling(lambda context: leaf(context, 44, 22)), 45, 6, 8, engraved=midrib, depth=1.8)
    for side in range(4):
        angle = side * TURN / 4
        for aside, turn in ((-0.04, -TURN / 4), (0.04, TURN / 4)):
            relief.stamp(spray, 192, angle + aside, turn=turn)
            relief.stamp(spray, 196, angle + 5.6 * aside, turn=turn * 1.14, scale=0.72)
        relief.stamp(ball(9), 194, angle)


def midrib(context):
    context.set_line_width(1.5)
    context.move_to(0, 0)
    context.line_to(0, -38)
    context.stroke()


def star_window(relief):
    window(relief, corners_rounded(star(5, 208, 112), 6), rim=9)
    gem = cut_star(25)
    for arm in range(5):
        relief.stamp(gem, 185, (arm + 0.5) * TURN / 5, turn=math.pi)
        for aside in (-0.22, 0.22):
            relief.stamp(ball(6), 201, (arm + 0.5) * TURN / 5 + aside)


def lobed_window(relief):
    """A window with eight lobes, as in tracery, a pearl between each two."""
    def painter(context):
        for lobe in range(8):
            context.arc(*polar(136, lobe * TURN / 8), 72, 0, TURN)
            context.fill()
        context.arc(0, 0, 140, 0, TURN)
        context.fill()

    window(relief, painter)
    for place in range(8):
        relief.stamp(ball(9), 209, (place + 0.5) * TURN / 8)
        relief.stamp(ball(4.5), 218, (place + 0.5) * TURN / 8 - 0.085)
        relief.stamp(ball(4.5), 218, (place + 0.5) * TURN / 8 + 0.085)


def porthole(relief):
    """A heavy ring held by eight bolts."""
    relief.flat_ring(184, EDGE, height=6, bevel=7)
    relief.half_round(182, 198, height=7, base=3)
    relief.half_round(231, EDGE, height=4, base=4)
    nut = Motif(figure(polygon(6, 13.5)), 14, 5, 3, shape=bevelled)
    washer = Motif(disc(15), 16, 1.6, 2)
    for place in range(8):
        angle = (place + 0.5) * TURN / 8
        relief.stamp(washer, 214.5, angle, base=5)
        relief.stamp(nut, 214.5, angle, base=6, turn=place * 0.37)
        relief.stamp(ball(6), 214.5, angle, base=9)


BORDERS = {
    "Porthole": porthole,
    "Window flower": lobed_window,
    "Window heart": heart_window,
    "Window hexagon": hexagon_window,
    "Window octagon": octagon_window,
    "Window shield": shield_window,
    "Window square": square_window,
    "Window star": star_window,
}
