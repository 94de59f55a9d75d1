"""Standard backs with a figure in the middle."""

import math

from kit.paths import disc, mirrored_pair, polar, polygon, star, svg_path

from backs.emblems import (anchor, footprint, gear, laurel, lighthouse, magnifier, palm, pin, pine,
                           shield_path, ships_wheel)
from backs.parts import banner, beaded, ground, number_field, ring, roped, text_ring, waves
from backs.struck import RADIUS

INNER = RADIUS - 4.5


def treasure_map(die):
    ground(die, 0.12)
    with die.inside_disc(INNER):
        svg_path(die.ctx, "M -52 4 C -60 -22 -38 -50 -8 -52 C 6 -53 10 -46 24 -46 C 46 -46 60 -26 54 -6 C "
                          "50 10 36 8 28 16 "
                          "C 20 24 -10 28 -24 20 C -36 14 -48 20 -52 4 Z")
        die.stroke(0.55, 7, keep=True)
        die.enamel((206, 172, 104), keep=True)
        die.stroke(1, 1.4)
    with die.at(x=-27, y=8, scale=0.95):
        palm(die)
    die.ctx.move_to(-10, 12)
    die.ctx.curve_to(4, 16, 4, -2, 14, -2)
    die.ctx.curve_to(26, -2, 12, -26, 30, -27)
    die.ctx.set_dash([4, 4.2])
    die.stroke(1, 2)
    die.ctx.set_dash([])
    for turn in (-1, 1):
        with die.at(x=38, y=-25, turn=turn * math.pi / 4):
            die.ctx.rectangle(-7, -1.7, 14, 3.4)
    die.enamel((168, 30, 36))
    number_field(die, 42, 66)


def mountains(die):
    ground(die)
    text_ring(die, 50)
    with die.inside_disc(49.3):
        die.ctx.rectangle(-60, -60, 120, 90)
        die.enamel((52, 116, 178))
        disc(die.ctx, 9, (0, -36))
        die.fill(1)
        svg_path(die.ctx, "M -60 26 L -30 -14 L -18 2 L 0 -26 L 18 2 L 30 -14 L 60 26 L 60 60 L -60 60 Z")
        die.stroke(0, 3, keep=True)
        die.fill(0.5)
        svg_path(die.ctx, "M 0 -26 L 11 -9.2 L 5 -13 L 2 -7 L -3 -12 L -6 -8 L -11 -9.2 Z")
        die.fill(1)
        mirrored_pair(die.ctx, lambda: svg_path(die.ctx, "M 30 -14 L 39 -2 L 33 -6 L 30 -1 L 27 -5 L 22 "
                                                         "-3.3 Z"))
        die.fill(1)
        for x, height in ((-44, 22), (44, 22), (-32, 18), (32, 18)):
            with die.at(x=x, y=28):
                pine(die, height, 0.95)
    ring(die, 50, 1.4)
    die.arc("MOUNTAIN TRAIL", 54, 12.5)
    number_field(die, 42, 66)


def pine_forest(die):
    roped(die)
    with die.inside_disc(60.5):
        disc(die.ctx, 12, (0, -38))
        die.fill(1)
        disc(die.ctx, 11, (5.5, -41))
        die.fill(0)
        for row, (base, height, level) in enumerate([(-4, 34, 0.35), (10, 38, 0.62), (26, 44, 1.0)]):
            for k in range(-4, 5):
                with die.at(x=(k + row % 2 / 2) * 21, y=base):
                    pine(die, height + (4 if k % 2 else 0), level)
        die.ctx.rectangle(-70, 25, 140, 50)
        die.fill(0)
    number_field(die, 41, 64)


def laurel_wreath(die):
    ground(die)
    laurel(die, 50, 10, 2.6)
    disc(die.ctx, 5, (0, 50))
    die.fill(0, keep=True)
    die.stroke(1, 1.6)
    star(die.ctx, 5, 11, 4.4, centre=(0, -24))
    die.fill(1)
    number_field(die, 2, 66, 22)


def shield(die):
    beaded(die)
    with die.at(y=-3):
        shield_path(die.ctx, 46)
        die.fill(1)
        shield_path(die.ctx, 43)
        die.enamel((148, 26, 40))
        shield_path(die.ctx, 43)
        with die.inside():
            polygon(die.ctx, [(-50, 46), (0, 16), (50, 46), (50, 60), (0, 30), (-50, 60)])
            die.fill(1)
    for x in (-24, 0, 24):
        star(die.ctx, 5, 8, 3.3, centre=(x, -26))
    die.fill(1)
    number_field(die, 0, 72, 22)


