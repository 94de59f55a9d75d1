"""Motifs: plants and animals."""

import math


def pine(m):
    m.path("M -5 34 L 5 34 L 6 47 L -6 47 Z").shaded("#9a6434", "#5a3416", down=False)
    for top, low, half in ((4, 37, 33), (-20, 16, 26), (-47, -8, 19)):
        m.path(f"M 0 {top} C {half * 0.3} {(top + low) / 2} {half * 0.7} {low - 6} {half} {low} "
               f"C {half * 0.5} {low + 3.5} {-half * 0.5} {low + 3.5} {-half} {low} "
               f"C {-half * 0.7} {low - 6} {-half * 0.3} {(top + low) / 2} 0 {top} Z").shaded(
                   "#6cc25a", "#1a6a34")


def daisy(m):
    for ring, (count, reach, shift) in enumerate(((12, 46, 0), (12, 40, math.pi / 12))):
        for k in range(count):
            with m.at(turn=k * 2 * math.pi / count + shift):
                m.path(f"M 0 -8 C -9 -16 -9 {-reach + 6} 0 {-reach} C 9 {-reach + 6} 9 -16 0 -8 Z").shaded(
                    ("#e8eef8", "#fafcff")[ring], ("#a4b6d4", "#c2d0e6")[ring], 1.5)
    m.disc(14).round("#ffe26a", "#d88a0c", 2)


def blossom(m):
    """A blossom of five round petals."""
    for k in range(5):
        with m.at(turn=k * 2 * math.pi / 5):
            m.path("M 0 -6 C -22 -14 -24 -44 -8 -46 C -4 -46.5 -2 -45 0 -42 C 2 -45 4 -46.5 8 -46 "
                   "C 24 -44 22 -14 0 -6 Z"
                   ).shaded("#ffb3d0", "#e0407e", 2)
            m.path("M 0 -13 L 0 -27").line("#b01a58", 1.3)
            m.both(lambda: m.path("M 2 -13 L 6 -24").line("#b01a58", 1.1))
    m.disc(10).round("#fff0a0", "#e0a01a", 1.8)
    for k in range(8):
        angle = k * math.pi / 4
        m.disc(1.3, 6 * math.cos(angle), 6 * math.sin(angle)).plain("#b0660a")


def butterfly(m):
    def wing():
        m.path("M 2 -8 C 8 -30 26 -46 40 -42 C 50 -38 46 -16 36 -6 C 28 1 12 2 2 0 Z").shaded(
            "#ffb43c", "#e0560e")
        m.path("M 2 2 C 14 2 30 4 34 14 C 38 26 28 40 18 38 C 9 36 4 18 2 8 Z").shaded("#ffc85a", "#e46a12")
        m.path("M 12 -12 C 18 -24 28 -34 37 -34 C 39 -26 34 -16 28 -11 C 23 -7.5 16 -8 12 -12 Z").shaded(
            "#fff0b0", "#ffb02a", 0)
        m.path("M 12 10 C 18 9 26 12 26 19 C 27 27 21 31 18 29 C 14 26 11 17 12 10 Z").shaded(
            "#fff0b0", "#ffb02a", 0)
        for x, y, size in ((41, -33, 2.2), (41.5, -25, 1.8), (38.5, -17, 1.8), (30, 31, 1.8), (32, 23, 1.6)):
            m.disc(size, x, y).plain("#fff6e0")
    m.both(wing)
    m.both(lambda: m.path("M 1 -20 C 3 -30 8 -36 13 -38").line("#2a1a10", 1.6))
    m.both(lambda: m.disc(1.8, 13.5, -38.5).plain("#2a1a10"))
    m.path("M 0 -24 C 4 -24 4.5 -18 3.5 -12 C 4.5 0 4 20 0 34 C -4 20 -4.5 0 -3.5 -12 "
           "C -4.5 -18 -4 -24 0 -24 Z").shaded(
        "#6a4a34", "#241408", 1.4)


