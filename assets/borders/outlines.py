"""Borders whose outer or inner edge is cut into a figure: gears, rays, scallops."""

import math

import cairo
import numpy

from borders.shapes import EDGE, arc_line, closed, closing_rim, polar
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
    closing_rim(relief)
    relief.plate(lambda context: cut_out(context, toothed(count, root, EDGE), inner), height=6, bevel=4)
    relief.half_round(inner, inner + 8, height=4, base=3)


def gear_12(relief):
    gear(relief, 12, 211, 188)
    for place in range(12):
        bolt(relief, 219, place * TURN / 12, 6)


def gear_24(relief):
    gear(relief, 24, 219, 197)


def bolt(relief, radius, angle, size):
    """A round head in a sunk seat."""
    x, y = polar(radius, angle)
    away = numpy.hypot(relief.x - x, relief.y - y)
    dome = numpy.sqrt(numpy.clip(1 - (away / (size + 0.1)) ** 2, 0, None))
    relief.height -= (2.0 * (away < size + 1.6)).astype("float32")
    relief.height += (0.75 * size * dome).astype("float32")


def saw_tooth(share):
    """How far out the edge of the blade runs, from the tip of one tooth (0) to the next one's (1)."""
    if share < 0.16:
        return EDGE - 19 * math.sin(share / 0.16 * math.pi / 2)
    return EDGE - 19 + 19 * ((share - 0.16) / 0.84) ** 1.5


def saw_blade(relief):
    closing_rim(relief)
    count = 30
    outline = [polar(saw_tooth(step % 24 / 24), step * TURN / (24 * count)) for step in range(24 * count)]
    relief.plate(lambda context: cut_out(context, outline, 194), height=4, bevel=3)
    relief.engrave(lambda context: ring_line(context, 210, 2.2), depth=2)
    relief.engrave(lambda context: ring_line(context, 202.5, 1.6), depth=1.5)


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
    closing_rim(relief)
    relief.plate(lambda context: cut_out(context, scalloped(28, 226, EDGE - 226), 204), height=6, bevel=7)
    for place in range(28):
        bolt(relief, 225, (place + 0.5) * TURN / 28, 4)
    relief.half_round(202, 211, height=4, base=2.5)


def lace(relief):
    """Lobes with a hole in each and a row of small holes inside, as of crochet."""
    closing_rim(relief)
    relief.plate(lace_painter, height=4, bevel=3.2)
    relief.half_round(199, 206, height=3.5, base=1)


def lace_painter(context):
    cut_out(context, scalloped(30, 227, EDGE - 227), 199)
    context.set_operator(cairo.OPERATOR_CLEAR)
    for place in range(30):
        for radius, angle, size in ((226.5, place + 0.5, 5.4), (215, place, 3.6), (213, place + 0.5, 2.4)):
            x, y = polar(radius, angle * TURN / 30)
            context.arc(x, y, size, 0, TURN)
            context.fill()


def sun_rays(relief):
    """Long and short facetted rays round a ring."""
    closing_rim(relief)
    pitch = TURN / 24
    off = abs((relief.angle / pitch + 0.5) % 1 - 0.5) * pitch * relief.radius
    short_off = abs(relief.angle / pitch % 1 - 0.5) * pitch * relief.radius
    for tip, aside, half in ((226, short_off, 15), (EDGE, off, 21)):
        width = half * numpy.clip((tip - relief.radius) / (tip - 200), 0, 1.2)
        ridge = 7 * numpy.clip(1 - aside / numpy.maximum(width, 0.1), 0, 1) * numpy.clip(width / 12, 0, 1)
        relief.lay((aside < width) & (relief.radius > 200), (1 + ridge).astype("float32"))
    relief.half_round(192, 207, height=6)


BORDERS = {
    "Gear 12 teeth": gear_12,
    "Gear 24 teeth": gear_24,
    "Lace": lace,
    "Saw blade": saw_blade,
    "Scallops": scallops,
    "Sun rays": sun_rays,
}
