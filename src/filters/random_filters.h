#pragma once

#include "filters/filter_run.h"

#include <cstdint>

namespace coinlet {

// Filters that throw dice.

/// Takes each pixel from up to half of `reach` pixels away, in place, so that colours can travel on.
void FilterDefuse(FilterRun& run, std::int32_t reach);
/// Adds up to `strength` to each channel or takes it away, each for itself.
void FilterAddNoise(FilterRun& run, std::int32_t strength);

}  // namespace coinlet
