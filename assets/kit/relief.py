"""Reliefs: how high the metal of a picture stands at every point, before any light falls on it.

Lengths are pixels of the picture, angles are radians clockwise from the top, the y axis points down. A relief
is sampled `SAMPLES` times a pixel in both directions, so that edges and reflections come out smooth.
"""

import math

import cairo
import numpy

SAMPLES = 3
TURN = 2 * math.pi


def blurred(field, sigma):
    """A Gaussian blur; sigma is in samples."""
    reach = max(1, math.ceil(2.5 * sigma))
    weights = numpy.exp(-0.5 * (numpy.arange(-reach, reach + 1) / sigma) ** 2)
    weights = (weights / weights.sum()).astype("float32")
    for axis in (0, 1):
        pads = [(0, 0), (0, 0)]
        pads[axis] = (reach, reach)
        padded = numpy.pad(field, pads, mode="edge")
        length = field.shape[axis]
        field = sum(
            weight * (padded[shift : shift + length] if axis == 0 else padded[:, shift : shift + length])
            for shift, weight in enumerate(weights)
        )
    return field


def depth_inside(solid, reach):
    """The distance of each sample to the nearest one that isn't solid, in samples, exact up to `reach` and
    cut off there. The edge runs midway between the two."""
    far = reach + 1
    steps = numpy.where(solid, numpy.float32(far), numpy.float32(0))
    for row in range(1, len(steps)):
        numpy.minimum(steps[row], steps[row - 1] + 1, out=steps[row])
    for row in range(len(steps) - 2, -1, -1):
        numpy.minimum(steps[row], steps[row + 1] + 1, out=steps[row])
    squares = steps * steps
    nearest = squares.copy()
    for step in range(1, reach + 1):
        offset = numpy.float32(step * step)
        numpy.minimum(nearest[:, step:], squares[:, :-step] + offset, out=nearest[:, step:])
        numpy.minimum(nearest[:, :-step], squares[:, step:] + offset, out=nearest[:, :-step])
    return numpy.clip(numpy.sqrt(nearest) - 0.5, 0, reach)


def rounded(share):
    """A quarter circle that rises from 0 at share 0 to 1 at share 1 and is flat from there on."""
    rest = 1 - numpy.clip(share, 0, 1)
    return numpy.sqrt(1 - rest * rest)


def bevelled(share):
    """A straight slope from 0 to 1, eased at its foot and at its shoulder."""
    share = numpy.clip(share, 0, 1)
    return 0.65 * share + 0.35 * share * share * (3 - 2 * share)


def raster(painter, side, centre, samples):
    """What the painter draws with cairo, as coverage from 0 to 1; its origin is the centre of the picture."""
    size = side * samples
    surface = cairo.ImageSurface(cairo.FORMAT_A8, size, size)
    context = cairo.Context(surface)
    context.scale(samples, samples)
    context.translate(centre + 0.5, centre + 0.5)
    context.set_line_cap(cairo.LINE_CAP_ROUND)
    context.set_line_join(cairo.LINE_JOIN_ROUND)
    painter(context)
    surface.flush()
    rows = numpy.frombuffer(surface.get_data(), "uint8").reshape(size, surface.get_stride())
    return rows[:, :size].astype("float32") / 255


class Motif:
    """A small figure to be stamped into reliefs, upright with its origin in the middle.

    `half` is how far it reaches from its origin, `height` how high it stands, `bevel` how far from its
    outline it reaches that height. `engraved` draws lines that are cut into it, `depth` deep.
    """

    samples = 4

    def __init__(self, painter, half, height, bevel, engraved=None, depth=1.5, shape=rounded, soft=1.5):
        half = math.ceil(half) + 1
        self.half = half
        self.cover = raster(painter, 2 * half + 1, half, self.samples)
        depths = depth_inside(self.cover > 0.5, math.ceil(bevel * self.samples)) / self.samples
        self.height = blurred(height * shape(depths / bevel).astype("float32"), soft)
        if engraved:
            cut = raster(engraved, 2 * half + 1, half, self.samples)
            self.height = self.height - depth * blurred(cut, 1.5)

    def at(self, x, y):
        """Coverage and height at points of its own plane, interpolated between samples."""
        size = self.cover.shape[0]
        column = numpy.clip((x + self.half + 0.5) * self.samples - 0.5, 0, size - 1.001)
        row = numpy.clip((y + self.half + 0.5) * self.samples - 0.5, 0, size - 1.001)
        left, top = column.astype(int), row.astype(int)
        right_share, low_share = column - left, row - top

        def between(field):
            upper = field[top, left] * (1 - right_share) + field[top, left + 1] * right_share
            lower = field[top + 1, left] * (1 - right_share) + field[top + 1, left + 1] * right_share
            return upper * (1 - low_share) + lower * low_share

        return between(self.cover), between(self.height)


