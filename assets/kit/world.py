"""The coast lines of the world, projected for drawing."""

import functools
import math
import pathlib

LAND = pathlib.Path(__file__).resolve().parent / "land.txt"


@functools.cache
def rings():
    """Closed rings of (longitude, latitude) in degrees."""
    lines = LAND.read_text(encoding="ascii").splitlines()
    return [[tuple(map(float, point.split(","))) for point in line.split()]
            for line in lines if not line.startswith("#")]


def flat(longitude, latitude):
    """Equirectangular projection, true to shape at 40 degrees; x from -1 to 1, y downwards."""
    return longitude / 180, -latitude / 180 / math.cos(math.radians(40))


def unrolled(ring):
    """The ring without its jump at the date line: its longitudes run on beyond 180 or -180. Nothing for a ring
    that goes round a pole."""
    turns, points, before = 0, [], ring[0][0]
    for longitude, latitude in ring:
        if abs(longitude - before) > 180:
            turns += 360 if before > longitude else -360
        before = longitude
        points.append((longitude + turns, latitude))
    return points if abs(points[0][0] - points[-1][0]) < 180 else []


def cut(ring, side, limit=180):
    """What lies of a ring on the near side of the date line: side 1 keeps longitudes up to the limit, side -1
    those from minus the limit on. A cut edge runs along the date line."""
    kept = []
    for (x, y), (next_x, next_y) in zip(ring, ring[1:] + ring[:1]):
        if x * side <= limit:
            kept.append((x, y))
        if (x * side - limit) * (next_x * side - limit) < 0:
            kept.append((side * limit, y + (next_y - y) * (side * limit - x) / (next_x - x)))
    return kept


def on_the_map(ring):
    """The pieces of a ring between the date line on the left and the date line on the right."""
    whole = unrolled(ring)
    moved = [[(x + turn, y) for x, y in whole] for turn in (-360, 0, 360)]
    return [piece for piece in (cut(cut(ring, 1), -1) for ring in moved) if piece]


def add_flat(context, radius, south=-57):
    """The land as a path, `radius` units from the middle to the date line, where rings that cross it are cut
    in two. Antarctica is left out."""
    for ring in rings():
        if max(latitude for _, latitude in ring) <= south:
            continue
        for piece in on_the_map(ring):
            context.new_sub_path()
            for point in piece:
                x, y = flat(*point)
                context.line_to(x * radius, y * radius)
            context.close_path()


def seen(longitude, latitude, centre):
    """Orthographic view of the unit globe: x, y (downwards) and the depth, positive in front."""
    l = math.radians(longitude - centre[0])
    p, c = math.radians(latitude), math.radians(centre[1])
    x = math.cos(p) * math.sin(l)
    y = math.cos(c) * math.sin(p) - math.sin(c) * math.cos(p) * math.cos(l)
    return x, -y, math.sin(c) * math.sin(p) + math.cos(c) * math.cos(p) * math.cos(l)


def add_globe(context, radius, centre):
    """The land on the near half of a globe as a path. A point beyond the horizon is moved onto it."""
    for ring in rings():
        points = [seen(*point, centre) for point in ring]
        if all(depth <= 0 for _, _, depth in points):
            continue
        context.new_sub_path()
        for x, y, depth in points:
            stretch = 1.02 / math.hypot(x, y) if depth < 0 else 1
            context.line_to(x * stretch * radius, y * stretch * radius)
        context.close_path()


def add_graticule(context, radius, centre, step=30):
    """Meridians and parallels on the near half of a globe, as an open path to stroke."""
    lines = [[(meridian, latitude) for latitude in range(-90, 91, 3)] for meridian in range(-180, 180, step)]
    lines += [[(longitude, parallel) for longitude in range(-180, 181, 3)] for parallel in range(-60, 61,
                                                                                                 step)]
    for line in lines:
        pen_down = False
        for point in line:
            x, y, depth = seen(*point, centre)
            if depth >= 0:
                (context.line_to if pen_down else context.move_to)(x * radius, y * radius)
            pen_down = depth >= 0
