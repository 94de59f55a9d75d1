"""Paths for cairo: SVG path data, stars, polar copies, text along a circle."""

import contextlib
import math
import re

import cairo

TOKEN = re.compile(r"[MLHVCSQZmlhvcsqz]|-?(?:\d+\.?\d*|\.\d+)")
ARGUMENTS = {"M": 2, "L": 2, "H": 1, "V": 1, "C": 6, "S": 4, "Q": 4, "Z": 0}


def svg_path(context, data):
    """Adds a path given as SVG path data. Arcs (A) and T are not understood; an unknown letter stops."""
    tokens = TOKEN.findall(data)
    position, control, at, command = (0.0, 0.0), None, 0, None
    while at < len(tokens):
        if tokens[at].isalpha():
            command, at = tokens[at], at + 1
        count = ARGUMENTS[command.upper()]
        numbers = [float(token) for token in tokens[at : at + count]]
        at += count
        position, control = add_segment(context, command, numbers, position, control)
        if command in "Mm":
            command = "L" if command == "M" else "l"


def add_segment(context, command, numbers, position, control):
    """One command of a path; returns the new position and the control point that a following S mirrors."""
    x, y = position
    kind = command.upper()
    if kind == "Z":
        context.close_path()
        return context.get_current_point(), None
    if kind in "HV":
        along = numbers[0] + ((x if kind == "H" else y) if command.islower() else 0)
        points = [(along, y) if kind == "H" else (x, along)]
    else:
        from_x, from_y = position if command.islower() else (0, 0)
        points = [(from_x + a, from_y + b) for a, b in zip(numbers[::2], numbers[1::2])]
    if kind == "M":
        context.move_to(*points[0])
    elif kind in "LHV":
        context.line_to(*points[0])
    else:
        points = cubic(kind, points, position, control)
        context.curve_to(*points[0], *points[1], *points[2])
    return points[-1], points[-2] if kind in "CSQ" else None


def cubic(kind, points, position, control):
    """The three points of a cubic curve for C, S and Q."""
    (x, y) = position
    if kind == "S":
        first = (2 * x - control[0], 2 * y - control[1]) if control else position
        return [first, *points]
    if kind == "Q":
        (a, b), (u, v) = points
        return [(x + (a - x) * 2 / 3, y + (b - y) * 2 / 3), (u + (a - u) * 2 / 3, v + (b - v) * 2 / 3), (u,
                                                                                                         v)]
    return points


def polygon(context, points):
    """A closed polygon, apart from what the path holds already."""
    context.new_sub_path()
    for point in points:
        context.line_to(*point)
    context.close_path()


def star(context, count, outer, inner, turn=0.0, centre=(0.0, 0.0)):
    """A star with `count` points, the first one straight up but for the turn (radians)."""
    polygon(context, [polar(outer if k % 2 == 0 else inner, turn + k * math.pi / count, centre)
                      for k in range(2 * count)])


def polar(radius, angle, centre=(0.0, 0.0)):
    """The point at an angle (radians, clockwise from straight up)."""
    return centre[0] + radius * math.sin(angle), centre[1] - radius * math.cos(angle)


def disc(context, radius, centre=(0.0, 0.0)):
    context.new_sub_path()
    context.arc(*centre, radius, 0, 2 * math.pi)


def rounded_box(context, left, top, width, height, radius):
    context.new_sub_path()
    for quarter, (x, y) in enumerate([(left + width - radius, top + radius),
                                      (left + width - radius, top + height - radius),
                                      (left + radius, top + height - radius), (left + radius, top + radius)]):
        context.arc(x, y, radius, (quarter - 1) * math.pi / 2, quarter * math.pi / 2)
    context.close_path()


@contextlib.contextmanager
def placed(context, x=0.0, y=0.0, turn=0.0, scale=1.0, mirrored=False):
    """Draws within the block elsewhere, turned (radians, clockwise), scaled, mirrored left to right."""
    context.save()
    context.translate(x, y)
    context.rotate(turn)
    context.scale(-scale if mirrored else scale, scale)
    yield context
    context.restore()


def around(context, count, draw, turn=0.0):
    """Polar copies: calls draw() `count` times, each turned further about the origin."""
    for k in range(count):
        with placed(context, turn=turn + k * 2 * math.pi / count):
            draw()


def mirrored_pair(context, draw):
    """Draws the thing and its mirror image at the axis x = 0."""
    draw()
    with placed(context, mirrored=True):
        draw()


def choose_font(context, family, size, bold=True):
    weight = cairo.FONT_WEIGHT_BOLD if bold else cairo.FONT_WEIGHT_NORMAL
    context.select_font_face(family, cairo.FONT_SLANT_NORMAL, weight)
    context.set_font_size(size)


def straight_text(context, text, baseline, spacing=0.0, centre=0.0):
    """A line of text as a path, centred at x = `centre`."""
    advances = [context.text_extents(letter).x_advance + spacing for letter in text]
    x = centre - (sum(advances) - spacing) / 2
    for letter, advance in zip(text, advances):
        context.move_to(x, baseline)
        context.text_path(letter)
        x += advance


def circle_text(context, text, radius, middle, spacing=0.0, feet_inside=True):
    """Text as a path along a circle about the origin, centred at the angle `middle`. `radius` is that
    of the baseline; with feet_inside the letters stand on the circle, else they hang in it and read along the
    bottom."""
    advances = [context.text_extents(letter).x_advance + spacing for letter in text]
    sense = 1 if feet_inside else -1
    angle = middle - sense * (sum(advances) - spacing) / 2 / radius
    for letter, advance in zip(text, advances):
        half = (advance - spacing) / 2
        with placed(context, *polar(radius, angle + sense * half / radius),
                    turn=angle + sense * half / radius + (0 if feet_inside else math.pi)):
            context.move_to(-half, 0)
            context.text_path(letter)
        angle += sense * advance / radius
