"""Standard backs with maps and patterns all over, and the list of all standard backs."""

import math

from kit.paths import around, disc, mirrored_pair, polar, polygon, star, svg_path
from kit.world import add_flat, add_globe, add_graticule

from backs import figures
from backs.emblems import pin
from backs.parts import (beaded, ground, honeycomb, knurled, lattice, number_field, ring, rosette, sunburst,
                         text_ring, waves)
from backs.struck import RADIUS


def plain_field(die):
    ground(die)
    text_ring(die, 49)
    disc(die.ctx, 48)
    die.fill(0.18)
    number_field(die, 0, 78, 24)
    die.arc("TRACKING NUMBER", 53.5, 12.5)
    for side in (-1, 1):
        star(die.ctx, 5, 5, 2.1, centre=polar(58, side * math.pi * 0.62))
    star(die.ctx, 5, 7, 2.9, centre=(0, 58))
    for side in (-1, 1):
        star(die.ctx, 5, 6, 2.5, centre=polar(58, side * math.pi * 0.81))
    die.fill(1)


def compass_points(die, count, long, waist, turn=0.0):
    """The points of a rose, each half polished and half sunk with a bright edge."""
    def point():
        polygon(die.ctx, [(0, -long), (0, 0), polar(waist, -math.pi / count)])
        die.fill(1)
        polygon(die.ctx, [(0, -long), (0, 0), polar(waist, math.pi / count)])
        die.fill(0.25)
        polygon(die.ctx, [(0, -long), polar(waist, math.pi / count), (0, 0), polar(waist, -math.pi / count)])
        die.stroke(1, 0.9)
    around(die.ctx, count, point, turn)


def compass_rose(die):
    ground(die)
    with die.at(y=-17):
        ring(die, 33, 1.2)
        ring(die, 29.5, 0.8)
        for k in range(72):
            if k % 3:
                die.ctx.move_to(*polar(29.5, k * math.pi / 36))
                die.ctx.line_to(*polar(33, k * math.pi / 36))
        die.stroke(0.8, 0.6)
        compass_points(die, 4, 26, 8, math.pi / 4)
        compass_points(die, 4, 39, 9)
        disc(die.ctx, 3.4)
        die.fill(0, keep=True)
        die.stroke(1, 1.2)
    number_field(die, 40, 70)
    for side in (-1, 1):
        with die.at(x=side * 50, y=-17):
            star(die.ctx, 4, 8, 2.4)
            die.fill(1)


def world_map(die):
    ground(die)
    with die.inside_disc(RADIUS - 4.5):
        die.ctx.rectangle(-RADIUS, -42, 2 * RADIUS, 66)
        die.enamel((38, 92, 150))
        die.ctx.rectangle(-RADIUS, -42, 2 * RADIUS, 66)
        with die.inside(), die.at(y=-3):
            add_flat(die.ctx, 68)
            die.fill(1)
        for y in (-42.5, 24.5):
            die.ctx.move_to(-RADIUS, y)
            die.ctx.line_to(RADIUS, y)
        die.stroke(1, 1)
    die.line("WORLD", -47, 12.5, spacing=1)
    number_field(die, 42, 64)


def globe(die):
    ground(die)
    text_ring(die, 50)
    disc(die.ctx, 48)
    die.enamel((30, 84, 140))
    add_graticule(die.ctx, 48, (8, 24))
    die.stroke(0.45, 0.7)
    with die.inside_disc(48):
        add_globe(die.ctx, 48, (8, 24))
        die.fill(1)
    ring(die, 48.5, 1.4)
    die.arc("AROUND THE WORLD", 54, 12.5)
    number_field(die, 44, 66)


def sunburst_back(die):
    ground(die)
    sunburst(die, RADIUS - 4.5, 40)
    disc(die.ctx, 44)
    die.fill(0)
    ring(die, 42.5, 1.5)
    number_field(die, 0, 72)
    for up in (-1, 1):
        with die.at(y=up * 27):
            star(die.ctx, 8, 11, 4.6, math.pi / 8 * (up > 0))
            die.fill(1)
            disc(die.ctx, 2)
            die.fill(0)


def honeycomb_back(die):
    ground(die)
    honeycomb(die, RADIUS - 5.5, 8)
    number_field(die, 0, 96, 22)


