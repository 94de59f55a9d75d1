#include "filters/dither_filters.h"

#include "filters/channels.h"
#include "filters/mean_gray.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace coinlet {

namespace {

void Put(std::uint8_t* pixel, int value) {
    pixel[0] = pixel[1] = pixel[2] = static_cast<std::uint8_t>(value);
}

/// Sharpens a row that isn't the first or the last, but for its ends: (10 v - ring) / 2.
void SharpenRow(const PixelArray& picture, int y, std::uint8_t* to) {
    const std::uint8_t *above = picture.Row(y - 1), *here = picture.Row(y), *below = picture.Row(y + 1);
    const int end = (picture.Width() - 1) * pixelBytes;
    for (int i = pixelBytes; i < end; ++i) {
        const int before = i - pixelBytes, behind = i + pixelBytes;
        const int ring = above[before] + above[i] + above[behind] + here[before] + here[behind] +
                         below[before] + below[i] + below[behind];
        to[i] = ClampToByte((10 * here[i] - ring) / 2);
    }
}

}  // namespace

void FilterThreshold(FilterRun& run, Colour limit) {
    const auto [red, green, blue] = SplitColor(limit);
    const int end = run.Width() * pixelBytes;
    for (int y = 0; y < run.Height(); ++y) {
        const std::uint8_t* from = run.source.Row(y);
        std::uint8_t* to = run.work.Row(y);
        for (int i = 0; i < end; i += pixelBytes) {
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
    std::vector<std::uint8_t> sharp(static_cast<std::size_t>(width) * pixelBytes);
    int carry = 0;  // from pixel to pixel, and from the end of a row to the next
    for (int y = 0; y < height; ++y) {
        std::copy_n(run.source.Row(y), sharp.size(), sharp.data());
        if (y > 0 && y < height - 1) SharpenRow(run.source, y, sharp.data());
        std::uint8_t* to = run.work.Row(y);
        for (int x = 0; x < width; ++x) {
            const int value = ClampToByte(Gray(sharp.data() + x * pixelBytes) + carry);
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
