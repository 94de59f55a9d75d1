#pragma once

#include "filters/filter_run.h"

#include <cstdint>

namespace coinlet {

// Filters that look at whole blocks of the untouched picture, each channel by itself.

/// Blocks of `side` by `side` pixels in their mean colour, from the upper left corner on; those at the right
/// and bottom edges are what is left. A side below 1 leaves the picture as it is.
void FilterPixelize(FilterRun& run, std::int32_t side);
/// The lowest, and the highest, of the 3 by 3 pixels around each but those of the border.
void FilterErode(FilterRun& run);
void FilterDilate(FilterRun& run);
/// A channel less the lowest of the 3 by 3 around it: black where the picture is flat.
void FilterConnection(FilterRun& run);
/// Flat areas with sharp edges, after Kuwahara: each channel takes the mean of that one of the four 3 by 3
/// blocks with a corner in it whose values differ least. Leaves a border of two pixels.
void FilterAquarel(FilterRun& run);

}  // namespace coinlet
