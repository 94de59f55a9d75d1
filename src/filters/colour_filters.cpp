#include "filters/colour_filters.h"

#include "base/numbers.h"
#include "filters/channels.h"
#include "filters/mean_gray.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

namespace coinlet {

namespace {

using ChannelTable = std::array<std::uint8_t, 256>;

/// Hands every pixel of the source to `change(from, to)`, row by row.
template <class Change>
void WalkPixels(FilterRun& run, Change change, int fromPercent = 0, int toPercent = 100) {
    const int end = run.Width() * pixelBytes;
    for (int y = 0; y < run.Height(); ++y) {
        const std::uint8_t* from = run.source.Row(y);
        std::uint8_t* to = run.work.Row(y);
        for (int i = 0; i < end; i += pixelBytes)
            change(from + i, to + i);
        run.RowDone(y, fromPercent, toPercent);
    }
}

template <class Value>
ChannelTable TableOf(Value value) {
    ChannelTable table{};
    for (int i = 0; i < 256; ++i)
        table[static_cast<std::size_t>(i)] = value(i);
    return table;
}

void MapChannels(FilterRun& run, const ChannelTable& table, int fromPercent = 0) {
    WalkPixels(
        run,
        [&table](const std::uint8_t* from, std::uint8_t* to) {
            for (int channel = 0; channel < colourChannels; ++channel)
                to[channel] = table[from[channel]];
        },
        fromPercent);
}

/// A percentage as a factor, in the single precision that it is kept in.
double FactorOf(std::int64_t percent) {
    return static_cast<float>(static_cast<double>(percent) / 100);
}

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

}  // namespace

void FilterNegative(FilterRun& run) {
    MapChannels(run, TableOf([](int value) { return static_cast<std::uint8_t>(255 - value); }));
}

void FilterGrayscale(FilterRun& run) {
    WalkPixels(run, [](const std::uint8_t* from, std::uint8_t* to) {
        to[0] = to[1] = to[2] = static_cast<std::uint8_t>(Gray(from));
    });
}

void FilterBrightness(FilterRun& run, std::int32_t percent) {
    const double factor = FactorOf(std::int64_t{percent} + 100);
    MapChannels(run, TableOf([factor](int value) { return RoundToByte(factor * value); }));
}

void FilterSwapColors(FilterRun& run, std::int32_t order) {
    constexpr int blue = 0, green = 1, red = 2;
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
    WalkPixels(run, [swap](const std::uint8_t* from, std::uint8_t* to) {
        to[blue] = from[swap.newBlue];
        to[green] = from[swap.newGreen];
        to[red] = from[swap.newRed];
    });
}

void FilterContrast(FilterRun& run, std::int32_t percent) {
    const int mean = MeanGray(run.source);
    const double factor = FactorOf(std::int64_t{percent} + 100);
    std::array<int, 256> moved{};
    for (int i = 0; i < 256; ++i)
        moved[static_cast<std::size_t>(i)] = RoundHalfEven(factor * (i - mean) + mean);
    constexpr int meanTaken = 5;
    run.Reached(meanTaken);
    WalkPixels(
        run,
        [&moved](const std::uint8_t* from, std::uint8_t* to) {
            WideColour colour{moved[from[0]], moved[from[1]], moved[from[2]]};
            SpreadExcess(colour);
            for (int channel = 0; channel < colourChannels; ++channel)
                to[channel] = static_cast<std::uint8_t>(colour[static_cast<std::size_t>(channel)]);
        },
        meanTaken);
}

void FilterSaturation(FilterRun& run, std::int32_t percent) {
    // A table for each gray: there are fewer pairs of a gray and a channel than channels in a canvas.
    const double factor = FactorOf(percent);
    const auto tables = std::make_unique<std::array<ChannelTable, 256>>();
    for (int gray = 0; gray < 256; ++gray) {
        (*tables)[static_cast<std::size_t>(gray)] =
            TableOf([=](int value) { return RoundToByte(value + factor * (value - gray)); });
    }
    WalkPixels(run, [&tables](const std::uint8_t* from, std::uint8_t* to) {
        const ChannelTable& table = (*tables)[static_cast<std::size_t>(Gray(from))];
        for (int channel = 0; channel < colourChannels; ++channel)
            to[channel] = table[from[channel]];
    });
}

void FilterStretch(FilterRun& run) {
    constexpr int limitsFound = 10;
    int lowest = 255, highest = 0;
    for (int y = 0; y < run.Height(); ++y) {
        const std::uint8_t* row = run.source.Row(y);
        for (int x = 0; x < run.Width(); ++x) {
            const int green = row[x * pixelBytes + 1];
            lowest = std::min(lowest, green);
            highest = std::max(highest, green);
        }
        run.RowDone(y, 0, limitsFound);
    }
    run.Reached(limitsFound);
    if (lowest >= highest) return;
    const double range = highest - lowest;
    MapChannels(run, TableOf([=](int value) { return RoundToByte((value - lowest) * 255 / range); }),
                limitsFound);
}

void FilterGamma(FilterRun& run, std::int32_t percent) {
    if (percent == 0) return;
    const double exponent = 1 / FactorOf(percent);
    MapChannels(
        run, TableOf([exponent](int value) { return RoundToByte(std::pow(value / 255.0, exponent) * 255); }));
}

}  // namespace coinlet