class Relief:
    """The metal of one picture: where there is any (`solid`), how high it stands (`height`) and how bright it
    is polished (`polish`, 1 for bright metal, less for a dull ground)."""

    def __init__(self, side=500, centre=250):
        self.side, self.centre = side, centre
        places = ((numpy.arange(side * SAMPLES) + 0.5) / SAMPLES - 0.5 - centre).astype("float32")
        self.x, self.y = numpy.meshgrid(places, places)
        self.radius = numpy.hypot(self.x, self.y)
        self.angle = numpy.arctan2(self.x, -self.y) % numpy.float32(TURN)
        self.height = numpy.zeros_like(self.x)
        self.polish = numpy.ones_like(self.x)
        self.solid = numpy.zeros(self.x.shape, bool)

    def lay(self, where, height, polish=1.0):
        """Metal of the given height over whatever was there."""
        self.height = numpy.where(where, height, self.height).astype("float32")
        self.polish[where] = polish
        self.solid |= where

    def open(self, where):
        """No metal here: the design shows through."""
        self.solid &= ~where
        self.height[where] = 0

    def floor(self, inner, outer, polish=0.5):
        """A dull ground for motifs to stand on."""
        self.lay((self.radius >= inner) & (self.radius <= outer), 0.0, polish)

    def half_round(self, inner, outer, height=None, base=0.0):
        """A ring with a round back, as of bent wire."""
        half = (outer - inner) / 2
        across = numpy.clip(1 - ((self.radius - inner - half) / half) ** 2, 0, None)
        high = half * 0.8 if height is None else height
        self.lay((self.radius >= inner) & (self.radius <= outer), base + high * numpy.sqrt(across))

    def flat_ring(self, inner, outer, height=5.0, bevel=4.0, base=0.0, polish=1.0):
        """A flat ring with bevelled edges."""
        depth = numpy.minimum(self.radius - inner, outer - self.radius)
        self.lay(depth >= 0, base + height * bevelled(depth / bevel), polish)

    def drawn(self, painter):
        """What a painter draws on the whole picture, as coverage from 0 to 1."""
        return raster(painter, self.side, self.centre, SAMPLES)

    def plate(self, painter, height=5.0, bevel=4.0, base=0.0, polish=1.0, shape=bevelled, soft=1.5):
        """Metal in the shape that a painter draws on the whole picture."""
        solid = self.drawn(painter) > 0.5
        depth = depth_inside(solid, math.ceil(bevel * SAMPLES)) / SAMPLES
        self.lay(solid, base + blurred(height * shape(depth / bevel).astype("float32"), soft), polish)

    def engrave(self, painter, depth=1.5, soft=1.2):
        """Cuts what a painter draws on the whole picture into the metal."""
        self.height = self.height - depth * blurred(self.drawn(painter), soft)

    def box(self, x, y, reach):
        """The slices of the fields that hold everything within `reach` of a point."""
        return tuple(
            slice(max(0, int((place + self.centre - reach) * SAMPLES)),
                  max(0, int((place + self.centre + reach + 1) * SAMPLES)))
            for place in (y, x)
        )

    def stamp(self, motif, radius, angle, turn=0.0, scale=1.0, base=0.0, polish=1.15):
        """A motif at so far from the centre in that direction, its top outwards, turned further by `turn`.
        What stands out is rubbed a little brighter than plain metal."""
        x, y = radius * math.sin(angle), -radius * math.cos(angle)
        box = self.box(x, y, math.ceil(motif.half * scale * 1.42) + 1)
        right, down = self.x[box] - x, self.y[box] - y
        sine, cosine = math.sin(angle + turn), math.cos(angle + turn)
        across = (right * cosine + down * sine) / scale
        along = (down * cosine - right * sine) / scale
        cover, height = motif.at(across, along)
        inside = (cover > 0.5) & (abs(across) <= motif.half) & (abs(along) <= motif.half)
        self.height[box] = numpy.where(inside, base + height * scale, self.height[box])
        self.polish[box][inside] = polish
        self.solid[box] |= inside

    def around(self, motif, count, radius, first=0.0, **how):
        """So many of a motif, evenly round the ring, the first one at an angle."""
        for place in range(count):
            self.stamp(motif, radius, first + place * TURN / count, **how)
