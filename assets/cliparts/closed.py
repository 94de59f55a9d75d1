"""Whether the regions of a clipart stay closed at all sizes that the program offers.

The program makes a clipart smaller by leaving out rows and columns. Where a line is too thin, two regions then
touch, and a fill runs from one into the other.
"""

import numpy

# The widths that the program's slider offers, every second one, and the height that goes with a width.
WIDTHS = range(110, 331, 2)
HEIGHT_TO_WIDTH = 1.09
# In pixels of the full size: a smaller region nobody fills.
SMALLEST_REGION = 60


def labelled(regions, shape):
    """A number for each pixel: 0 is ink, others tell the region. `regions` are lists of runs."""
    labels = numpy.zeros(shape, int)
    for number, region in enumerate(regions, 1):
        for y, start, end in region:
            labels[y, start:end] = number
    return labels


def taken(length, source):
    """Which rows or columns of the source a stretched copy takes."""
    return numpy.floor((numpy.arange(length) + 0.5) * source / length).astype(int)


def leaks(regions, shape):
    """Places (width, x, y at full size) where two regions run into each other, at most one for each two."""
    labels = labelled(regions, shape)
    large = {number for number, region in enumerate(regions, 1)
             if sum(end - start for _, start, end in region) > SMALLEST_REGION}
    found = {}
    for width in WIDTHS:
        rows, columns = taken(round(width * HEIGHT_TO_WIDTH), shape[0]), taken(width, shape[1])
        small = labels[numpy.ix_(rows, columns)]
        joined = {number: {number} for number in range(1, len(regions) + 1)}
        for first, second in ((small[:, :-1], small[:, 1:]), (small[:-1], small[1:])):
            touching = (first != second) & (first > 0) & (second > 0)
            for y, x in zip(*numpy.nonzero(touching)):
                group = joined[first[y, x]] | joined[second[y, x]]
                for number in group:
                    joined[number] = group
                together = tuple(sorted(group & large))
                if len(together) > 1:
                    found.setdefault(together, (width, int(columns[x]), int(rows[y])))
    return list(found.values())
