"""The design that the manuals follow on its road: a lighthouse, drawn with the program's own tools."""

import math

from help import player

NAME = "Harbour Light"
CENTRE = 250
FREE_HAND, LINE, FILL, GET_PMS = 0, 1, 5, 9
RECTANGLE, ELLIPSE, TRIANGLE, OPEN_STAR = 1, 3, 4, 12
HORIZON = 336
RING = 214  # radius within which the picture lies

# What is filled: the PMS code, and a place in each area. In this order the colours stand in the side panel.
COLOURS = [
    ("289", [(250, 24)]),
    ("2945", [(200, 70), (100, 250), (400, 250)]),
    ("1205", [(120, 120), (380, 120), (250, 132)]),
    ("116", [(140, 205), (365, 215), (250, 48)]),
    ("186", [(250, 110), (250, 180), (250, 250), (250, 153)]),
    ("7530", [(190, 330)]),
    ("3005", [(90, 350)]),
    ("301", [(250, 395)]),
    ("2955", [(250, 421)]),
    ("1525", [(392, 347)]),
]
NOTES = ["Harbour Light, 40 mm, soft enamel.", "Ring and sky in two blues,", "the rest as in the list.", "100 pieces"]


def drag(tool, points):
    """One stroke: press at the first point, move along the others, release at the last."""
    (x, y), (end_x, end_y) = points[0], points[-1]
    yield f"click Main.Knop({tool})"
    yield f"press Main.Pic 1 {x} {y}"
    for x, y in points[1:]:
        yield f"move Main.Pic 1 {x} {y}"
    yield f"release Main.Pic 1 {end_x} {end_y}"


def shape(number, left, top, right, bottom):
    yield "click Main.Knop(2)"
    yield f"click Main.Vormen({number})"
    yield f"drag Main.Pic {left} {top} {right} {bottom}"


def chord(y):
    """Where the row meets the inner ring: left, right."""
    half = math.sqrt(RING**2 - (y - CENTRE) ** 2)
    return round(CENTRE - half), round(CENTRE + half)


def wave(y, left, right, height):
    crests = [(x, round(y - height * math.sin((x - CENTRE) / 16))) for x in range(left + 4, right - 3, 4)]
    return [(left - 1, y), *crests, (right + 1, y)]


def outlines():
    yield "set Main.HScroll1.Value 3"
    yield from shape(ELLIPSE, 14, 14, 486, 486)
    yield from shape(ELLIPSE, CENTRE - RING, CENTRE - RING, CENTRE + RING, CENTRE + RING)
    yield "set Main.HScroll1.Value 2"
    # The rock, and the sea behind rock and boat.
    left, right = chord(HORIZON)
    yield from drag(FREE_HAND, [(138, 352), (150, 334), (172, 326), (186, 314), (212, 308), (288, 308),
                                (306, 318), (322, 322), (334, 336), (350, 352)])
    yield from drag(LINE, [(left, HORIZON), (149, HORIZON)])
    yield from drag(LINE, [(334, HORIZON), (354, HORIZON)])
    yield from drag(LINE, [(430, HORIZON), (right, HORIZON)])
    yield from drag(FREE_HAND, [(138, 352)] + wave(356, 142, 346, 3) + [(350, 352)])
    for y in (378, 412):
        yield from drag(FREE_HAND, wave(y, *chord(y), 6))
    # The tower with its stripes, the gallery, the lamp and the roof.
    yield from drag(FREE_HAND, [(212, 308), (230, 160), (270, 160), (288, 308)])
    for y in (197, 234, 271):
        half = 20 + (y - 160) * 18 / 148
        yield from drag(LINE, [(round(CENTRE - half), y), (round(CENTRE + half), y)])
    yield from shape(RECTANGLE, 220, 146, 280, 160)
    yield from shape(RECTANGLE, 236, 120, 264, 146)
    yield from shape(TRIANGLE, 226, 88, 274, 120)
    # Its light, on both sides, from the corners of roof and gallery up to the ring.
    for side in (-1, 1):
        for reach, y_corner, y in ((24, 120, 96), (30, 146, 168)):
            edge = chord(y)[0 if side < 0 else 1]
            yield from drag(LINE, [(CENTRE + side * reach, y_corner), (edge, y)])
    for left, top, size in ((120, 185, 40), (348, 198, 34), (238, 40, 24)):
        yield from shape(OPEN_STAR, left, top, left + size, top + size)
    # The boat.
    yield from drag(FREE_HAND, [(352, HORIZON), (432, HORIZON), (420, 360), (364, 360), (352, HORIZON)])
    yield from drag(LINE, [(390, HORIZON), (390, 262)])
    yield from drag(FREE_HAND, [(395, 268), (395, 328), (428, 328), (395, 268)])
    yield from drag(FREE_HAND, [(385, 280), (385, 328), (358, 328), (385, 280)])


def pick_colour(code):
    yield "press Main.ColorLabel 1 5 5"
    yield 'set PMSForm.Combo1.Text ""'
    yield f'type PMSForm.Combo1 "{code}"'
    yield "click PMSForm.OkKnop"


def press(x, y):
    yield f"press Main.Pic 1 {x} {y}"
    yield f"release Main.Pic 1 {x} {y}"


def colours():
    for code, places in COLOURS:
        yield from pick_colour(code)
        yield f"click Main.Knop({FILL})"
        for place in places:
            yield from press(*place)


def panel():
    """Each colour with its code in a row of the side panel."""
    yield f"click Main.Knop({GET_PMS})"
    for row, (_, places) in enumerate(COLOURS):
        yield from press(*places[0])
        yield f"press Main.InfoPic 1 30 {70 + 25 * row}"
        yield f"release Main.InfoPic 1 30 {70 + 25 * row}"
    yield "click Main.Knop(0)"


def save():
    yield "click Main.BewerkenInformation"
    yield 'set TekstForm.Text1.Text "' + "\\r\\n".join(NOTES) + '"'
    yield "click TekstForm.OkKnop"
    yield "click Main.FileSave"
    yield f'type SaveForm.Text1 "{NAME}"'
    yield "click SaveForm.SaveKnop"


def make(application_folder):
    """Draws the design and stores it in the folder. Gives its pictures by the stage of the work."""
    script = ["click Main.HelpTaal(2)", *outlines(), "save Main.Pic outlines.bmp", *colours(),
              "save Main.Pic coloured.bmp", *panel(), "save Main.InfoPic panel.bmp", *save()]
    return player.play(application_folder, script)[1]
