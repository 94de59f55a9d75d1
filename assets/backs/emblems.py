"""Figures for the middle of a back. Each is drawn about the origin, at scale 1 in pixels of
the cell."""

import math

from kit.paths import around, disc, mirrored_pair, placed, polar, polygon, rounded_box, svg_path


def anchor(die):
    """60 high."""
    ctx = die.ctx
    disc(ctx, 5, (0, -26))
    die.stroke(1, 3.4)
    rounded_box(ctx, -2.6, -21, 5.2, 48, 1)
    die.fill(1)
    rounded_box(ctx, -14, -15.5, 28, 5, 2.2)
    die.fill(1)
    ctx.new_sub_path()
    ctx.arc(0, 1, 25, math.radians(22), math.radians(158))
    ctx.curve_to(-20, 17, -12, 20.5, 0, 21.5)
    ctx.curve_to(12, 20.5, 20, 17, *polar(25, math.radians(112), (0, 1)))
    die.fill(1)
    mirrored_pair(ctx, lambda: svg_path(ctx, "M 27.5 -6 L 31.5 13.5 L 25 12 L 19 15.5 L 13.5 8.5 Z"))
    die.fill(1)


def ships_wheel(die):
    """64 high."""
    ctx = die.ctx
    def spoke():
        svg_path(ctx, "M -1.3 0 L -1.3 -22 L -1.9 -25 C -3.2 -28 -2.6 -31.5 0 -31.5 C 2.6 -31.5 3.2 -28 1.9 "
                      "-25 "
                      "L 1.3 -22 L 1.3 0 Z")
    around(ctx, 8, spoke)
    die.fill(1)
    disc(ctx, 20)
    die.stroke(1, 6)
    disc(ctx, 20)
    die.stroke(0.2, 1.4)
    disc(ctx, 7)
    die.fill(1)
    disc(ctx, 2.6)
    die.fill(0)


def gear(die, teeth, radius, hole, tooth=6.0):
    pitch = 2 * math.pi / teeth
    for k in range(teeth):
        for turn, r in ((-0.3, radius - tooth), (-0.18, radius), (0.18, radius), (0.3, radius - tooth)):
            die.ctx.line_to(*polar(r, (k + turn) * pitch))
    die.ctx.close_path()
    die.fill(1)
    disc(die.ctx, hole)
    die.fill(0)


def laurel_half(die, radius, leaves=9, reach=2.45):
    """The right branch of a wreath, from the bottom up."""
    ctx = die.ctx
    ctx.new_sub_path()
    ctx.arc(0, 0, radius, math.pi / 2 - reach, math.pi / 2 - 0.05)
    die.stroke(1, 1.5)
    for k in range(leaves):
        angle = math.pi - 0.22 - k * (reach - 0.28) / (leaves - 1)
        for side in (-1, 1):
            x, y = polar(radius, angle)
            with die.at(x=x, y=y, turn=angle - math.pi / 2 + side * 0.62):
                svg_path(ctx, "M 0 0 C 3.6 -2.5 4.2 -8 0 -13 C -4.2 -8 -3.6 -2.5 0 0 Z")
                die.fill(1)
    x, y = polar(radius, math.pi - reach)
    with die.at(x=x, y=y, turn=math.pi / 2 - reach):
        svg_path(ctx, "M 0 2 C 3.6 -0.5 4 -6 0 -11 C -4 -6 -3.6 -0.5 0 2 Z")
        die.fill(1)


def laurel(die, radius, leaves=9, reach=2.45):
    mirrored_pair(die.ctx, lambda: laurel_half(die, radius, leaves, reach))


def shield_path(ctx, size):
    """A shield 2 x size wide and about 2.4 x size high."""
    with placed(ctx, scale=size):
        svg_path(ctx, "M 0 -1.1 C 0.3 -0.95 0.65 -0.9 1 -0.95 L 1 0.05 C 1 0.65 0.6 1.05 0 1.32 "
                      "C -0.6 1.05 -1 0.65 -1 0.05 L -1 -0.95 C -0.65 -0.9 -0.3 -0.95 0 -1.1 Z")


