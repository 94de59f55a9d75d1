#include "filters/mean_gray.h"

#include "filters/channels.h"

namespace coinlet {

int MeanGray(const PixelArray& picture) {
    const auto bytes = picture.Bytes();
    if (bytes.empty()) return 0;
    std::uint64_t sum = 0;
    for (int y = 0; y < picture.Height(); ++y) {
        const std::uint8_t* row = picture.Row(y);
        std::uint32_t rowSum = 0;  // 16,384 values of 255 fit.
        for (int i = 0; i < picture.Width() * pixelBytes; i += pixelBytes)
            rowSum += static_cast<std::uint32_t>(Gray(row + i));
        sum += rowSum;
    }
    return static_cast<int>(sum / (bytes.size() / pixelBytes));
}

}  // namespace coinlet
