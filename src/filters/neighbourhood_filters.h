#pragma once

#include "filters/filter_run.h"
#include "surface/colour.h"

#include <cstdint>

namespace coinlet {

// Small convolutions and edge finders. Those that work in place see, to the left and above, what they have
// just written, so that their effect runs on towards the lower right. The pixels of the border stay as they
// are; a filter that takes a divisor from its parameter leaves the whole picture if that is 0.

/// (34 v - 2 ring) / 18 with the usual parameter of 10; a larger one is gentler. In place.
void FilterSharpen(FilterRun& run, std::int32_t softness);
/// The mean of the eight pixels around. In place.
void FilterBlur(FilterRun& run);
/// The mean of a pixel and its four nearest. In place.
void FilterSmooth(FilterRun& run);
/// (10 v - ring) / 2 with the usual parameter of 1; a larger one is gentler. In place.
void FilterEdge(FilterRun& run, std::int32_t softness);
/// Edges on a ground of `ground`: on white, dark lines.
void FilterContour(FilterRun& run, Colour ground);
/// A relief in half the contrast, lit from the upper left.
void FilterRelief(FilterRun& run);
/// Differences to the pixel at the lower right, or from it, on a ground of `ground`. They leave the last row
/// and the last column.
void FilterDiagonalBack(FilterRun& run, Colour ground);
void FilterDiagonalForward(FilterRun& run, Colour ground);
/// Differences from left to right over three rows, or from right to left, on a ground of `ground`.
void FilterGradientBack(FilterRun& run, Colour ground);
void FilterGradientForward(FilterRun& run, Colour ground);

}  // namespace coinlet
