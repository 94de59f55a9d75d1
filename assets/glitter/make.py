"""The chart of glitter colours: a swatch of flakes for each, with its name below."""

import colorsys

import numpy
from PIL import Image, ImageDraw, ImageFilter, ImageFont

from glitter.colours import COLOURS

COLUMNS = 6
CELL = (164, 126)
SWATCH = (144, 90)
MARGIN = (8, 66)
FINE = 2
FLAKE = 3.4
LETTERS = "/usr/share/fonts/truetype/liberation/LiberationSans-{}.ttf"
PAPER = (250, 250, 246)
INK = (34, 34, 50)
QUALITY = 92


def flakes(random, width, height, step):
    """Which flake covers each pixel: the nearest of points scattered one to a square of `step` pixels. Gives
    the flakes' numbers, their count, and the pixels' offsets from the flakes' centres in steps."""
    columns, rows = int(width / step) + 3, int(height / step) + 3
    scatter = random.random((rows, columns, 2))
    y, x = numpy.mgrid[0:height, 0:width] / step + 1
    best = numpy.full((height, width), 9.0)
    number = numpy.zeros((height, width), int)
    offset = numpy.zeros((height, width, 2))
    for down in (-1, 0, 1):
        for right in (-1, 0, 1):
            row, column = y.astype(int) + down, x.astype(int) + right
            away_y = row + scatter[row, column, 0] - y
            away_x = column + scatter[row, column, 1] - x
            distance = away_y**2 + away_x**2
            nearer = distance < best
            best[nearer] = distance[nearer]
            number[nearer] = (row * columns + column)[nearer]
            offset[nearer] = numpy.stack([away_y, away_x], axis=2)[nearer]
    return number, rows * columns, offset


def hues(random, count, colour):
    """A colour for each flake around one of the colour's bases, RGB from 0 to 1."""
    bases = numpy.array([colorsys.rgb_to_hsv(*(channel / 255 for channel in base)) for base in colour.bases])
    picked = bases[random.integers(0, len(bases), count)]
    hue = picked[:, 0] + random.normal(0, colour.hue_spread, count)
    saturation = numpy.clip(picked[:, 1] * random.normal(1, 0.14, count), 0, 1)
    return numpy.array([colorsys.hsv_to_rgb(h % 1, s, v) for h, s, v in zip(hue, saturation, picked[:, 2])])


def swatch(colour, seed):
    """Flakes that lie at all angles: most reflect a little, some a lot, a few flash."""
    random = numpy.random.default_rng(seed)
    width, height = SWATCH[0] * FINE, SWATCH[1] * FINE
    number, count, offset = flakes(random, width, height, FLAKE * FINE)
    tint = hues(random, count, colour)
    contrast = 0.5 - 0.26 * min(max(base) for base in colour.bases) / 255
    light = numpy.exp(random.normal(-0.1, contrast, count))
    flash = random.random(count)
    tilt = random.normal(0, 0.35, (count, 2))
    glint = numpy.clip((flash - 0.86) / 0.14, 0, 1) ** 2 * colour.sparkle
    flake_colour = tint * light[:, None] * (1 - glint[:, None]) + (0.25 * tint + 0.85) * glint[:, None]
    slope = 1 + (offset * tilt[number]).sum(axis=2)
    seam = 1 - 0.3 * numpy.clip(numpy.hypot(offset[:, :, 0], offset[:, :, 1]) - 0.35, 0, 1)
    picture = flake_colour[number] * (slope * seam)[:, :, None]
    picture = Image.fromarray(numpy.rint(numpy.clip(picture, 0, 1) * 255).astype("uint8"))
    picture = picture.resize(SWATCH, Image.Resampling.BOX)
    return with_stars(picture, random, colour)


def with_stars(picture, random, colour):
    """A handful of flakes that catch the lamp: a bright core, four short rays, a glow around."""
    lights = Image.new("L", (SWATCH[0] * 4, SWATCH[1] * 4))
    draw = ImageDraw.Draw(lights)
    for _ in range(round(9 * colour.sparkle)):
        x, y = random.uniform(20, lights.width - 20), random.uniform(20, lights.height - 20)
        reach = random.uniform(9, 21)
        for a, b in ((reach, 1.7), (1.7, reach)):
            draw.polygon([(x - a, y), (x, y - b), (x + a, y), (x, y + b)], fill=255)
        draw.ellipse([x - 4, y - 4, x + 4, y + 4], fill=255)
    stars = numpy.asarray(lights.resize(SWATCH, Image.Resampling.BOX), float)
    glow = numpy.asarray(lights.resize(SWATCH, Image.Resampling.BOX).filter(ImageFilter.GaussianBlur(3)),
                         float)
    cover = numpy.clip(stars + 1.6 * glow, 0, 255)[:, :, None] / 255
    lit = numpy.asarray(picture, float) * (1 - cover) + 255 * cover
    return Image.fromarray(numpy.rint(lit).astype("uint8"))


def make(data):
    rows = -(-len(COLOURS) // COLUMNS)
    size = (2 * MARGIN[0] + COLUMNS * CELL[0], MARGIN[1] + rows * CELL[1] + 8)
    chart = Image.new("RGB", size, PAPER)
    draw = ImageDraw.Draw(chart)
    title = ImageFont.truetype(LETTERS.format("Bold"), 30)
    small = ImageFont.truetype(LETTERS.format("Bold"), 14)
    draw.text((size[0] // 2, 36), "Glitter Color Chart", font=title, fill=INK, anchor="mm")
    for place, colour in enumerate(COLOURS):
        left = MARGIN[0] + place % COLUMNS * CELL[0] + (CELL[0] - SWATCH[0]) // 2
        top = MARGIN[1] + place // COLUMNS * CELL[1]
        chart.paste(swatch(colour, 1000 + place), (left, top))
        draw.rectangle([left - 1, top - 1, left + SWATCH[0], top + SWATCH[1]], outline=(120, 120, 130))
        draw.text((left + SWATCH[0] // 2, top + SWATCH[1] + 14), f"{place + 1:02} {colour.name}", font=small,
                  fill=INK, anchor="mm")
    chart.save(data / "Data" / "Glitter.bak", "JPEG", quality=QUALITY, subsampling=0)


def sheets(data, folder):
    Image.open(data / "Data" / "Glitter.bak").save(folder / "glitter.png")
