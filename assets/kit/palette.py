"""A palette in which small things keep their colours."""

import numpy
from PIL import Image

WHITE, BLACK = 255, 254


def few_colours(picture, exact=0):
    """The picture (RGB) with 256 colours, exact black and white among them; nothing but white
    becomes white. A colour counts by the square root of its pixels, so that a red dot is not given up for one
    more gray of the large faces. So many of the most frequent colours stay `exact`, where large faces must keep
    their hue."""
    colours, place, counts = numpy.unique(numpy.asarray(picture).reshape(-1, 3), axis=0, return_inverse=True,
                                          return_counts=True)
    sample = numpy.repeat(colours, numpy.ceil(numpy.sqrt(counts)).astype(int), axis=0)
    strip = Image.fromarray(sample[None].astype("uint8"))
    kept = colours[numpy.argsort(-counts, kind="stable")[:exact]].flatten().tolist()
    chosen = strip.quantize(BLACK - exact, method=Image.Quantize.MEDIANCUT, kmeans=4).getpalette()
    chosen = kept + chosen[: (BLACK - exact) * 3]
    palette = numpy.array(chosen + [0] * (BLACK * 3 - len(chosen)) + [0, 0, 0, 255, 255, 255]).reshape(256, 3)
    distance = ((colours[:, None].astype(int) - palette[None]) ** 2).sum(axis=2)
    white = (colours == 255).all(axis=1)
    distance[~white, WHITE] = distance.max() + 1
    index = distance.argmin(axis=1)
    index[(colours == 0).all(axis=1)] = BLACK
    indexed = Image.fromarray(index[place].reshape(picture.height, picture.width).astype("uint8"), "P")
    indexed.putpalette(palette.flatten().tolist())
    return indexed
