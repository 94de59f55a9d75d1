#include "filters/neighbourhood_filters.h"

#include "filters/channels.h"
#include "filters/place.h"

#include <cstdlib>
#include <vector>

namespace coinlet {

namespace {

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

/// Gives every channel but those of the border the value of its place in the untouched picture, with the
/// ground's channel added.
template <class Value>
void WalkSource(FilterRun& run, Colour ground, Value value) {
    WithVectorUnits(run.units, [=, &run] {
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
    });
}

/// As WalkSource, but each channel looks at its lower right alone: difference(own, its). What it looks at
/// isn't written yet, so the untouched picture serves.
template <class Difference>
void DifferDiagonally(FilterRun& run, Colour ground, Difference difference) {
    WithVectorUnits(run.units, [=, &run] {
        const int end = (run.Width() - 1) * pixelBytes;
        const auto groundRow = RowOf(ground, run.Width());
        const std::int16_t* added = groundRow.data();
        for (int y = 0; y < run.Height() - 1; ++y) {
            const std::uint8_t *here = run.source.Row(y), *below = run.source.Row(y + 1);
            std::uint8_t* to = run.work.Row(y);
            for (int i = 0; i < end; ++i) {
                const auto value =
                    static_cast<std::int16_t>(difference(here[i], below[i + pixelBytes]) + added[i]);
                to[i] = ClampToByte(std::abs(value));
            }
            run.RowDone(y);
        }
    });
}

}  // namespace

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
    DifferDiagonally(run, ground, [](int own, int other) { return own - other; });
}

void FilterDiagonalForward(FilterRun& run, Colour ground) {
    DifferDiagonally(run, ground, [](int own, int other) { return other - own; });
}

void FilterGradientBack(FilterRun& run, Colour ground) {
    WalkSource(run, ground, [](Place place) { return place.Slope(); });
}

void FilterGradientForward(FilterRun& run, Colour ground) {
    WalkSource(run, ground, [](Place place) { return -place.Slope(); });
}

}  // namespace coinlet
