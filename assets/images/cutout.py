"""Motifs on exactly white ground: shaded shapes with a dark outline, and no pixel half way to white at the
edge, so that a motif can be pasted without its background and leaves no fringe."""

import cairo
import numpy
from PIL import Image

from kit.paths import disc, placed, svg_path

FINE = 4
OUTLINE = 2.2
NEARLY_WHITE = 252


def rgb(colour):
    return tuple(int(colour[k : k + 2], 16) / 255 for k in (1, 3, 5))


def darker(colour, share):
    return tuple(channel * (1 - share) for channel in rgb(colour))


class Motif:
    """Draws in a square from -50 to 50, y downwards. Colours are "#rrggbb"."""

    def __init__(self, side):
        self.surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, side * FINE, side * FINE)
        self.ctx = cairo.Context(self.surface)
        self.ctx.scale(side * FINE / 100, side * FINE / 100)
        self.ctx.translate(50, 50)
        self.ctx.set_line_cap(cairo.LINE_CAP_ROUND)
        self.ctx.set_line_join(cairo.LINE_JOIN_ROUND)

    def at(self, **place):
        return placed(self.ctx, **place)

    def path(self, data):
        svg_path(self.ctx, data)
        return self

    def disc(self, radius, x=0.0, y=0.0):
        disc(self.ctx, radius, (x, y))
        return self

    def oval(self, x, y, wide, high, turn=0.0):
        """An ellipse of those half axes."""
        self.ctx.save()
        self.ctx.translate(x, y)
        self.ctx.rotate(turn)
        self.ctx.scale(wide, high)
        disc(self.ctx, 1)
        self.ctx.restore()
        return self

    def plain(self, colour, outline=0.0):
        self.ctx.set_source_rgb(*rgb(colour))
        self.finish(colour, outline)

    def shaded(self, light, dark, outline=OUTLINE, down=True):
        """Fills the path from light, at its top, to dark; with down=False from left to right."""
        left, top, right, bottom = self.ctx.path_extents()
        gradient = cairo.LinearGradient(left, top, left if down else right, bottom if down else top)
        self.paint(gradient, light, dark, outline)

    def round(self, light, dark, outline=OUTLINE):
        """Fills the path like a ball lit from the upper left."""
        left, top, right, bottom = self.ctx.path_extents()
        x, y, reach = (left + right) / 2, (top + bottom) / 2, max(right - left, bottom - top) / 2
        gradient = cairo.RadialGradient(x - reach * 0.35, y - reach * 0.4, reach * 0.1, x, y, reach * 1.1)
        self.paint(gradient, light, dark, outline)

    def paint(self, gradient, light, dark, outline):
        gradient.add_color_stop_rgb(0, *rgb(light))
        gradient.add_color_stop_rgb(1, *rgb(dark))
        self.ctx.set_source(gradient)
        self.finish(dark, outline)

    def finish(self, colour, outline):
        self.ctx.fill_preserve()
        if outline:
            self.ctx.set_source_rgb(*darker(colour, 0.62))
            self.ctx.set_line_width(outline)
            self.ctx.stroke()
        self.ctx.new_path()

    def line(self, colour, width):
        self.ctx.set_source_rgb(*rgb(colour))
        self.ctx.set_line_width(width)
        self.ctx.stroke()

    def gloss(self, strength=0.55):
        """A highlight that fades downwards within the path."""
        _, top, _, bottom = self.ctx.path_extents()
        gradient = cairo.LinearGradient(0, top, 0, bottom)
        gradient.add_color_stop_rgba(0, 1, 1, 1, strength)
        gradient.add_color_stop_rgba(1, 1, 1, 1, 0.05)
        self.ctx.set_source(gradient)
        self.ctx.fill()

    def both(self, draw):
        """What draw() paints, and its mirror image."""
        draw()
        with self.at(mirrored=True):
            draw()


def cut_out(draw, side):
    """The motif that draw(motif) paints as a picture of side x side pixels."""
    motif = Motif(side)
    draw(motif)
    motif.surface.flush()
    pixels = numpy.ndarray((side, FINE, side, FINE, 4), numpy.uint8, motif.surface.get_data()).astype(float)
    mean = pixels.mean(axis=(1, 3))
    coverage = mean[..., 3:]
    colour = numpy.rint(mean[..., 2::-1] * 255 / numpy.maximum(coverage, 1))
    picture = numpy.where(coverage >= 127.5, numpy.minimum(colour, NEARLY_WHITE), 255)
    return Image.fromarray(picture.astype("uint8"))
