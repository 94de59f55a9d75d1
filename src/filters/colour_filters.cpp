#include "filters/colour_filters.h"

#include "filters/channels.h"
#include "filters/nearest_product.h"
#include "filters/pixel_words.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <memory>
#include <vector>

namespace coinlet {

namespace {

using ChannelTable = std::array<std::uint8_t, 256>;

/// Hands every row of the source to `change(from, to)`. Built for the units of the run.
template <class Change>
void WalkRows(FilterRun& run, Change change, int fromPercent = 0) {
    WithVectorUnits(run.units, [=, &run] {
        for (int y = 0; y < run.Height(); ++y) {
            change(run.source.Row(y), run.work.Row(y));
            run.RowDone(y, fromPercent);
        }
    });
}

/// Gives every pixel the value of its word.
template <class Value>
void WalkWords(FilterRun& run, Value value) {
    WalkRows(run, [width = run.Width(), value](const std::uint8_t* from, std::uint8_t* to) {
        for (int x = 0; x < width; ++x)
            PutPixel(to, x, value(PixelAt(from, x)));
    });
}

template <class Value>
ChannelTable TableOf(Value value) {
    ChannelTable table{};
    for (int i = 0; i < 256; ++i)
        table[static_cast<std::size_t>(i)] = value(i);
    return table;
}

void MapChannels(FilterRun& run, const ChannelTable& table, int fromPercent = 0) {
    WalkRows(
        run,
        [width = run.Width(), &table](const std::uint8_t* from, std::uint8_t* to) {
            for (int i = 0; i < width * pixelBytes; i += pixelBytes) {
                for (int j = i; j < i + colourChannels; ++j)
                    to[j] = table[from[j]];
            }
        },
        fromPercent);
}

/// The same for a table of (channel - zero) * factor, rounded: by products if those hit every entry.
void MapChannelsByFactor(FilterRun& run, const ChannelTable& table, double factor, int zero,
                         int fromPercent = 0) {
    const auto product =
        NearestProduct::Find(factor, -zero, 255 - zero, [&table, zero](int difference, int found) {
            return ClampToByte(found) == table[static_cast<std::size_t>(zero + difference)];
        });
    if (!product) return MapChannels(run, table, fromPercent);
    WalkRows(
        run,
        [product = *product, zero = static_cast<std::int16_t>(zero), end = run.Width() * pixelBytes](
            const std::uint8_t* from, std::uint8_t* to) {
            for (int i = 0; i < end; ++i)
                to[i] = ClampToByte(product(static_cast<std::int16_t>(from[i] - zero)));
        },
        fromPercent);
}

/// A table for each gray: there are fewer pairs of a gray and a channel than channels in a canvas.
void SaturateByTables(FilterRun& run, double factor) {
    const auto tables = std::make_unique<std::array<ChannelTable, 256>>();
    for (int gray = 0; gray < 256; ++gray) {
        (*tables)[static_cast<std::size_t>(gray)] =
            TableOf([=](int value) { return RoundToByte(value + factor * (value - gray)); });
    }
    WalkRows(run, [width = run.Width(), &tables](const std::uint8_t* from, std::uint8_t* to) {
        for (int x = 0; x < width; ++x) {
            const ChannelTable& table = (*tables)[GrayOf(PixelAt(from, x))];
            for (int i = x * pixelBytes; i < x * pixelBytes + colourChannels; ++i)
                to[i] = table[from[i]];
        }
    });
}

void SaturateByProducts(FilterRun& run, NearestProduct product) {
    std::vector<std::uint8_t> buffer(static_cast<std::size_t>(run.Width()) * pixelBytes);
    std::uint8_t* grays = buffer.data();
    WalkRows(run, [width = run.Width(), grays, product](const std::uint8_t* from, std::uint8_t* to) {
        for (int x = 0; x < width; ++x)
            PutPixel(grays, x, GrayPixel(GrayOf(PixelAt(from, x))));
        for (int i = 0; i < width * pixelBytes; ++i) {
            const auto difference = static_cast<std::int16_t>(from[i] - grays[i]);
            to[i] = ClampToByte(static_cast<std::int16_t>(from[i] + product(difference)));
        }
    });
}

}  // namespace

void FilterNegative(FilterRun& run) {
    WithVectorUnits(run.units, [&run] {
        const int width = run.Width();
        for (int y = 0; y < run.Height(); ++y) {
            std::uint8_t* row = run.work.Row(y);
            for (int x = 0; x < width; ++x)
                PutPixel(row, x, ~PixelAt(row, x));
            run.RowDone(y);
        }
    });
}

void FilterGrayscale(FilterRun& run) {
    WalkWords(run, [](std::uint32_t word) { return GrayPixel(GrayOf(word)); });
}

void FilterBrightness(FilterRun& run, std::int32_t percent) {
    const double factor = FactorOf(std::int64_t{percent} + 100);
    MapChannelsByFactor(run, TableOf([factor](int value) { return RoundToByte(factor * value); }), factor, 0);
}

void FilterSwapColours(FilterRun& run, std::int32_t order) {
    constexpr int blue = 0, green = 8, red = 16;  // Where a word has them.
    struct Order {
        int newRed, newGreen, newBlue;
    };
    constexpr std::array<Order, 6> orders{{{red, green, blue},
                                           {blue, red, green},
                                           {green, blue, red},
                                           {red, blue, green},
                                           {blue, green, red},
                                           {green, red, blue}}};
    const Order swap = orders[order >= 1 && order <= 5 ? static_cast<std::size_t>(order) : 0];
    WalkWords(run, [swap](std::uint32_t word) {
        return (word >> swap.newBlue & 0xFF) << blue | (word >> swap.newGreen & 0xFF) << green |
               (word >> swap.newRed & 0xFF) << red;
    });
}

void FilterSaturation(FilterRun& run, std::int32_t percent) {
    const double factor = FactorOf(percent);
    // The rule rounds the channel together with the product. That is the same as the product rounded by
    // itself unless it lies in the middle, where the even neighbour depends on the channel. (A
    // single-precision factor of this size times 255, and a channel added, lose nothing in double precision.)
    const auto product = NearestProduct::Find(factor, -255, 255, [factor](int difference, int found) {
        return std::abs(factor * difference - found) < 0.5;
    });
    if (product) {
        SaturateByProducts(run, *product);
    } else {
        SaturateByTables(run, factor);
    }
}

void FilterStretch(FilterRun& run) {
    constexpr int limitsFound = 10;
    std::uint32_t lowest = 255, highest = 0;
    WithVectorUnits(run.units, [&run, &lowest, &highest] {
        const int width = run.Width();
        for (int y = 0; y < run.Height(); ++y) {
            const std::uint8_t* row = run.source.Row(y);
            std::uint32_t low = 255, high = 0;
            for (int x = 0; x < width; ++x) {
                const std::uint32_t green = PixelAt(row, x) >> 8 & 0xFF;
                low = std::min(low, green);
                high = std::max(high, green);
            }
            lowest = std::min(lowest, low);
            highest = std::max(highest, high);
            run.RowDone(y, 0, limitsFound);
        }
    });
    run.Reached(limitsFound);
    if (lowest >= highest) return;
    const int zero = static_cast<int>(lowest);
    const double range = highest - lowest;
    const ChannelTable table = TableOf([=](int value) { return RoundToByte((value - zero) * 255 / range); });
    MapChannelsByFactor(run, table, 255 / range, zero, limitsFound);
}

void FilterGamma(FilterRun& run, std::int32_t percent) {
    if (percent == 0) return;
    const double exponent = 1 / FactorOf(percent);
    MapChannels(
        run, TableOf([exponent](int value) { return RoundToByte(std::pow(value / 255.0, exponent) * 255); }));
}

}  // namespace coinlet
