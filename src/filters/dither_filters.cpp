#include "filters/dither_filters.h"

#include "filters/channels.h"
#include "filters/mean_gray.h"

#include <array>
#include <cstddef>

namespace coinlet {

namespace {

void Put(std::uint8_t* pixel, int value) {
    pixel[0] = pixel[1] = pixel[2] = static_cast<std::uint8_t>(value);
}

/// The channels of a pixel inside the picture, sharpened: (10 v - ring) / 2.
int SharpenedSum(const PixelArray& picture, int x, int y) {
    int sum = 0;
    for (int channel = 0; channel < colourChannels; ++channel) {
        const int i = x * pixelBytes + channel;
        int block = 0;
        for (const int row : {y - 1, y, y + 1}) {
            const std::uint8_t* at = picture.Row(row) + i;
            block += at[-pixelBytes] + at[0] + at[pixelBytes];
        }
        const int value = picture.Row(y)[i];
        sum += ClampToByte((11 * value - block) / 2);
    }
    return sum;
}

}  // namespace

void FilterThreshold(FilterRun& run, Colour limit) {
    const auto [red, green, blue] = SplitColor(limit);
    for (int y = 0; y < run.Height(); ++y) {
        const std::uint8_t* from = run.source.Row(y);
        std::uint8_t* to = run.work.Row(y);
        for (int i = 0; i < run.Width() * pixelBytes; i += pixelBytes) {
            const bool below = from[i] < blue && from[i + 1] < green && from[i + 2] < red;
            Put(to + i, below ? 0 : 255);
        }
        run.RowDone(y);
    }
}

void FilterSharpDither(FilterRun& run) {
    constexpr int meanTaken = 5;
    const int width = run.Width(), height = run.Height();
    const int threshold = MeanGray(run.source);
    run.Reached(meanTaken);
    int carry = 0;  // from pixel to pixel, and from the end of a row to the next
    for (int y = 0; y < height; ++y) {
        const std::uint8_t* from = run.source.Row(y);
        std::uint8_t* to = run.work.Row(y);
        for (int x = 0; x < width; ++x) {
            const bool inside = x > 0 && x < width - 1 && y > 0 && y < height - 1;
            const int gray = inside ? SharpenedSum(run.source, x, y) / 3 : Gray(from + x * pixelBytes);
            const int value = ClampToByte(gray + carry);
            const int output = value < threshold ? 0 : 255;
            Put(to + x * pixelBytes, output);
            carry = (value - output) / 4;
        }
        run.RowDone(y, meanTaken);
    }
}

void FilterOrderedDither(FilterRun& run) {
    constexpr std::size_t screenSide = 4;
    // Rows of the picture's columns: limits[x modulo 4][y modulo 4].
    constexpr std::array<std::array<int, screenSide>, screenSide> limits{
        {{1, 9, 3, 11}, {13, 5, 15, 7}, {4, 12, 2, 10}, {16, 8, 14, 6}}};
    for (int y = 0; y < run.Height(); ++y) {
        const std::uint8_t* from = run.source.Row(y);
        std::uint8_t* to = run.work.Row(y);
        const auto row = static_cast<std::size_t>(y) % screenSide;
        for (int x = 0; x < run.Width(); ++x) {
            const int level = Gray(from + x * pixelBytes) / 16 + 1;
            const int limit = limits[static_cast<std::size_t>(x) % screenSide][row];
            Put(to + x * pixelBytes, level < limit ? 0 : 255);
        }
        run.RowDone(y);
    }
}

}  // namespace coinlet
