"""Shapes for glyphs of our own: solid outlines, and holes in them, in units of the font.

The em is 1000 units and the y axis points up. A shape is a list of contours; a contour that runs clockwise is ink,
one that runs the other way a hole.
"""

import math

TURN = 2 * math.pi
STEPS = 48  # points of a full circle


def area(points):
    return sum(x * next_y - next_x * y for (x, y), (next_x, next_y) in zip(points, points[1:] + points[:1])) / 2


def ink(points):
    """A contour of ink through points in any sense."""
    return [points if area(points) < 0 else points[::-1]]


def hole(points):
    return [points if area(points) > 0 else points[::-1]]


def disc(x, y, radius, steps=STEPS):
    return [(x + radius * math.sin(k * TURN / steps), y + radius * math.cos(k * TURN / steps)) for k in range(steps)]


def ring(x, y, radius, width):
    return ink(disc(x, y, radius)) + hole(disc(x, y, radius - width))


def box(left, bottom, right, top):
    return [(left, bottom), (left, top), (right, top), (right, bottom)]


def turned(shape, degrees, centre=(500, 400)):
    """Clockwise, as seen."""
    c, s = math.cos(math.radians(degrees)), math.sin(math.radians(degrees))
    return [[(centre[0] + (x - centre[0]) * c + (y - centre[1]) * s, centre[1] - (x - centre[0]) * s + (y - centre[1]) * c)
             for x, y in contour] for contour in shape]


def moved(shape, right=0, up=0, scale=1.0, centre=(500, 400)):
    return [[(centre[0] + (x - centre[0]) * scale + right, centre[1] + (y - centre[1]) * scale + up) for x, y in contour]
            for contour in shape]


def cut(shape):
    """The same shape as holes, to be taken out of ink that lies under it."""
    return [contour[::-1] for contour in shape]


def bar(start, end, width):
    """A straight bar with square ends between two points."""
    (x0, y0), (x1, y1) = start, end
    length = math.hypot(x1 - x0, y1 - y0)
    across, along = -(y1 - y0) / length * width / 2, (x1 - x0) / length * width / 2
    return ink([(x0 + across, y0 + along), (x1 + across, y1 + along), (x1 - across, y1 - along), (x0 - across, y0 - along)])


def path(points, width):
    """Bars from point to point, as one outline with sharp bends; the line may not bend back on itself."""
    left, right = [], []
    for k, (x, y) in enumerate(points):
        before, after = points[max(0, k - 1)], points[min(len(points) - 1, k + 1)]
        first = math.atan2(y - before[1], x - before[0]) if k else math.atan2(after[1] - y, after[0] - x)
        last = math.atan2(after[1] - y, after[0] - x) if k < len(points) - 1 else first
        middle = first + ((last - first + math.pi) % TURN - math.pi) / 2
        reach = width / 2 / max(math.cos(middle - first), 0.3)
        left.append((x - math.sin(middle) * reach, y + math.cos(middle) * reach))
        right.append((x + math.sin(middle) * reach, y - math.cos(middle) * reach))
    return ink(left + right[::-1])


def arc(x, y, radius, start, end, steps=24):
    """Points along a circle; degrees clockwise from straight up."""
    return [(x + radius * math.sin(math.radians(start + (end - start) * k / steps)),
             y + radius * math.cos(math.radians(start + (end - start) * k / steps))) for k in range(steps + 1)]


def arrow(length=560, head=300, shaft=120, half=200):
    """Upwards, its middle at the centre of the em."""
    tip, foot = 400 + length / 2, 400 - length / 2
    return ink([(500, tip), (500 + half, tip - head), (500 + shaft / 2, tip - head), (500 + shaft / 2, foot),
                (500 - shaft / 2, foot), (500 - shaft / 2, tip - head), (500 - half, tip - head)])
