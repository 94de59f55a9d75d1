"""Borders of knotwork: closed strands that pass over and under each other in turn."""

import math

import numpy

from borders.shapes import EDGE, framed_floor, polar
from kit.relief import TURN


def crossings(curves):
    """Where strands cross: pairs of places, each told as (curve, point with a fraction)."""
    starts = numpy.concatenate(curves)
    ends = numpy.concatenate([numpy.roll(curve, -1, axis=0) for curve in curves])
    owner = numpy.concatenate([numpy.full(len(curve), k) for k, curve in enumerate(curves)])
    place = numpy.concatenate([numpy.arange(len(curve)) for curve in curves])
    run = ends - starts
    found = []
    for first in range(len(starts)):
        towards = starts[first + 1 :] - starts[first]
        others = run[first + 1 :]
        turn = run[first, 0] * others[:, 1] - run[first, 1] * others[:, 0]
        with numpy.errstate(divide="ignore", invalid="ignore"):
            here = (towards[:, 0] * others[:, 1] - towards[:, 1] * others[:, 0]) / turn
            there = (towards[:, 0] * run[first, 1] - towards[:, 1] * run[first, 0]) / turn
        for other in numpy.nonzero((here >= 0) & (here < 1) & (there >= 0) & (there < 1))[0]:
            second = first + 1 + other
            apart = abs(place[second] - place[first])
            if owner[first] == owner[second] and min(apart, len(curves[owner[first]]) - apart) < 3:
                continue  # neighbours along a strand touch, and cross nothing
            found.append(((owner[first], place[first] + here[other]),
                          (owner[second], place[second] + there[other])))
    return found


def levels(curves):
    """For each strand its crossings in their order, as (point, 1 over or -1 under), over and under in turn."""
    met = crossings(curves)
    stops = [sorted((at, k) for k, pair in enumerate(met) for curve, at in pair if curve == number)
             for number in range(len(curves))]
    over = {}  # by crossing: the strand and the point that passes over
    waiting = list(range(len(curves)))
    while waiting:
        known = [number for number in waiting if any(k in over for _, k in stops[number])]
        number = (known or waiting)[0]
        waiting.remove(number)
        sign = 1
        for step, (at, k) in enumerate(stops[number]):
            if k in over:
                sign = (1 if over[k] == (number, at) else -1) * (-1) ** step
                break
        for step, (at, k) in enumerate(stops[number]):
            if k not in over:
                mine = sign * (-1) ** step > 0
                others = [end for end in met[k] if end != (number, at)]
                over[k] = (number, at) if mine else others[0]
    return [[(at, 1 if over[k] == (number, at) else -1) for at, k in stop] for number, stop in enumerate(stops)]


def piece(relief, points, heights, half, height, lift, gap, ribbon):
    """Lays a piece of a strand over what is there, with a dark seam beside it."""
    low, high = points.min(axis=0) - half - gap - 1, points.max(axis=0) + half + gap + 1
    x, y = (low + high) / 2
    box = relief.box(x, y, math.ceil(max(high - low) / 2))
    right, down = relief.x[box], relief.y[box]
    nearest = numpy.full(right.shape, 1e9, "float32")
    level = numpy.zeros(right.shape, "float32")
    beyond = numpy.zeros(right.shape, bool)  # past an end, where the next piece goes on
    last = len(points) - 2
    for number, ((px, py), (qx, qy), up) in enumerate(zip(points, points[1:], heights)):
        run_x, run_y = qx - px, qy - py
        along = ((right - px) * run_x + (down - py) * run_y) / (run_x**2 + run_y**2)
        share = numpy.clip(along, 0, 1)
        away = (right - px - share * run_x) ** 2 + (down - py - share * run_y) ** 2
        closer = away < nearest
        nearest, level = numpy.where(closer, away, nearest), numpy.where(closer, up, level)
        past = (along < 0) & (number == 0) | (along > 1) & (number == last)
        beyond = numpy.where(closer, past, beyond)
    distance = numpy.where(beyond, 1e9, numpy.sqrt(nearest))
    seam = (distance < half + gap) & (distance >= half) & relief.solid[box]
    relief.height[box][seam] = numpy.minimum(relief.height[box], 0)[seam]
    share = numpy.clip(distance / half, 0, 1)
    profile = numpy.sqrt(1 - (share**4 if ribbon else share**2))
    if ribbon:
        profile = profile - 0.28 * numpy.exp(-0.5 * (distance / (0.22 * half)) ** 2)
    inside = distance < half
    relief.height[box][inside] = (lift * (1 + level) / 2 + height * profile)[inside]
    relief.polish[box][inside] = 1
    relief.solid[box] |= inside


