// The contrast about the picture's mean, which hands on what a channel can't hold to the other two.

#include "base/numbers.h"
#include "filters/channels.h"
#include "filters/colour_filters.h"
#include "filters/mean_gray.h"
#include "filters/nearest_product.h"
#include "filters/pixel_words.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace coinlet {

namespace {

constexpr int meanTaken = 5;  ///< The progress when the mean stands.

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
    const int end = run.Width() * pixelBytes;
    for (int y = 0; y < run.Height(); ++y) {
        const std::uint8_t* from = run.source.Row(y);
        std::uint8_t* to = run.work.Row(y);
        for (int i = 0; i < end; i += pixelBytes) {
            WideColour colour{moved[from[i]], moved[from[i + 1]], moved[from[i + 2]]};
            SpreadExcess(colour);
            for (int channel = 0; channel < colourChannels; ++channel)
                to[i + channel] = static_cast<std::uint8_t>(colour[static_cast<std::size_t>(channel)]);
        }
        run.RowDone(y, meanTaken);
    }
}

}  // namespace

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
    if (product) return ContrastByProducts(run, mean, *product);
    ContrastByTable(run, moved);
}

}  // namespace coinlet
