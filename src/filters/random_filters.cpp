#include "filters/random_filters.h"

#include "base/numbers.h"
#include "filters/channels.h"

#include <algorithm>

namespace coinlet {

void FilterDefuse(FilterRun& run, std::int32_t reach) {
    const int half = RoundHalfEven(reach / 2.0);
    const auto thrown = [&run, reach, half] { return RoundWhole(run.random.Next() * reach - half); };
    /// Where a throw leads; one that leads out of the picture counts as 0.
    const auto moved = [](int from, int offset, int size) {
        const std::int64_t to = std::int64_t{from} + offset;
        return to < 0 || to >= size ? from : static_cast<int>(to);
    };
    for (int y = 0; y < run.Height(); ++y) {
        std::uint8_t* to = run.work.Row(y);
        for (int x = 0; x < run.Width(); ++x) {
            const int column = moved(x, thrown(), run.Width());
            const int row = moved(y, thrown(), run.Height());
            std::copy_n(run.work.Row(row) + column * pixelBytes, colourChannels, to + x * pixelBytes);
        }
        run.RowDone(y);
    }
}

void FilterAddNoise(FilterRun& run, std::int32_t strength) {
    const double range = 2.0 * strength + 1;
    const int end = run.Width() * pixelBytes;
    for (int y = 0; y < run.Height(); ++y) {
        const std::uint8_t* from = run.source.Row(y);
        std::uint8_t* to = run.work.Row(y);
        for (int i = 0; i < end; i += pixelBytes) {
            for (int j = i; j < i + colourChannels; ++j)
                to[j] = RoundToByte(run.random.Next() * range - strength + from[j]);
        }
        run.RowDone(y);
    }
}

}  // namespace coinlet
