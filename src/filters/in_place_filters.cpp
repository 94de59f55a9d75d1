// Those of the neighbourhood filters that see what they have just written.
//
// A pixel waits for the one at its left. So all that it needs from pixels not yet written is summed up for a
// whole row beforehand, any byte before any other, and only a short step is left to be done pixel after
// pixel. A processor has room for several such steps while it waits for one: so some rows are walked at once,
// each a few pixels behind the one above it, whose pixels it then finds written.

#include "filters/channels.h"
#include "filters/lanes.h"
#include "filters/neighbourhood_filters.h"
#include "filters/place.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <utility>
#include <vector>

namespace coinlet {

namespace {

constexpr int greatestDivisor = 16;

/// Divides by a power of 2.
class ByHalving {
public:
    explicit ByHalving(int divisor) : times_(std::countr_zero(static_cast<unsigned>(divisor))) {}
    Lanes operator()(Lanes lanes) const { return Halved(lanes, times_); }

private:
    int times_;
};

/// Divides by 2 to 16 where the quotient is below 256; a larger quotient may come out wrong, but not below
/// 256. With m = 65,536 / d rounded up, m d - 65,536 < d, so that x m / 65,536 exceeds x / d by less than x /
/// 65,536. For x < 256 d that is at most 1 / d: too little to reach the next whole number.
class ByMultiplying {
public:
    explicit ByMultiplying(int divisor) : reciprocal_(Lanes::All((0xFFFF + divisor) / divisor)) {}
    Lanes operator()(Lanes lanes) const { return HighProduct(lanes, reciprocal_); }

private:
    Lanes reciprocal_;
};

/// What is walked at once. Two rows share a register.
constexpr int bandPairs = 3, bandRows = 2 * bandPairs;

/// The rows of a band, each number 16 bits, below the row that was finished before: first terms, then pixels.
using Lines = std::array<std::uint16_t*, bandRows + 1>;

/// The sum of the pixels up to `reach` columns away.
template <int reach>
Lanes SumAround(const std::uint16_t* pixel) {
    Lanes sum = Lanes::Load(pixel - reach * pixelBytes);
    for (int column = 1 - reach; column <= reach; ++column)
        sum = sum + Lanes::Load(pixel + column * pixelBytes);
    return sum;
}

/// The last pixels of two rows, of which the second is `lag` pixels behind.
template <int reach>
class Trail {
public:
    /// As far behind that what it sees of the row above was there one step earlier: then no pixel waits for
    /// any but the one at its left.
    static constexpr int lag = reach + 2;
    static constexpr std::size_t kept = 2 * reach + 2;

