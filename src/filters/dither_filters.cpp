#include "filters/dither_filters.h"

#include "filters/channels.h"
#include "filters/mean_gray.h"
#include "filters/pixel_words.h"
#include "filters/place.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace coinlet {

namespace {

constexpr std::uint32_t whitePixel = 0xFFFFFF;

/// Sharpens a row that isn't the first or the last, but for its ends: (10 v - ring) / 2.
void SharpenRow(const PixelArray& picture, int y, std::uint8_t* to) {
    const std::uint8_t *above = picture.Row(y - 1), *here = picture.Row(y), *below = picture.Row(y + 1);
    const int end = (picture.Width() - 1) * pixelBytes;
    for (int i = pixelBytes; i < end; ++i) {
        const Place place{above + i, here + i, below + i};
        const auto doubled = static_cast<std::int16_t>(10 * place.At(0, 0) - place.Ring());
        to[i] = ClampToByte(doubled / 2);
    }
}

/// What a row hands on from pixel to pixel: a quarter of the error of the last one.
constexpr int greatestCarry = 255 / 4;

/// By the sum of a gray and a carry, from -greatestCarry on.
struct Step {
    std::int8_t carry;
    std::uint8_t output;
};
using Steps = std::array<Step, 255 + 2 * greatestCarry + 1>;

Steps StepsFor(int threshold) {
    Steps steps{};
    for (int sum = -greatestCarry; sum <= 255 + greatestCarry; ++sum) {
        const int value = ClampToByte(sum);
        const int output = value < threshold ? 0 : 255;
        steps[static_cast<std::size_t>(sum + greatestCarry)] = {
            static_cast<std::int8_t>((value - output) / 4), static_cast<std::uint8_t>(output)};
    }
    return steps;
}

}  // namespace

void FilterThreshold(FilterRun& run, Colour limit) {
    WithVectorUnits(run.units, [=, &run] {
        const ColourChannels limits = SplitColor(limit);
        const auto red = static_cast<std::uint32_t>(limits.red),
                   green = static_cast<std::uint32_t>(limits.green),
                   blue = static_cast<std::uint32_t>(limits.blue);
        const int width = run.Width();
        for (int y = 0; y < run.Height(); ++y) {
            const std::uint8_t* from = run.source.Row(y);
            std::uint8_t* to = run.work.Row(y);
            for (int x = 0; x < width; ++x) {
                const std::uint32_t word = PixelAt(from, x);
                const bool below =
                    (word & 0xFF) < blue && (word >> 8 & 0xFF) < green && (word >> 16 & 0xFF) < red;
                PutPixel(to, x, below ? 0 : whitePixel);
            }
            run.RowDone(y);
        }
    });
}

void FilterSharpDither(FilterRun& run) {
    WithVectorUnits(run.units, [&run] {
        constexpr int meanTaken = 5;
        const int width = run.Width(), height = run.Height();
        const Steps steps = StepsFor(MeanGray(run.source));
        run.Reached(meanTaken);
        std::vector<std::uint8_t> sharpened(static_cast<std::size_t>(width) * pixelBytes);
        std::vector<std::uint8_t> row(static_cast<std::size_t>(width));
        std::ptrdiff_t carry = 0;  // from pixel to pixel, and from the end of a row to the next
        for (int y = 0; y < height; ++y) {
            std::uint8_t *sharp = sharpened.data(), *values = row.data(), *to = run.work.Row(y);
            std::copy_n(run.source.Row(y), sharpened.size(), sharp);
            if (y > 0 && y < height - 1) SharpenRow(run.source, y, sharp);
            for (int x = 0; x < width; ++x)
                values[x] = static_cast<std::uint8_t>(GrayOf(PixelAt(sharp, x)));
            // A pixel waits for the one at its left: between them there is only this look into a table.
            for (int x = 0; x < width; ++x) {
                const Step* stepsFrom = steps.data() + greatestCarry + values[x];
                const Step& step = stepsFrom[carry];
                carry = step.carry;
                values[x] = step.output;
            }
            for (int x = 0; x < width; ++x)
                PutPixel(to, x, GrayPixel(values[x]));
            run.RowDone(y, meanTaken);
        }
    });
}

void FilterOrderedDither(FilterRun& run) {
    WithVectorUnits(run.units, [&run] {
        constexpr std::size_t screenSide = 4;
        // Rows of the picture's columns: limits[x modulo 4][y modulo 4].
        constexpr std::array<std::array<std::uint32_t, screenSide>, screenSide> limits{
            {{1, 9, 3, 11}, {13, 5, 15, 7}, {4, 12, 2, 10}, {16, 8, 14, 6}}};
        const int width = run.Width();
        // The screen as wide as the picture, a row for each of its own.
        std::array<std::vector<std::uint32_t>, screenSide> screen;
        for (std::size_t row = 0; row < screen.size(); ++row) {
            for (std::size_t x = 0; x < static_cast<std::size_t>(width); ++x)
                screen[row].push_back(limits[x % screenSide][row]);
        }
        for (int y = 0; y < run.Height(); ++y) {
            const std::uint8_t* from = run.source.Row(y);
            std::uint8_t* to = run.work.Row(y);
            const std::uint32_t* limit = screen[static_cast<std::size_t>(y) % screenSide].data();
            for (int x = 0; x < width; ++x) {
                const std::uint32_t level = GrayOf(PixelAt(from, x)) / 16 + 1;
                PutPixel(to, x, level < limit[x] ? 0 : whitePixel);
            }
            run.RowDone(y);
        }
    });
}

}  // namespace coinlet
