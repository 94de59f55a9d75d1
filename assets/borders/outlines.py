"""Borders whose outer or inner edge is cut into a figure: gears, rays, scallops."""

import math

import numpy

from borders.shapes import EDGE, arc_line, closed, polar
from kit.relief import TURN


def toothed(count, root, tip, foot=0.72, crown=0.40):
    """The outline of a gear; `foot` and `crown` are a tooth's widths as shares of the pitch."""
    pitch = TURN / count
    points = []
    for tooth in range(count):
        middle = tooth * pitch
        points += arc_line(root, middle - pitch * (1 - foot / 2), middle - pitch * foot / 2)
        points += arc_line(tip, middle - pitch * crown / 2, middle + pitch * crown / 2)
    return points


def cut_out(context, outline, inner):
    """A ring with an outline of its own and a round opening."""
    closed(context, outline)
    context.new_sub_path()
    context.arc_negative(0, 0, inner, TURN, 0)
    context.fill()


def gear(relief, count, root, inner):
    relief.plate(lambda context: cut_out(context, toothed(count, root, EDGE), inner), height=6, bevel=4)
    relief.half_round(inner, inner + 8, height=4, base=3)


def gear_12(relief):
    gear(relief, 12, 214, 190)
    for place in range(12):
        bolt(relief, 206, place * TURN / 12, 4.2)


def gear_24(relief):
    gear(relief, 24, 219, 197)


def gear_48(relief):
    gear(relief, 48, 227, 208)


def bolt(relief, radius, angle, size):
    """A round head in a sunk seat."""
    x, y = polar(radius, angle)
    away = numpy.hypot(relief.x - x, relief.y - y)
    dome = numpy.sqrt(numpy.clip(1 - (away / (size + 0.1)) ** 2, 0, None))
    relief.height = numpy.where(away < size + 1.6, relief.height - 2, relief.height)
    relief.height = numpy.where(away < size, relief.height + (0.75 * size * dome), relief.height).astype("float32")


def gear_inside(relief):
    """A ring with its teeth inwards, as in a planetary gear."""
    count, pitch = 48, TURN / 48

    def painter(context):
        context.arc(0, 0, EDGE, 0, TURN)
        context.new_sub_path()
        teeth = []
        for tooth in range(count):
            middle = tooth * pitch
            teeth += arc_line(217, middle - pitch * 0.62, middle - pitch * 0.38)
            teeth += arc_line(202, middle - pitch * 0.18, middle + pitch * 0.18)
        closed(context, reversed(teeth))
        context.fill()

    relief.plate(painter, height=5, bevel=4)
    relief.half_round(229, EDGE, height=5, base=2)


def saw_blade(relief):
    count, pitch = 36, TURN / 36

    def painter(context):
        points = []
        for tooth in range(count):
            start = tooth * pitch
            points += [polar(EDGE, start), polar(EDGE - 3, start + pitch * 0.12)]
            points += [polar(224 - 4 * math.sin(math.pi * i / 8) + 0.8 * i, start + pitch * (0.5 + 0.055 * i))
                       for i in range(1, 8)]
            points += [polar(222, start + pitch * 0.97)]
        cut_out(context, points, 192)

    relief.plate(painter, height=4, bevel=3)
    relief.engrave(lambda context: ring_line(context, 208, 2.2), depth=2)
    relief.engrave(lambda context: ring_line(context, 201, 1.6), depth=1.5)


def ring_line(context, radius, width):
    context.set_line_width(width)
    context.arc(0, 0, radius, 0, TURN)
    context.stroke()


def scalloped(count, hollow, depth):
    """Round lobes all round; `hollow` is the radius where they meet."""
    points = []
    for step in range(count * 24):
        angle = step * TURN / (count * 24)
        points.append(polar(hollow + depth * abs(math.sin(count * angle / 2)) ** 0.7, angle))
    return points


def scallops(relief):
    relief.plate(lambda context: cut_out(context, scalloped(28, 226, EDGE - 226), 204), height=6, bevel=7)
    for place in range(28):
        bolt(relief, 225, (place + 0.5) * TURN / 28, 4)
    relief.half_round(202, 211, height=4, base=2.5)


def lace(relief):
    """Lobes with a hole in each and a row of small holes inside, as of crochet."""
    relief.plate(lambda context: lace_painter(context), height=4, bevel=3.2)
    relief.half_round(199, 206, height=3.5, base=1)


def lace_painter(context):
    cut_out(context, scalloped(30, 227, EDGE - 227), 199)
    context.set_operator(0)
    for place in range(30):
        for radius, angle, size in ((226.5, place + 0.5, 5.4), (215, place, 3.6), (213, place + 0.5, 2.4)):
            x, y = polar(radius, angle * TURN / 30)
            context.arc(x, y, size, 0, TURN)
            context.fill()


def sun_rays(relief):
    """Long and short facetted rays round a ring."""
    count, pitch = 24, TURN / 24
    off = abs((relief.angle / pitch + 0.5) % 1 - 0.5) * pitch * relief.radius
    short_off = abs(relief.angle / pitch % 1 - 0.5) * pitch * relief.radius
    for tip, aside, half in ((226, short_off, 15), (EDGE, off, 21)):
        width = half * numpy.clip((tip - relief.radius) / (tip - 200), 0, 1.2)
        ridge = 7 * numpy.clip(1 - aside / numpy.maximum(width, 0.1), 0, 1) * numpy.clip(width / 12, 0, 1)
        relief.lay((aside < width) & (relief.radius > 200), (1 + ridge).astype("float32"))
    relief.half_round(192, 207, height=6)


def sun_flames(relief):
    """Flames that curl one way, every second one shorter."""
    count, pitch = 20, TURN / 20

    def painter(context):
        for place in range(count):
            for tip, shift, half in ((EDGE, 0.0, 0.40), (225, 0.5, 0.32)):
                middle = (place + shift) * pitch
                left = [flame_edge(tip, middle, -half * pitch, pitch, i / 16) for i in range(17)]
                right = [flame_edge(tip, middle, half * pitch, pitch, i / 16) for i in range(16, -1, -1)]
                closed(context, left + right)
        context.fill()

    relief.plate(painter, height=6, bevel=7)
    relief.open(relief.radius < 198)
    relief.half_round(192, 206, height=6)


def flame_edge(tip, middle, half, pitch, share):
    radius = 199 + (tip - 199) * share
    sway = 0.22 * pitch * math.sin(share * math.pi * 1.5)
    return polar(radius, middle + sway + half * (1 - share) ** 0.8)


BORDERS = {
    "Gear 12 teeth": gear_12,
    "Gear 24 teeth": gear_24,
    "Gear 48 teeth": gear_48,
    "Gear inside": gear_inside,
    "Lace": lace,
    "Saw blade": saw_blade,
    "Scallops": scallops,
    "Sun flames": sun_flames,
    "Sun rays": sun_rays,
}
