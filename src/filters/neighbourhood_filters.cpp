#include "filters/neighbourhood_filters.h"

#include "filters/channels.h"

#include <array>
#include <cstdlib>
#include <vector>

namespace coinlet {

namespace {

/// One channel with those above and below it; its neighbours lie a pixel further on.
struct Place {
    const std::uint8_t *above, *here, *below;

    /// Row and column count from the place itself: -1, 0 or 1.
    int At(int column, int row) const {
        return (row < 0 ? above : row > 0 ? below : here)[column * pixelBytes];
    }
    /// The sum of the eight around.
    int Ring() const {
        return At(-1, -1) + At(0, -1) + At(1, -1) + At(-1, 0) + At(1, 0) + At(-1, 1) + At(0, 1) + At(1, 1);
    }
    /// How much brighter the left side is than the right one, over three rows.
    int Slope() const { return At(-1, -1) - At(1, -1) + At(-1, 0) - At(1, 0) + At(-1, 1) - At(1, 1); }
};

/// Gives every channel but those of the border the value of its place; the places lie in `from`, which may be
/// the work itself.
template <class Value>
void WalkInside(FilterRun& run, const PixelArray& from, Value value) {
    const int end = (run.Width() - 1) * pixelBytes;
    for (int y = 1; y < run.Height() - 1; ++y) {
        const std::uint8_t *above = from.Row(y - 1), *here = from.Row(y), *below = from.Row(y + 1);
        std::uint8_t* to = run.work.Row(y);
        for (int i = pixelBytes; i < end; i += pixelBytes) {
            for (int j = i; j < i + colourChannels; ++j)
                to[j] = value(Place{above + j, here + j, below + j});
        }
        run.RowDone(y);
    }
}

/// A colour's channels for every byte of a row.
std::vector<std::int16_t> RowOf(Colour colour, int width) {
    const ColourChannels channels = SplitColor(colour);
    std::vector<std::int16_t> row;
    row.reserve(static_cast<std::size_t>(width) * pixelBytes);
    for (int x = 0; x < width; ++x) {
        for (const int value : {channels.blue, channels.green, channels.red, 0})
            row.push_back(static_cast<std::int16_t>(value));
    }
    return row;
}

/// The same from the untouched picture, with the ground's channels added; any byte can be done before any
/// other.
template <class Value>
void WalkSource(FilterRun& run, Colour ground, Value value) {
    const int end = (run.Width() - 1) * pixelBytes;
    const auto groundRow = RowOf(ground, run.Width());
    const std::int16_t* added = groundRow.data();
    for (int y = 1; y < run.Height() - 1; ++y) {
        const std::uint8_t *above = run.source.Row(y - 1), *here = run.source.Row(y),
                           *below = run.source.Row(y + 1);
        std::uint8_t* to = run.work.Row(y);
        for (int i = pixelBytes; i < end; ++i)
            to[i] = ClampToByte(value(Place{above + i, here + i, below + i}) + added[i]);
        run.RowDone(y);
    }
}

/// Sets v to (v (divisor + 8 weight) - weight ring) / divisor, cut off towards zero and clamped.
void ExaggerateInPlace(FilterRun& run, std::int64_t weight, std::int64_t divisor) {
    if (divisor == 0) return;
    // It is v + weight (8 v - ring) / divisor, rounded down: where cutting off would differ, the clamp gives
    // 0 either way. So a table of the differences' shares spares the division.
    constexpr int greatest = 8 * 255;
    std::array<std::int16_t, 2 * greatest + 1> shares{};
    for (int difference = -greatest; difference <= greatest; ++difference) {
        const std::int64_t product = weight * difference;
        const std::int64_t down = product % divisor != 0 && (product < 0) != (divisor < 0) ? 1 : 0;
        shares[static_cast<std::size_t>(difference + greatest)] =
            static_cast<std::int16_t>(product / divisor - down);
    }
    WalkInside(run, run.work, [&shares](Place place) {
        const int value = place.At(0, 0);
        return ClampToByte(value + shares[static_cast<std::size_t>(8 * value - place.Ring() + greatest)]);
    });
}

/// As WalkSource, but each channel looks at its lower right alone. What it looks at isn't written yet, so the
/// untouched picture serves.
void DifferDiagonally(FilterRun& run, Colour ground, int sign) {
    const int end = (run.Width() - 1) * pixelBytes;
    const auto groundRow = RowOf(ground, run.Width());
    const std::int16_t* added = groundRow.data();
    for (int y = 0; y < run.Height() - 1; ++y) {
        const std::uint8_t *here = run.source.Row(y), *below = run.source.Row(y + 1);
        std::uint8_t* to = run.work.Row(y);
        for (int i = 0; i < end; ++i)
            to[i] = ClampToByte(std::abs(sign * (here[i] - below[i + pixelBytes]) + added[i]));
        run.RowDone(y);
    }
}

}  // namespace

void FilterSharpen(FilterRun& run, std::int32_t softness) {
    ExaggerateInPlace(run, 2, std::int64_t{softness} + 8);
}

void FilterBlur(FilterRun& run) {
    WalkInside(run, run.work, [](Place place) { return static_cast<std::uint8_t>(place.Ring() / 8); });
}

void FilterSmooth(FilterRun& run) {
    WalkInside(run, run.work, [](Place place) {
        const int cross =
            place.At(-1, 0) + place.At(0, 0) + place.At(0, -1) + place.At(0, 1) + place.At(1, 0);
        return static_cast<std::uint8_t>(cross / 5);
    });
}

void FilterEdge(FilterRun& run, std::int32_t softness) {
    ExaggerateInPlace(run, 1, std::int64_t{softness} + 1);
}

void FilterContour(FilterRun& run, Colour ground) {
    WalkSource(run, ground, [](Place place) { return 8 * place.At(0, 0) - place.Ring(); });
}

void FilterRelief(FilterRun& run) {
    constexpr int lift = 50;
    WalkSource(run, RGB(lift, lift, lift), [](Place place) {
        const int light = 2 * place.At(-1, -1) + place.At(-1, 0) + place.At(0, -1);
        const int shade = 2 * place.At(1, 1) + place.At(1, 0) + place.At(0, 1);
        return (place.At(0, 0) + light - shade) / 2;
    });
}

void FilterDiagonalBack(FilterRun& run, Colour ground) {
    DifferDiagonally(run, ground, 1);
}

void FilterDiagonalForward(FilterRun& run, Colour ground) {
    DifferDiagonally(run, ground, -1);
}

void FilterGradientBack(FilterRun& run, Colour ground) {
    WalkSource(run, ground, [](Place place) { return place.Slope(); });
}

void FilterGradientForward(FilterRun& run, Colour ground) {
    WalkSource(run, ground, [](Place place) { return -place.Slope(); });
}

}  // namespace coinlet