def contour_lines(die):
    ground(die)
    with die.inside_disc(RADIUS - 4.5):
        hill_range(die)
    number_field(die, 34, 70)


def hill_range(die):
    """The contour lines of a few round hills, every fourth one bold."""
    peaks = [(-18, -22, 27, 1.0), (26, -14, 22, 0.85), (6, 20, 30, 0.6), (-44, 24, 26, 0.5), (46, 34, 24,
                                                                                              0.55)]
    def height(x, y):
        return sum(h * math.exp(-((x - a) ** 2 + (y - b) ** 2) / w / w) for a, b, w, h in peaks)
    step = 2.0
    cells = [k * step for k in range(-37, 37)]
    for number in range(1, 13):
        level = number * 0.095
        for x in cells:
            for y in cells:
                add_contour(die.ctx, height, level, x, y, step)
        die.stroke(1 if number % 4 == 0 else 0.75, 1.5 if number % 4 == 0 else 0.8)


def add_contour(ctx, height, level, x, y, step):
    """The piece of a contour line within one square, by linear interpolation along its sides."""
    corners = [(x, y), (x + step, y), (x + step, y + step), (x, y + step)]
    values = [height(*corner) - level for corner in corners]
    cuts = []
    for k in range(4):
        a, b = values[k], values[(k + 1) % 4]
        if (a < 0) != (b < 0):
            (p, q), (r, s), t = corners[k], corners[(k + 1) % 4], a / (a - b)
            cuts.append((p + (r - p) * t, q + (s - q) * t))
    for start, end in zip(cuts[::2], cuts[1::2]):
        ctx.move_to(*start)
        ctx.line_to(*end)


def waves_back(die):
    ground(die)
    waves(die, RADIUS - 4.5)
    number_field(die, 0, 92, 22)


def map_grid(die):
    ground(die)
    lattice(die, RADIUS - 4.5, 8, 0.7, 0.6)
    lattice(die, RADIUS - 4.5, 24, 1.8)
    for x in (-36, 36):
        for y in (-36, 36):
            star(die.ctx, 4, 8, 2.2, centre=(x, y))
    die.fill(1)
    number_field(die, 0, 90, 22)


def guilloche(die):
    ground(die)
    rosette(die, 53, 11, 24, 4)
    ring(die, 40, 1.2)
    disc(die.ctx, 39)
    die.fill(0)
    rosette(die, 24, 13, 12, 4, 0.7, 0.75)
    number_field(die, 0, 74, 22)


def knurled_rim(die):
    knurled(die)
    ring(die, 58, 0.8)
    die.line("TRACK", -23, 19, spacing=1)
    die.line("MY TRIP", 37, 19, spacing=0.5)
    number_field(die, 0, 92, 24)


def town_map(die):
    ground(die)
    with die.inside_disc(RADIUS - 4.5):
        with die.at(turn=math.radians(-14)):
            columns = [(-74, -52), (-48, -29), (-25, -4), (2, 23), (27, 46), (50, 74)]
            rows = [(-74, -50), (-46, -30), (-26, -8), (-4, 14), (18, 36), (40, 74)]
            for i, (left, right) in enumerate(columns):
                for j, (top, bottom) in enumerate(rows):
                    die.ctx.rectangle(left, top, right - left, bottom - top)
                    if (i, j) in ((3, 1), (3, 2)):
                        die.enamel((58, 132, 66))
                    else:
                        die.fill(0.8)
            die.ctx.move_to(-80, 22)
            die.ctx.curve_to(-40, 4, -34, -26, -12, -36)
            die.ctx.curve_to(10, -48, 34, -40, 80, -62)
            die.stroke(0, 8, keep=True)
            die.ctx.new_path()
    with die.at(x=4, y=-2):
        pin(die, 15)
    number_field(die, 40, 70)


def tree_rings(die):
    """The cut of a trunk: rings that lie closer outwards, within bark."""
    ground(die)
    for number in range(1, 15):
        radius = 64 * (number / 14.5) ** 0.8
        for k in range(181):
            angle = k * math.pi / 90
            swell = 1 + 0.035 * math.sin(3 * angle + 0.6) + 0.02 * math.sin(5 * angle + number * 0.25)
            die.ctx.line_to(*polar(radius * swell, angle))
        die.ctx.close_path()
        die.stroke(0.85, 1.0 if number % 3 else 2.0)
    number_field(die, 0, 84, 22)


