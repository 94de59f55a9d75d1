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
#include <cstring>

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

/// Pixels that are worked on together: enough to keep wide registers busy, and so few that most pieces of a
/// usual picture have nothing to hand on, or that one with many rounds takes few along.
constexpr int pieceWidth = 64;
constexpr std::size_t pieceBytes = std::size_t{pieceWidth} * pixelBytes;

/// One channel of a piece, which may lie out of range, but not far. A pixel of the first half of the piece
/// stands beside one of the second half.
using Channel = std::array<std::int16_t, pieceWidth>;
struct Piece {
    Channel blues, greens, reds;
};

/// The bytes of a piece as numbers, the pixels one after the other: in `lower` blue and red of each, in
/// `upper` green and spare. So bytes become numbers, and bytes again, where they stand.
struct Moved {
    std::array<std::int16_t, 2 * pieceWidth> lower, upper;
};

/// Numbers of 16 bits as bytes, since PixelAt and PutPixel take two as one of 32 bits then.
template <std::size_t count>
std::uint8_t* Bytes(std::array<std::int16_t, count>& numbers) {
    return reinterpret_cast<std::uint8_t*>(numbers.data());
}
template <std::size_t count>
const std::uint8_t* Bytes(const std::array<std::int16_t, count>& numbers) {
    return reinterpret_cast<const std::uint8_t*>(numbers.data());
}

/// Whether numbers that were joined by OR are all from 0 to 255: those have no other bits, any else has.
constexpr bool AllInRange(std::int16_t joined) {
    return (joined & ~0xFF) == 0;
}

/// Moves each channel away from the mean. Tells whether all are in range.
bool Move(const std::uint8_t* from, std::int16_t mean, NearestProduct product, Moved& moved) {
    static constexpr auto noSpare = [] {
        std::array<std::int16_t, 2 * pieceWidth> mask{};
        for (std::size_t i = 0; i < mask.size(); i += 2)
            mask[i] = -1;
        return mask;
    }();
    const auto away = [=](int channel) { return product(static_cast<std::int16_t>(channel - mean)) + mean; };
    std::int16_t joined = 0;
    for (std::size_t i = 0; i < moved.lower.size(); ++i) {
        std::uint16_t pair;
        std::memcpy(&pair, from + i * sizeof pair, sizeof pair);
        const auto lower = static_cast<std::int16_t>(away(pair & 0xFF));
        const auto upper = static_cast<std::int16_t>(away(pair >> 8) & noSpare[i]);
        moved.lower[i] = lower;
        moved.upper[i] = upper;
        joined = static_cast<std::int16_t>(joined | lower | upper);
    }
    return AllInRange(joined);
}

/// Only for what is in range.
void Put(const Moved& moved, std::uint8_t* to) {
    for (std::size_t i = 0; i < moved.lower.size(); ++i) {
        const auto pair = static_cast<std::uint16_t>(moved.lower[i] | moved.upper[i] << 8);
        std::memcpy(to + i * sizeof pair, &pair, sizeof pair);
    }
}

/// The channels apart.
Piece Apart(const Moved& moved) {
    constexpr int half = pieceWidth / 2;
    const std::uint8_t *lower = Bytes(moved.lower), *upper = Bytes(moved.upper);
    Piece piece;
    for (int i = 0; i < half; ++i) {
        const std::uint32_t first = PixelAt(lower, i), second = PixelAt(lower, i + half);
        PutPixel(Bytes(piece.blues), i, (first & 0xFFFF) | second << 16);
        PutPixel(Bytes(piece.reds), i, first >> 16 | (second & 0xFFFF0000));
        PutPixel(Bytes(piece.greens), i, (PixelAt(upper, i) & 0xFFFF) | PixelAt(upper, i + half) << 16);
    }
    return piece;
}

/// Only for what is in range.
void Put(const Piece& piece, std::uint8_t* to) {
    constexpr int half = pieceWidth / 2;
    for (int i = 0; i < half; ++i) {
        const std::uint32_t blueAndGreen = PixelAt(Bytes(piece.blues), i) | PixelAt(Bytes(piece.greens), i)
                                                                                << 8;
        const std::uint32_t reds = PixelAt(Bytes(piece.reds), i);
        PutPixel(to, i, (blueAndGreen & 0xFFFF) | reds << 16);
        PutPixel(to, i + half, blueAndGreen >> 16 | (reds & 0xFFFF0000));
    }
}

/// Brings one channel into range and gives half of what it loses to each of the two others.
void Deal(std::int16_t& channel, std::int16_t& second, std::int16_t& third) {
    const std::int16_t kept = ClampToByte(channel);
    const auto lost = static_cast<std::int16_t>(channel - kept);
    const int towardsZero = static_cast<std::uint16_t>(lost) >> 15;  // 1 below 0
    const auto share = static_cast<std::int16_t>(static_cast<std::int16_t>(lost + towardsZero) >> 1);
    second = static_cast<std::int16_t>(second + share);
    third = static_cast<std::int16_t>(third + share);
    channel = kept;
}

/// A round of SpreadExcess for all, which leaves a colour in range as it is. Tells whether all are in range
/// now.
bool SpreadOnce(Piece& piece) {
    std::int16_t joined = 0;
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
        joined = static_cast<std::int16_t>(joined | piece.blues[i] | piece.greens[i] | piece.reds[i]);
    }
    return AllInRange(joined);
}

void ContrastByProducts(FilterRun& run, int mean, NearestProduct product) {
    WithVectorUnits(run.units, [=, &run] {
        const auto workOn = [=](const std::uint8_t* from, std::uint8_t* to) {
            Moved moved;
            // The usual case: nothing to hand on.
            if (Move(from, static_cast<std::int16_t>(mean), product, moved)) return Put(moved, to);
            Piece piece = Apart(moved);
            while (!SpreadOnce(piece)) {
            }
            Put(piece, to);
        };
        const std::size_t rowBytes = static_cast<std::size_t>(run.Width()) * pixelBytes;
        const std::size_t rest = rowBytes % pieceBytes, wholePieces = rowBytes - rest;
        // The end of a row is made a whole piece by bytes that stay as they are.
        std::array<std::uint8_t, pieceBytes> end;
        end.fill(static_cast<std::uint8_t>(mean));
        for (int y = 0; y < run.Height(); ++y) {
            const std::uint8_t* from = run.source.Row(y);
            std::uint8_t* to = run.work.Row(y);
            for (std::size_t i = 0; i < wholePieces; i += pieceBytes)
                workOn(from + i, to + i);
            if (rest != 0) {
                std::copy_n(from + wholePieces, rest, end.data());
                std::array<std::uint8_t, pieceBytes> result;
                workOn(end.data(), result.data());
                std::copy_n(result.data(), rest, to + wholePieces);
            }
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
