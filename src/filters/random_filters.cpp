#include "filters/random_filters.h"

#include "base/numbers.h"
#include "filters/channels.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <vector>

namespace coinlet {

namespace {

/// Of what is thrown in bulk: beyond it, numbers no longer fit the 16-bit lanes that they are added up in.
constexpr std::int32_t greatestRange = 32'000;

/// Throws as many random numbers as there is room for in `uppers` as dice from 0 to `range`: each the number
/// times the range, to the nearest whole number. Tells false if one of them comes too close to the middle
/// between two whole numbers; then the caller has to work the row out by its rule. The generator itself stays
/// where it is.
///
/// Only the upper 32 bits h of each number are looked at. The number in full lies from h to h + 1 units of
/// 2^-32, so that its product with the range lies from h range to (h + 1) range units; and what a rule in
/// floating-point numbers adds in errors is far less than one unit more. A product from which that interval
/// reaches no middle rounds the same way.
bool Throw(const RandomGenerator& random, std::int32_t range, std::vector<std::uint32_t>& uppers,
           std::int16_t* dice) {
    const std::size_t count = uppers.size();
    std::uint32_t* upper = uppers.data();
    std::uint64_t counter = random.Counter();
    for (std::size_t i = 0; i < count; ++i) {
        counter += RandomGenerator::step;
        upper[i] = static_cast<std::uint32_t>(RandomGenerator::Mixed(counter) >> 32);
    }
    const auto units = static_cast<std::uint32_t>(range);
    std::uint32_t closest = 0xFFFFFFFFu;
    for (std::size_t i = 0; i < count; ++i) {
        // The product by its upper 32 and lower 16 bits, half a whole one added: lanes of 64 bits would be
        // half as many.
        const std::uint32_t low = (upper[i] & 0xFFFFu) * units;
        const std::uint32_t high = (upper[i] >> 16) * units + (low >> 16) + 0x8000u;
        dice[i] = static_cast<std::int16_t>(high >> 16);
        // Just above a middle the lower 32 bits are 0, just below it almost 2^32. Moved on by the range and a
        // unit, both sides of it become the lowest numbers.
        closest = std::min(closest, (high << 16 | (low & 0xFFFFu)) + units + 1);
    }
    return closest >= units + 2;
}

/// Where a throw leads; one that leads out of the picture counts as 0.
std::int64_t Moved(int from, int offset, int size) {
    const std::int64_t to = std::int64_t{from} + offset;
    return to < 0 || to >= size ? from : to;
}

/// Fills in, for each pixel of row y, where in the picture its new colour lies, in bytes.
class Scatter {
public:
    Scatter(FilterRun& run, std::int32_t reach)
        : run_(run),
          reach_(reach),
          half_(RoundHalfEven(reach / 2.0)),
          uppers_(2 * static_cast<std::size_t>(run.Width())),
          dice_(uppers_.size()) {}

    void Aim(int y, std::ptrdiff_t* places) {
        const int width = run_.Width(), height = run_.Height(), half = half_;
        std::int16_t* dice = dice_.data();
        if (reach_ >= 0 && reach_ <= greatestRange && Throw(run_.random, reach_, uppers_, dice)) {
            run_.random.Skip(2 * static_cast<std::uint64_t>(width));
            for (int x = 0; x < width; ++x) {
                // By ints: neither a row nor a throw comes near their end.
                const int column = x + dice[2 * x] - half, row = y + dice[2 * x + 1] - half;
                const int goodColumn = column < 0 || column >= width ? x : column;
                const int goodRow = row < 0 || row >= height ? y : row;
                places[x] = (std::ptrdiff_t{goodRow} * width + goodColumn) * pixelBytes;
            }
        } else {
            for (int x = 0; x < width; ++x) {
                const std::int64_t column = Moved(x, ByRule(), width);
                const std::int64_t row = Moved(y, ByRule(), height);
                places[x] = static_cast<std::ptrdiff_t>((row * width + column) * pixelBytes);
            }
        }
    }

private:
    int ByRule() { return RoundWhole(run_.random.Next() * reach_ - half_); }

    FilterRun& run_;
    std::int32_t reach_;
    int half_;
    std::vector<std::uint32_t> uppers_;
    std::vector<std::int16_t> dice_;
};

/// Adds noise to a row of so many bytes, one channel after the other.
void RowByRule(RandomGenerator& random, std::int32_t strength, const std::uint8_t* from, std::uint8_t* to,
               int end) {
    const double range = 2.0 * strength + 1;
    for (int i = 0; i < end; i += pixelBytes) {
        for (int j = i; j < i + colourChannels; ++j)
            to[j] = RoundToByte(random.Next() * range - strength + from[j]);
    }
}

}  // namespace

void FilterDefuse(FilterRun& run, std::int32_t reach) {
    WithVectorUnits(run.units, [=, &run] {
        const int width = run.Width();
        Scatter scatter(run, reach);
        std::vector<std::ptrdiff_t> places(static_cast<std::size_t>(width));
        std::uint8_t* picture = run.work.Bytes().data();
        for (int y = 0; y < run.Height(); ++y) {
            scatter.Aim(y, places.data());
            const std::ptrdiff_t* from = places.data();
            std::uint8_t* to = run.work.Row(y);
            for (int x = 0; x < width; ++x)
                std::memmove(to + x * pixelBytes, picture + from[x], pixelBytes);
            run.RowDone(y);
        }
    });
}

void FilterAddNoise(FilterRun& run, std::int32_t strength) {
    WithVectorUnits(run.units, [=, &run] {
        const int width = run.Width(), end = width * pixelBytes;
        const int throws = width * colourChannels;
        const bool inBulk = strength >= 0 && strength < greatestRange / 2;
        // The dice lie without gaps; then a pixel's three come to where its channels lie. The fourth that
        // comes with them is the next pixel's first, and the spare byte's.
        std::vector<std::uint32_t> uppers(static_cast<std::size_t>(throws));
        std::vector<std::int16_t> dice(uppers.size() + 1);
        std::vector<std::int16_t> added(static_cast<std::size_t>(end));
        for (int y = 0; y < run.Height(); ++y) {
            const std::uint8_t* from = run.source.Row(y);
            std::uint8_t* to = run.work.Row(y);
            if (inBulk && Throw(run.random, 2 * strength + 1, uppers, dice.data())) {
                run.random.Skip(static_cast<std::uint64_t>(throws));
                std::int16_t* noise = added.data();
                for (int x = 0; x < width; ++x) {
                    std::memcpy(noise + x * pixelBytes, dice.data() + x * colourChannels,
                                pixelBytes * sizeof *noise);
                }
                const auto lowest = static_cast<std::int16_t>(strength);
                for (int i = 0; i < end; ++i) {
                    const auto value = static_cast<std::int16_t>(from[i] + noise[i] - lowest);
                    to[i] = ClampToByte(value);
                }
            } else {
                RowByRule(run.random, strength, from, to, end);
            }
            run.RowDone(y);
        }
    });
}

}  // namespace coinlet
