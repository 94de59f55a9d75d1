"""Backs of tags that are given away."""

import math

from kit.paths import around, disc, mirrored_pair, polar, polygon, rounded_box, star, svg_path

from backs.emblems import flower, footprint, heart_path, laurel, ribbon
from backs.parts import beaded, ground, number_field, ring, roped, sunburst, text_ring
from backs.struck import RADIUS, SERIF

RED = (190, 30, 46)
ROSE = (222, 84, 128)
GOLD = (240, 186, 44)
BLUE = (40, 96, 176)
SKY = (92, 164, 220)
GREEN = (38, 134, 70)
VIOLET = (112, 62, 156)
INNER = RADIUS - 4.5


def found_me(die):
    ground(die)
    text_ring(die, 49)
    die.arc("FOUND ME?", 53, 14)
    die.arc("MOVE ME ON", 53, 13, bottom=True)
    for x, y, left in ((-8, -26, True), (8, -31, False)):
        with die.at(x=x, y=y, scale=0.64):
            footprint(die, left)
    number_field(die, 2, 72, 22)
    for k in range(3):
        svg_path(die.ctx, f"M {-17 + k * 12} 24 l 5 0 l 6 6.5 l -6 6.5 l -5 0 l 6 -6.5 Z")
    die.fill(1)


def thank_you(die):
    beaded(die)
    for side in (-1, 1):
        with die.at(mirrored=side < 0):
            svg_path(die.ctx, "M 15 -45 C 30 -48 43 -42 51 -30")
            die.stroke(1, 1.6)
            for x, y, turn in ((24, -46, 0.6), (33, -44, 2.2), (38, -42, 0.9), (45, -37, 2.6), (50, -31,
                                                                                                2.2)):
                with die.at(x=x, y=y, turn=turn):
                    svg_path(die.ctx, "M 0 0 C 3.5 -3 3.5 -7 0 -10 C -3.5 -7 -3.5 -3 0 0 Z")
                    die.enamel(GREEN)
    with die.at(y=-43):
        flower(die, 6, 14, ROSE)
    die.line("THANK", -9, 23, family=SERIF, spacing=1)
    die.line("YOU", 11, 23, family=SERIF, spacing=1)
    number_field(die, 36, 72)


def candle(die, x, rgb):
    rounded_box(die.ctx, x - 2.5, -40, 5, 17, 1)
    die.fill(1)
    for y in (-37, -32, -27):
        polygon(die.ctx, [(x - 2.5, y + 1), (x + 2.5, y - 1.5), (x + 2.5, y + 0.5), (x - 2.5, y + 3)])
    die.enamel(rgb)
    svg_path(die.ctx, f"M {x} -53 C {x + 5} -48 {x + 4} -42 {x} -41.5 C {x - 4} -42 {x - 5} -48 {x} -53 Z")
    die.enamel(GOLD, keep=True)
    die.stroke(1, 0.8)


def birthday(die):
    ground(die)
    for x, rgb in ((-18, BLUE), (0, RED), (18, GREEN)):
        candle(die, x, rgb)
    rounded_box(die.ctx, -30, -23, 60, 13, 3)
    die.fill(1)
    svg_path(die.ctx, "M -30 -20 C -30 -24 -28 -23.5 -26 -23.5 L 26 -23.5 C 28 -23.5 30 -24 30 -20 L 30 -17 "
                      "C 27 -12 23 -12 20 -16 C 17 -11 13 -11 10 -16 C 7 -11 3 -11 0 -16 C -3 -11 -7 -11 "
                      "-10 -16 "
                      "C -13 -11 -17 -11 -20 -16 C -23 -12 -27 -12 -30 -17 Z")
    die.enamel(ROSE)
    rounded_box(die.ctx, -36, -10, 72, 3.5, 1.5)
    die.fill(1)
    die.line("HAPPY", 10, 15, spacing=1)
    die.line("BIRTHDAY", 25, 15, spacing=1)
    number_field(die, 44, 60)


def for_you(die):
    roped(die)
    ctx = die.ctx
    ctx.rectangle(-27, -14, 54, 30)
    die.enamel(RED, keep=True)
    die.stroke(1, 1.8)
    ctx.rectangle(-31, -24, 62, 11)
    die.enamel(RED, keep=True)
    die.stroke(1, 1.8)
    ctx.rectangle(-5, -24, 10, 40)
    die.fill(1)
    mirrored_pair(ctx, lambda: svg_path(ctx, "M 0 -25 C 6 -42 24 -46 26 -36 C 27 -29 12 -25 0 -25 Z"))
    die.fill(1)
    mirrored_pair(ctx, lambda: svg_path(ctx, "M 7 -28 C 11 -36 20 -40 21.5 -35.5 C 22 -32 14 -29 7 -28 Z"))
    die.enamel(GOLD)
    die.line("FOR YOU", -46, 12)
    number_field(die, 38, 68)


