#pragma once

#include "filters/pixel_words.h"

namespace coinlet {

/// The sum of all gray values divided by the number of pixels, cut off; 0 if there are none. Built for the
/// units of the filter that calls it.
inline int MeanGray(const PixelArray& picture) {
    const auto pixels =
        static_cast<std::uint64_t>(picture.Width()) * static_cast<std::uint64_t>(picture.Height());
    if (pixels == 0) return 0;
    const int width = picture.Width();
    std::uint64_t sum = 0;
    for (int y = 0; y < picture.Height(); ++y) {
        const std::uint8_t* row = picture.Row(y);
        std::uint32_t rowSum = 0;  // 65,535 values of 255 fit.
        for (int x = 0; x < width; ++x)
            rowSum += GrayOf(PixelAt(row, x));
        sum += rowSum;
    }
    return static_cast<int>(sum / pixels);
}

}  // namespace coinlet
