"""Textures of man-made things: walls, cloth, metal, paper, patterns."""

import math

import numpy

from images.natural import PINE, grain
from kit.fields import cells, clouds, grid, lit, mix, noise, ramp, step


def brick_wall():
    x, y = grid(500, 500)
    wide, high, joint = 100, 38, 5
    row = numpy.floor(y / high).astype(int)
    along = x + row % 2 * wide / 2
    column = numpy.floor(along / wide).astype(int)
    rough = clouds(5, x / 9, y / 9, 4)
    inside = numpy.minimum(numpy.minimum(along % wide, wide - along % wide),
                           numpy.minimum(y % high, high - y % high))
    face = step(inside + 2.4 * (rough - 0.5), joint / 2 + 0.6, 1.8)
    tone = numpy.random.default_rng(6).random((20, 20))[row, column % 20]
    colour = ramp(tone, (0, (118, 44, 32)), (0.5, (158, 66, 46)), (1, (188, 96, 66)))
    colour *= 0.72 + 0.56 * rough[..., None]
    mortar = numpy.array([188, 180, 166]) * (0.78 + 0.4 * clouds(7, x / 4, y / 4, 3)[..., None])
    return mix(mortar, colour, face) * lit(face * 5 + 3 * rough, 0.16)[..., None]


def leather():
    x, y = grid(400, 400)
    x, y = x + 9 * clouds(11, x / 40, y / 40, 3), y + 9 * clouds(12, x / 40, y / 40, 3)
    near, far, mark = cells(13, x / 15, y / 15)
    height = 5 * numpy.minimum(far - near, 0.45) + 3 * clouds(14, x / 60, y / 60)
    height += 0.7 * clouds(15, x / 3, y / 3, 2)
    hide = ramp(clouds(16, x / 120, y / 120), (0.3, (98, 52, 24)), (0.7, (134, 76, 38)))
    return hide * lit(height, 0.55)[..., None]


def camouflage():
    x, y = grid(500, 500)
    picture = numpy.broadcast_to(numpy.array([146, 138, 98], float), (500, 500, 3))
    for seed, edge, colour in ((21, 0.5, (84, 96, 56)), (22, 0.55, (92, 70, 44)), (23, 0.6, (38, 42, 32))):
        patch = clouds(seed, x / 95, y / 62, 4, 0.4)
        picture = mix(picture, colour, step(patch, edge, 0.006))
    return picture * (0.95 + 0.1 * ((x.astype(int) + y.astype(int)) % 3 == 0))[..., None]


SETT = [(150, 16, 30), (150, 16, 30), (16, 34, 74), (16, 78, 52), (240, 236, 222), (16, 78, 52), (16, 34, 74)]
WIDTHS = [34, 34, 26, 22, 5, 22, 26]


