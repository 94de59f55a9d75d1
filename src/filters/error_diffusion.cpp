// Error diffusion by Floyd and Steinberg, Burkes, and Stucki.

#include "filters/channels.h"
#include "filters/dither_filters.h"
#include "filters/mean_gray.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace coinlet {

namespace {

/// Where a part of a pixel's error goes, counted from the pixel.
struct Tap {
    int row, column, weight;
};

constexpr int furthestColumn = 2;

template <std::size_t count>
struct Kernel {
    int divisor;
    std::size_t rows;  ///< That it reaches, the pixel's own included.
    int percentSet;    ///< The progress when its table stands.
    std::array<Tap, count> taps;
};

constexpr Kernel<4> floyd{16, 2, 2, {{{0, 1, 7}, {1, -1, 3}, {1, 0, 5}, {1, 1, 1}}}};
constexpr Kernel<7> burkes{
    32, 2, 3, {{{0, 1, 8}, {0, 2, 4}, {1, -2, 2}, {1, -1, 4}, {1, 0, 8}, {1, 1, 4}, {1, 2, 2}}}};
constexpr Kernel<12> stucki{42,
                            3,
                            3,
                            {{{0, 1, 8},
                              {0, 2, 4},
                              {1, -2, 2},
                              {1, -1, 4},
                              {1, 0, 8},
                              {1, 1, 4},
                              {1, 2, 2},
                              {2, -2, 1},
                              {2, -1, 2},
                              {2, 0, 4},
                              {2, 1, 2},
                              {2, 2, 1}}}};

constexpr int greatestError = 255;

/// A value for each error from -255 to 255.
template <class Value>
using ErrorTable = std::array<Value, 2 * greatestError + 1>;

template <class Value, class Rule>
ErrorTable<Value> TableOf(Rule rule) {
    ErrorTable<Value> table{};
    for (int error = -greatestError; error <= greatestError; ++error)
        table[static_cast<std::size_t>(error + greatestError)] = rule(error);
    return table;
}

template <const auto& kernel>
void Diffuse(FilterRun& run, std::int32_t damping) {
    if (damping == 0) return;
    constexpr int meanTaken = 10;
    constexpr std::size_t count = kernel.taps.size();
    const int width = run.Width();
    // No pixel needs a division. What the taps get is cut off towards zero; what reaches a pixel is never
    // more than one whole error, since the weights of a kernel add up to its divisor.
    using Parts = std::array<std::int32_t, count>;
    const auto partsOf = TableOf<Parts>([](int error) {
        Parts parts{};
        for (std::size_t k = 0; k < count; ++k)
            parts[k] = error * kernel.taps[k].weight / kernel.divisor;
        return parts;
    });
    const auto damped = TableOf<int>([damping](int error) { return error * 10 / damping; });
    // Rows of errors from the present one down, wider by what a kernel reaches beyond the edges. What lands
    // there is never read, and neither is what lands below the last row.
    const auto padded = static_cast<std::size_t>(width) + 2 * furthestColumn;
    std::array<std::vector<std::int32_t>, kernel.rows> errors;
    errors.fill(std::vector<std::int32_t>(padded));
    run.Reached(kernel.percentSet);
    const int threshold = MeanGray(run.source);
    run.Reached(meanTaken);

    for (int y = 0; y < run.Height(); ++y) {
        const std::uint8_t* from = run.source.Row(y);
        std::uint8_t* to = run.work.Row(y);
        std::array<std::int32_t*, kernel.rows> rows{};
        for (std::size_t i = 0; i < errors.size(); ++i)
            rows[i] = errors[i].data() + furthestColumn;
        for (int x = 0; x < width; ++x) {
            const int arrived = damped[static_cast<std::size_t>(rows[0][x] + greatestError)];
            const int value = ClampToByte(arrived + Gray(from + x * pixelBytes));
            const int output = value < threshold ? 0 : 255;
            std::uint8_t* pixel = to + x * pixelBytes;
            pixel[0] = pixel[1] = pixel[2] = static_cast<std::uint8_t>(output);
            const Parts& parts = partsOf[static_cast<std::size_t>(value - output + greatestError)];
            for (std::size_t k = 0; k < count; ++k) {
                const Tap& tap = kernel.taps[k];
                rows[static_cast<std::size_t>(tap.row)][x + tap.column] += parts[k];
            }
        }
        errors.front().assign(padded, 0);
        std::rotate(errors.begin(), errors.begin() + 1, errors.end());
        run.RowDone(y, meanTaken);
    }
}

}  // namespace

void FilterFloydDither(FilterRun& run, std::int32_t damping) {
    Diffuse<floyd>(run, damping);
}

void FilterBurkesDither(FilterRun& run, std::int32_t damping) {
    Diffuse<burkes>(run, damping);
}

void FilterStuckiDither(FilterRun& run, std::int32_t damping) {
    Diffuse<stucki>(run, damping);
}

}  // namespace coinlet
