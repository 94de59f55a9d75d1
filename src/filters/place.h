#pragma once

#include "filters/pixel_array.h"

#include <cstdint>

namespace coinlet {

/// One channel with those above and below it; its neighbours lie a pixel further on.
struct Place {
    const std::uint8_t *above, *here, *below;

    /// Row and column count from the place itself: -1, 0 or 1.
    int At(int column, int row) const {
        return (row < 0 ? above : row > 0 ? below : here)[column * pixelBytes];
    }
    /// The sum of the eight around.
    int Ring() const {
        return At(-1, -1) + At(0, -1) + At(1, -1) + At(-1, 0) + At(1, 0) + At(-1, 1) + At(0, 1) + At(1, 1);
    }
    /// How much brighter the left side is than the right one, over three rows.
    int Slope() const { return At(-1, -1) - At(1, -1) + At(-1, 0) - At(1, 0) + At(-1, 1) - At(1, 1); }
};

}  // namespace coinlet
