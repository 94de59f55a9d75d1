// Those of the neighbourhood filters that see what they have just written.
//
// A pixel waits for the one at its left. So all that it needs besides is summed up for a whole row
// beforehand, any byte before any other, and only a short step is left to be done pixel after pixel.

#include "filters/channels.h"
#include "filters/lanes.h"
#include "filters/neighbourhood_filters.h"
#include "filters/place.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
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

/// Walks the pixels but for the border. `terms(place)` is what a channel needs from everywhere but its left,
/// 0 to 65,535; `step(terms, left)` makes the pixel of that and the one at its left, all channels at once.
template <class Terms, class Step>
void WalkChains(FilterRun& run, Terms terms, Step step) {
    WithVectorUnits(run.units, [=, &run] {
        const int width = run.Width(), end = (width - 1) * pixelBytes;
        std::vector<std::uint16_t> buffer(static_cast<std::size_t>(width) * pixelBytes);
        std::uint16_t* row = buffer.data();
        for (int y = 1; y < run.Height() - 1; ++y) {
            const std::uint8_t *above = run.work.Row(y - 1), *below = run.work.Row(y + 1);
            std::uint8_t* here = run.work.Row(y);
            for (int i = 0; i < std::min(end, pixelBytes); ++i)
                row[i] = here[i];
            for (int i = pixelBytes; i < end; ++i)
                row[i] = static_cast<std::uint16_t>(terms(Place{above + i, here + i, below + i}));
            Lanes left = Lanes::All(0);
            if (end > 0) left = Lanes::Load(row);
            for (int i = pixelBytes; i < end; i += pixelBytes) {
                left = step(Lanes::Load(row + i), left);
                left.Store(row + i);
            }
            for (int i = pixelBytes; i < end; ++i)
                here[i] = static_cast<std::uint8_t>(row[i]);
            run.RowDone(y);
        }
    });
}

/// Sets v to (v (divisor + 8 weight) - weight ring) / divisor, cut off towards zero and clamped, for divisors
/// from 1 to `greatestDivisor` and weights of 1 and 2.
template <class Divide>
void ExaggerateByStep(FilterRun& run, int weight, int divisor, Divide divide) {
    const auto own = static_cast<std::int16_t>(divisor + 8 * weight);
    const auto ringWeight = static_cast<std::int16_t>(weight);
    const Lanes highest = Lanes::All(255);
    // What is below 0 becomes 0: before the left pixel is taken away, afterwards, and by the clamp in the
    // end.
    const auto terms = [own, ringWeight](Place place) {
        const auto sum =
            static_cast<std::int16_t>(place.At(0, 0) * own - (place.Ring() - place.At(-1, 0)) * ringWeight);
        return std::max<std::int16_t>(sum, 0);
    };
    if (weight == 1) {
        WalkChains(run, terms,
                   [=](Lanes sum, Lanes left) { return Lower(divide(Less(sum, left)), highest); });
    } else {
        WalkChains(run, terms,
                   [=](Lanes sum, Lanes left) { return Lower(divide(Less(sum, left + left)), highest); });
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
    WalkChains(
        run, [](Place place) { return place.Ring() - place.At(-1, 0); },
        [divide = ByHalving(8)](Lanes sum, Lanes left) { return divide(sum + left); });
}

void FilterSmooth(FilterRun& run) {
    WalkChains(
        run, [](Place place) { return place.At(0, 0) + place.At(0, -1) + place.At(0, 1) + place.At(1, 0); },
        [divide = ByMultiplying(5)](Lanes sum, Lanes left) { return divide(sum + left); });
}

void FilterEdge(FilterRun& run, std::int32_t softness) {
    Exaggerate(run, 1, std::int64_t{softness} + 1);
}

}  // namespace coinlet