def basket_weave(die):
    ground(die)
    with die.inside_disc(RADIUS - 5.5):
        for i in range(-6, 7):
            for j in range(-6, 7):
                with die.at(x=i * 15, y=j * 15, turn=(i + j) % 2 * math.pi / 2):
                    for strip in range(3):
                        die.ctx.rectangle(-7, -7 + strip * 5, 14, 4)
                    die.fill(0.85)
    number_field(die, 0, 90, 22)


def chequer_plate(die):
    """The floor plate of works and ships: lozenges, each across its neighbours."""
    ground(die, 0.18)
    with die.inside_disc(RADIUS - 5.5):
        for i in range(-8, 9):
            for j in range(-8, 9):
                with die.at(x=i * 10, y=j * 10, turn=math.pi / 4 * (1 if (i + j) % 2 else -1)):
                    svg_path(die.ctx, "M -6.4 0 C -4 -2.6 4 -2.6 6.4 0 C 4 2.6 -4 2.6 -6.4 0 Z")
                    die.fill(0.95)
    number_field(die, 0, 90, 22)


def spirograph(die):
    """Epicycloid-like loops, as drawn with toothed wheels."""
    beaded(die)
    for inner, loops, swing, level in ((34, 16, 24, 1.0), (22, 8, 12, 0.8)):
        steps = 2400
        for k in range(steps):
            angle = k * 2 * math.pi * 3 / steps
            die.ctx.line_to(*polar(inner + swing * math.sin(angle * loops / 3), angle))
        die.ctx.close_path()
        die.stroke(level, 0.9)
    number_field(die, 0, 72, 22)


def radar(die):
    ground(die)
    with die.inside_disc(RADIUS - 4.5):
        with die.at(y=-6):
            for step in range(30):
                die.ctx.move_to(0, 0)
                die.ctx.arc(0, 0, 56, math.radians(-76 + step * 2), math.radians(-73.5 + step * 2))
                die.ctx.close_path()
                die.enamel((20 + step, 60 + step * 4, 40 + step * 2))
            for radius in (14, 28, 42, 56):
                ring(die, radius, 1, 0.85)
            for k in range(4):
                die.ctx.move_to(*polar(58, k * math.pi / 4))
                die.ctx.line_to(*polar(-58, k * math.pi / 4))
            die.stroke(0.6, 0.8)
            die.ctx.move_to(0, 0)
            die.ctx.line_to(*polar(56, math.radians(74)))
            die.stroke(1, 1.6)
            for distance, angle in ((22, 0.9), (36, 1.35), (33, 4.0), (47, 5.6), (20, 5.0)):
                disc(die.ctx, 2.6, polar(distance, angle))
            die.fill(1)
    number_field(die, 40, 70)


def circuit(die):
    """Conductors of a circuit board, the same to the left and right and above and below."""
    ground(die)
    tracks = [
        [(0, 17), (0, 56)], [(8, 17), (8, 30), (18, 40), (18, 52)], [(16, 17), (16, 25), (32, 41), (32, 48)],
        [(24, 17), (24, 20), (44, 40)], [(32, 17), (50, 28)], [(49, 8), (60, 8)], [(49, 0), (63, 0)],
    ]
    def quarter():
        for track in tracks:
            for point in track:
                die.ctx.line_to(*point)
            die.stroke(0.9, 2)
            disc(die.ctx, 3, track[-1])
            die.fill(0, keep=True)
            die.stroke(1, 1.8)
    for up in (1, -1):
        die.ctx.save()
        die.ctx.scale(1, up)
        mirrored_pair(die.ctx, quarter)
        die.ctx.restore()
    number_field(die, 0, 88, 24)


BACKS = [
    ("Plain field", plain_field),
    ("Compass rose", compass_rose),
    ("World map", world_map),
    ("Globe", globe),
    ("Sunburst", sunburst_back),
    ("Honeycomb", honeycomb_back),
    ("Contour lines", contour_lines),
    ("Waves", waves_back),
    ("Map grid", map_grid),
    ("Guilloche", guilloche),
    ("Knurled rim", knurled_rim),
    ("Town map", town_map),
    ("Tree rings", tree_rings),
    ("Basket weave", basket_weave),
    ("Chequer plate", chequer_plate),
    ("Spirograph", spirograph),
    ("Radar", radar),
    ("Circuit", circuit),
    *figures.BACKS,
]