def friends(die):
    ground(die)
    text_ring(die, 49)
    die.arc("BEST FRIENDS", 53, 13.5)
    for x, rgb, turn in ((-13, RED, -0.16), (13, BLUE, 0.16)):
        with die.at(x=x, y=-15, turn=turn):
            heart_path(die.ctx, 24)
            die.stroke(0, 7)
            heart_path(die.ctx, 24)
            die.fill(1)
            heart_path(die.ctx, 20)
            die.enamel(rgb)
    number_field(die, 34, 72)
    for side in (-1, 1):
        heart_path_at(die, polar(58, side * 2.1), 5)


def heart_path_at(die, place, size):
    with die.at(x=place[0], y=place[1]):
        heart_path(die.ctx, size)
        die.fill(1)


def good_luck(die):
    beaded(die)
    with die.at(y=-20):
        for k in range(4):
            with die.at(turn=k * math.pi / 2 + math.pi / 4):
                with die.at(y=-16):
                    heart_path(die.ctx, 14.5)
                    die.enamel(GREEN, keep=True)
                    die.stroke(1, 1.8)
                    svg_path(die.ctx, "M 0 12 L 0 -3")
                    die.stroke(0.9, 1)
        svg_path(die.ctx, "M 0 4 C 0.5 16 3 25 9 32")
        die.stroke(0, 5, keep=True)
        die.stroke(1, 2.4)
    die.line("GOOD LUCK", 29, 14)
    number_field(die, 46, 58, 18)


def with_love(die):
    ground(die)
    sunburst(die, INNER, 40, 0.55)
    with die.at(y=-2):
        heart_path(die.ctx, 59)
        die.fill(0)
        heart_path(die.ctx, 55)
        die.fill(1)
        heart_path(die.ctx, 52)
        die.enamel(RED)
    die.line("WITH LOVE", -18, 13)
    number_field(die, 4, 66)


def well_done(die):
    ground(die)
    laurel(die, 53, 9, 2.2)
    ctx = die.ctx
    svg_path(ctx, "M -15 -54 L 15 -54 C 15 -36 10 -28 0 -26 C -10 -28 -15 -36 -15 -54 Z")
    die.enamel(GOLD, keep=True)
    die.stroke(1, 1.6)
    mirrored_pair(ctx, lambda: svg_path(ctx, "M 15 -50 C 25 -52 25 -38 12 -35"))
    die.stroke(1, 2)
    svg_path(ctx, "M -2.5 -26 L 2.5 -26 L 3.5 -20 L 9 -18 L 9 -15 L -9 -15 L -9 -18 L -3.5 -20 Z")
    die.fill(1)
    star(ctx, 5, 7, 2.9, centre=(0, -43))
    die.fill(1)
    die.line("WELL DONE", 2, 13)
    number_field(die, 22, 62)


def congratulations(die):
    """Streamers and stars over a ribbon."""
    ground(die)
    for k, rgb in enumerate((RED, GOLD, BLUE, GREEN, VIOLET, ROSE, SKY)):
        angle = (k - 3) * 0.36
        with die.at(y=2, turn=angle):
            svg_path(die.ctx, "M -1.2 -18 C -7 -26 5 -32 -1.2 -40 L 1.6 -41 C 8 -32 -4 -26 1.6 -18 Z")
            die.enamel(rgb, keep=True)
            die.stroke(1, 0.7)
            star(die.ctx, 5, 6, 2.5, centre=(0, -50))
            die.fill(1)
    ribbon(die, 2, 104, 22)
    die.line("CONGRATS", 8, 16, 0.05, spacing=0.6)
    number_field(die, 36, 72)


def new_year(die):
    ground(die)
    for x, y, size, rgb in ((-24, -26, 24, GOLD), (26, -32, 20, SKY), (4, -2, 15, ROSE)):
        with die.at(x=x, y=y):
            for k in range(16):
                reach = size if k % 2 == 0 else size * 0.66
                with die.at(turn=k * math.pi / 8):
                    tip = -reach - 2.4
                    svg_path(die.ctx, f"M -0.4 {-size * 0.22} L -1.5 {-reach} C -1 {tip} 1 {tip} 1.5 "
                                      f"{-reach} "
                                      f"L 0.4 {-size * 0.22} Z")
                    die.enamel(rgb, keep=True)
                    die.stroke(1, 0.35)
            disc(die.ctx, 1.8)
            die.fill(1)
    die.line("HAPPY NEW YEAR", 27, 12.5)
    number_field(die, 45, 58)


