"""Motifs: signs and things."""

import math

import cairo

from kit.paths import polar, polygon
from kit.world import add_globe, add_graticule

GOLD, AMBER = "#ffe27a", "#d8930f"
RED, WINE = "#f2504a", "#a80f1e"


def star(m):
    for k in range(10):
        outer, inner = polar(47, (k + k % 2) * math.pi / 5), polar(19.5, (k + 1 - k % 2) * math.pi / 5)
        polygon(m.ctx, [(0, 2), (outer[0], outer[1] + 2), (inner[0], inner[1] + 2)])
        m.plain(GOLD if k % 2 else AMBER)
    polygon(m.ctx, [(x, y + 2) for x, y in
                    (polar(47 if k % 2 == 0 else 19.5, k * math.pi / 5) for k in range(10))])
    m.line("#6a4300", 2.4)


def heart(m):
    shape = ("M 0 43 C -12 28 -46 10 -46 -16 C -46 -33 -34 -41 -23 -41 C -12 -41 -4 -35 0 -25 "
             "C 4 -35 12 -41 23 -41 C 34 -41 46 -33 46 -16 C 46 10 12 28 0 43 Z")
    m.path(shape).round("#ff6a5e", "#b00a1c")
    m.path("M -39 -14 C -40 -28 -30 -36 -22 -36 C -13 -36 -8 -31 -7 -24 C -14 -28 -30 -26 -39 -14 Z").gloss(
        0.75)


def arrow(m):
    m.path("M -46 -15 L 4 -15 L 4 -37 L 47 0 L 4 37 L 4 15 L -46 15 Z").shaded("#7fd65a", "#1d7d2c")
    m.path("M -43 -12 L 7 -12 L 7 -30 L 40 -2 L -43 -2 Z").gloss(0.5)


def smiley(m):
    m.disc(46).round("#fff28a", "#f0a80a")
    for x in (-15, 15):
        m.oval(x, -13, 5.5, 9.5).plain("#3a2400")
        m.oval(x - 1.6, -17, 1.8, 3).plain("#ffffff")
    m.path("M -29 8 C -22 40 22 40 29 8 C 15 16 -15 16 -29 8 Z").plain("#5a1410", 1.8)
    m.path("M -14 25.5 C -6 20 6 20 14 25.5 C 6 31.5 -6 31.5 -14 25.5 Z").plain("#e8525a")
    m.path("M -26 11.5 C -15 17 15 17 26 11.5 L 24.5 16 C 14 20.5 -14 20.5 -24.5 16 Z").plain("#ffffff")
    m.oval(0, -31, 26, 9).gloss(0.6)


def sun(m):
    for k in range(16):
        with m.at(turn=k * math.pi / 8):
            long = 48 if k % 2 == 0 else 40
            m.path(f"M -7 -25 C -4 -33 -2 -37 0 {-long} C 2 -37 4 -33 7 -25 Z").shaded(
                "#ffd23c", "#f08a10", 1.8)
    m.disc(28).round("#fff6a0", "#f6a81a")


def moon(m):
    m.path("M 13 -46 C -16 -50 -44 -30 -44 0 C -44 30 -16 50 13 46 C -8 38 -20 20 -20 0 "
           "C -20 -20 -8 -38 13 -46 Z"
           ).round("#fdf6c8", "#d0a63a")
    for x, y, size in ((22, -8, 15), (6, 14, 7), (36, 22, 9)):
        corners = [polar(size * (0.4 if k % 2 else 1), k * math.pi / 5, (x, y)) for k in range(10)]
        polygon(m.ctx, corners)
        m.plain("#f6cf4a", 1.6)


def footprint(m):
    with m.at(turn=0.12, y=2):
        m.path("M -4 -20 C 8 -24 19 -17 20 -5 C 21 5 13 12 12 22 C 11 34 9 45 -2 45 C -13 45 -15 34 -13 24 "
               "C -11 14 -19 7 -20 -3 C -20 -12 -14 -17 -4 -20 Z").shaded("#a8754a", "#6b4020")
        for x, y, wide, high in ((-17, -31, 7.6, 10.5), (-2, -35, 5.6, 7.6), (9.5, -32.5, 4.8, 6.6),
                                 (18.5, -26, 4.2, 5.8), (25, -17, 3.7, 5.2)):
            m.oval(x, y, wide, high, 0.15).shaded("#a8754a", "#6b4020")


