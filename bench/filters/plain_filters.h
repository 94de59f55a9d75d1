#pragma once

#include "base/random.h"
#include "filters/filter_table.h"
#include "filters/pixel_array.h"

namespace coinlet::bench {

/// The same result as the filter of that number, by its rule written down without any thought of speed: one
/// pixel after the other, one channel after the other. `work` is a copy of `source` at first.
void PlainFilter(FilterNumber number, std::int32_t parameter, PixelArray& work, const PixelArray& source,
                 RandomGenerator& random);

}  // namespace coinlet::bench
