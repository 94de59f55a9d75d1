"""Fields of numbers for textures: noise, cells, ramps of colour. All are the same at each run."""

import numpy


def grid(width, height):
    """The coordinates of the pixels' centres: x and y, in pixels."""
    y, x = numpy.mgrid[0:height, 0:width]
    return x + 0.5, y + 0.5


def noise(seed, x, y, period=256):
    """Smooth noise from 0 to 1 at the places x, y with knots one unit apart; repeats after `period` knots."""
    knots = numpy.random.default_rng(seed).random((period, period))
    left, top = numpy.floor(x).astype(int), numpy.floor(y).astype(int)
    u, v = x - left, y - top
    u, v = u * u * u * (u * (u * 6 - 15) + 10), v * v * v * (v * (v * 6 - 15) + 10)
    left, right, top, bottom = left % period, (left + 1) % period, top % period, (top + 1) % period
    upper = knots[top, left] * (1 - u) + knots[top, right] * u
    lower = knots[bottom, left] * (1 - u) + knots[bottom, right] * u
    return upper * (1 - v) + lower * v


def clouds(seed, x, y, octaves=5, roughness=0.5):
    """Noise upon finer noise, from 0 to 1 with its mean about a half."""
    total, weight, reach = 0.0, 1.0, 0.0
    for octave in range(octaves):
        total = total + weight * noise(seed + octave, x * 2**octave, y * 2**octave)
        reach += weight
        weight *= roughness
    return total / reach


def cells(seed, x, y, jitter=0.9):
    """Worley cells of about one unit: distances to the nearest and to the second nearest point, and a number
    from 0 to 1 that belongs to the nearest."""
    random = numpy.random.default_rng(seed).random((64, 64, 3))
    best = numpy.full(x.shape, 9.0)
    second = numpy.full(x.shape, 9.0)
    mark = numpy.zeros(x.shape)
    column, row = numpy.floor(x).astype(int), numpy.floor(y).astype(int)
    for down in (-1, 0, 1):
        for right in (-1, 0, 1):
            point = random[(row + down) % 64, (column + right) % 64]
            away_x = column + right + 0.5 + (point[..., 0] - 0.5) * jitter - x
            away_y = row + down + 0.5 + (point[..., 1] - 0.5) * jitter - y
            distance = numpy.hypot(away_x, away_y)
            nearer = distance < best
            second = numpy.where(nearer, best, numpy.minimum(second, distance))
            mark = numpy.where(nearer, point[..., 2], mark)
            best = numpy.where(nearer, distance, best)
    return best, second, mark


def ramp(values, *stops):
    """Colours for values: stops are (value, (red, green, blue)), straight between them."""
    at = [stop for stop, _ in stops]
    return numpy.stack([numpy.interp(values, at, [colour[k] for _, colour in stops]) for k in range(3)],
                       axis=-1)


def lit(height, strength, angle=(-0.7, -0.7)):
    """The light on a relief, 1 where it is flat; the lamp stands to the upper left unless told otherwise."""
    slope_y, slope_x = numpy.gradient(height)
    return 1 + strength * (slope_x * -angle[0] + slope_y * -angle[1])


def step(values, edge, softness):
    """0 below the edge and 1 above it, with a soft crossing."""
    t = numpy.clip((values - edge) / softness + 0.5, 0, 1)
    return t * t * (3 - 2 * t)


def mix(first, second, share):
    """Between two pictures or colours: 0 is the first, 1 the second."""
    share = numpy.asarray(share)[..., None]
    return numpy.asarray(first, float) * (1 - share) + numpy.asarray(second, float) * share


def scatter_discs(seed, width, height, count, least, most):
    """Places and radii of discs: arrays x, y, radius."""
    random = numpy.random.default_rng(seed)
    radius = least * (most / least) ** (random.random(count) ** 2)
    return random.random(count) * width, random.random(count) * height, radius
