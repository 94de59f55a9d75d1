"""The pictures of the font of trail marks: painted marks, node numbers, what stands along a path, and way-signs."""

from fonts.shapes import arc, arrow, bar, box, cut, disc, hole, ink, moved, path, ring, turned


def bars(*heights, half=250, thick=110):
    shape = []
    for y in heights:
        shape += ink(box(500 - half, y - thick / 2, 500 + half, y + thick / 2))
    return shape


def bend(side):
    """An arrow that turns off to one side, beneath a mark."""
    return ink([(500 - side * 250, 60), (500 - side * 250, 180), (500 + side * 130, 180), (500 + side * 130, 270),
                (500 + side * 310, 120), (500 + side * 130, -30), (500 + side * 130, 60)])


def crossed(width=120, reach=270):
    return (bar((500 - reach, 400 - reach), (500 + reach, 400 + reach), width) +
            bar((500 - reach, 400 + reach), (500 + reach, 400 - reach), width))


def diamond(reach):
    return [(500, 400 + reach), (500 + reach, 400), (500, 400 - reach), (500 - reach, 400)]


def plate(points, width=60):
    """An outline of even width, from the outer corners and the same drawn in towards the centre."""
    share = 1 - width / 330
    return ink(points) + hole([(500 + (x - 500) * share, 400 + (y - 400) * share) for x, y in points])


SQUARE = box(150, 50, 850, 750)
TRIANGLE = [(500, 790), (880, 90), (120, 90)]
POINTED = [(110, 180), (110, 620), (680, 620), (900, 400), (680, 180)]


def solid(outline, shape):
    """A picture left open in a solid plate."""
    return ink(outline) + cut(shape)


def mirrored(shape):
    return [[(1000 - x, y) for x, y in contour][::-1] for contour in shape]


MARKS = [
    bars(500, 300), bars(540, 380) + bend(-1), bars(540, 380) + bend(1), crossed(), bars(400), bars(480) + bend(-1),
    bars(480) + bend(1), crossed(70), bars(600, 400, 200), ink(diamond(330)), ink(diamond(330)) + hole(diamond(220)),
    ink([(500, 730), (830, 400), (500, 70)]) + ink(diamond(330)) + hole([(500, 640), (500, 160), (260, 400)]),
    ink(disc(500, 400, 300)), ring(500, 400, 300, 110), ring(500, 400, 330, 70) + ink(disc(500, 400, 150)),
]

SIGNS = [
    ink(TRIANGLE), ink([(x, 880 - y) for x, y in TRIANGLE]), turned(arrow(), -90), bars(500, 300, thick=70, half=330),
    turned(arrow(), 90), ring(500, 400, 340, 60) + moved(arrow(), scale=0.7), ring(500, 400, 340, 60)
    + ring(500, 400, 200, 60) + ink(disc(500, 400, 70)),
]


def tent():
    return ink([(500, 720), (900, 90), (100, 90)]) + hole([(500, 520), (620, 90 + 60), (380, 90 + 60)])


def house():
    return (ink([(500, 760), (910, 420), (800, 420), (800, 60), (200, 60), (200, 420), (90, 420)])
            + hole(box(420, 60 + 1, 580, 300)))


def peaks():
    return (ink([(360, 720), (560, 400), (640, 520), (920, 80), (80, 80)])
            + hole([(360, 600), (430, 480), (385, 510), (350, 460), (300, 500)]))


def fir():
    return (ink([(500, 800), (690, 560), (590, 560), (760, 350), (640, 350), (850, 130), (560, 130), (560, 20), (440, 20),
                 (440, 130), (150, 130), (360, 350), (240, 350), (410, 560), (310, 560)]))


def tree():
    return ink(arc(500, 520, 270, -155, 155) + [(565, 285), (565, 40), (435, 40), (435, 285)])


def waves(*heights):
    shape = []
    for y in heights:
        line = []
        for k in range(4):
            line += [(110 + 195 * k + 97 * (1 + dx), y + dy) for dx, dy in ((-1, -35), (-0.5, 0), (0, 35), (0.5, 0))]
        line.append((890, y - 35))
        shape += path(line, 62)
    return shape


def bridge():
    return (ink([(80, 430), (80, 540), (500, 620), (920, 540), (920, 430), (900, 160), (800, 160)]
                + arc(500, 160, 300, 90, -90) + [(100, 160)]))


def gate():
    shape = ink(box(110, 60, 200, 720)) + ink(box(800, 60, 890, 720))
    for y in (180, 360, 540):
        shape += ink(box(200, y, 800, y + 70))
    return shape + bar((215, 215), (785, 575), 60)