def paw(m):
    m.path("M 0 -2 C 14 -2 22 12 29 22 C 36 33 28 44 17 42 C 10 41 6 39 0 39 C -6 39 -10 41 -17 42 "
           "C -28 44 -36 33 -29 22 C -22 12 -14 -2 0 -2 Z").shaded("#8a6242", "#4a2e1a")
    m.both(lambda: m.oval(13, -28, 9, 14, 0.12).shaded("#8a6242", "#4a2e1a"))
    m.both(lambda: m.oval(35, -6, 8, 13, 0.5).shaded("#8a6242", "#4a2e1a"))


def fish(m):
    m.path("M 24 0 C 32 -8 40 -20 47 -22 C 44 -12 42 -6 42 0 C 42 6 44 12 47 22 C 40 20 32 8 24 0 Z").shaded(
        "#ffb04a", "#d84a10")
    m.path("M -14 -22 C -6 -36 10 -36 20 -30 C 14 -26 10 -20 8 -14 Z").shaded("#ffb04a", "#d84a10")
    m.path("M -8 22 C -4 32 4 36 12 34 C 10 28 8 22 8 18 Z").shaded("#ffb04a", "#d84a10")
    m.path("M -46 2 C -38 -16 -22 -25 -5 -25 C 12 -25 26 -14 32 0 "
           "C 26 14 12 25 -5 25 C -22 25 -38 16 -46 2 Z").shaded("#ffcf6a", "#ee7414")
    m.path("M -20 -18 C -12 -8 -12 10 -20 19").line("#b84a0c", 1.8)
    for x, y in ((-4, -10), (-4, 8), (6, -1), (14, -10), (14, 8)):
        m.path(f"M {x} {y - 4.5} C {x + 5} {y - 3} {x + 5} {y + 3} {x} {y + 4.5}").line("#c85a10", 1.5)
    m.disc(5.4, -30, -5).plain("#fcfcfc", 1.6)
    m.disc(2.8, -31, -5).plain("#1a1410")
    m.path("M -43 8 C -39 10 -36 10 -33 9").line("#8a340c", 1.6)


def toadstool(m):
    m.path("M -13 4 C -10 18 -14 32 -18 41 C -16 48 16 48 18 41 C 14 32 10 18 13 4 Z").shaded(
        "#fbf4e2", "#cdb48a", down=False)
    m.path("M -17 12 C -10 18 10 18 17 12 C 16 20 12 24 8 21 "
           "C 4 25 -4 25 -8 21 C -12 24 -16 20 -17 12 Z").shaded(
        "#fdf8ec", "#d8c49c", 1.6)
    m.path("M 0 -46 C 28 -46 46 -24 46 -2 C 46 8 40 10 32 11 C 14 14 -14 14 -32 11 C -40 10 -46 8 -46 -2 "
           "C -46 -24 -28 -46 0 -46 Z"
           ).round("#ff6a5a", "#b80f1e")
    for x, y, wide, high in ((-2, -28, 10, 8), (-27, -16, 7, 6.5), (24, -19, 8, 7), (-10, -6, 6, 4.5),
                             (12, -4, 5, 4), (37, -3, 4, 4)):
        m.oval(x, y, wide, high).shaded("#fcfaf4", "#e2d8cc", 1.2)


def clover(m):
    m.path("M -1 4 C 1 20 6 36 16 47 L 21 44 C 12 34 6 20 4 4 Z").shaded("#6ab84a", "#1f6a26")
    for k in range(4):
        with m.at(y=-6, turn=k * math.pi / 2 + math.pi / 4):
            m.path("M 0 1 C -4 -6 -21 -13 -21 -27 C -21 -36 -14 -40 -9 -40 C -4 -40 -1 -37 0 -33 "
                   "C 1 -37 4 -40 9 -40 C 14 -40 21 -36 21 -27 C 21 -13 4 -6 0 1 Z").shaded(
                       "#86d45e", "#1f7a2c", 2)
            m.path("M 0 -4 L 0 -26").line("#c2eca0", 1.4)


