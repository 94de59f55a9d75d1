"""Fonts with pictures of our own: trail marks, and letters in shields, medals and ribbons."""

import math

from fontTools.fontBuilder import FontBuilder
from fontTools.pens.boundsPen import BoundsPen
from fontTools.pens.recordingPen import DecomposingRecordingPen
from fontTools.pens.transformPen import TransformPen
from fontTools.pens.ttGlyphPen import TTGlyphPen

from fonts import trail
from fonts.shapes import arc, box, disc, hole, ink, ring

EM, ASCENT, DESCENT = 1000, 900, -200
FIRST, LAST = 33, 126
MIDDLE = (500, 400)


def drawn(pen, shape):
    for contour in shape:
        pen.moveTo(tuple(round(value) for value in contour[0]))
        for point in contour[1:]:
            pen.lineTo(tuple(round(value) for value in point))
        pen.closePath()


def bounds_of(source, key):
    bounds = BoundsPen(source.getGlyphSet())
    source.getGlyphSet()[source.getBestCmap()[ord(key)]].draw(bounds)
    return bounds.bounds


def largest_scale(source, keys, reach_x, reach_y):
    """The scale at which every one of the characters fits the reach to each side of its middle."""
    boxes = [bounds_of(source, key) for key in keys]
    return min(min(2 * reach_x / (right - left), 2 * reach_y / (top - bottom)) for left, bottom, right, top in boxes)


def letter(pen, source, key, scale, middle=MIDDLE):
    """A character of the source font about a place."""
    glyphs, name = source.getGlyphSet(), source.getBestCmap()[ord(key)]
    left, bottom, right, top = bounds_of(source, key)
    transform = (scale, 0, 0, scale, middle[0] - scale * (left + right) / 2, middle[1] - scale * (bottom + top) / 2)
    recording = DecomposingRecordingPen(glyphs)
    glyphs[name].draw(recording)
    recording.replay(TransformPen(pen, transform))


def shield():
    def outline(d):
        side = [(150 + d, 770 - d), (150 + d, 420), *[(500 - (350 - d) * math.cos(t), 420 - (400 - 1.25 * d) * math.sin(t))
                                                      for t in [k * math.pi / 2 / 16 for k in range(1, 17)]]]
        return side + [(1000 - x, y) for x, y in side[-2::-1]]
    return ink(outline(0)) + hole(outline(52)), (265, 260), (500, 445)


def medal():
    return ring(500, 400, 380, 42) + ring(500, 400, 318, 22), (230, 240), MIDDLE


def ribbon():
    tails = (ink([(20, 150), (120, 330), (20, 510), (235, 510), (235, 462), (105, 462), (176, 330), (105, 198), (235, 198),
                  (235, 150)]))
    tails += [[(1000 - x, y) for x, y in contour][::-1] for contour in tails]
    band = ink(box(200, 180, 800, 690)) + hole(box(246, 226, 754, 644))
    return band + tails, (200, 175), (500, 435)


def diamond():
    def outline(reach):
        return [(500, 400 + reach), (500 + reach, 400), (500, 400 - reach), (500 - reach, 400)]
    return ink(outline(420)) + hole(outline(350)), (170, 190), MIDDLE


def frame_of(key):
    if key.isupper():
        return shield
    if key.islower():
        return medal
    return ribbon if key.isdigit() else diamond


def lettered(source):
    """A pen's glyph for every key: its letter in a frame, all letters of a frame in one size."""
    kinds = {}
    for code in range(FIRST, LAST + 1):
        kinds.setdefault(frame_of(chr(code)), []).append(chr(code))
    scales = {frame: largest_scale(source, keys, *frame()[1]) for frame, keys in kinds.items()}
    for code in range(FIRST, LAST + 1):
        frame = frame_of(chr(code))
        shape, _, middle = frame()
        pen = TTGlyphPen(None)
        drawn(pen, shape)
        letter(pen, source, chr(code), scales[frame], middle)
        yield pen.glyph()


def trail_marks(source):
    figures = iter("0123456789")
    scale = largest_scale(source, "0123456789", 190, 230)
    for shape in trail.pictures():
        pen = TTGlyphPen(None)
        if shape is None:
            drawn(pen, ring(500, 400, 380, 60))
            letter(pen, source, next(figures), scale)
        else:
            drawn(pen, shape)
        yield pen.glyph()


# By their themes, each with a maker of its 94 glyphs from the source font.
FONTS = {"Letters": lettered, "Trail marks": trail_marks}


def built(theme, source, family, copyright_text):
    glyphs = list(FONTS[theme](source))
    if len(glyphs) != LAST - FIRST + 1:
        raise SystemExit(f"{theme}: {len(glyphs)} pictures")
    empty = TTGlyphPen(None).glyph()
    frame = TTGlyphPen(None)
    drawn(frame, ink(box(100, 0, 900, 800)) + hole(box(150, 50, 850, 750)))
    names = [".notdef", "space"] + [f"key{code}" for code in range(FIRST, LAST + 1)]
    builder = FontBuilder(EM, isTTF=True)
    builder.setupGlyphOrder(names)
    builder.setupCharacterMap({32: "space"} | {code: f"key{code}" for code in range(FIRST, LAST + 1)})
    builder.setupGlyf(dict(zip(names, [frame.glyph(), empty, *glyphs])))
    builder.setupHorizontalMetrics({name: (EM, 0) for name in names})
    table = builder.font["glyf"]
    builder.setupHorizontalMetrics({name: (EM, getattr(table[name], "xMin", 0) or 0) for name in names})
    builder.setupHorizontalHeader(ascent=ASCENT, descent=DESCENT)
    plain = family.replace(" ", "")
    builder.setupNameTable({"copyright": copyright_text, "familyName": family, "styleName": "Regular",
                            "uniqueFontIdentifier": f"{plain} 1.0", "fullName": family, "version": "Version 1.0",
                            "psName": plain})
    builder.setupOS2(sTypoAscender=ASCENT, sTypoDescender=DESCENT, usWinAscent=ASCENT, usWinDescent=-DESCENT, fsType=0,
                     usFirstCharIndex=32, usLastCharIndex=LAST)
    builder.setupPost(keepGlyphNames=False)
    builder.font["head"].created = builder.font["head"].modified = 3850000000
    builder.font.recalcTimestamp = False
    return builder.font