def fire():
    flame = [(500, 800), (640, 620), (700, 450), (760, 540), (800, 380), (740, 230), (620, 150), (380, 150), (260, 230),
             (210, 390), (270, 530), (340, 470), (400, 640)]
    inner = [(500, 480), (580, 340), (560, 230), (440, 230), (420, 340)]
    return (ink(flame) + hole(inner) + bar((180, 20), (820, 100), 70) + bar((180, 100), (820, 20), 70))


def table():
    return (ink(box(200, 500, 800, 590)) + ink(box(90, 290, 910, 365))
            + bar((360, 500), (220, 60), 75) + bar((640, 500), (780, 60), 75))


def bench():
    return (ink(box(120, 560, 880, 640)) + ink(box(120, 430, 880, 510)) + ink(box(100, 270, 900, 350))
            + ink(box(190, 60, 270, 270)) + ink(box(730, 60, 810, 270)))


def signpost():
    return (ink(box(460, 20, 540, 790)) + ink([(540, 720), (830, 720), (910, 640), (830, 560), (540, 560)])
            + ink([(460, 510), (170, 510), (90, 430), (170, 350), (460, 350)]))


def viewpoint():
    shape = ink(disc(500, 400, 110))
    for k in range(12):
        shape += turned(ink([(500 - 40, 560), (500, 760), (500 + 40, 560)]), k * 30)
    return shape


def boat():
    return (ink([(80, 300), (920, 300), (780, 140), (220, 140)]) + ink([(480, 360), (480, 790), (180, 360)])
            + ink([(540, 360), (540, 720), (800, 360)]) + moved(waves(70), up=-20))


def swimmer():
    return (ink(disc(690, 520, 95)) + path([(180, 430), (420, 600), (560, 420), (640, 370)], 95) + waves(270, 130))


def letter_p():
    return solid(SQUARE, ink([(380, 180), (380, 640), (540, 640), *arc(540, 510, 130, 0, 180), (480, 380), (480, 180)])
                 + hole([(480, 460), (480, 560), *arc(540, 510, 50, 0, 180)]))


def letter_i():
    return solid(disc(500, 400, 360), ink(disc(500, 590, 65)) + ink(box(445, 160, 555, 480)))


def letter_h():
    return solid(SQUARE, ink([(330, 170), (330, 630), (430, 630), (430, 450), (570, 450), (570, 630), (670, 630), (670, 170),
                              (570, 170), (570, 350), (430, 350), (430, 170)]))


def tower():
    return (ink([(250, 60), (250, 560), (200, 560), (200, 760), (300, 760), (300, 680), (400, 680), (400, 760), (600, 760),
                 (600, 680), (700, 680), (700, 760), (800, 760), (800, 560), (750, 560), (750, 60)])
            + hole([(430, 61), (430, 250), *arc(500, 250, 70, -90, 90), (570, 61)]))


def mill():
    shape = ink([(420, 440), (580, 440), (660, 40), (340, 40)]) + hole(box(455, 41, 545, 190))
    for k in range(4):
        shape += turned(ink(box(515, 490, 600, 800)) + hole(box(535, 640, 580, 780)) + ink(box(485, 490, 515, 800)),
                        45 + 90 * k, (500, 460))
    return shape


def lighthouse():
    return (ink([(390, 40), (440, 560), (560, 560), (610, 40)]) + ink(box(430, 600, 570, 690))
            + ink([(500, 800), (600, 710), (400, 710)]) + hole([(418, 330), (410, 240), (590, 240), (582, 330)])
            + ink([(610, 680), (920, 760), (920, 540), (610, 620)]) + ink([(390, 680), (80, 760), (80, 540), (390, 620)]))


def cave():
    return ink([(60, 60), (180, 520), (400, 740), (640, 690), (860, 480), (940, 60)]) + hole(
        [(330, 61), (350, 300), (450, 430), (560, 420), (660, 280), (690, 61)])


def steps():
    return ink([(100, 60), (100, 210), (290, 210), (290, 360), (480, 360), (480, 510), (670, 510), (670, 660), (900, 660),
                (900, 60)])


def fence():
    shape = ink(box(80, 480, 920, 550)) + ink(box(80, 230, 920, 300))
    for x in (160, 330, 500, 670, 840):
        shape += ink([(x - 55, 60), (x - 55, 640), (x, 730), (x + 55, 640), (x + 55, 60)])
    return shape


def star():
    from math import cos, radians, sin
    return ink([(500 + (370 if k % 2 == 0 else 155) * sin(radians(36 * k)),
                 400 + (370 if k % 2 == 0 else 155) * cos(radians(36 * k))) for k in range(10)])


def reeds():
    shape = waves(90)
    for x, top in ((260, 620), (420, 760), (580, 680), (740, 560)):
        shape += ink(box(x - 16, 160, x + 16, top)) + ink(box(x - 42, top - 210, x + 42, top - 30))
    return shape


ALONG = [tent, house, peaks, fir, tree, lambda: waves(600, 400, 200), bridge, gate, fire, table, bench, signpost, viewpoint,
         boat, swimmer, letter_p, letter_i, letter_h, tower, mill, lighthouse, cave, steps, fence, star, reeds]


