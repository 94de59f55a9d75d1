#pragma once

#include "filters/filter_table.h"
#include "filters/pixel_array.h"

#include <functional>

namespace coinlet::bench {

/// The nearest that an image library has to a filter with that parameter, from one picture to the other, both
/// of one size that lives as long as the function; on one core. Nothing if it has nothing near, or if there
/// is no library.
std::function<void()> PeerFilter(FilterNumber number, std::int32_t parameter, const PixelArray& from,
                                 PixelArray& to);

}  // namespace coinlet::bench
