"""Borders that are dials: lettering and ticks on a ring."""

from borders.motifs import disc
from borders.shapes import figure, framed_floor
from kit.relief import TURN, Motif, bevelled

# Letters as lines, 20 high, their middle at the origin, and how wide each is.
LETTERS = {
    "N": ([[(-7, 10), (-7, -10), (7, 10), (7, -10)]], 17),
    "E": ([[(6, -10), (-6, -10), (-6, 10), (6, 10)], [(-6, 0), (4, 0)]], 15),
    "S": ([[(6.5, -6), (5, -9), (1, -10.2), (-3, -10), (-6, -7.6), (-6.2, -4), (-4, -1.4), (0, 0), (4, 1.4),
            (6.4, 4), (6.2, 7.4), (3, 10), (-1, 10.2), (-5, 9), (-6.8, 5.6)]], 16),
    "W": ([[(-11, -10), (-5.5, 10), (0, -8), (5.5, 10), (11, -10)]], 24),
    "I": ([[(0, -10), (0, 10)]], 6.5),
    "V": ([[(-5, -10), (0, 10), (5, -10)]], 14),
    "X": ([[(-5, -10), (5, 10)], [(5, -10), (-5, 10)]], 14),
}
HOURS = ["XII", "I", "II", "III", "IIII", "V", "VI", "VII", "VIII", "IX", "X", "XI"]


def lettering(word, width, serifs=False):
    """A painter of a word in raised lines; serifs close it above and below, as on old clocks."""
    total = sum(LETTERS[letter][1] for letter in word)

    def painter(context):
        context.set_line_width(width)
        left = -total / 2
        for letter in word:
            lines, advance = LETTERS[letter]
            for line in lines:
                for x, y in line:
                    context.line_to(left + advance / 2 + x, y)
                context.stroke()
            left += advance
        if serifs:
            context.set_line_width(width * 0.62)
            for y in (-10, 10):
                context.move_to(-total / 2 + 0.5, y)
                context.line_to(total / 2 - 0.5, y)
            context.stroke()

    return painter


def clock(relief):
    framed_floor(relief, 186, outer_rim=230)
    for hour, numeral in enumerate(HOURS):
        relief.stamp(Motif(lettering(numeral, 4, serifs=True), 28, 5, 2.2), 206.5, hour * TURN / 12,
                     scale=1.12)
    dot = Motif(disc(1.9), 3, 2, 2)
    mark = Motif(figure([(0, 4.6), (3.6, 0), (0, -4.6), (-3.6, 0)]), 6, 3, 3.4, shape=bevelled)
    for minute in range(60):
        relief.stamp(dot if minute % 5 else mark, 224.5, minute * TURN / 60)


def compass(relief):
    framed_floor(relief, 190, outer_rim=231)
    point = Motif(figure([(0, 30), (9, -8), (-9, -8)]), 31, 7, 8, shape=bevelled, soft=0.8)
    for quarter, letter in enumerate("NESW"):
        relief.stamp(point, 188, quarter * TURN / 4)
        relief.stamp(Motif(lettering(letter, 4.8), 16, 5, 2.6), 213, quarter * TURN / 4, scale=1.15)
    gem = Motif(figure([(0, 15), (6.5, 0), (0, -15), (-6.5, 0)]), 16, 5, 6, shape=bevelled)
    short, long = tick(7), tick(12)
    for step in range(72):
        if step % 18 in (0, 1, 2, 16, 17):
            continue
        if step % 9 == 0:
            relief.stamp(gem, 212.5, step * TURN / 72)
        else:
            mark, middle = (long, 221) if step % 3 == 0 else (short, 223.5)
            relief.stamp(mark, middle, step * TURN / 72)
    relief.half_round(188, 196, height=4)


def tick(length):
    def painter(context):
        context.rectangle(-1.4, -length / 2, 2.8, length)
        context.fill()
    return Motif(painter, length, 2.2, 1.4)


BORDERS = {
    "Clock": clock,
    "Compass": compass,
}
