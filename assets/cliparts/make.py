"""The sheets of cliparts: black outlines on white, to be filled with colour on the canvas.

A sheet is a folder beside this file; its name is what the user picks in the list. It holds five drawings,
named 1_something.svg to 5_something.svg after their cells, each with the viewBox "0 0 330 360".

How they are drawn: outlines of 4 to 6 units with round joins and ends, shapes filled white so that what lies
behind a shape is hidden by it, every region closed, nothing nearer than 10 units to the edge of the cell.
"""

import pathlib

import numpy
from PIL import Image, ImageDraw, ImageFont

from cliparts import closed
from kit.drawing import ink, render_svg, save_gif

HERE = pathlib.Path(__file__).resolve().parent
CELL = (330, 360)
CELLS = 5
MARGIN = 6
LEAST_ENCLOSED = 0.15
LARGEST_SPECK = 12


def themes():
    return sorted(folder for folder in HERE.iterdir() if any(folder.glob("*.svg")))


def drawings(theme):
    files = [sorted(theme.glob(f"{cell}_*.svg")) for cell in range(1, CELLS + 1)]
    if any(len(found) != 1 for found in files) or len(list(theme.glob("*.svg"))) != CELLS:
        raise SystemExit(f"{theme.name}: there must be one drawing for each of the {CELLS} cells")
    return [found[0] for found in files]


def enclosed(cell):
    """White pixels that a fill from the corner doesn't reach, as a share of the drawing's bounding box."""
    flooded = cell.convert("L")
    ImageDraw.floodfill(flooded, (0, 0), 128)
    pixels = numpy.asarray(flooded)
    rows, columns = numpy.nonzero(pixels == 0)
    box = (rows.max() - rows.min() + 1) * (columns.max() - columns.min() + 1)
    return (pixels == 255).sum() / box


def without_specks(cell):
    """Where lines meet at a sharp angle a few white pixels may stay between them; nobody could fill those."""
    pixels = numpy.asarray(cell).copy()
    for region in white_regions(pixels):
        if sum(end - start for _, start, end in region) <= LARGEST_SPECK:
            for y, start, end in region:
                pixels[y, start:end] = 0
    return Image.fromarray(pixels, "L")


def white_regions(pixels):
    """The white regions whose pixels touch by their sides, each a list of runs (row, first column, end)."""
    regions, above = [], []
    for y, row in enumerate(pixels):
        edges = numpy.flatnonzero(numpy.diff(numpy.concatenate(([0], row == 255, [0]))))
        here = []
        for start, end in zip(edges[::2], edges[1::2]):
            touched = {id(region): region for first, last, region in above if first < end and start < last}
            touched |= {id(region): region for first, last, region in here if id(region) in touched}
            region = [(y, start, end)]
            for other in touched.values():
                region += other
            joined = set(touched)
            above = [(first, last, region if id(old) in joined else old) for first, last, old in above]
            here = [(first, last, region if id(old) in joined else old) for first, last, old in here]
            regions = [old for old in regions if id(old) not in joined] + [region]
            here.append((start, end, region))
        above = here
    return regions


def cell_of(drawing):
    cell = without_specks(ink(render_svg(drawing.read_text(encoding="utf-8"), *CELL)))
    pixels = numpy.asarray(cell)
    edge = numpy.ones(pixels.shape, bool)
    edge[MARGIN:-MARGIN, MARGIN:-MARGIN] = False
    if (pixels[edge] == 0).any():
        raise SystemExit(f"{drawing}: touches the edge of its cell")
    share = enclosed(cell)
    if share < LEAST_ENCLOSED:
        raise SystemExit(f"{drawing}: its outline isn't closed ({share:.0%} enclosed)")
    places = closed.leaks(white_regions(pixels), pixels.shape)
    if places:
        raise SystemExit(f"{drawing}: regions run into each other at these widths and places: {places}")
    return cell


def make(data):
    folder = data / "Cliparts"
    for old in folder.glob("*.art"):
        old.unlink()
    for theme in themes():
        sheet = Image.new("L", (CELL[0] * CELLS, CELL[1]), 255)
        for column, drawing in enumerate(drawings(theme)):
            sheet.paste(cell_of(drawing), (column * CELL[0], 0))
        save_gif(sheet, folder / f"{theme.name}.art")


def sheets(data, folder):
    """Five libraries a picture, each at half its size."""
    files = sorted((data / "Cliparts").glob("*.art"))
    font = ImageFont.load_default()
    for start in range(0, len(files), 5):
        page = Image.new("L", (825, 5 * 200), 255)
        draw = ImageDraw.Draw(page)
        for row, file in enumerate(files[start : start + 5]):
            page.paste(Image.open(file).convert("L").resize((825, 180), Image.Resampling.BOX), (0, row * 200 + 18))
            draw.text((4, row * 200 + 2), file.name, font=font, fill=0)
        page.save(folder / f"cliparts_{start // 5 + 1}.png")
