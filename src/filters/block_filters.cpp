#include "filters/block_filters.h"

#include "filters/pixel_words.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <vector>

namespace coinlet {

namespace {

/// Pixelizes by `side`, a sum of so many squared values being a Sum.
template <class Sum>
void PixelizeBySums(FilterRun& run, int side) {
    const int width = run.Width(), height = run.Height(), rowBytes = width * pixelBytes;
    const int blocks = (width + side - 1) / side;
    // Of the present row of blocks: the sums of each column, of each block, its pixels, and its mean colour.
    std::vector<std::int32_t> columns(static_cast<std::size_t>(rowBytes));
    std::vector<Sum> sums(static_cast<std::size_t>(blocks) * pixelBytes);
    std::vector<double> counts(sums.size());
    std::vector<std::uint8_t> means(sums.size());

    const auto measure = [&](int top, int bottom) {
        std::ranges::fill(columns, 0);
        for (int y = top; y < bottom; ++y) {
            const std::uint8_t* row = run.source.Row(y);
            std::int32_t* column = columns.data();
            for (int i = 0; i < rowBytes; ++i)
                column[i] += row[i];
        }
        for (int block = 0; block < blocks; ++block) {
            const int left = block * side, right = std::min(left + side, width);
            std::array<Sum, pixelBytes> sum{};
            const std::int32_t* column = columns.data() + std::ptrdiff_t{left} * pixelBytes;
            for (int x = left; x < right; ++x, column += pixelBytes) {
                for (std::size_t channel = 0; channel < sum.size(); ++channel)
                    sum[channel] += column[channel];
            }
            const std::size_t first = static_cast<std::size_t>(block) * pixelBytes;
            std::copy_n(sum.data(), sum.size(), sums.data() + first);
            std::fill_n(counts.data() + first, sum.size(), double(right - left) * (bottom - top));
        }
        // Sums of squares of this size are whole in double precision, and so far from it that a quotient that
        // isn't whole stays below the next whole number.
        const Sum* sum = sums.data();
        const double* count = counts.data();
        std::uint8_t* mean = means.data();
        for (std::size_t i = 0; i < sums.size(); ++i)
            mean[i] = static_cast<std::uint8_t>(static_cast<int>(static_cast<double>(sum[i]) / count[i]));
    };

    for (int y = 0; y < height; ++y) {
        std::uint8_t* to = run.work.Row(y);
        if (y % side != 0) {
            std::copy_n(run.work.Row(y - 1), rowBytes, to);
        } else {
            measure(y, std::min(y + side, height));
            for (int block = 0; block < blocks; ++block) {
                const std::uint32_t mean = PixelAt(means.data(), block);
                for (int x = block * side; x < std::min((block + 1) * side, width); ++x)
                    PutPixel(to, x, mean);
            }
        }
        run.RowDone(y);
    }
}

/// Gives every channel inside the border value(its own, the extreme of the 3 by 3 around it): `extreme` picks
/// one of two.
template <class Extreme, class Value>
void WalkExtremes(FilterRun& run, Extreme extreme, Value value) {
    WithVectorUnits(run.units, [=, &run] {
        const int rowBytes = run.Width() * pixelBytes;
        std::vector<std::uint8_t> columns(
            static_cast<std::size_t>(rowBytes));  // the extreme of three rows each
        for (int y = 1; y < run.Height() - 1; ++y) {
            const std::uint8_t *above = run.source.Row(y - 1), *here = run.source.Row(y),
                               *below = run.source.Row(y + 1);
            std::uint8_t* column = columns.data();
            for (int i = 0; i < rowBytes; ++i)
                column[i] = extreme(extreme(above[i], here[i]), below[i]);
            std::uint8_t* to = run.work.Row(y);
            for (int i = pixelBytes; i < rowBytes - pixelBytes; ++i) {
                const std::uint8_t sides = extreme(column[i - pixelBytes], column[i + pixelBytes]);
                to[i] = value(here[i], extreme(sides, column[i]));
            }
            run.RowDone(y);
        }
    });
}

// Not functions: each makes a walk of its own, into which it is pulled.
constexpr auto lower = [](std::uint8_t a, std::uint8_t b) { return std::min(a, b); };
constexpr auto higher = [](std::uint8_t a, std::uint8_t b) { return std::max(a, b); };

/// Mean and spread of the 3 by 3 blocks around each byte of a row. The spread is the sum of the distances
/// from the mean, at most 9 * 255.
struct BlockRow {
    explicit BlockRow(int width)
        : means(static_cast<std::size_t>(width) * pixelBytes), spreads(means.size()) {}