    /// From where the next pixels will come. Reads as many before them as it keeps, in front of a row too.
    void Begin(const std::uint16_t* first, const std::uint16_t* second) {
        for (std::size_t i = 0; i < pixels_.size(); ++i) {
            const std::ptrdiff_t back = (static_cast<std::ptrdiff_t>(i) + 1) * pixelBytes;
            pixels_[i] = Lanes::Load(first - back, second - back);
        }
    }
    void Add(Lanes pixels) {
        for (std::size_t i = pixels_.size() - 1; i > 0; --i)
            pixels_[i] = pixels_[i - 1];
        pixels_[0] = pixels;
    }
    Lanes Left() const { return pixels_[0]; }
    /// What the rows below these two see of them next.
    Lanes SeenFromBelow() const {
        Lanes sum = pixels_[1];
        for (std::size_t i = 2; i < pixels_.size(); ++i)
            sum = sum + pixels_[i];
        return sum;
    }

private:
    std::array<Lanes, kept> pixels_{};
};

/// Makes pixels of the terms of some rows, one row after the other.
template <int reach, class Step>
[[gnu::always_inline]] inline void WalkRows(const Lines& lines, int rows, int width, Step step) {
    if (width <= 2) return;  // all border
    for (int row = 1; row <= rows; ++row) {
        const std::uint16_t* above = lines[static_cast<std::size_t>(row) - 1] + pixelBytes;
        std::uint16_t* here = lines[static_cast<std::size_t>(row)] + pixelBytes;
        Lanes left = Lanes::Load(here - pixelBytes);
        for (int x = 1; x < width - 1; ++x, above += pixelBytes, here += pixelBytes) {
            left = step(Lanes::Load(here), SumAround<reach>(above), left);
            left.Store(here);
        }
    }
}

/// The same for a whole band, all rows at once.
template <int reach, class Step>
[[gnu::always_inline]] inline void WalkBand(const Lines& lines, int width, Step step) {
    constexpr int lag = Trail<reach>::lag, delay = lag * (bandRows - 1);
    // Where not all rows have begun, or some have ended.
    const auto walkSome = [&](int x) {
        for (int row = 0; row < bandRows; ++row) {
            const int column = x - lag * row;
            if (column < 1 || column >= width - 1) continue;
            const std::uint16_t* above = lines[static_cast<std::size_t>(row)] + column * pixelBytes;
            std::uint16_t* here = lines[static_cast<std::size_t>(row) + 1] + column * pixelBytes;
            step(Lanes::Load(here), SumAround<reach>(above), Lanes::Load(here - pixelBytes)).Store(here);
        }
    };
    int x = 1;
    while (x <= delay)
        walkSome(x++);
    if (x < width - 1) {
        const auto first = [&lines, &x](int pair) {
            return lines[static_cast<std::size_t>(2 * pair + 1)] + (x - 2 * pair * lag) * pixelBytes;
        };
        const auto second = [&lines, &x](int pair) {
            return lines[static_cast<std::size_t>(2 * pair + 2)] + (x - (2 * pair + 1) * lag) * pixelBytes;
        };
        std::array<Trail<reach>, bandPairs> trails;
        for (int pair = 0; pair < bandPairs; ++pair)
            trails[static_cast<std::size_t>(pair)].Begin(first(pair), second(pair));
        for (; x < width - 1; ++x) {
            std::array<Lanes, bandPairs> seen;
            for (std::size_t i = 0; i < bandPairs; ++i)
                seen[i] = trails[i].SeenFromBelow();
            const Lanes seenAbove = SumAround<reach>(lines[0] + x * pixelBytes);
            for (int pair = 0; pair < bandPairs; ++pair) {
                const auto i = static_cast<std::size_t>(pair);
                const Lanes above =
                    pair == 0 ? Firsts(seenAbove, seen[0]) : SecondAndFirst(seen[i - 1], seen[i]);
                const Lanes pixels = step(Lanes::Load(first(pair), second(pair)), above, trails[i].Left());
                trails[i].Add(pixels);
                pixels.Store(first(pair), second(pair));
            }
        }
    }
    while (x < width - 1 + delay)
        walkSome(x++);
}

/// Walks the pixels but for the border. `terms(place)` is what a channel needs from itself and from what
/// isn't written yet, at its right and below, 0 to 65,535; `step(terms, above, left)` makes the pixel of
/// that, of the row above up to `reach` columns away summed up, and of the one at its left, all channels at
/// once.
template <int reach, class Terms, class Step>
void WalkChains(FilterRun& run, Terms terms, Step step) {
    WithVectorUnits(run.units, [=, &run] {
        const int width = run.Width(), last = run.Height() - 1, end = (width - 1) * pixelBytes;
        const std::size_t rowBytes = static_cast<std::size_t>(width) * pixelBytes;
        constexpr std::size_t inFront = Trail<reach>::kept * pixelBytes;
        std::vector<std::uint16_t> buffer(inFront + rowBytes * (bandRows + 1));
        Lines lines{};
        for (std::size_t i = 0; i < lines.size(); ++i)
            lines[i] = buffer.data() + inFront + i * rowBytes;
        if (last > 0) std::copy_n(run.work.Row(0), rowBytes, lines[0]);
        for (int y = 1; y < last;) {
            const int rows = std::min(bandRows, last - y);
            for (int row = 0; row < rows; ++row) {
                const std::uint8_t *here = run.work.Row(y + row), *below = run.work.Row(y + row + 1);
                std::uint16_t* line = lines[static_cast<std::size_t>(row) + 1];
                std::copy_n(here, std::min(rowBytes, std::size_t{pixelBytes}), line);
                for (int i = pixelBytes; i < end; ++i)
                    line[i] = static_cast<std::uint16_t>(terms(Place{nullptr, here + i, below + i}));
                if (end > 0) std::copy_n(here + end, pixelBytes, line + end);
            }
            if (rows == bandRows) {
                WalkBand<reach>(lines, width, step);
            } else {
                WalkRows<reach>(lines, rows, width, step);
            }
            for (int row = 0; row < rows; ++row) {
                const std::uint16_t* line = lines[static_cast<std::size_t>(row) + 1];
                std::uint8_t* here = run.work.Row(y + row);
                for (int i = pixelBytes; i < end; ++i)
                    here[i] = static_cast<std::uint8_t>(line[i]);
            }
            std::swap(lines[0], lines[static_cast<std::size_t>(rows)]);
            for (int row = 0; row < rows; ++row)
                run.RowDone(y++);
        }
    });
}

/// Sets v to (v (divisor + 8 weight) - weight ring) / divisor, cut off towards zero and clamped, for divisors
/// from 1 to `greatestDivisor` and weights of 1 and 2.
template <class Divide>
void ExaggerateByStep(FilterRun& run, int weight, int divisor, Divide divide) {
    const auto own = static_cast<std::int16_t>(divisor + 8 * weight);
    const auto ringWeight = static_cast<std::int16_t>(weight);
    // Added to the terms, so that they aren't negative, and taken away with the row above.
    const auto ground = static_cast<std::int16_t>(4 * 255 * weight);
    const auto terms = [own, ringWeight, ground](Place place) {
        return place.At(0, 0) * own + ground -
               (place.At(1, 0) + place.At(-1, 1) + place.At(0, 1) + place.At(1, 1)) * ringWeight;
    };
    const auto finish = [divide, highest = Lanes::All(255)](Lanes sum) {
        return Lower(divide(sum), highest);
    };
    const Lanes grounds = Lanes::All(ground);
    // What is below 0 becomes 0: before the left pixel is taken away, afterwards, and by the clamp in the
    // end.
    if (weight == 1) {
        WalkChains<1>(run, terms, [=](Lanes sum, Lanes above, Lanes left) {
            return finish(Less(Less(sum, above + grounds), left));
        });
    } else {
        WalkChains<1>(run, terms, [=](Lanes sum, Lanes above, Lanes left) {
            return finish(Less(Less(sum, above + above + grounds), left + left));
        });
    }
}

/// The same for any divisor but 0.
void ExaggerateByTable(FilterRun& run, int weight, std::int64_t divisor) {
    // It is v + weight (8 v - ring) / divisor, rounded down: where cutting off would differ, the clamp gives
    // 0 either way. So a table of the differences' shares spares the division.
    constexpr int greatest = 8 * 255;
    std::array<std::int16_t, 2 * greatest + 1> shares{};
    for (int difference = -greatest; difference <= greatest; ++difference) {
        const std::int64_t product = std::int64_t{weight} * difference;
        const std::int64_t down = product % divisor != 0 && (product < 0) != (divisor < 0) ? 1 : 0;
        shares[static_cast<std::size_t>(difference + greatest)] =
            static_cast<std::int16_t>(product / divisor - down);
    }
    const int end = (run.Width() - 1) * pixelBytes;
    for (int y = 1; y < run.Height() - 1; ++y) {
        const std::uint8_t *above = run.work.Row(y - 1), *below = run.work.Row(y + 1);
        std::uint8_t* here = run.work.Row(y);
        for (int i = pixelBytes; i < end; ++i) {
            const int difference = 8 * here[i] - Place{above + i, here + i, below + i}.Ring();
            here[i] = ClampToByte(here[i] + shares[static_cast<std::size_t>(difference + greatest)]);
        }
        run.RowDone(y);
    }
}

void Exaggerate(FilterRun& run, int weight, std::int64_t divisor) {
    if (divisor == 0) return;
    if (weight == 2 && divisor % 2 == 0) {
        weight = 1;
        divisor /= 2;
    }
    const int small = divisor >= 1 && divisor <= greatestDivisor ? static_cast<int>(divisor) : 0;
    if (small == 0) {
        ExaggerateByTable(run, weight, divisor);
    } else if (std::has_single_bit(static_cast<unsigned>(small))) {
        ExaggerateByStep(run, weight, small, ByHalving(small));
    } else {
        ExaggerateByStep(run, weight, small, ByMultiplying(small));
    }
}

}  // namespace

void FilterSharpen(FilterRun& run, std::int32_t softness) {
    Exaggerate(run, 2, std::int64_t{softness} + 8);
}

void FilterBlur(FilterRun& run) {
    WalkChains<1>(
        run, [](Place place) { return place.At(1, 0) + place.At(-1, 1) + place.At(0, 1) + place.At(1, 1); },
        [divide = ByHalving(8)](Lanes sum, Lanes above, Lanes left) { return divide(sum + above + left); });
}

void FilterSmooth(FilterRun& run) {
    WalkChains<0>(
        run, [](Place place) { return place.At(0, 0) + place.At(1, 0) + place.At(0, 1); },
        [divide = ByMultiplying(5)](Lanes sum, Lanes above, Lanes left) {
            return divide(sum + above + left);
        });
}

void FilterEdge(FilterRun& run, std::int32_t softness) {
    Exaggerate(run, 1, std::int64_t{softness} + 1);
}

}  // namespace coinlet
