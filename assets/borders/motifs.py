"""Borders of one figure repeated round the tag."""

import math

from borders.shapes import EDGE, closing_rim, curve, figure, filled, framed_floor, heart, leaf, polar, star
from kit.relief import TURN, Motif, bevelled


def disc(size):
    def painter(context):
        context.arc(0, 0, size, 0, TURN)
        context.fill()
    return painter


def ball(size):
    """A full hemisphere."""
    return Motif(disc(size), size, 0.85 * size, size)


def cut_star(size):
    """Straight slopes from the edges up to the middle give a star the facets of a cut stone."""
    return Motif(figure(star(5, size, 0.42 * size)), size, 0.46 * size, 0.46 * size, shape=bevelled, soft=0.8)


def beads_small(relief):
    relief.flat_ring(221, EDGE, height=0, bevel=1, polish=0.4)
    relief.around(ball(5.6), 126, 232)
    relief.half_round(219, 226, height=3.5)


def beads_large(relief):
    closing_rim(relief)
    relief.around(ball(10.8), 66, EDGE - 11)


def beads_mixed(relief):
    """Pearls on a string, each big one between three small ones."""
    closing_rim(relief)
    relief.half_round(224.5, 228.5, height=2)
    relief.around(ball(13), 20, 226.5)
    for shift, size in ((0.29, 6.2), (0.5, 8), (0.71, 6.2)):
        relief.around(ball(size), 20, 226.5, first=shift * TURN / 20)


def stars(relief):
    framed_floor(relief, 194)
    relief.around(cut_star(14.5), 32, 214)


def stars_open(relief):
    relief.half_round(231, EDGE, height=5)
    relief.around(cut_star(15), 28, 212)


def hearts(relief):
    relief.half_round(231, EDGE, height=5)
    motif = Motif(lambda context: (heart(context, 13.5), context.fill()), 16, 8, 11)
    relief.around(motif, 32, 212)
    relief.around(ball(3.4), 32, 212, first=TURN / 64)


def flowers(relief):
    framed_floor(relief, 192)
    petals = Motif(daisy, 17, 4.5, 4, engraved=daisy_lines, depth=1.5)
    relief.around(petals, 32, 213)
    relief.around(ball(4.6), 32, 213, base=2)


def daisy(context):
    for petal in range(8):
        context.save()
        context.rotate(petal * TURN / 8)
        curve(context, (0, -2), (5, -5, 6.6, -15.5, 0, -16), mirrored=True)
        context.fill()
        context.restore()


def daisy_lines(context):
    context.set_line_width(1.2)
    for petal in range(8):
        angle = petal * TURN / 8
        context.move_to(*polar(6, angle))
        context.line_to(*polar(13, angle))
    context.stroke()


def roses(relief):
    """Full roses seen from above, with leaves between them."""
    relief.half_round(231, EDGE, height=5)
    sepal = leaf_motif(22, 15)
    rose = Motif(rose_petals, 20, 4.5, 3.4, engraved=rose_folds, depth=2.6)
    count = 16
    for place in range(count):
        angle = place * TURN / count
        for side in (-1, 1):
            relief.stamp(sepal, 209 + 3 * side, angle + side * 0.075, turn=side * TURN * 0.25)
        relief.stamp(rose, 209, angle, turn=place * 0.9, polish=1.05)


def rose_petals(context):
    """Five broad petals, each a little over the next."""
    for petal in range(5):
        context.arc(*polar(9.2, petal * TURN / 5), 9, 0, TURN)
        context.fill()


def rose_folds(context):
    """The rims of the petals, closer and closer towards the bud."""
    context.set_line_width(1.5)
    for count, radius, size, spread, first in ((5, 6.2, 7.4, 1.35, 0.3), (3, 2.6, 5.2, 1.7, 0.9)):
        for petal in range(count):
            angle = first + petal * TURN / count
            x, y = polar(radius, angle)
            context.new_sub_path()
            context.arc(x, y, size, angle - TURN / 4 - spread, angle - TURN / 4 + spread)
            context.stroke()
    for step in range(40):
        context.line_to(*polar(0.6 + step * 0.075, 1 + step * 0.24))
    context.stroke()


