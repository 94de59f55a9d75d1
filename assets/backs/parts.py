"""What many backs have: rims, the field for the number, patterns that fill the ground."""

import math

from kit.paths import around, disc, polar, polygon, rounded_box

from backs.struck import RADIUS

FIELD_HEIGHT = 20


def ground(die, level=0.0, rim=4.5):
    """The disc: a raised rim around a flat ground."""
    disc(die.ctx, RADIUS + 1)
    die.fill(1)
    disc(die.ctx, RADIUS - rim)
    die.fill(level)


def ring(die, radius, width, level=1.0):
    disc(die.ctx, radius)
    die.stroke(level, width)


def knurled(die, count=90):
    """A rim cut into fine teeth like that of a coin."""
    ground(die, 0, 7)
    ring(die, 68.5, 9)
    for k in range(count):
        angle = (k + 0.5) * 2 * math.pi / count
        die.ctx.move_to(*polar(66.5, angle))
        die.ctx.line_to(*polar(70.5, angle))
        die.stroke(0.1, 2)
    ring(die, 64.5, 1.6)


def beaded(die, count=60):
    """A row of pearls within a narrow rim."""
    ground(die, 0, 3)
    around(die.ctx, count, lambda: disc(die.ctx, 2, (0, -65.5)))
    die.fill(1)


def roped(die, count=44):
    """A rim like a twisted rope."""
    ground(die, 0, 2.5)
    def strand():
        die.ctx.move_to(-5, -64.2)
        die.ctx.curve_to(-3.5, -68, -1.2, -70, 2.2, -70.2)
        die.ctx.curve_to(2.6, -68, 0.5, -64.6, -1.4, -64)
        die.ctx.close_path()
    around(die.ctx, count, strand)
    die.fill(1)
    ring(die, 62.6, 1.3)


def number_field(die, middle, width, height=FIELD_HEIGHT):
    """The polished field, empty, on which the mint engraves the tracking number. With a whole `middle`
    its edges lie between pixels and stay crisp."""
    left, top = -width / 2, middle - height / 2
    rounded_box(die.ctx, left - 4, top - 4, width + 8, height + 8, 5)
    die.fill(0)
    rounded_box(die.ctx, left - 2.5, top - 2.5, width + 5, height + 5, 4.5)
    die.stroke(1, 1)
    rounded_box(die.ctx, left, top, width, height, 2.5)
    die.fill(1)


def banner(die, middle, height=FIELD_HEIGHT):
    """A polished band from rim to rim for the number."""
    top = middle - height / 2
    for grown, level in ((4, 0.0), (2.5, 1.0), (1.5, 0.0), (0, 1.0)):
        with die.inside_disc(RADIUS - 4):
            die.ctx.rectangle(-RADIUS, top - grown, 2 * RADIUS, height + 2 * grown)
            die.fill(level)


def text_ring(die, inner, level=0.0):
    """A ring of the ground between the rim and a thin line, free for text along the rim."""
    disc(die.ctx, RADIUS - 4.5)
    die.fill(level)
    ring(die, inner, 1.4)


def honeycomb(die, radius, cell=7.0, level=0.75, gap=1.5):
    """Raised hexagons over a disc, one of them in the middle."""
    with die.inside_disc(radius):
        reach = int(radius / cell) + 2
        for row in range(-reach, reach + 1):
            for column in range(-reach, reach + 1):
                x = cell * math.sqrt(3) * (column + (row % 2) / 2)
                polygon(die.ctx, [polar(cell - gap / math.sqrt(3), k * math.pi / 3, (x, row * cell * 1.5))
                                  for k in range(6)])
        die.fill(level)


def sunburst(die, radius, count=36, level=0.8):
    """Rays from the centre."""
    with die.inside_disc(radius):
        half = math.pi / count / 2
        for k in range(count):
            angle = k * 2 * math.pi / count
            polygon(die.ctx, [(0, 0), polar(radius * 1.1, angle - half), polar(radius * 1.1, angle + half)])
        die.fill(level)


def lattice(die, radius, step, width, level=0.8, turn=0.0):
    """A square grid of lines, one crossing at the centre."""
    with die.inside_disc(radius):
        with die.at(turn=turn):
            reach = int(radius / step) + 1
            for k in range(-reach, reach + 1):
                die.ctx.move_to(k * step, -radius)
                die.ctx.line_to(k * step, radius)
                die.ctx.move_to(-radius, k * step)
                die.ctx.line_to(radius, k * step)
            die.stroke(level, width)


def rosette(die, base, swing, petals, copies, width=0.7, level=0.9):
    """Guilloche: waves around a circle, each turned a little further."""
    steps = 48 * petals
    for copy in range(copies):
        shift = copy * 2 * math.pi / petals / copies
        for k in range(steps):
            angle = k * 2 * math.pi / steps
            die.ctx.line_to(*polar(base + swing * math.cos(petals * angle), angle + shift))
        die.ctx.close_path()
        die.stroke(level, width)


def waves(die, radius, step=8.0, length=24.0, swing=3.0, width=2.2, level=0.8):
    """Level lines of a calm sea, even about the vertical axis."""
    with die.inside_disc(radius):
        for row in range(-int(radius / step) - 1, int(radius / step) + 2):
            for k in range(-72, 73):
                die.ctx.line_to(k, row * step - swing * math.cos(k * 2 * math.pi / length))
            die.stroke(level, width)