def nautical_star(die):
    roped(die)
    ring(die, 58, 0.8)
    for k in range(5):
        with die.at(y=-2, turn=k * 2 * math.pi / 5):
            polygon(die.ctx, [(0, -54), (0, 0), polar(22, -math.pi / 5)])
            die.fill(1)
            polygon(die.ctx, [(0, -54), (0, 0), polar(22, math.pi / 5)])
            die.enamel((28, 70, 132))
            polygon(die.ctx, [(0, -54), polar(22, math.pi / 5), (0, 0), polar(22, -math.pi / 5)])
            die.stroke(1, 1.2)
    number_field(die, 0, 70, 22)


def anchor_back(die):
    roped(die)
    with die.at(y=-18, scale=0.98):
        anchor(die)
    for side in (-1, 1):
        with die.at(x=side * 42, y=-14):
            star(die.ctx, 5, 8, 3.3)
            die.fill(1)
    number_field(die, 36, 72)


def ships_wheel_back(die):
    beaded(die)
    with die.at(y=-18, scale=1.12):
        ships_wheel(die)
    number_field(die, 40, 62)


def gear_wheel(die):
    ground(die)
    with die.at(turn=math.pi / 20):
        gear(die, 20, 63, 46, 9)
    ring(die, 43, 1.2)
    for x, y, teeth, radius in ((-13, -23, 10, 15), (13.5, 23, 10, 15)):
        with die.at(x=x, y=y, turn=0.2):
            gear(die, teeth, radius, 5.5, 4)
    for x, y, teeth, radius in ((14, -22.5, 8, 11), (-13.5, 22.5, 8, 11)):
        with die.at(x=x, y=y):
            gear(die, teeth, radius, 4, 3.5)
    number_field(die, 0, 72, 20)


def footprints(die):
    ground(die)
    text_ring(die, 50)
    with die.inside_disc(49):
        for x, y, left in ((-19, 12, True), (11, -4, False), (-12, -28, True)):
            with die.at(x=x, y=y, turn=0.2, scale=0.86):
                footprint(die, left)
    die.arc("ALWAYS ON THE MOVE", 54, 12.5, spacing=0.2)
    number_field(die, 43, 66)


def map_pin(die):
    ground(die)
    for radius, level in ((40, 0.35), (30, 0.55), (20, 0.75)):
        with die.at(y=14):
            die.ctx.save()
            die.ctx.scale(1, 0.4)
            disc(die.ctx, radius)
            die.ctx.restore()
            die.stroke(level, 2)
    with die.at(y=15):
        pin(die, 24)
    number_field(die, 42, 66)


def magnifying_glass(die):
    ground(die)
    waves(die, INNER, 6, 36, 2, 1, 0.5)
    with die.at(x=-8, y=-19):
        disc(die.ctx, 29)
        die.fill(0)
        magnifier(die)
        with die.at(y=0.5, scale=0.62):
            footprint(die)
    number_field(die, 43, 64)


def lighthouse_back(die):
    ground(die)
    with die.inside_disc(INNER), die.at(y=-14):
        lighthouse(die)
    with die.inside_disc(INNER):
        for row in range(6):
            for k in range(-72, 73):
                die.ctx.line_to(k, 20 + row * 8 - 2.5 * math.cos(k * math.pi / 9 + row * math.pi))
            die.ctx.line_to(73, 80)
            die.ctx.line_to(-73, 80)
            die.ctx.close_path()
            die.enamel((26, 78 + row * 8, 130 + row * 8), keep=True)
            die.stroke(0.9, 1)
    number_field(die, 42, 66)


def footer_band(die):
    ground(die)
    banner(die, 0, 24)
    die.arc("COLLECTOR'S", 53, 14)
    die.arc("TAG", 53, 14, bottom=True, spacing=2)
    for side in (-1, 1):
        for y in (-24, 24):
            star(die.ctx, 8, 12, 5, centre=(0, y))
    die.fill(1)


BACKS = [
    ("Treasure map", treasure_map),
    ("Mountains", mountains),
    ("Pine forest", pine_forest),
    ("Laurel wreath", laurel_wreath),
    ("Shield", shield),
    ("Nautical star", nautical_star),
    ("Anchor", anchor_back),
    ("Ship's wheel", ships_wheel_back),
    ("Gear wheel", gear_wheel),
    ("Footprints", footprints),
    ("Map pin", map_pin),
    ("Magnifying glass", magnifying_glass),
    ("Lighthouse", lighthouse_back),
    ("Band", footer_band),
]