def get_well(die):
    roped(die)
    with die.at(y=-24):
        around(die.ctx, 12, lambda: svg_path(die.ctx, "M -4.4 -20 L 0 -33 L 4.4 -20 Z"))
        die.enamel(GOLD, keep=True)
        die.stroke(1, 1)
        disc(die.ctx, 18)
        die.enamel(GOLD, keep=True)
        die.stroke(1, 1.8)
        for side in (-1, 1):
            disc(die.ctx, 2.2, (side * 6, -4))
        die.fill(1)
        die.ctx.new_sub_path()
        die.ctx.arc(0, 0, 10, 0.45, math.pi - 0.45)
        die.stroke(1, 2)
    die.line("GET WELL", 25, 14)
    number_field(die, 42, 60)


def welcome(die):
    ground(die)
    text_ring(die, 49)
    die.arc("WELCOME HOME", 53, 13)
    ctx = die.ctx
    ctx.rectangle(14, -36, 8, 14)
    die.fill(1)
    ctx.rectangle(-26, -12, 52, 34)
    die.enamel((214, 176, 120), keep=True)
    die.stroke(1, 1.8)
    svg_path(ctx, "M -36 -8 L 0 -40 L 36 -8 L 32 -4.5 L 0 -32 L -32 -4.5 Z")
    die.fill(1)
    svg_path(ctx, "M -26 -9.5 L 0 -32 L 26 -9.5 Z")
    die.enamel(RED)
    rounded_box(ctx, -6.5, 0, 13, 22, 1)
    die.enamel(GREEN, keep=True)
    die.stroke(1, 1.4)
    for side in (-1, 1):
        rounded_box(ctx, side * 16 - 5, 0, 10, 11, 0.5)
        die.enamel(SKY, keep=True)
        die.stroke(1, 1.3)
        ctx.move_to(side * 16, 0)
        ctx.line_to(side * 16, 11)
        die.stroke(1, 1)
    number_field(die, 36, 72)


def wedding(die):
    beaded(die)
    for x in (-14, 14):
        disc(die.ctx, 20, (x, -12))
        die.stroke(0, 8)
        disc(die.ctx, 20, (x, -12))
        die.stroke(1, 5.5)
        disc(die.ctx, 20, (x, -12))
        die.stroke(0.25, 1.2)
    die.ctx.new_sub_path()
    die.ctx.arc(-14, -12, 20, -0.95, -0.5)
    die.stroke(0, 8)
    die.ctx.new_sub_path()
    die.ctx.arc(-14, -12, 20, -1.15, -0.3)
    die.stroke(1, 5.5)
    die.ctx.new_sub_path()
    die.ctx.arc(-14, -12, 20, -1.15, -0.3)
    die.stroke(0.25, 1.2)
    heart_path_at(die, (0, -46), 10)
    die.line("JUST MARRIED", 27, 12.5)
    number_field(die, 44, 60)


def safe_trip(die):
    ground(die)
    with die.inside_disc(INNER):
        die.ctx.rectangle(-RADIUS, -RADIUS, 2 * RADIUS, 84)
        die.enamel(SKY)
        with die.at(x=2, y=-5):
            sailing_boat(die)
        for row in range(3):
            for k in range(-72, 73):
                die.ctx.line_to(k, 8 + row * 7 - 2.5 * math.cos(k * math.pi / 9 + row * math.pi))
            die.ctx.line_to(73, 80)
            die.ctx.line_to(-73, 80)
            die.ctx.close_path()
            die.enamel((30, 84 + row * 10, 150 + row * 8), keep=True)
            die.stroke(0.9, 1)
        die.ctx.rectangle(-RADIUS, 23, 2 * RADIUS, 60)
        die.fill(0, keep=True)
        die.stroke(1, 1)
    die.line("SAFE TRIP", 36, 12.5)
    number_field(die, 49, 54, 16)