def flame(m):
    m.path("M 4 -48 C 6 -28 34 -16 34 14 C 34 36 18 47 0 47 C -18 47 -34 36 -34 14 C -34 0 -27 -9 -21 -17 "
           "C -20 -8 -16 -4 -12 -3 C -14 -20 -8 -36 4 -48 Z").shaded("#f6a21c", "#d42a10")
    m.path("M 3 -22 C 5 -8 23 0 23 20 C 23 36 12 44 0 44 C -12 44 -23 36 -23 21 C -23 12 -19 7 -15 2 "
           "C -13 8 -10 10 -7 10 C -9 -2 -5 -14 3 -22 Z").shaded("#ffd84a", "#f57a12", 0)
    m.path("M 2 6 C 4 14 12 18 12 29 C 12 38 6 43 0 43 C -6 43 -12 38 -12 29 C -12 20 -2 16 2 6 Z").shaded(
        "#fff6c0", "#ffcf3a", 0)


def drop(m):
    m.path("M 0 -47 C 8 -28 32 -6 32 16 C 32 35 18 47 0 47 "
           "C -18 47 -32 35 -32 16 C -32 -6 -8 -28 0 -47 Z").round(
        "#9fe0ff", "#0c62b8")
    m.path("M -22 16 C -22 2 -12 -12 -5 -22 C -9 -6 -14 6 -12 22 C -11 30 -7 35 -2 38 "
           "C -14 37 -22 28 -22 16 Z"
           ).gloss(0.7)


def leaf(m):
    with m.at(turn=0.6):
        m.path("M -1.5 34 L -1.5 48 L 1.5 48 L 1.5 34 Z").plain("#4a6a1c", 1.4)
        m.path("M 0 -47 C 16 -36 28 -14 26 6 C 25 22 14 34 0 37 C -14 34 -25 22 -26 6 "
               "C -28 -14 -16 -36 0 -47 Z"
               ).shaded("#a6da54", "#2c8428", down=False)
        m.path("M 0 -42 L 0 38").line("#e2f2b0", 1.8)
        for y in (-22, -9, 4, 17):
            reach = 15 - abs(y + 2) * 0.16
            m.both(lambda: m.path(f"M 0 {y + 9} C 5 {y + 6} {reach} {y} {reach + 4} {y - 7}").line(
                "#d2e99a", 1.2))


def snowflake(m):
    for colour, width in (("#0f4a92", 7.5), ("#7cc4f2", 4.2)):
        for k in range(6):
            with m.at(turn=k * math.pi / 3):
                m.path("M 0 0 L 0 -45").line(colour, width)
                m.both(lambda: m.path("M 0 -15 L 9 -24 M 0 -27 L 12 -39").line(colour, width))
    polygon(m.ctx, [polar(9, k * math.pi / 3) for k in range(6)])
    m.plain("#c8e8fb", 0)


def skull(m):
    m.path("M 0 -46 C 26 -46 41 -28 41 -6 C 41 6 36 12 32 18 C 30 22 31 27 28 30 C 25 32 20 31 18 33 L 18 43 "
           "C 18 46 16 47 14 47 L -14 47 C -16 47 -18 46 -18 43 L -18 33 C -20 31 -25 32 -28 30 "
           "C -31 27 -30 22 -32 18 C -36 12 -41 6 -41 -6 C -41 -28 -26 -46 0 -46 Z").round(
               "#fbfaf2", "#b9b29c", 2.6)
    m.both(lambda: m.path("M 8 -2 C 10 -12 29 -12 31 -1 C 32 10 22 15 15 13 C 9 11 7 5 8 -2 Z").plain(
        "#2a2420"))
    m.path("M 0 9 C 4 14 7 20 5 23 C 3 25 1.5 23 0 22 C -1.5 23 -3 25 -5 23 C -7 20 -4 14 0 9 Z").plain(
        "#2a2420")
    for x in (-12, -4, 4, 12):
        m.path(f"M {x} 34 L {x} 45").line("#4a423a", 1.6)


def anchor(m):
    m.path("M -4 -24 L 4 -24 L 4 38 L -4 38 Z").shaded("#8aa4c4", "#2a4468", down=False)
    m.path("M -22 -20 L 22 -20 C 25 -20 25 -12 22 -12 L -22 -12 C -25 -12 -25 -20 -22 -20 Z").shaded(
        "#8aa4c4", "#2a4468")
    for colour, width in (("#101a28", 8.6), ("#5a7a9e", 4.6)):
        m.disc(8, 0, -36).line(colour, width)
    m.path("M 0 47 C -18 45 -32 36 -36 20 L -45 22 L -36 2 L -20 17 L -28 18.5 C -24 30 -14 36 0 37.5 "
           "C 14 36 24 30 28 18.5 L 20 17 L 36 2 L 45 22 L 36 20 C 32 36 18 45 0 47 Z").shaded(
               "#7894b6", "#2a4468")