    /// Measures the blocks around row y but for those that reach over the left and right edges.
    void Measure(const PixelArray& picture, int y);

    std::vector<std::int16_t> means, spreads;
};

void BlockRow::Measure(const PixelArray& picture, int y) {
    const std::uint8_t *above = picture.Row(y - 1), *here = picture.Row(y), *below = picture.Row(y + 1);
    std::int16_t *mean = means.data(), *spread = spreads.data();
    const int end = (picture.Width() - 1) * pixelBytes;
    for (int i = pixelBytes; i < end; ++i) {
        const int before = i - pixelBytes, behind = i + pixelBytes;
        const int sum = above[before] + above[i] + above[behind] + here[before] + here[i] + here[behind] +
                        below[before] + below[i] + below[behind];
        const int blockMean = sum / 9;
        mean[i] = static_cast<std::int16_t>(blockMean);
        spread[i] = static_cast<std::int16_t>(
            std::abs(above[before] - blockMean) + std::abs(above[i] - blockMean) +
            std::abs(above[behind] - blockMean) + std::abs(here[before] - blockMean) +
            std::abs(here[i] - blockMean) + std::abs(here[behind] - blockMean) +
            std::abs(below[before] - blockMean) + std::abs(below[i] - blockMean) +
            std::abs(below[behind] - blockMean));
    }
}

/// Chooses among the blocks centred on the four diagonal neighbours; the first one wins a tie.
void ChooseCalmest(const BlockRow& above, const BlockRow& below, int width, std::uint8_t* to) {
    const std::int16_t *aboveMeans = above.means.data(), *belowMeans = below.means.data();
    const std::int16_t *aboveSpreads = above.spreads.data(), *belowSpreads = below.spreads.data();
    for (int i = 2 * pixelBytes; i < (width - 2) * pixelBytes; ++i) {
        const int before = i - pixelBytes, behind = i + pixelBytes;
        std::int16_t mean = aboveMeans[before], spread = aboveSpreads[before];
        const auto consider = [&mean, &spread](std::int16_t otherMean, std::int16_t otherSpread) {
            mean = otherSpread < spread ? otherMean : mean;
            spread = std::min(spread, otherSpread);
        };
        consider(aboveMeans[behind], aboveSpreads[behind]);
        consider(belowMeans[before], belowSpreads[before]);
        consider(belowMeans[behind], belowSpreads[behind]);
        to[i] = static_cast<std::uint8_t>(mean);
    }
}

}  // namespace

void FilterPixelize(FilterRun& run, std::int32_t side) {
    if (side < 1) return;
    // Larger blocks than the picture are the picture.
    const int step = std::min(side, std::max({run.Width(), run.Height(), 1}));
    constexpr int greatestOfSmallSums = 2048;  // 255 * 2048 * 2048 fits 31 bits.
    WithVectorUnits(run.units, [=, &run] {
        if (step <= greatestOfSmallSums) {
            PixelizeBySums<std::int32_t>(run, step);
        } else {
            PixelizeBySums<std::int64_t>(run, step);
        }
    });
}

void FilterErode(FilterRun& run) {
    WalkExtremes(run, lower, [](std::uint8_t, std::uint8_t lowest) { return lowest; });
}

void FilterDilate(FilterRun& run) {
    WalkExtremes(run, higher, [](std::uint8_t, std::uint8_t highest) { return highest; });
}

void FilterConnection(FilterRun& run) {
    WalkExtremes(run, lower, [](std::uint8_t own, std::uint8_t lowest) {
        return static_cast<std::uint8_t>(own - lowest);
    });
}

void FilterAquarel(FilterRun& run) {
    WithVectorUnits(run.units, [&run] {
        const int width = run.Width(), height = run.Height();
        // Narrower pictures have no pixel with four blocks; their rows are walked all the same.
        const bool hasInside = width >= 5;
        // A pixel needs the blocks around the rows above and below it: three rows of blocks, used in turn.
        std::array<BlockRow, 3> blocks{BlockRow(width), BlockRow(width), BlockRow(width)};
        const auto blocksAround = [&blocks](int y) -> BlockRow& {
            return blocks[static_cast<std::size_t>(y) % blocks.size()];
        };
        for (int y = 2; y < height - 2; ++y) {
            if (hasInside) {
                // The first row needs the blocks above it, which no row before it has measured.
                for (int row = y == 2 ? 1 : y + 1; row <= y + 1; ++row)
                    blocksAround(row).Measure(run.source, row);
                ChooseCalmest(blocksAround(y - 1), blocksAround(y + 1), width, run.work.Row(y));
            }
            run.RowDone(y);
        }
    });
}

}  // namespace coinlet
