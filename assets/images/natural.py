"""Textures of nature: wood, stone, water, sky, plants, skins. Each is a function that gives red, green and
blue of 0 to 255 as an array."""

import numpy

from kit.fields import cells, clouds, grid, lit, mix, noise, ramp, scatter_discs, step


def grain(seed, x, y, hue):
    """Wood along x: rings drawn out, fine fibres, pores."""
    bend = 26 * clouds(seed, x / 240, y / 70, 3)
    rings = 0.5 + 0.5 * numpy.sin((y * 0.32 + bend) * 0.9)
    fibre = clouds(seed + 11, x / 60, y / 1.6, 3)
    pore = step(noise(seed + 19, x / 22, y / 1.1), 0.8, 0.2)
    light = 0.62 + 0.3 * rings * clouds(seed + 5, x / 90, y / 40, 2) + 0.34 * (fibre - 0.5) - 0.14 * pore
    return ramp(light, (0.3, hue[0]), (0.65, hue[1]), (1.0, hue[2]))


PINE = ((120, 66, 28), (198, 136, 74), (242, 200, 138))
WALNUT = ((40, 22, 12), (96, 58, 34), (156, 106, 68))


def planks(seed, width, height, board, hue):
    x, y = grid(width, height)
    number = numpy.floor(y / board).astype(int)
    shade = numpy.random.default_rng(seed).normal(1, 0.07, number.max() + 1)
    picture = grain(seed, x + number * 331.0, y + number * 57.0, hue) * shade[number][..., None]
    edge = numpy.minimum(y % board, board - y % board)
    return picture * (0.25 + 0.75 * step(edge, 1.6, 2.6))[..., None]


def wood():
    return planks(31, 500, 500, 84, PINE)


def walnut():
    return grain(47, *grid(400, 300), WALNUT)


def granite():
    x, y = grid(400, 400)
    _, _, mark = cells(3, x / 5, y / 5)
    _, _, fine = cells(4, x / 2.4, y / 2.4)
    light = 0.55 * mark + 0.45 * fine + 0.25 * (clouds(9, x / 50, y / 50) - 0.5)
    return ramp(light, (0.1, (52, 46, 48)), (0.3, (120, 108, 108)), (0.6, (176, 160, 156)),
                (0.95, (226, 212, 206)))


def marble():
    x, y = grid(500, 500)
    warp = 170 * clouds(21, x / 150, y / 150, 5)
    vein = numpy.abs(numpy.sin((x * 0.5 + y * 0.8 + warp * 1.7) / 60))
    fine = numpy.abs(clouds(28, x / 90 + warp / 60, y / 90, 5) - 0.5) * 2
    dark = 0.62 * (1 - vein**0.35) + 0.3 * (1 - fine**0.4)
    return ramp(dark, (0.0, (246, 245, 242)), (0.25, (226, 226, 226)), (0.6, (150, 152, 158)),
                (1, (84, 88, 96)))


def stones(seed, scale, joint):
    """A wall of rounded stones: their faces and the depth of the joints."""
    x, y = grid(500, 500)
    wave = 0.16 * clouds(seed, x / 30, y / 30, 3)
    near, far, mark = cells(seed + 7, x / scale + wave, y / scale * 1.25 + wave, 0.8)
    face = step(far - near, joint, joint)
    rough = clouds(seed + 3, x / 26, y / 26, 5)
    height = face * (14 + 14 * numpy.minimum(far - near, 0.6)) + 9 * rough
    return face, mark, rough, lit(height, 0.14)


def stone_wall():
    face, mark, rough, light = stones(61, 76, 0.09)
    tone = 0.3 + 0.4 * mark + 0.5 * (rough - 0.5)
    picture = ramp(tone, (0, (84, 80, 74)), (0.35, (134, 126, 114)), (0.7, (172, 164, 150)),
                   (1, (204, 198, 186)))
    return mix(numpy.array([66, 60, 54]) * (0.6 + 0.8 * rough[..., None]), picture, face) * light[..., None]


def water():
    x, y = grid(500, 500)
    x, y = x + 22 * clouds(5, x / 90, y / 90, 3), y + 22 * clouds(15, x / 90, y / 90, 3)
    near, far, _ = cells(12, x / 74, y / 56)
    close, apart, _ = cells(13, x / 40 + 7, y / 31)
    light = numpy.exp(-9 * (far - near)) + 0.45 * numpy.exp(-9 * (apart - close))
    depth = clouds(25, x / 200, y / 200, 3)
    picture = ramp(depth, (0.3, (10, 96, 156)), (0.7, (40, 158, 200)))
    return mix(picture, (226, 250, 252), numpy.clip(light, 0, 1) * 0.8)