def cup():
    return (ink([(190, 620), (700, 620), (660, 240), (600, 180), (290, 180), (230, 240)])
            + ink(box(140, 80, 750, 140)) + path(arc(700, 440, 130, -10, 190), 60))


def knife_and_fork():
    fork = ink([(290, 40), (290, 420), (220, 500), (220, 760), (265, 760), (265, 560), (300, 560), (300, 760), (345, 760),
                (345, 560), (380, 560), (380, 760), (425, 760), (425, 500), (355, 420), (355, 40)])
    return fork + ink([(600, 40), (600, 760), (700, 700), (740, 560), (720, 380), (665, 340), (665, 40)])


def bed():
    return (ink(box(80, 80, 150, 640)) + ink(box(150, 220, 920, 330)) + ink(box(850, 80, 920, 220))
            + ink(disc(260, 440, 80)) + ink([(370, 360), (370, 500), (760, 500), (850, 430), (850, 360)]))


def tap():
    return (ink([(160, 480), (160, 600), (560, 600), *arc(560, 420, 180, 0, 90), (740, 320), (620, 320), (620, 420),
                 (560, 480)]) + ink(box(330, 600, 400, 690)) + ink(box(240, 690, 490, 750))
            + ink([(680, 270), (740, 150), *arc(680, 140, 60, 90, 270), (620, 150)]))


def bicycle():
    return (ring(250, 280, 190, 50) + ring(750, 280, 190, 50) + path([(250, 280), (400, 560), (660, 560), (480, 280)], 48)
            + bar((250, 280), (490, 280), 48) + bar((750, 280), (640, 660), 48) + bar((600, 660), (720, 660), 48)
            + ink(box(330, 580, 470, 630)))


def horseshoe():
    return (path([(230, 90), (250, 260), *arc(500, 440, 270, -110, 110), (750, 260), (770, 90)], 130))


def paddle():
    return (bar((210, 110), (790, 690), 60) + ink([(90, 80), (190, 260), (330, 230), (360, 90), (260, 20)])
            + ink([(910, 720), (810, 540), (670, 570), (640, 710), (740, 780)]))


def skis():
    return (bar((230, 60), (700, 760), 70) + bar((770, 60), (300, 760), 70) + ring(330, 180, 60, 30)
            + ring(670, 180, 60, 30))


def boot():
    return ink([(260, 780), (560, 780), (570, 440), (860, 340), (900, 200), (900, 150), (250, 150), (270, 440)]) + ink(
        [(250, 110), (900, 110), (900, 40), (700, 40), (680, 70), (480, 70), (460, 40), (250, 40)])


def foot(x, y, side):
    return moved(ink([(500 + side * px, py) for px, py in ((-60, 420), (-110, 560), (-60, 720), (40, 740), (100, 620),
                                                            (70, 420))])
                 + ink([(500 + side * px, py) for px, py in ((-50, 370), (70, 370), (60, 240), (-30, 240))]), x, y, 0.9)


def paw():
    shape = ink([(500, 420), (640, 330), (720, 190), (650, 100), (500, 140), (350, 100), (280, 190), (360, 330)])
    for x, y in ((250, 430), (400, 600), (600, 600), (750, 430)):
        shape += ink([(x + 0.75 * (px - x), py) for px, py in disc(x, y, 105)])
    return shape


def no_entry(shape):
    """Something that isn't allowed here."""
    return ring(500, 400, 380, 60) + moved(shape, scale=0.62) + bar((250, 650), (750, 150), 60)


def flag():
    return ink(box(200, 20, 270, 790)) + ink([(270, 780), (860, 620), (270, 440)])


# On the small letters: eight ways in a square, eight in a round plate, then signs along the way.
WAYS = [solid(SQUARE, moved(turned(arrow(), 45 * k), scale=0.85)) for k in range(8)]
ROUND_WAYS = [solid(disc(500, 400, 380), moved(turned(arrow(), 45 * k), scale=0.85)) for k in range(8)]
SERVICES = [cup(), knife_and_fork(), bed(), tap(), bicycle(), horseshoe(), paddle(), skis(), boot(), paw()]
LAST = [plate(POINTED), mirrored(plate(POINTED)), foot(-150, -60, 1) + foot(150, 60, -1), flag()]


def pictures():
    """94 shapes in the order of the keys; the ten figures come as None, for the font to set in rings."""
    return [*MARKS, *[None] * 10, *SIGNS, *[draw() for draw in ALONG], no_entry(fire()), no_entry(tent()),
            no_entry(bicycle()), no_entry(horseshoe()), plate(TRIANGLE, 50), plate(SQUARE, 50), *WAYS, *ROUND_WAYS,
            *SERVICES, *LAST]