def pine(die, height, level=1.0, seam=1.2):
    """A pine tree standing on the origin."""
    half = ("M 0 -1 L 0.17 -0.74 L 0.09 -0.76 L 0.27 -0.47 L 0.15 -0.5 L 0.37 -0.14 C 0.25 -0.16 0.15 -0.15 "
            "0.06 -0.16 "
            "L 0.06 0 L -0.06 0 L -0.06 -0.16 C -0.15 -0.15 -0.25 -0.16 -0.37 -0.14 L -0.15 -0.5 L -0.27 "
            "-0.47 "
            "L -0.09 -0.76 L -0.17 -0.74 Z")
    with die.at(scale=height):
        svg_path(die.ctx, half)
        die.stroke(0, 2 * seam / height)
        svg_path(die.ctx, half)
        die.fill(level)


def footprint(die, left=False):
    """The print of a boot, 34 long, toe up; the left one mirrored."""
    with die.at(mirrored=left):
        svg_path(die.ctx, "M -1.5 -17 C 4 -18 7.5 -12.5 7 -6.5 C 6.7 -2.5 5 0 4.6 3.2 L -4 3.2 C -4.4 -1 -7 "
                          "-4 -7 -9 "
                          "C -7 -13.5 -5 -16.5 -1.5 -17 Z")
        die.fill(1)
        svg_path(die.ctx, "M -3.8 6.2 L 4.5 6.2 C 5.2 9 5.6 12 4.4 14.5 C 3 17.3 -2 17.6 -3.7 15 C -5.2 "
                          "12.5 -4.6 9 -3.8 6.2 Z")
        die.fill(1)
        for y in (-12, -8, -4, 0):
            die.ctx.move_to(-8, y)
            die.ctx.line_to(9, y)
        die.ctx.move_to(-8, 11)
        die.ctx.line_to(9, 11)
        die.stroke(0, 1.1)


def pin(die, size, rgb=(196, 38, 44)):
    """A map pin whose point is at the origin; `size` is the radius of its head."""
    def outline():
        die.ctx.new_sub_path()
        die.ctx.arc(0, -size * 1.75, size, math.pi * 0.86, math.pi * 2.14)
        die.ctx.curve_to(size * 0.62, -size * 0.85, size * 0.2, -size * 0.5, 0, 0)
        die.ctx.curve_to(-size * 0.2, -size * 0.5, -size * 0.62, -size * 0.85,
                         *polar(size, -math.pi * 0.64, (0, -size * 1.75)))
        die.ctx.close_path()
    outline()
    die.stroke(0, 5)
    outline()
    die.fill(1)
    disc(die.ctx, size * 0.58, (0, -size * 1.75))
    die.enamel(rgb)


def magnifier(die):
    """A magnifying glass, its lens about the origin with a radius of 24, its handle to the lower right."""
    ctx = die.ctx
    with die.at(turn=-math.pi / 4):
        rounded_box(ctx, -2.6, 24, 5.2, 9, 1)
        die.fill(1)
        rounded_box(ctx, -5, 31, 10, 27, 4)
        die.fill(1)
        for y in (37, 41, 45, 49):
            ctx.move_to(-5.5, y)
            ctx.line_to(5.5, y)
        die.stroke(0.15, 1.1)
    disc(ctx, 24)
    die.fill(0, keep=True)
    die.stroke(1, 5)


def heart_path(ctx, size):
    """A heart 2 x size wide about the origin."""
    with placed(ctx, scale=size):
        svg_path(ctx, "M 0 0.92 C -0.25 0.62 -1 0.25 -1 -0.36 C -1 -0.72 -0.74 -0.92 -0.5 -0.92 C -0.26 "
                      "-0.92 -0.08 -0.8 "
                      "0 -0.56 C 0.08 -0.8 0.26 -0.92 0.5 -0.92 C 0.74 -0.92 1 -0.72 1 -0.36 C 1 0.25 0.25 "
                      "0.62 0 0.92 Z")