def crown(m):
    m.path("M -35 34 L -42 -20 L -20 4 L 0 -36 L 20 4 L 42 -20 L 35 34 Z").shaded("#ffe684", "#c9820c")
    m.path("M -36 26 L 36 26 L 35 40 L -35 40 Z").shaded("#ffd75a", "#b06e08")
    for x, y, colour in ((-42, -24, "#4aa8f0"), (0, -41, "#f04a5a"), (42, -24, "#4aa8f0")):
        m.disc(5, x, y).round("#ffffff", colour, 1.8)
    for x, light, dark in ((-22, "#8ae07a", "#167a2a"), (0, "#ff8a80", "#b00a20"),
                           (22, "#8ae07a", "#167a2a")):
        m.oval(x, 33, 5.2, 3.8).round(light, dark, 1.4)
    polygon(m.ctx, [(0, -4), (7, 8), (0, 20), (-7, 8)])
    m.shaded("#9fd4ff", "#0f5ab0", 1.6)


def gem(m):
    top, belt, tip = -30, -8, 42
    shades = ("#c8f0ff", "#7fd0f4", "#eafaff", "#58b8ea", "#2f8fd0", "#1c6fb4")
    polygon(m.ctx, [(0, belt), (-14, top), (14, top)])
    m.plain(shades[2])
    for side, tones in ((-1, (0, 1, 1, 3, 1)), (1, (3, 4, 4, 5, 4))):
        facets = [[(14, top), (32, top), (24, belt)], [(0, belt), (14, top), (24, belt)],
                  [(32, top), (46, belt), (24, belt)], [(24, belt), (46, belt), (0, tip)],
                  [(0, belt), (24, belt), (0, tip)]]
        for points, tone in zip(facets, tones):
            polygon(m.ctx, [(side * x, y) for x, y in points])
            m.plain(shades[tone], 0.8)
    polygon(m.ctx, [(-46, belt), (-32, top), (32, top), (46, belt), (0, tip)])
    m.line("#0d3a66", 2.4)


def lightning(m):
    m.path("M 12 -48 L -28 6 L -5 6 L -14 48 L 30 -12 L 6 -12 L 22 -48 Z").shaded("#fff28a", "#f2a408")


def cloud(m):
    m.path("M -28 28 C -44 28 -48 16 -46 8 C -44 -1 -36 -5 -30 -4 C -30 -20 -18 -29 -5 -28 "
           "C 6 -27 13 -21 16 -12 C 27 -17 38 -9 37 2 C 46 4 49 13 46 20 C 44 26 38 28 32 28 Z").shaded(
               "#f8fcff", "#8fb8dc")


def rocket(m):
    with m.at(turn=0.62):
        m.path("M -7 30 C -9 38 -4 42 0 49 C 4 42 9 38 7 30 Z").shaded("#ffb02a", "#e8400c", 1.6)
        m.both(lambda: m.path("M 12 8 C 24 14 27 24 26 34 C 21 28 16 27 11 27 Z").shaded(
            "#f2604e", "#a81622"))
        m.path("M 0 -48 C 14 -36 17 -16 16 2 C 15 14 13 23 11 29 L -11 29 C -13 23 -15 14 -16 2 "
               "C -17 -16 -14 -36 0 -48 Z"
               ).shaded("#f4f7fa", "#9aaaba", down=False)
        m.path("M 0 -48 C 8 -41 12.5 -32 14.5 -23 C 6 -20 -6 -20 -14.5 -23 "
               "C -12.5 -32 -8 -41 0 -48 Z").shaded(
            "#f2604e", "#b01824")
        m.disc(7.5, 0, -7).round("#bfe8ff", "#1c6ab0", 2.6)


def compass(m):
    m.disc(46).round("#f6d684", "#9a6a14")
    m.disc(38).round("#fdfaf0", "#e2d8ba", 1.8)
    for k in range(24):
        m.ctx.move_to(*polar(36, k * math.pi / 12))
        m.ctx.line_to(*polar(29 if k % 6 == 0 else 32.5, k * math.pi / 12))
        m.line("#4a3a20", 2 if k % 6 == 0 else 1)
    with m.at(turn=0.55):
        for side in (-1, 1):
            polygon(m.ctx, [(0, -31), (side * 7, 0), (0, 0)])
            m.plain("#d8262e" if side < 0 else "#a01018")
            polygon(m.ctx, [(0, 31), (side * 7, 0), (0, 0)])
            m.plain("#e6eaee" if side < 0 else "#a4acb6")
        polygon(m.ctx, [(0, -31), (7, 0), (0, 31), (-7, 0)])
        m.line("#3a2a10", 1.4)
    m.disc(3.4).round("#fff0b0", "#9a6a14", 1.2)