def ladybird(m):
    m.both(lambda: m.path("M 6 -38 C 10 -45 15 -47 20 -46").line("#1a1414", 2))
    for y, reach in ((-14, 44), (4, 47), (22, 43)):
        m.both(lambda: m.path(f"M 30 {y} L {reach} {y + (y - 4) * 0.3}").line("#1a1414", 3))
    m.path("M -20 -26 C -18 -42 18 -42 20 -26 C 18 -18 -18 -18 -20 -26 Z").round("#5a5052", "#141012")
    m.both(lambda: m.disc(3.2, 10, -32).plain("#f6f4ee"))
    m.path("M 0 -28 C 24 -28 37 -10 37 8 C 37 30 20 46 0 46 "
           "C -20 46 -37 30 -37 8 C -37 -10 -24 -28 0 -28 Z").round("#ff6a4e", "#b8101a")
    m.path("M 0 -28 L 0 46").line("#3a0a0c", 2.2)
    for x, y, size in ((15, -11, 6.5), (22, 12, 7), (11, 29, 5.5)):
        m.both(lambda: m.disc(size, x, y).plain("#1c1012"))


def owl(m):
    m.both(lambda: m.path("M 8 38 C 8 46 13 47 16 46 C 20 45 20 40 18 36 Z").shaded(
        "#ffc24a", "#d8800c", 1.6))
    m.path("M -33 -46 C -26 -38 -14 -37 0 -37 C 14 -37 26 -38 33 -46 C 36 -34 34 -26 34 -16 "
           "C 38 2 36 22 26 34 C 18 43 -18 43 -26 34 C -36 22 -38 2 -34 -16 "
           "C -34 -26 -36 -34 -33 -46 Z").shaded("#b88a5a", "#6a4322")
    m.path("M 0 2 C 14 2 22 10 22 22 C 22 34 12 39 0 39 C -12 39 -22 34 -22 22 C -22 10 -14 2 0 2 Z").shaded(
        "#f2dfba", "#cfae7a", 0)
    for y, xs in ((12, (-10, 0, 10)), (20, (-14, -5, 5, 14)), (28, (-9, 0, 9))):
        for x in xs:
            m.path(f"M {x - 3.4} {y} C {x - 2.4} {y + 4.4} {x + 2.4} {y + 4.4} {x + 3.4} {y}").line(
                "#8a5a2c", 1.5)
    m.both(lambda: m.path("M 34 -6 C 39 8 37 24 26 33 C 24 20 26 6 34 -6 Z").shaded(
        "#8a5e36", "#543216", 1.6))
    m.both(lambda: m.disc(14.5, 15, -17).shaded("#fdf6e4", "#e6d0a6", 1.8))
    m.both(lambda: m.disc(8.5, 14, -17).round("#ffd84a", "#e8960c", 1.4))
    m.both(lambda: m.disc(4.8, 13.5, -17).plain("#1a120c"))
    for x in (-15.2, 11.8):
        m.disc(1.6, x, -19).plain("#ffffff")
    m.path("M 0 -14 L 5.5 -5 L 0 5 L -5.5 -5 Z").shaded("#ffcb5a", "#d8800c", 1.6)


def apple(m):
    m.path("M -2 -26 C -2 -36 1 -42 6 -46 L 10 -43 C 5 -38 3 -33 3 -26 Z").shaded("#8a5a2c", "#4a2a10", 1.6)
    m.path("M 6 -33 C 12 -44 24 -46 33 -42 C 30 -32 18 -26 6 -33 Z").shaded("#9ad85a", "#2a8a2a", 1.8)
    m.path("M 0 -24 C 8 -31 22 -32 32 -24 C 43 -14 42 8 33 26 C 26 40 14 48 4 44 C 1 43 -1 43 -4 44 "
           "C -14 48 -26 40 -33 26 C -42 8 -43 -14 -32 -24 C -22 -32 -8 -31 0 -24 Z").round(
               "#ff7a5e", "#a80c1a")
    m.oval(-19, -8, 6, 12, 0.4).gloss(0.7)