def tartan():
    x, y = grid(400, 400)
    threads = numpy.repeat(numpy.array(SETT, float), WIDTHS, axis=0)
    across, down = x.astype(int), y.astype(int)
    over = ((across // 2 + down // 2) % 4 < 2)[..., None]
    cloth = numpy.where(over, threads[across % len(threads)], threads[down % len(threads)])
    return cloth * (0.9 + 0.2 * noise(31, x / 1.5, y / 1.5))[..., None]


def denim():
    x, y = grid(400, 400)
    twill = 0.5 + 0.5 * numpy.sin((x + y) * math.pi / 2.4)
    thread = clouds(41, x / 1.4, y / 14, 3)
    light = 0.4 * twill + 0.6 * thread + 0.4 * (clouds(42, x / 90, y / 90) - 0.5)
    return ramp(light, (0.1, (22, 38, 78)), (0.5, (52, 82, 134)), (0.9, (150, 176, 208)))


def linen():
    x, y = grid(400, 400)
    warp, weft = numpy.abs(numpy.sin(x * math.pi / 5)), numpy.abs(numpy.sin(y * math.pi / 5))
    over = (x // 5 + y // 5) % 2 == 0
    light = numpy.where(over, 0.55 + 0.45 * warp * clouds(51, x / 2, y / 30, 2) * 2,
                        0.55 + 0.45 * weft * clouds(52, x / 30, y / 2, 2) * 2)
    return numpy.array([222, 208, 180]) * (0.5 + 0.5 * light[..., None])


def carbon_fibre():
    x, y = grid(400, 400)
    tow = 20
    column, row = numpy.floor(x / tow).astype(int), numpy.floor(y / tow).astype(int)
    upright = (column + row) % 4 < 2
    across = numpy.where(upright, x, y) % tow / tow
    along = numpy.where(upright, (y + (column % 4) * tow), (x + (row % 4) * tow))
    curve = numpy.sin(numpy.where(upright, y, x) % (2 * tow) / (2 * tow) * math.pi)
    fibre = noise(61, numpy.where(upright, x, y) / 1.1, along / 60)
    light = (0.16 + 0.34 * curve * numpy.where(upright, 1, 0.7)) * (0.72 + 0.42 * fibre)
    light *= 0.55 + 0.6 * numpy.sin(across * math.pi)
    return 255 * light[..., None] * numpy.array([0.92, 0.96, 1.0])


def hexagon_mesh():
    """Perforated sheet metal: holes in the shape of a honeycomb."""
    x, y = grid(400, 400)
    step_x, step_y = 34.0, 34.0 * math.sqrt(3) / 2
    best = numpy.full(x.shape, 99.0)
    for shift in (0, 1):
        u = (x - shift * step_x / 2 + step_x / 2) % step_x - step_x / 2
        v = (y - shift * step_y + step_y) % (2 * step_y) - step_y
        best = numpy.minimum(best, numpy.maximum(numpy.abs(u),
                                                 numpy.abs(u) / 2 + numpy.abs(v) * math.sqrt(3) / 2))
    hole = step(13.4 - best, 0, 1.2)
    bevel = step(15.5 - best, 0, 3)
    light = (0.86 + 0.3 * (x + y) / 800) * lit(-bevel * 5, 0.28)
    sheet = numpy.array([158, 164, 172]) * light[..., None]
    return mix(sheet * (0.95 + 0.1 * noise(72, x / 40, y / 1.2))[..., None], (20, 22, 26), hole)


def brushed_metal():
    x, y = grid(500, 375)
    scratches = clouds(81, x / 120, y / 0.9, 3) - 0.5
    light = 0.62 + 0.22 * numpy.sin(x / 500 * 2.2 * math.pi + 0.6) + 0.26 * scratches
    return ramp(light, (0, (70, 74, 80)), (0.6, (170, 174, 180)), (1, (238, 240, 244)))


def rust():
    x, y = grid(400, 400)
    bloom = clouds(91, x / 80, y / 80, 6, 0.58)
    fine = clouds(92, x / 7, y / 7, 4)
    picture = ramp(bloom + 0.3 * (fine - 0.5), (0.25, (64, 34, 24)), (0.45, (124, 58, 26)),
                   (0.58, (178, 92, 36)), (0.72, (120, 110, 104)), (0.85, (146, 142, 140)))
    return picture * lit(bloom * 24 + fine * 5, 0.16)[..., None]


def parchment():
    x, y = grid(500, 375)
    stain = clouds(101, x / 130, y / 130, 6)
    edge = numpy.minimum(numpy.minimum(x, 500 - x), numpy.minimum(y, 375 - y))
    edge += 36 * clouds(102, x / 40, y / 40, 4)
    picture = ramp(stain, (0.3, (214, 182, 126)), (0.5, (236, 212, 164)), (0.75, (248, 232, 196)))
    picture = mix(picture, (112, 70, 30), 0.75 * numpy.exp(-numpy.maximum(edge - 14, 0) / 18))
    return picture * (0.96 + 0.08 * clouds(103, x / 3, y / 3, 2))[..., None]


def cork():
    x, y = grid(400, 400)
    near, far, mark = cells(111, x / 9 + 1.2 * clouds(112, x / 20, y / 20, 2), y / 9)
    picture = ramp(mark, (0, (128, 80, 44)), (0.3, (184, 130, 80)), (1, (216, 166, 110)))
    dark = step(clouds(113, x / 6, y / 6, 2), 0.7, 0.08)
    return mix(picture, (74, 42, 24), 0.8 * dark) * (0.85 + 0.3 * step(far - near, 0.08, 0.16))[..., None]


def checker():
    x, y = grid(160, 160)
    return mix((0, 0, 0), (255, 255, 255), ((x // 20 + y // 20) % 2 == 0).astype(float))


def dots():
    x, y = grid(160, 160)
    away = numpy.minimum(numpy.hypot(x % 40 - 20, y % 40 - 20),
                         numpy.hypot((x + 20) % 40 - 20, (y + 20) % 40 - 20))
    return mix((206, 32, 48), (255, 255, 255), step(9 - away, 0, 1.2))


def stripes():
    x, y = grid(160, 160)
    return mix((28, 60, 130), (255, 255, 255), step(numpy.abs((x + y) % 40 - 20), 10, 1.4))


def rainbow():
    x, y = grid(500, 300)
    band = (numpy.hypot(x - 250, y - 330) - 150) / 150
    sky = ramp(y / 300, (0, (92, 160, 226)), (1, (206, 232, 250)))
    hue = ramp(band, (0, (126, 60, 170)), (0.17, (62, 70, 190)), (0.33, (40, 150, 220)), (0.5, (70, 180, 80)),
               (0.67, (250, 220, 60)), (0.83, (250, 150, 40)), (1, (226, 50, 50)))
    cover = step(band, 0.0, 0.08) * step(1 - band, 0.0, 0.08)
    return mix(sky, hue, cover * 0.9)


def spectrum():
    """All hues across, from light at the top to dark at the bottom."""
    x, y = grid(175, 175)
    turn = x / 175 * 6
    channels = [numpy.clip(numpy.abs((turn + shift) % 6 - 3) - 1, 0, 1) for shift in (0, 4, 2)]
    hue = numpy.stack(channels, axis=-1) * 255
    down = y / 175
    picture = mix((255, 255, 255), hue, numpy.clip(down * 2, 0, 1))
    return mix(picture, (0, 0, 0), numpy.clip(down * 2 - 1, 0, 1))


def water_drops():
    """Drops on a cold pane."""
    x, y = grid(400, 400)
    picture = ramp((x + y) / 800, (0, (70, 120, 160)), (1, (24, 54, 90)))
    random = numpy.random.default_rng(171)
    placed = []
    for size in sorted(random.uniform(3, 24, 900), reverse=True):
        a, b = random.uniform(0, 400, 2)
        if any(math.hypot(a - p, b - q) < size + r + 2 for p, q, r in placed):
            continue
        placed.append((a, b, size))
        u, v = (x - a) / size, (y - b) / size
        away = numpy.hypot(u, v)
        cover = step(1 - away, 0, 1.5 / size)
        body = 0.8 + 0.55 * (u + v) * 0.7
        shine = numpy.exp(-(((u + 0.42) ** 2 + (v + 0.42) ** 2) / 0.045))
        drop = picture * body[..., None] + 34 * step(away, 0.2, 1)[..., None]
        shadow = 0.3 * step(1.25 - numpy.hypot(u - 0.14, v - 0.14), 0.1, 0.35) * (1 - cover)
        picture = mix(picture * (1 - shadow)[..., None], mix(drop, (255, 255, 255), shine), cover)
    return picture


def parquet():
    x, y = grid(480, 480)
    side, strips = 96, 4
    column, row = (x // side).astype(int), (y // side).astype(int)
    upright = (column + row) % 2 == 0
    along, across = numpy.where(upright, y, x), numpy.where(upright, x, y)
    strip = (across // (side / strips)).astype(int)
    number = strip * 7 + (along // side).astype(int) * 131
    shade = numpy.random.default_rng(181).normal(1, 0.09, 4096)[number % 4096]
    picture = grain(182, along + number * 91.0, across + number * 17.0, PINE) * shade[..., None]
    edge = numpy.minimum(across % (side / strips), side / strips - across % (side / strips))
    end = numpy.minimum(along % side, side - along % side)
    return picture * (0.4 + 0.6 * step(numpy.minimum(edge, end), 1, 1.6))[..., None]
