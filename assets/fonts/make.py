"""The symbol fonts: pictures of the freely licensed font Symbola on the keys of the letters, and two fonts of our own
(`own.py`).

Each font has a picture on every printable character from "!" to "~"; the blank stays blank. The pictures come
as TrueType outlines without hinting, in a Unicode table on the plain codes, which prints alike everywhere.
"""

import pathlib
import shutil

from fontTools import subset
from fontTools.pens.boundsPen import BoundsPen
from fontTools.ttLib import TTFont
from fontTools.ttLib.tables._c_m_a_p import CmapSubtable
from PIL import Image, ImageDraw, ImageFont

from fonts import own
from fonts.themes import THEMES

HERE = pathlib.Path(__file__).resolve().parent
SOURCE = "/usr/share/fonts/truetype/ancient-scripts/Symbola_hint.ttf"
BLANK = 32
FIRST, LAST = 33, 126
COPYRIGHT, FAMILY, STYLE, UNIQUE, FULL, VERSION, POSTSCRIPT, LICENCE = 0, 1, 2, 3, 4, 5, 6, 13
LARGEST_OVERHANG = 40  # units of the font; what stands out further would be cut off
TERMS = ("Pictures from Symbola by George Douros: free for any use; may be opened, edited, modified, "
         "regenerated, packaged and redistributed.")
OWN_COPYRIGHT = "Drawn for Coinlet Designer; letters and figures from Symbola by George Douros, free for any use."
WINDOWS, MACINTOSH = (3, 1, 0x409), (1, 0, 0)


def code_points(ranges):
    points = []
    for part in ranges.split():
        first, _, last = part.partition("-")
        points += range(int(first, 16), int(last or first, 16) + 1)
    return points


def checked(theme, font):
    """The theme's code points: one for each key, none twice, each with a picture."""
    points = code_points(THEMES[theme])
    glyphs, known = font.getGlyphSet(), font.getBestCmap()
    empty = [f"{point:X}" for point in points if point not in known or not bounds(glyphs, known[point])]
    beside = [f"{point:X}" for point in points if f"{point:X}" not in empty
              and bounds(glyphs, known[point])[2] > font["hmtx"][known[point]][0] + LARGEST_OVERHANG]
    twice = sorted({f"{point:X}" for point in points if points.count(point) > 1})
    if len(points) != LAST - FIRST + 1 or empty or twice or beside:
        raise SystemExit(f"{theme}: {len(points)} pictures, without outline {empty}, twice {twice}, wider than "
                         f"their letter {beside}")
    return points


def bounds(glyphs, name):
    pen = BoundsPen(glyphs)
    glyphs[name].draw(pen)
    return pen.bounds


def reduced(theme):
    """The source font with nothing but the theme's pictures, on the keys."""
    font = TTFont(SOURCE, recalcTimestamp=False)
    points = checked(theme, font)
    options = subset.Options(layout_features=[], hinting=False, notdef_outline=True, glyph_names=False)
    options.name_IDs = ["*"]
    options.drop_tables += ["GSUB", "GPOS", "GDEF", "kern", "FFTM", "DSIG", "meta"]
    subsetter = subset.Subsetter(options)
    subsetter.populate(unicodes=[BLANK, *points])
    subsetter.subset(font)
    names = font.getBestCmap()
    keys = {BLANK: names[BLANK]} | {FIRST + place: names[point] for place, point in enumerate(points)}
    font["cmap"].tableVersion = 0
    font["cmap"].tables = [table(*kind, keys) for kind in ((0, 3, 4), (1, 0, 0), (3, 1, 4))]
    font["OS/2"].fsType = 0
    font["OS/2"].usFirstCharIndex, font["OS/2"].usLastCharIndex = BLANK, LAST
    return font


def table(platform, encoding, layout, keys):
    subtable = CmapSubtable.newSubtable(layout)
    subtable.platformID, subtable.platEncID, subtable.language = platform, encoding, 0
    subtable.cmap = dict(keys)
    return subtable


def rename(font, family):
    """Gives the font its own name, and keeps the copyright."""
    names = font["name"]
    names.names = [record for record in names.names if record.nameID == COPYRIGHT]
    plain = family.replace(" ", "")
    for number, text in ((FAMILY, family), (STYLE, "Regular"), (UNIQUE, f"{plain} 1.0"), (FULL, family),
                         (VERSION, "Version 1.0"), (POSTSCRIPT, plain), (LICENCE, TERMS)):
        for place in (WINDOWS, MACINTOSH):
            names.setName(text, number, *place)


def make(data):
    folder = data / "Fonts"
    folder.mkdir(parents=True, exist_ok=True)
    for old in folder.glob("*.ttf"):
        old.unlink()
    for theme in THEMES:
        font = reduced(theme)
        rename(font, f"Tag {theme}")
        font.save(folder / f"{theme}.ttf")
    source = TTFont(SOURCE, recalcTimestamp=False)
    for theme in own.FONTS:
        own.built(theme, source, f"Tag {theme}", OWN_COPYRIGHT).save(folder / f"{theme}.ttf")
    shutil.copyfile(HERE / "LICENCE.txt", folder / "LICENCE.txt")


def sheets(data, folder):
    """The pictures of each font with their keys."""
    label = ImageFont.load_default()
    for file in sorted((data / "Fonts").glob("*.ttf")):
        page = Image.new("L", (16 * 72, 6 * 84), 255)
        draw = ImageDraw.Draw(page)
        font = ImageFont.truetype(str(file), 46)
        for place in range(LAST - FIRST + 1):
            x, y = place % 16 * 72 + 36, place // 16 * 84
            draw.text((x, y + 34), chr(FIRST + place), font=font, fill=0, anchor="mm")
            draw.text((x - 3, y + 70), chr(FIRST + place), font=label, fill=120)
        page.save(folder / f"fonts_{file.stem}.png")