def knotwork(relief, curves, half, height=4.4, lift=4.5, gap=1.6, ribbon=True):
    """Lays closed strands (points in pixels from the centre) that pass over and under in turn."""
    pieces = []
    for curve, stops in zip(curves, levels(curves)):
        count = len(curve)
        for number, (at, level) in enumerate(stops):
            before, after = stops[number - 1][0], stops[(number + 1) % len(stops)][0]
            start = at - ((at - before) % count) / 2 - 1
            end = at + ((after - at) % count) / 2 + 1
            steps = numpy.arange(math.floor(start), math.ceil(end) + 1)
            # From the height of this crossing to the height midway, where the next piece takes over.
            share = numpy.where(steps < at, (at - steps) / max(at - start, 1), (steps - at) / max(end - at, 1))
            heights = level * numpy.cos(numpy.clip(share, 0, 1) * math.pi / 2)
            pieces.append((level, curve[steps % count], heights))
    for _, points, heights in sorted(pieces, key=lambda each: each[0]):
        piece(relief, points, heights, half, height, lift, gap, ribbon)


def trefoil(radius, angle, size, turn):
    """The knot with three loops, one of them upwards before it is turned."""
    t = numpy.arange(360) * TURN / 360
    x, y = numpy.sin(t) + 2 * numpy.sin(2 * t), numpy.cos(t) - 2 * numpy.cos(2 * t)
    x, y = size / 3 * x, size / 3 * y
    turn += angle
    middle = polar(radius, angle)
    return numpy.stack([middle[0] + x * math.cos(turn) - y * math.sin(turn),
                        middle[1] + x * math.sin(turn) + y * math.cos(turn)], axis=1)


def celtic_knot(relief):
    """Trefoil knots in a row, their loops in turn outwards and inwards."""
    framed_floor(relief, 184)
    count = 24
    for place in range(count):
        angle = place * TURN / count
        knotwork(relief, [trefoil(212 - 2.5 * (-1) ** place, angle, 20.5, math.pi * (place % 2))], half=3.3)


# A cord that is tied in an overhand knot, from left to right, and how far along it lies on the plain ring.
OVERHAND = [(-58, 0), (-40, -1), (-20, -3), (2, 6), (17, 13), (27, 2), (20, -17), (0, -25), (-20, -17), (-27, 2),
            (-17, 13), (-2, 6), (20, -3), (40, -1), (58, 0)]


def spline(points, steps=24):
    """A smooth line through points (Catmull-Rom), without the two at its ends."""
    points = numpy.array(points, float)
    t = (numpy.arange(steps) / steps)[:, None]
    parts = []
    for k in range(1, len(points) - 2):
        before, start, end, after = points[k - 1 : k + 3]
        parts.append(start + t * (end - before) / 2 + t**2 * (before - 2.5 * start + 2 * end - after / 2)
                     + t**3 * (1.5 * (start - end) + (after - before) / 2))
    return numpy.concatenate(parts)


def knotted_cord(relief):
    """A cord round the tag, tied four times."""
    relief.half_round(234, EDGE, height=3.5)
    middle, knots = 211, 6
    line = spline(OVERHAND)
    reach = line[-1, 0] / middle
    parts = []
    for knot in range(knots):
        turn = knot * TURN / knots
        # The plain cord up to the knot, then the knot bent round the ring.
        plain = numpy.arange(turn - TURN / knots + reach, turn - reach, 2 / middle)
        parts.append(numpy.stack([middle * numpy.sin(plain), -middle * numpy.cos(plain)], axis=1))
        angle, radius = turn + line[:, 0] / middle, middle + line[:, 1]
        parts.append(numpy.stack([radius * numpy.sin(angle), -radius * numpy.cos(angle)], axis=1))
    knotwork(relief, [numpy.concatenate(parts)], half=4.6, height=4.6, lift=5, ribbon=False)


BORDERS = {
    "Celtic knot": celtic_knot,
    "Knotted cord": knotted_cord,
}