def sea():
    """Open water towards the horizon, with the sun's glitter."""
    x, y = grid(500, 375)
    depth = (y + 100) / 475
    swell = clouds(71, (x - 250) / depth / 70 + 60, 22 / depth, 5, 0.55)
    light = lit(swell * 40 * depth, 0.5, (-0.25, -0.9)) - 1 + 0.8 * (swell - 0.5)
    picture = ramp(light, (-0.7, (4, 34, 70)), (0, (20, 92, 142)), (0.45, (84, 162, 196)),
                   (1.1, (236, 248, 250)))
    return mix(picture, (150, 196, 220), 0.6 * step(0.5 - depth, 0.1, 0.5))


def starry_sky():
    x, y = grid(500, 500)
    band = numpy.exp(-(((x * 0.6 + y * 0.8 - 330) / 120) ** 2))
    haze = band * clouds(83, x / 110, y / 110, 5) ** 2
    picture = ramp(y / 500, (0, (6, 8, 28)), (1, (20, 26, 66)))
    picture += haze[..., None] * numpy.array([104, 94, 130])
    random = numpy.random.default_rng(84)
    for place_x, place_y, size in zip(*scatter_discs(85, 500, 500, 900, 0.45, 2.3)):
        tint = numpy.array([1, 1, 1]) + random.normal(0, 0.09, 3)
        left, top = max(int(place_x) - 9, 0), max(int(place_y) - 9, 0)
        part = numpy.s_[top : top + 19, left : left + 19]
        distance = numpy.hypot(x[part] - place_x, y[part] - place_y)
        glow = numpy.exp(-((distance / size) ** 2)) + 0.28 * numpy.exp(-distance / size) * (size > 1.2)
        picture[part] += 250 * min(1, 0.35 + size / 2) * glow[..., None] * tint
    return picture


def galaxy():
    x, y = grid(500, 500)
    a, b = clouds(91, x / 140, y / 140, 6), clouds(92, x / 110 + 40, y / 110, 6)
    c = clouds(93, x / 170, y / 170 + 9, 6)
    cloud = step(a, 0.52, 0.34)[..., None] * numpy.array([150, 44, 150])
    cloud += step(b, 0.54, 0.3)[..., None] * numpy.array([20, 96, 190])
    cloud += step(c, 0.6, 0.22)[..., None] * numpy.array([250, 150, 110])
    picture = numpy.array([8, 8, 24]) + cloud * clouds(94, x / 40, y / 40, 5)[..., None]
    random = numpy.random.default_rng(95)
    for place_x, place_y, size in zip(*scatter_discs(96, 500, 500, 500, 0.45, 2.0)):
        left, top = max(int(place_x) - 8, 0), max(int(place_y) - 8, 0)
        part = numpy.s_[top : top + 17, left : left + 17]
        distance = numpy.hypot(x[part] - place_x, y[part] - place_y)
        picture[part] += (random.uniform(90, 255) * numpy.exp(-((distance / size) ** 2)))[..., None]
    return picture


def sunset():
    x, y = grid(500, 375)
    sky = ramp(y / 375, (0, (40, 34, 96)), (0.25, (136, 56, 120)), (0.42, (236, 98, 76)),
               (0.56, (255, 170, 72)), (0.64, (255, 222, 130)))
    away = numpy.hypot(x - 250, y - 214)
    streak = step(clouds(103, x / 190, y / 16, 5), 0.56, 0.2) * step(250 - y, 40, 160)
    sky = mix(sky, (92, 40, 92), 0.62 * streak)
    sky = mix(sky, (255, 250, 214), numpy.exp(-away / 60) * 0.8)
    sky = mix(sky, (255, 252, 226), step(36 - away, 0, 2))
    depth = numpy.clip((y - 240) / 135, 0, 1)
    swell = clouds(104, (x - 250) / (12 + 60 * depth), 24 / (0.12 + depth), 4)
    path = numpy.exp(-(((x - 250) / (26 + 90 * depth)) ** 2)) * step(swell, 0.5, 0.2)
    water = mix(ramp(depth, (0, (190, 84, 84)), (1, (38, 26, 70))) * (0.75 + 0.5 * swell[..., None]),
                (255, 214, 130), path * 0.9)
    return mix(sky, water, step(y, 240, 1))


def cloudy_sky():
    x, y = grid(500, 375)
    shape, above = (clouds(119, x / 170, (y - down) / 100, 6, 0.5) for down in (0, 26))
    cover = step(shape, 0.5, 0.2)
    shade = numpy.clip(0.97 + 1.3 * (shape - above) - 0.5 * numpy.maximum(shape - 0.6, 0), 0.78, 1)
    sky = ramp(y / 375, (0, (38, 104, 190)), (1, (154, 204, 240)))
    return mix(sky, numpy.array([252, 252, 254]) * shade[..., None], cover)