def lighthouse(die):
    """68 high, standing on y = 34, with two beams."""
    ctx = die.ctx
    mirrored_pair(ctx, lambda: polygon(ctx, [(6, -26), (80, -46), (80, -6)]))
    die.fill(0.42)
    polygon(ctx, [(-8, -16), (8, -16), (12, 34), (-12, 34)])
    die.fill(1)
    for top, bottom in ((-8, 2), (12, 22)):
        polygon(ctx, [(-8 - (top + 16) * 0.08, top), (8 + (top + 16) * 0.08, top), (8 + (bottom + 16) * 0.08,
                                                                                    bottom),
                      (-8 - (bottom + 16) * 0.08, bottom)])
        die.enamel((190, 36, 42))
    rounded_box(ctx, -11, -20, 22, 4, 1)
    die.fill(1)
    ctx.rectangle(-6, -31, 12, 11)
    die.fill(1)
    ctx.rectangle(-4, -30, 8, 9)
    die.enamel((250, 206, 70))
    svg_path(ctx, "M -8 -31 C -6 -36 -3 -38 0 -39 C 3 -38 6 -36 8 -31 Z")
    die.fill(1)
    disc(ctx, 1.6, (0, -40.5))
    die.fill(1)
    rounded_box(ctx, -2.6, 25, 5.2, 9, 2.4)
    die.fill(0)


def palm(die, lean=1):
    """A palm tree on the origin, 36 high."""
    ctx = die.ctx
    with die.at(mirrored=lean < 0):
        svg_path(ctx, "M -2.6 0 C -1.5 -12 1 -20 6 -27 L 8.5 -25.5 C 4 -18 2.2 -10 2.4 0 Z")
        die.fill(1)
        for turn in (-2.0, -1.25, -0.5, 0.4, 1.15, 1.9):
            with die.at(x=7, y=-27, turn=turn):
                svg_path(ctx, "M 0 0 C -4 -5 -3 -12 2.5 -16 C 3.5 -10 3.5 -5 0 0 Z")
                die.fill(1)


def flower(die, petals, radius, rgb=None):
    """A blossom with round petals."""
    def petal():
        svg_path(die.ctx, f"M 0 0 C {-radius * 0.5} {-radius * 0.35} {-radius * 0.45} {-radius} 0 {-radius} "
                          f"C {radius * 0.45} {-radius} {radius * 0.5} {-radius * 0.35} 0 0 Z")
        if rgb:
            die.enamel(rgb, keep=True)
            die.stroke(1, 1.1)
        else:
            die.fill(1, keep=True)
            die.stroke(0, 0.8)
    around(die.ctx, petals, petal)
    disc(die.ctx, radius * 0.24)
    die.fill(0, keep=True)
    die.stroke(1, 1.2)


def ribbon(die, middle, width, height=18):
    """A ribbon with swallow tails for a line of text, sunk around."""
    ctx = die.ctx
    half, top, low = width / 2, middle - height / 2, middle + height / 2
    def tail():
        polygon(ctx, [(half - 8, top + 5), (half + 11, top + 5), (half + 5, middle + 5), (half + 11, low + 5),
                      (half - 8, low + 5)])
    mirrored_pair(ctx, tail)
    die.stroke(0, 3)
    mirrored_pair(ctx, tail)
    die.fill(0.7)
    mirrored_pair(ctx, lambda: polygon(ctx, [(half - 8, low), (half, low), (half - 8, low + 5)]))
    die.fill(0)
    ctx.rectangle(-half, top, width, height)
    die.stroke(0, 3)
    ctx.rectangle(-half, top, width, height)
    die.fill(1)