def leaf_ring(relief):
    """A garland: a stem all round with leaves to both sides."""
    relief.half_round(231, EDGE, height=5)
    blade = leaf_motif(27, 19)
    count = 44
    for place in range(count):
        angle = -place * TURN / count
        relief.stamp(blade, 213, angle, turn=TURN * 0.155)
        relief.stamp(blade, 211, angle - TURN / (2 * count), turn=TURN * 0.345)
    relief.half_round(210, 214.4, height=2.2, base=3.5)


def leaf_motif(length, width):
    """A leaf with its veins, its stalk at the origin."""
    def veins(context):
        context.set_line_width(1.3)
        context.move_to(0, 0)
        context.line_to(0, -length * 0.9)
        for share in (0.25, 0.45, 0.65):
            for side in (-1, 1):
                context.move_to(0, -length * share)
                context.line_to(side * width * 0.3 * (1.1 - share), -length * (share + 0.16))
        context.stroke()

    return Motif(lambda context: (leaf(context, length, width), context.fill()), length, 5, width * 0.36,
                 engraved=veins, depth=1.6)


def laurel(relief):
    """Two branches that rise from a bow below and nearly meet at the top."""
    relief.half_round(232, EDGE, height=5)
    blade, berry = leaf_motif(30, 18), ball(3.2)
    steps = 27
    for side in (-1, 1):
        onwards = -side * TURN / 4
        # From the top down, so that each leaf lies over the foot of the next one.
        for step in range(steps, -1, -1):
            angle = math.pi - side * (0.10 + step * 0.104)
            if step == steps:
                relief.stamp(blade, 210, angle, turn=onwards)
                continue
            for lean in (-0.52, 0.52):
                relief.stamp(blade, 210, angle, turn=onwards + lean)
            if step % 2:
                relief.stamp(berry, 210, angle - side * 0.045, base=4)
    relief.stamp(Motif(bow_shape, 30, 5, 4.5), 208, math.pi, turn=math.pi)
    relief.stamp(ball(5.5), 208, math.pi, base=2)


def bow_shape(context):
    for side in (-1, 1):
        curve(context, (0, 0), (6 * side, -13, 24 * side, -16, 25 * side, -4),
              (25 * side, 7, 8 * side, 7, 0, 0))
        context.fill()
        filled(context, [(-side, 1), (5 * side, 1), (18 * side, 17), (12 * side, 17), (9.5 * side, 22)])


def ivy(relief):
    """A stem that winds between the rims, with a leaf in every bend."""
    framed_floor(relief, 188)
    bends = 15

    def stem(context):
        context.set_line_width(3.6)
        for step in range(721):
            angle = step * TURN / 720
            context.line_to(*polar(211.5 + 9 * math.cos(bends * angle), angle))
        context.close_path()
        context.stroke()

    relief.plate(stem, height=3, bevel=1.8)
    blade = Motif(ivy_leaf, 15, 5, 6, engraved=ivy_veins, depth=1.4)
    for place in range(bends):
        relief.stamp(blade, 209, place * TURN / bends, turn=math.pi)
        relief.stamp(blade, 214.5, (place + 0.5) * TURN / bends)
        for shift in (0.16, 0.84):
            relief.stamp(ball(2.8), 203.5, (place + shift) * TURN / bends)


def ivy_leaf(context):
    curve(context, (0, 11), (5, 13, 11, 11, 12, 5), (12, 1.5, 10, 0, 7.5, -0.5), (11, -3, 10, -7, 6, -7.5),
          (3.5, -8, 2.5, -11, 0, -14), mirrored=True)
    context.fill()


def ivy_veins(context):
    context.set_line_width(1.2)
    for point in ((0, -11), (8, 5), (-8, 5), (6, -5), (-6, -5)):
        context.move_to(0, 10)
        context.line_to(*point)
    context.stroke()


def shamrocks(relief):
    framed_floor(relief, 192)
    relief.around(Motif(shamrock, 18, 5, 4.2), 28, 213)


