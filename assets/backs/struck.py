"""A tag struck by a die: a relief drawn in gray levels, with enamel of colours in its recesses.

A back is drawn in pixels of its cell about the tag's centre, y downwards. Level 1 is the raised face, level 0 the
bottom of a recess. The face is enamelled ivory and the recess a warm black, so that a back sits well on a tag of any
of the metals.
"""

import contextlib
import math

import cairo
import numpy
from PIL import Image, ImageFilter

from kit.paths import choose_font, circle_text, disc, placed, straight_text

SIDE = 150
RADIUS = 72
FINE = 6

FACE = numpy.array([244, 239, 226], numpy.float32)
RECESS = numpy.array([52, 49, 47], numpy.float32)

SANS = "Liberation Sans"
SERIF = "Liberation Serif"


class Die:
    """The two drawings of a back: heights, and the enamel that fills what lies low. `words` are texts to write in the
    place of others, each with its size."""

    def __init__(self, words=None):
        side = SIDE * FINE
        self.heights = cairo.ImageSurface(cairo.FORMAT_A8, side, side)
        self.colours = cairo.ImageSurface(cairo.FORMAT_ARGB32, side, side)
        self.words = words or {}
        self.ctx = cairo.Context(self.heights)
        self.enamel_ctx = cairo.Context(self.colours)
        self.ctx.scale(FINE, FINE)
        self.ctx.translate(SIDE / 2, SIDE / 2)
        for ctx in (self.ctx, self.enamel_ctx):
            ctx.set_operator(cairo.OPERATOR_SOURCE)
        self.ctx.set_line_cap(cairo.LINE_CAP_ROUND)
        self.ctx.set_line_join(cairo.LINE_JOIN_ROUND)

    def fill(self, level, keep=False):
        """Raises or sinks the path's inside. What is sunk loses its enamel."""
        if level < 0.5:
            self.on_enamel(0, 0, 0, 0)
        self.ctx.set_source_rgba(0, 0, 0, level)
        (self.ctx.fill_preserve if keep else self.ctx.fill)()

    def stroke(self, level, width, keep=False):
        self.ctx.set_source_rgba(0, 0, 0, level)
        self.ctx.set_line_width(width)
        (self.ctx.stroke_preserve if keep else self.ctx.stroke)()

    def enamel(self, rgb, keep=False):
        """Sinks the path's inside and fills it with enamel of a colour (0 to 255 a channel)."""
        self.ctx.set_source_rgba(0, 0, 0, 0)
        self.ctx.fill_preserve()
        self.on_enamel(*(channel / 255 for channel in rgb), 1)
        if not keep:
            self.ctx.new_path()

    def on_enamel(self, *rgba):
        self.take_path()
        self.enamel_ctx.set_source_rgba(*rgba)
        self.enamel_ctx.fill()

    def take_path(self):
        """Repeats the path that is under construction in the drawing of the enamel."""
        self.enamel_ctx.set_matrix(self.ctx.get_matrix())
        self.enamel_ctx.append_path(self.ctx.copy_path())

    @contextlib.contextmanager
    def inside(self):
        """Restricts the drawing within the block to the inside of the path."""
        self.take_path()
        for ctx in (self.ctx, self.enamel_ctx):
            ctx.save()
            ctx.clip()
        yield
        self.enamel_ctx.restore()
        self.ctx.restore()

    def inside_disc(self, radius, centre=(0.0, 0.0)):
        disc(self.ctx, radius, centre)
        return self.inside()

    def line(self, text, baseline, size, level=1.0, family=SANS, spacing=0.0, centre=0.0):
        """A line of text on the face or, with a low level, sunk into it."""
        text, size = self.words.get(text, (text, size))
        choose_font(self.ctx, family, size)
        straight_text(self.ctx, text, baseline, spacing, centre)
        self.fill(level)

    def arc(self, text, radius, size, level=1.0, family=SANS, spacing=0.5, bottom=False):
        """Text along the rim, read from within: above the centre, or below it."""
        text, size = self.words.get(text, (text, size))
        choose_font(self.ctx, family, size)
        height = self.ctx.text_extents("H").height
        circle_text(self.ctx, text, radius + (height if bottom else 0), math.pi if bottom else 0, spacing,
                    feet_inside=not bottom)
        self.fill(level)

    def at(self, **place):
        """Draws the block turned, scaled or elsewhere; see kit.paths.placed."""
        return placed(self.ctx, **place)


def relief(die):
    """The heights of the die, 0 to 1, the enamel's colours, and its coverage."""
    side = SIDE * FINE
    stride = die.heights.get_stride()
    heights = numpy.ndarray((side, stride), numpy.uint8, die.heights.get_data())[:, :side]
    colours = numpy.ndarray((side, side, 4), numpy.uint8, die.colours.get_data())
    return heights, colours[:, :, 2::-1].astype(numpy.float32), colours[:, :, 3:].astype(numpy.float32) / 255


def struck(draw, words=None):
    """The cell of a back: draw(die) struck, lit from the upper left, on white."""
    die = Die(words)
    draw(die)
    die.ctx.get_target().flush()
    heights, colours, coverage = relief(die)
    soft = Image.fromarray(heights).filter(ImageFilter.GaussianBlur(FINE * 0.28))
    height = numpy.asarray(soft, numpy.float32) / 255
    slope_y, slope_x = numpy.gradient(height * FINE)
    glint = numpy.clip((slope_x + slope_y) * 0.55, -1, 1)[:, :, None]
    y, x = (numpy.mgrid[0 : SIDE * FINE, 0 : SIDE * FINE].astype(numpy.float32) + 0.5) / FINE - SIDE / 2
    far = numpy.hypot(x, y) / RADIUS
    sheen = (1 - 0.035 * (x + y) / RADIUS)[:, :, None]
    low = RECESS * (1 - coverage) + colours * coverage
    high = height[:, :, None]
    metal = low * (1 - high) + FACE * sheen * high
    metal += numpy.where(glint > 0, glint * 30, glint * 80)
    metal *= 1 - 0.45 * numpy.clip((far * RADIUS - RADIUS + 1.6) / 1.6, 0, 1)[:, :, None]
    inside = numpy.clip((1 - far) * RADIUS * FINE + 0.5, 0, 1)[:, :, None]
    picture = numpy.clip(metal, 0, 250) * inside + 255 * (1 - inside)
    cell = picture.reshape(SIDE, FINE, SIDE, FINE, 3).mean(axis=(1, 3))
    return Image.fromarray(numpy.rint(cell).astype("uint8"))
