"""Paths that several borders draw, and where things stand on a tag."""

import math

from kit.relief import TURN

# The edge of the tag. A radius of a whole pixel would leave a lone pixel at each of four sides.
EDGE = 239.6


def framed_floor(relief, inner, outer_rim=229):
    """A dull ground between a stout outer and a slender inner rim."""
    relief.floor(inner, EDGE)
    relief.half_round(outer_rim, EDGE, height=5)
    relief.half_round(inner - 2, inner + 6, height=4)


def closing_rim(relief):
    """A thin ring at the edge of the tag, beneath whatever is laid over it: between teeth the ground of a design would
    otherwise end in a circle of its own."""
    relief.half_round(234.6, EDGE, height=2.6)


def polar(radius, angle):
    """The point so far from the centre, in the direction clockwise from the top."""
    return radius * math.sin(angle), -radius * math.cos(angle)


def closed(context, points):
    context.new_sub_path()
    for point in points:
        context.line_to(*point)
    context.close_path()


def filled(context, points):
    closed(context, points)
    context.fill()


def figure(points):
    """A painter of a figure with straight sides."""
    return lambda context: filled(context, points)


def curve(context, start, *pieces, mirrored=False):
    """A closed path of Bezier pieces (six numbers each); `mirrored` runs back along its left-hand image, so
    it starts and ends on the axis."""
    context.move_to(*start)
    for piece in pieces:
        context.curve_to(*piece)
    if mirrored:
        ends = [start] + [piece[4:] for piece in pieces]
        for piece, end in zip(reversed(pieces), reversed(ends[:-1])):
            context.curve_to(-piece[2], piece[3], -piece[0], piece[1], -end[0], end[1])
    context.close_path()


def star(points, outer, inner):
    """The corners of a star, the first one at the top."""
    return [polar(outer if i % 2 == 0 else inner, i * TURN / (2 * points)) for i in range(2 * points)]


def polygon(corners, radius, first=0.0):
    return [polar(radius, first + i * TURN / corners) for i in range(corners)]


def arc_line(radius, start, end, step=0.01):
    """Points along a circle, so that a drawn line bends with the ring."""
    count = max(2, math.ceil(abs(end - start) / step))
    return [polar(radius, start + (end - start) * i / count) for i in range(count + 1)]


def bent(points, step=0.02):
    """A chain of straight lines told as (radius, angle), bent round the centre, as points."""
    result = []
    for (radius, angle), (next_radius, next_angle) in zip(points, points[1:]):
        count = max(1, math.ceil(abs(next_angle - angle) / step))
        for i in range(count):
            share = i / count
            bend = angle + (next_angle - angle) * share
            result.append(polar(radius + (next_radius - radius) * share, bend))
    return result + [polar(*points[-1])]


def ring_sector(context, inner, outer, start, end):
    closed(context, arc_line(outer, start, end) + arc_line(inner, end, start))


def heart(context, size):
    """A heart of about twice `size` in width, its middle at the origin."""
    s = size
    curve(context, (0, -0.52 * s), (0.12 * s, -0.82 * s, 0.36 * s, -0.98 * s, 0.58 * s, -0.92 * s),
          (0.94 * s, -0.82 * s, 1.1 * s, -0.46 * s, 0.98 * s, -0.12 * s),
          (0.84 * s, 0.28 * s, 0.34 * s, 0.58 * s, 0, 1.0 * s), mirrored=True)


def leaf(context, length, width):
    """A pointed leaf from its stalk at the origin up to its tip."""
    w, h = width, -length
    curve(context, (0, 0), (0.55 * w, 0.06 * h, 0.62 * w, 0.42 * h, 0.42 * w, 0.62 * h),
          (0.28 * w, 0.8 * h, 0.1 * w, 0.92 * h, 0, h), mirrored=True)