def shamrock(context):
    context.set_line_width(3.8)
    context.move_to(0, 2)
    context.curve_to(0.5, 8, 1.5, 12, 5.5, 15)
    context.stroke()
    for turn in (-TURN / 3.1, 0, TURN / 3.1):
        context.save()
        context.translate(0, 1.5)
        context.rotate(turn)
        curve(context, (0, -1), (3.2, -3.4, 8.8, -6, 8.6, -11.6), (8.4, -16.4, 2, -17.4, 0, -13.2),
              mirrored=True)
        context.fill()
        context.restore()


def paws(relief):
    relief.half_round(231, EDGE, height=5)
    motif = Motif(paw, 17, 6, 6)
    for place in range(26):
        relief.stamp(motif, 214 if place % 2 else 206, place * TURN / 26, turn=TURN / 4)


def paw(context):
    curve(context, (0, -2), (5, -2, 6.5, 3, 9.5, 6), (12, 9, 10, 14, 5.5, 13.2), (3, 12.7, 2, 12, 0, 12),
          mirrored=True)
    context.fill()
    for x, y, turn, size in ((4.4, -9.2, 0.12, 1.0), (11, -2.4, 0.5, 0.9)):
        for side in (-1, 1):
            context.save()
            context.translate(side * x, y)
            context.rotate(side * turn)
            context.scale(3.5 * size, 5.2 * size)
            context.arc(0, 0, 1, 0, TURN)
            context.restore()
            context.fill()


def arrowheads(relief):
    """Points of flint one behind the other."""
    relief.half_round(231, EDGE, height=5)
    motif = Motif(arrowhead, 20, 7, 9, shape=bevelled, soft=0.8)
    relief.around(motif, 34, 212, turn=TURN / 4)


def arrowhead(context):
    half = [(0, -18), (11.5, 9), (4.5, 6.5), (5.5, 15)]
    filled(context, half + [(0, 13)] + [(-x, y) for x, y in half[:0:-1]])


def snowflakes(relief):
    relief.half_round(231, EDGE, height=5)
    relief.around(Motif(snowflake, 21, 4.2, 2.4), 26, 207.5)
    relief.around(ball(3.6), 26, 218, first=TURN / 52)


def snowflake(context):
    context.set_line_width(4.4)
    for arm in range(6):
        context.save()
        context.rotate(arm * TURN / 6)
        for line in (((0, 0), (0, -18)), ((0, -9.5), (-5.6, -15)), ((0, -9.5), (5.6, -15))):
            context.move_to(*line[0])
            context.line_to(*line[1])
        context.stroke()
        context.restore()


def petals(relief):
    """A rosette: the petals of one big flower, two rows deep."""
    closing_rim(relief)
    blade = Motif(petal, 40, 6, 11, engraved=petal_line, depth=1.6)
    relief.around(blade, 24, 200, first=TURN / 48, base=0)
    relief.around(blade, 24, 194, base=1)
    relief.open(relief.radius < 196)
    relief.half_round(190, 202, height=6)


def petal(context):
    curve(context, (0, 4), (10, -4, 22, -18, 18.5, -29), (16, -36, 8, -39.2, 0, -39.2), mirrored=True)
    context.fill()


def petal_line(context):
    context.set_line_width(1.5)
    for angle in (-0.3, 0, 0.3):
        context.move_to(0, 4)
        context.line_to(*polar(27, angle))
    context.stroke()


BORDERS = {
    "Arrowheads": arrowheads,
    "Beads 1 small": beads_small,
    "Beads 2 large": beads_large,
    "Beads mixed": beads_mixed,
    "Flowers daisies": flowers,
    "Flowers petals": petals,
    "Flowers roses": roses,
    "Hearts": hearts,
    "Leaves": leaf_ring,
    "Leaves ivy": ivy,
    "Leaves laurel": laurel,
    "Paws": paws,
    "Shamrocks": shamrocks,
    "Snowflakes": snowflakes,
    "Stars": stars,
    "Stars open": stars_open,
}
