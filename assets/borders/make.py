"""The borders of tags: reliefs of metal, in all four metals, round a design.

A border is a strip of four frames of 500 by 500 pixels, one for each metal. White lets the design show
through. Their names are what the user picks from in a list, so kinds of a thing begin with the same word.
"""

import numpy
from PIL import Image, ImageDraw, ImageFont

from borders import bands, dials, knots, motifs, outdoor, outlines, rims, strands, windows
from kit import metals, stamped
from kit.relief import Relief

SIDE = 500
RADIUS = 240
# As light as metal may be on all three channels at once, so that nobody takes it for white.
LIGHTEST_METAL = 235
# The whole of it stays free for the design, whichever the border.
FREE_RADIUS = 80
# In bytes, all files together: the program's folder is made to be copied.
LARGEST_LIBRARY = 8_000_000

BORDERS = {
    name: build
    for kind in (bands, dials, knots, motifs, outdoor, outlines, rims, strands, windows)
    for name, build in kind.BORDERS.items()
}


def frames(picture):
    pixels = numpy.asarray(picture.convert("RGB"))
    return [pixels[:, left : left + SIDE] for left in range(0, SIDE * len(metals.METALS), SIDE)]


def check(name, picture):
    """Stops the generator if a border would do harm to a design on which it is laid."""
    if picture.size != (SIDE * len(metals.METALS), SIDE):
        raise SystemExit(f"{name}: its size is {picture.size}")
    row, column = numpy.mgrid[0:SIDE, 0:SIDE] - SIDE // 2
    away = numpy.hypot(row, column)
    for metal, frame in zip(metals.METALS, frames(picture)):
        white = (frame == 255).all(axis=2)
        if not white[away > RADIUS + 0.5].all():
            raise SystemExit(f"{name}, {metal}: metal beyond the edge of the tag")
        if not white[away < FREE_RADIUS].all():
            raise SystemExit(f"{name}, {metal}: no room for a design")
        if ((frame >= LIGHTEST_METAL).all(axis=2) & ~white).any():
            raise SystemExit(f"{name}, {metal}: nearly white pixels that aren't white")
        if white.all():
            raise SystemExit(f"{name}, {metal}: nothing but white")


def border(name):
    relief = Relief(SIDE, SIDE // 2)
    BORDERS[name](relief)
    return metals.strip(relief)


def make(data):
    folder = data / "Borders"
    for old in folder.glob("*.gif"):
        old.unlink()
    colours = metals.palette(stamped.shaded)
    for name in sorted(BORDERS):
        file = folder / f"{name}.gif"
        metals.save_strip(border(name), file, colours)
        check(name, Image.open(file))
    total = sum(file.stat().st_size for file in folder.glob("*.gif"))
    if total > LARGEST_LIBRARY:
        raise SystemExit(f"the borders take {total} bytes")


def sheets(data, folder):
    """Every border in all metals at half its size, six a picture."""
    files = sorted((data / "Borders").glob("*.gif"))
    font = ImageFont.load_default()
    for start in range(0, len(files), 6):
        page = Image.new("RGB", (1000, 6 * 265), "white")
        draw = ImageDraw.Draw(page)
        for row, file in enumerate(files[start : start + 6]):
            small = Image.open(file).convert("RGB").resize((1000, 250), Image.Resampling.BOX)
            page.paste(small, (0, row * 265 + 14))
            draw.text((4, row * 265 + 2), file.name, font=font, fill="black")
        page.save(folder / f"borders_{start // 6 + 1}.png")
