#pragma once

#include "filters/filter_run.h"

#include <cstdint>

namespace coinlet {

// Filters in which a pixel's new colour depends on that pixel alone, or on one figure taken from the whole
// picture.

void FilterNegative(FilterRun& run);
void FilterGrayscale(FilterRun& run);
/// Multiplies each channel by 1 + percent / 100.
void FilterBrightness(FilterRun& run, std::int32_t percent);
/// `order` 1 to 5 is one of the other orders of red, green, blue: BRG, GBR, RBG, BGR, GRB. Another number
/// leaves the picture as it is.
void FilterSwapColours(FilterRun& run, std::int32_t order);
/// Moves each channel away from the picture's mean gray by so many percent of its distance. What a channel
/// can't hold goes to the other two, so that the hue stays.
void FilterContrast(FilterRun& run, std::int32_t percent);
/// Moves each channel away from the pixel's gray by so many percent of its distance.
void FilterSaturation(FilterRun& run, std::int32_t percent);
/// Stretches all channels so that the lowest green becomes 0 and the highest 255. A picture of one green
/// alone stays as it is.
void FilterStretch(FilterRun& run);
/// Raises each channel, as a part of 255, to 1 / (percent / 100). A percentage of 0 leaves the picture as it
/// is.
void FilterGamma(FilterRun& run, std::int32_t percent);

}  // namespace coinlet