def sailing_boat(die):
    """About 70 wide and high."""
    main, jib = "M -3 -54 C 9 -40 15 -22 16 -3 L -3 -3 Z", "M -7 -46 C -20 -34 -28 -20 -30 -3 L -7 -3 Z"
    for sail, rgb in ((main, None), (jib, RED)):
        svg_path(die.ctx, sail)
        if rgb:
            die.enamel(rgb, keep=True)
        else:
            die.fill(1, keep=True)
        die.stroke(1, 1.4)
    svg_path(die.ctx, "M -36 1 L 34 1 C 31 10 26 15 18 19 L -22 19 C -30 14 -34 8 -36 1 Z")
    die.fill(1)


def snow_arm(die):
    """One of the six arms of a snow crystal."""
    svg_path(die.ctx, "M 0 0 L 0 -36 M 0 -12 L -6 -18 M 0 -12 L 6 -18 M 0 -20 L -8 -28 M 0 -20 L 8 -28 M 0 "
                      "-29 L -5 -34 "
                      "M 0 -29 L 5 -34")


def season(die):
    ground(die)
    text_ring(die, 50)
    disc(die.ctx, 49)
    die.enamel(BLUE)
    ring(die, 50, 1.4)
    with die.at(y=-9):
        around(die.ctx, 6, lambda: snow_arm(die))
        die.stroke(1, 2.2)
    die.arc("SEASON'S GREETINGS", 54, 12.5, spacing=0)
    number_field(die, 43, 64)


def smile(die):
    ground(die)
    text_ring(die, 50)
    with die.at(y=-9):
        disc(die.ctx, 34)
        die.enamel(GOLD, keep=True)
        die.stroke(1, 2)
        for side in (-1, 1):
            with die.at(x=side * 12, y=-10):
                svg_path(die.ctx, "M 0 -7.5 C 5 -7.5 5 7.5 0 7.5 C -5 7.5 -5 -7.5 0 -7.5 Z")
                die.fill(0)
        svg_path(die.ctx, "M -22 4 C -18 26 18 26 22 4 C 12 11 -12 11 -22 4 Z")
        die.fill(0)
    die.arc("KEEP SMILING", 54, 12.5)
    number_field(die, 43, 64)


ENGLISH = [
    ("Found me?", found_me),
    ("Thank you", thank_you),
    ("Happy birthday", birthday),
    ("For you", for_you),
    ("Best friends", friends),
    ("Good luck", good_luck),
    ("With love", with_love),
    ("Well done", well_done),
    ("Congratulations", congratulations),
    ("Happy New Year", new_year),
    ("Get well", get_well),
    ("Welcome home", welcome),
    ("Just married", wedding),
    ("Safe trip", safe_trip),
    ("Season's greetings", season),
    ("Keep smiling", smile),
]

# What stands on the Dutch ones: for each text the other and its size.
DUTCH_WORDS = {
    "FOUND ME?": ("GEVONDEN?", 14), "MOVE ME ON": ("NEEM ME MEE", 12.5), "THANK": ("DANK", 23), "YOU": ("JE WEL", 23),
    "HAPPY": ("VAN HARTE", 12.5), "BIRTHDAY": ("GEFELICITEERD", 12), "FOR YOU": ("VOOR JOU", 11.5),
    "BEST FRIENDS": ("BESTE VRIENDEN", 12), "GOOD LUCK": ("VEEL GELUK", 13), "WITH LOVE": ("MET LIEFDE", 12),
    "WELL DONE": ("GOED GEDAAN", 11), "CONGRATS": ("PROFICIAT", 15.5), "HAPPY NEW YEAR": ("GELUKKIG NIEUWJAAR", 10),
    "GET WELL": ("BETERSCHAP", 13), "WELCOME HOME": ("WELKOM THUIS", 13), "JUST MARRIED": ("PAS GETROUWD", 12),
    "SAFE TRIP": ("GOEDE REIS", 12), "SEASON'S GREETINGS": ("PRETTIGE FEESTDAGEN", 12),
    "KEEP SMILING": ("BLIJF LACHEN", 12.5),
}
DUTCH_NAMES = ["Gevonden?", "Dank je wel", "Van harte gefeliciteerd", "Voor jou", "Beste vrienden", "Veel geluk", "Met liefde",
               "Goed gedaan", "Proficiat", "Gelukkig nieuwjaar", "Beterschap", "Welkom thuis", "Pas getrouwd",
               "Goede reis", "Prettige feestdagen", "Blijf lachen"]

# Each English one with the Dutch one beside it.
BACKS = [
    back
    for (name, draw), dutch in zip(ENGLISH, DUTCH_NAMES, strict=True)
    for back in ((name, draw, None), (dutch, draw, DUTCH_WORDS))
]
