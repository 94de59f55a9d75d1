#pragma once

#include "filters/filter_run.h"
#include "surface/colour.h"

#include <cstdint>

namespace coinlet {

// Filters that leave pure black and white.

/// Black where red, green and blue are all below those of `limit`.
void FilterThreshold(FilterRun& run, Colour limit);
/// A sharpened error diffusion along the rows.
void FilterSharpDither(FilterRun& run);
/// A screen of 4 by 4 pixels.
void FilterOrderedDither(FilterRun& run);

// Error diffusion with the picture's mean gray as the threshold. What reaches a pixel counts 10 / damping; 0
// leaves the picture as it is.

void FilterFloydDither(FilterRun& run, std::int32_t damping);
void FilterBurkesDither(FilterRun& run, std::int32_t damping);
void FilterStuckiDither(FilterRun& run, std::int32_t damping);

}  // namespace coinlet
