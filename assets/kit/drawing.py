"""From vector drawings to pixels, and from pixels to the files that the program reads."""

import io
import subprocess

import numpy
from PIL import Image


def render_svg(svg, width, height):
    """An SVG text as a picture (RGBA) of so many pixels. Stops the generator if the drawing is not valid."""
    command = ["rsvg-convert", "--width", str(width), "--height", str(height)]
    png = subprocess.run(command, input=svg.encode(), check=True, stdout=subprocess.PIPE).stdout
    picture = Image.open(io.BytesIO(png)).convert("RGBA")
    if picture.size != (width, height):
        raise SystemExit(f"a drawing came out {picture.size} instead of {width} by {height}")
    return picture


def on_white(picture):
    """A picture with coverage (RGBA) as one without (RGB), laid on white paper."""
    paper = Image.new("RGBA", picture.size, "white")
    return Image.alpha_composite(paper, picture.convert("RGBA")).convert("RGB")


def ink(picture, least=128):
    """Black and white alone: a pixel darker than `least` (of 255) is ink. Outlines in two colours have no pale
    fringe at which a fill would stop short of the line."""
    gray = numpy.asarray(on_white(picture).convert("L"))
    return Image.fromarray(numpy.where(gray < least, 0, 255).astype("uint8"), "L")


def save_gif(picture, path):
    """A picture (RGB, L) as a GIF without transparency; pure white and pure black stay what they are."""
    path.parent.mkdir(parents=True, exist_ok=True)
    if picture.mode == "L" and set(picture.getdata()) <= {0, 255}:
        indexed = picture.point(lambda v: v // 255).convert("P")
        indexed.putpalette([0, 0, 0, 255, 255, 255])
    else:
        indexed = exact_palette(picture.convert("RGB"))
    indexed.save(path, "GIF", optimize=False)


def exact_palette(picture):
    """At most 256 colours, black and white among them wherever the picture has them."""
    pixels = numpy.asarray(picture)
    white = (pixels == 255).all(axis=2)
    black = (pixels == 0).all(axis=2)
    rest = Image.fromarray(pixels).quantize(254, method=Image.Quantize.MEDIANCUT, dither=Image.Dither.NONE)
    palette = (rest.getpalette() + [0] * 768)[: 254 * 3] + [0, 0, 0, 255, 255, 255]
    index = numpy.asarray(rest).copy()
    index[black] = 254
    index[white] = 255
    indexed = Image.fromarray(index, "P")
    indexed.putpalette(palette)
    return indexed