def grass():
    """Blades of grass, one over another, the front ones lighter."""
    random = numpy.random.default_rng(121)
    picture = numpy.full((400, 400, 3), (22, 52, 16), float)
    for blade in range(5200):
        root_x, root_y = random.uniform(-20, 420), random.uniform(0, 470)
        long, lean, curl = random.uniform(28, 64), random.normal(0, 0.26), random.normal(0, 0.4)
        light = 0.45 + 0.55 * blade / 5200 + random.normal(0, 0.1)
        tint = random.uniform((60, 140, 26), (130, 190, 54)) * light
        t = numpy.linspace(0, 1, int(long * 1.4))
        x, y = root_x + long * (lean * t + curl * t * t * 0.5), root_y - long * t
        for across in (-1, 0, 1):
            within = (x + across >= 0) & (x + across < 399) & (y >= 0) & (y < 399)
            kept = within & (abs(across) < 1.9 * (1 - t))
            shade = (0.65 + 0.5 * t[kept]) * (1.1 if across < 0 else 0.9 if across else 1)
            picture[y[kept].astype(int), (x[kept] + across).astype(int)] = tint * shade[:, None]
    return picture


def sand():
    x, y = grid(400, 400)
    ripple = numpy.sin((y + 34 * clouds(131, x / 110, y / 110, 3)) / 5.2 + x / 60)
    fine = clouds(132, x / 2, y / 2, 2)
    light = lit(ripple * 1.6 + 2.4 * fine, 0.16, (-0.4, -0.9))
    light *= 0.9 + 0.2 * clouds(133, x / 80, y / 80)
    return numpy.array([222, 188, 132]) * light[..., None]


def lava():
    x, y = grid(400, 400)
    x, y = x + 26 * clouds(141, x / 60, y / 60, 4), y + 26 * clouds(142, x / 60, y / 60, 4)
    near, far, mark = cells(143, x / 72, y / 72)
    heat = numpy.exp(-7 * (far - near)) + 0.2 * clouds(144, x / 40, y / 40, 4) - 0.08
    crust = 0.6 + 0.8 * clouds(145, x / 14, y / 14, 4)
    glow = ramp(heat, (0.1, (26, 16, 16)), (0.3, (110, 12, 6)), (0.5, (226, 60, 8)), (0.75, (255, 166, 24)),
                (1, (255, 244, 160)))
    return numpy.where((heat < 0.24)[..., None], glow * crust[..., None], glow)


def leopard():
    x, y = grid(400, 400)
    wave_x, wave_y = x + 14 * clouds(151, x / 34, y / 34, 3), y + 14 * clouds(152, x / 34, y / 34, 3)
    near, far, mark = cells(153, wave_x / 52, wave_y / 44, 0.7)
    gap = clouds(154, x / 13, y / 13, 2)
    rosette = step(near, 0.19, 0.05) * step(0.36 - near, 0, 0.07) * step(gap, 0.42, 0.1)
    coat = ramp(clouds(155, x / 70, y / 70), (0.3, (206, 146, 74)), (0.7, (238, 190, 112)))
    coat = mix(coat, (190, 112, 44), step(0.27 - near, 0, 0.14) * 0.7)
    hair = 0.88 + 0.24 * clouds(156, x / 2.2, y / 9, 2)
    return mix(coat, (38, 24, 16), rosette) * hair[..., None]


def zebra():
    """Upright stripes that swing together; where one forks, its phase winds once round the fork."""
    x, y = grid(400, 400)
    phase = (x + 0.16 * y + 90 * clouds(161, x / 260, y / 300, 2) + 9 * clouds(164, x / 60, y / 45, 2)) / 7.4
    for fork_x, fork_y, sense in ((84, 120, 1), (150, 290, -1), (214, 90, -1), (262, 236, 1), (330, 140, 1),
                                  (352, 320, -1), (40, 300, 1)):
        phase = phase + sense * numpy.arctan2(fork_x - x, y - fork_y)
    width = 0.05 + 0.5 * (clouds(162, x / 120, y / 120, 2) - 0.5)
    hair = 0.9 + 0.2 * clouds(163, x / 2.2, y / 9, 2)
    coat = mix((24, 20, 20), (244, 239, 230), step(numpy.sin(phase), width, 0.32))
    return coat * hair[..., None]


def moon_ground():
    x, y = grid(400, 400)
    height = 26 * clouds(171, x / 120, y / 120, 6)
    for place_x, place_y, radius in zip(*scatter_discs(172, 400, 400, 170, 3, 46)):
        away = numpy.hypot(x - place_x, y - place_y) / radius
        bowl = numpy.minimum(away**2 - 1, 0) * 0.36 + 0.16 * numpy.exp(-(((away - 1) / 0.22) ** 2))
        height = height * (1 - 0.6 * step(1 - away, 0.1, 0.4)) + radius * bowl
    light = lit(height, 0.42)
    light *= 0.9 + 0.2 * clouds(173, x / 40, y / 40)
    return numpy.array([146, 144, 140]) * numpy.clip(light, 0.08, 1.7)[..., None]
