#include "filters/colour_filters.h"

#include "base/numbers.h"
#include "filters/channels.h"
#include "filters/mean_gray.h"
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

/// A percentage as a factor, in the single precision that it is kept in.
double FactorOf(std::int64_t percent) {
    return static_cast<float>(static_cast<double>(percent) / 100);
}

constexpr int meanTaken = 5;  ///< The progress of the contrast when the mean stands.

using WideColour = std::array<std::int64_t, colourChannels>;

bool InRange(const WideColour& colour) {
    return std::ranges::all_of(colour, [](std::int64_t value) { return value >= 0 && value <= 255; });
}

/// Brings all channels into range. Each round takes away from what lies beyond the range, so it ends.
void SpreadExcess(WideColour& colour) {
    while (!InRange(colour)) {
        if (std::ranges::all_of(colour, [](std::int64_t value) { return value <= 0; })) {
            colour.fill(0);
        } else if (std::ranges::all_of(colour, [](std::int64_t value) { return value >= 255; })) {
            colour.fill(255);
        } else {
            for (std::int64_t& channel : colour) {
                const std::int64_t kept = std::clamp<std::int64_t>(channel, 0, 255);
                const std::int64_t share = (channel - kept) / 2;
                for (std::int64_t& other : colour)
                    other += share;
                channel = kept;
            }
        }
    }
}

/// Some pixels in a row, each channel by itself, that may lie out of range, but not far. So few, since one
/// that needs many rounds takes its neighbours along.
constexpr int pieceWidth = 64;
struct Piece {
    std::array<std::int16_t, pieceWidth> blues, greens, reds;
};

/// Each channel moved away from the mean.
Piece Moved(const std::uint8_t* from, std::int16_t mean, NearestProduct product) {
    Piece piece;
    const auto moved = [=](std::uint32_t channel) {
        const auto difference = static_cast<std::int16_t>(static_cast<std::int16_t>(channel) - mean);
        return static_cast<std::int16_t>(product(difference) + mean);
    };
    for (int x = 0; x < pieceWidth; ++x) {
        const std::uint32_t word = PixelAt(from, x);
        const auto i = static_cast<std::size_t>(x);
        piece.blues[i] = moved(word & 0xFF);
        piece.greens[i] = moved(word >> 8 & 0xFF);
        piece.reds[i] = moved(word >> 16 & 0xFF);
    }
    return piece;
}

/// Brings one channel into range and gives half of what it loses to each of the two others.
void Deal(std::int16_t& channel, std::int16_t& second, std::int16_t& third) {
    const std::int16_t kept = ClampToByte(channel);
    const auto lost = static_cast<std::int16_t>(channel - kept);
    const auto share = static_cast<std::int16_t>(lost / 2);
    second = static_cast<std::int16_t>(second + share);
    third = static_cast<std::int16_t>(third + share);
    channel = kept;
}

/// A round of SpreadExcess for all, which leaves a colour in range as it is. Tells whether all are in range
/// now.
bool SpreadOnce(Piece& piece) {
    std::int16_t bits = 0;
    for (std::size_t i = 0; i < pieceWidth; ++i) {
        std::int16_t blue = piece.blues[i], green = piece.greens[i], red = piece.reds[i];
        const bool noneAbove = std::max({blue, green, red}) <= 0,
                   noneBelow = std::min({blue, green, red}) >= 255;
        Deal(blue, green, red);
        Deal(green, blue, red);
        Deal(red, blue, green);
        const auto settled = [=](std::int16_t dealt) {
            return static_cast<std::int16_t>(noneAbove ? 0 : noneBelow ? 255 : dealt);
        };
        piece.blues[i] = settled(blue);
        piece.greens[i] = settled(green);
        piece.reds[i] = settled(red);
        bits = static_cast<std::int16_t>(bits | piece.blues[i] | piece.greens[i] | piece.reds[i]);
    }
    return (bits & ~0xFF) == 0;  // No number from 0 to 255 has others, each one outside has.
}

void Put(const Piece& piece, std::uint8_t* to) {
    const auto channel = [](std::int16_t value) { return static_cast<std::uint32_t>(value); };
    for (int x = 0; x < pieceWidth; ++x) {
        const auto i = static_cast<std::size_t>(x);
        PutPixel(to, x,
                 channel(piece.blues[i]) | channel(piece.greens[i]) << 8 | channel(piece.reds[i]) << 16);
    }
}

void ContrastByProducts(FilterRun& run, int mean, NearestProduct product) {
    WithVectorUnits(run.units, [=, &run] {
        const std::size_t rowBytes = static_cast<std::size_t>(run.Width()) * pixelBytes;
        constexpr std::size_t pieceBytes = pieceWidth * pixelBytes;
        std::vector<std::uint8_t> row((rowBytes + pieceBytes - 1) / pieceBytes * pieceBytes);  // whole pieces
        for (int y = 0; y < run.Height(); ++y) {
            std::copy_n(run.source.Row(y), rowBytes, row.data());
            for (std::size_t i = 0; i < row.size(); i += pieceBytes) {
                Piece piece = Moved(row.data() + i, static_cast<std::int16_t>(mean), product);
                while (!SpreadOnce(piece)) {
                }
                Put(piece, row.data() + i);
            }
            std::copy_n(row.data(), rowBytes, run.work.Row(y));
            run.RowDone(y, meanTaken);
        }
    });
}

void ContrastByTable(FilterRun& run, const std::array<int, 256>& moved) {
    WalkRows(
        run,
        [width = run.Width(), &moved](const std::uint8_t* from, std::uint8_t* to) {
            for (int i = 0; i < width * pixelBytes; i += pixelBytes) {
                WideColour colour{moved[from[i]], moved[from[i + 1]], moved[from[i + 2]]};
                SpreadExcess(colour);
                for (std::size_t channel = 0; channel < colour.size(); ++channel)
                    to[i + static_cast<int>(channel)] = static_cast<std::uint8_t>(colour[channel]);
            }
        },
        meanTaken);
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

void FilterSwapColors(FilterRun& run, std::int32_t order) {
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

void FilterContrast(FilterRun& run, std::int32_t percent) {
    int mean = 0;
    WithVectorUnits(run.units, [&run, &mean] { mean = MeanGray(run.source); });
    const double factor = FactorOf(std::int64_t{percent} + 100);
    std::array<int, 256> moved{};
    for (int i = 0; i < 256; ++i)
        moved[static_cast<std::size_t>(i)] = RoundHalfEven(factor * (i - mean) + mean);
    const auto product =
        NearestProduct::Find(factor, -mean, 255 - mean, [&moved, mean](int difference, int found) {
            return found + mean == moved[static_cast<std::size_t>(mean + difference)];
        });
    run.Reached(meanTaken);
    if (product)
        ContrastByProducts(run, mean, *product);
    else
        ContrastByTable(run, moved);
}

void FilterSaturation(FilterRun& run, std::int32_t percent) {
    const double factor = FactorOf(percent);
    // The rule rounds the channel together with the product. That is the same as the product rounded by
    // itself unless it lies in the middle, where the even neighbour depends on the channel. (A
    // single-precision factor of this size times 255, and a channel added, lose nothing in double precision.)
    const auto product = NearestProduct::Find(factor, -255, 255, [factor](int difference, int found) {
        return std::abs(factor * difference - found) < 0.5;
    });
    if (product)
        SaturateByProducts(run, *product);
    else
        SaturateByTables(run, factor);
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