def globe(m):
    m.disc(46).round("#9fdcff", "#0f58a8")
    m.disc(46)
    m.ctx.save()
    m.ctx.clip()
    add_graticule(m.ctx, 46, (10, 22))
    m.line("#cfeeff", 0.6)
    add_globe(m.ctx, 46, (10, 22))
    m.round("#b6e07a", "#2e7d32", 0.9)
    m.ctx.restore()
    m.disc(46).line("#062a52", 2.2)


def map_pin(m):
    m.oval(0, 43, 14, 4.5).plain("#b8bcc2", 1.2)
    m.path("M 0 44 C -4 24 -31 6 -31 -17 C -31 -34 -17 -47 0 -47 "
           "C 17 -47 31 -34 31 -17 C 31 6 4 24 0 44 Z").shaded(RED, WINE)
    m.disc(12, 0, -16).round("#ffffff", "#c8ccd4", 2)


def key(m):
    with m.at(turn=math.pi / 4):
        m.path("M -4.5 -8 L 4.5 -8 L 4.5 47 L -4.5 47 Z").shaded("#ffe07a", "#b8780c", down=False)
        m.path("M 4.5 22 L 17 22 L 17 29 L 11 29 L 11 33 L 17 33 L 17 41 L 4.5 41 Z").shaded(
            "#f6c84a", "#b8780c")
        m.ctx.set_fill_rule(cairo.FILL_RULE_EVEN_ODD)
        m.disc(19, 0, -26).disc(8.5, 0, -29).round("#ffe99a", "#c0800e")


def balloons(m):
    for x, y, turn, light, dark in ((-22, -10, -0.2, "#7fc4ff", "#1458b4"),
                                    (22, -10, 0.2, "#a6e67a", "#2a8a2a"),
                                    (0, -19, 0.0, "#ff8a7a", "#c01424")):
        m.path(f"M {x * 0.9} {y + 22} C {x * 0.5} 24 {x * 0.2} 34 0 47").line("#4a4a50", 1.3)
        with m.at(x=x, y=y, turn=turn):
            m.path("M -3.5 26.5 L 0 22 L 3.5 26.5 Z").plain(dark, 1.4)
            m.path("M 0 -27 C 13 -27 20 -17 20 -6 C 20 8 9 19 0 23 C -9 19 -20 8 -20 -6 "
                   "C -20 -17 -13 -27 0 -27 Z"
                   ).round(light, dark)
            m.oval(-8, -13, 4, 7, 0.5).gloss(0.85)


def pole(m):
    m.path("M -42 -46 L -37 -46 L -37 48 L -42 48 Z").shaded("#d8a868", "#7a4a1c", down=False)


def wave(x):
    """How far a waving flag hangs down at x; the pole is at -37."""
    return 5 * math.sin((x + 37) / 80 * 2 * math.pi)


def race_flag(m):
    pole(m)
    edge = [(-37 + k, -42 + wave(-37 + k)) for k in range(82)]
    polygon(m.ctx, edge + [(x, y + 54) for x, y in reversed(edge)])
    m.plain("#fafafa")
    for column in range(6):
        for row in range(4):
            if (column + row) % 2 == 0:
                part = [(-37 + column * 13.5 + k * 1.5, -42 + row * 13.5) for k in range(10)]
                polygon(m.ctx, [(x, y + wave(x)) for x, y in part] +
                        [(x, y + 13.5 + wave(x)) for x, y in reversed(part)])
                m.plain("#1c1c20")
    polygon(m.ctx, edge + [(x, y + 54) for x, y in reversed(edge)])
    m.line("#101014", 2.2)


def striped_flag(m):
    pole(m)
    edge = [(-37 + k, wave(-37 + k)) for k in range(82)]
    for row, colour in enumerate(("#178a8c", "#f8f2de", "#f08a2a", "#f8f2de", "#178a8c")):
        top = -42 + row * 10.8
        polygon(m.ctx, [(x, y + top) for x, y in edge] + [(x, y + top + 10.8) for x, y in reversed(edge)])
        m.plain(colour)
    polygon(m.ctx, [(x, y - 42) for x, y in edge] + [(x, y + 12) for x, y in reversed(edge)])
    m.line("#2a2030", 2.2)
