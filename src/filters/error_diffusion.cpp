// Error diffusion by Floyd and Steinberg, Burkes, and Stucki.

#include "filters/channels.h"
#include "filters/dither_filters.h"
#include "filters/mean_gray.h"

#include <algorithm>
#include <array>
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
    int rows;        ///< That it reaches, the pixel's own included.
    int percentSet;  ///< The progress when its table stands.
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

/// What each tap gets of each error from -255 to 255, cut off towards zero: no pixel needs a division.
template <std::size_t count>
using DiffusionTable = std::array<std::array<std::int32_t, count>, 2 * greatestError + 1>;

template <std::size_t count>
DiffusionTable<count> TableOf(const Kernel<count>& kernel) {
    DiffusionTable<count> table{};
    for (int error = -greatestError; error <= greatestError; ++error) {
        for (std::size_t k = 0; k < count; ++k) {
            table[static_cast<std::size_t>(error + greatestError)][k] =
                error * kernel.taps[k].weight / kernel.divisor;
        }
    }
    return table;
}

template <std::size_t count>
void Diffuse(FilterRun& run, const Kernel<count>& kernel, std::int32_t damping) {
    if (damping == 0) return;
    constexpr int meanTaken = 10;
    const int width = run.Width();
    const auto table = TableOf(kernel);
    // Rows of errors from the present one down, wider by what a kernel reaches beyond the edges. What lands
    // there is never read, and neither is what lands below the last row.
    const auto padded = static_cast<std::size_t>(width) + 2 * furthestColumn;
    std::vector<std::vector<std::int32_t>> errors(static_cast<std::size_t>(kernel.rows),
                                                  std::vector<std::int32_t>(padded));
    run.Reached(kernel.percentSet);
    const int threshold = MeanGray(run.source);
    run.Reached(meanTaken);

    for (int y = 0; y < run.Height(); ++y) {
        const std::uint8_t* from = run.source.Row(y);
        std::uint8_t* to = run.work.Row(y);
        std::array<std::int32_t*, 3> rows{};
        for (std::size_t i = 0; i < errors.size(); ++i)
            rows[i] = errors[i].data() + furthestColumn;
        for (int x = 0; x < width; ++x) {
            const int value = ClampToByte(rows[0][x] * 10 / damping + Gray(from + x * pixelBytes));
            const int output = value < threshold ? 0 : 255;
            std::uint8_t* pixel = to + x * pixelBytes;
            pixel[0] = pixel[1] = pixel[2] = static_cast<std::uint8_t>(output);
            const auto& parts = table[static_cast<std::size_t>(value - output + greatestError)];
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
    Diffuse(run, floyd, damping);
}

void FilterBurkesDither(FilterRun& run, std::int32_t damping) {
    Diffuse(run, burkes, damping);
}

void FilterStuckiDither(FilterRun& run, std::int32_t damping) {
    Diffuse(run, stucki, damping);
}

}  // namespace coinlet
