#include "surface/transfer.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace coinlet {
namespace {

// Every way to join a source pixel with the target pixel keeps the spare byte at 255, as both have it.
struct Copy {
    Pixel operator()(Pixel, Pixel source) const { return source; }
};
struct And {
    Pixel operator()(Pixel target, Pixel source) const { return target & source; }
};
struct MergeNotSource {
    Pixel operator()(Pixel target, Pixel source) const { return target | ~source; }
};
struct CopyWithout {
    Pixel leftOut;
    Pixel operator()(Pixel target, Pixel source) const { return source == leftOut ? target : source; }
};

template <class Join>
void JoinRow(Pixel* target, const Pixel* source, const AxisMap& columns, Join join) {
    const std::size_t count = columns.sources.size();
    switch (columns.order) {
        case AxisMap::Order::Forward: {
            const Pixel* from = source + columns.sources.front();
            for (std::size_t i = 0; i < count; ++i)
                target[i] = join(target[i], from[i]);
            break;
        }
        case AxisMap::Order::Backward: {
            const Pixel* last = source + columns.sources.back();
            for (std::size_t i = 0; i < count; ++i)
                target[i] = join(target[i], last[count - 1 - i]);
            break;
        }
        case AxisMap::Order::Stretched: {
            const int* columnOf = columns.sources.data();
            for (std::size_t i = 0; i < count; ++i)
                target[i] = join(target[i], source[columnOf[i]]);
            break;
        }
    }
}

void JoinRow(Pixel* target, const Pixel* source, const AxisMap& columns, Copy join) {
    if (columns.order == AxisMap::Order::Forward) {
        std::memcpy(target, source + columns.sources.front(), columns.sources.size() * sizeof(Pixel));
    } else {
        JoinRow<Copy>(target, source, columns, join);
    }
}

template <class Join>
void TransferRows(Surface& target, const TransferBox& to, const Image& source, const TransferBox& from,
                  Join join) {
    const AxisMap columns = MapAxis(to.columns, target.PixelWidth(), from.columns, source.Width());
    const AxisMap rows = MapAxis(to.rows, target.PixelHeight(), from.rows, source.Height());
    if (columns.Empty() || rows.Empty()) return;

    Bitmap& pixels = target.Write({columns.first, rows.first, columns.End(), rows.End()});
    int y = rows.first;
    for (const int sourceRow : rows.sources)
        JoinRow(pixels.Row(y++) + columns.first, source.Row(sourceRow), columns, join);
}

using Wide = std::int64_t;

/// Pixels i from `first` to before `end` of a target run that is to be mapped.
struct Places {
    Wide first, end;
};

// Both put the source positions that lie in the source into `sources`, and give the first pixel i that has
// one.

Wide TakeOneByOne(std::vector<int>& sources, Places places, PixelRun from, int sourceSize) {
    const bool upward = from.length > 0;
    const Wide start = from.start;
    const Wide first = std::max(places.first, upward ? -start : start - (sourceSize - 1));
    const Wide end = std::min(places.end, upward ? sourceSize - start : start + 1);
    if (first >= end) return first;
    sources.resize(static_cast<std::size_t>(end - first));
    const int position = static_cast<int>(upward ? start + first : start - first), step = upward ? 1 : -1;
    for (int i = 0; i < static_cast<int>(sources.size()); ++i)
        sources[static_cast<std::size_t>(i)] = position + step * i;
    return first;
}

/// floor((2i + 1) n / 2m), stepped from pixel to pixel. Lengths of 2^31 at most keep it within 64 bits.
Wide TakeStretched(std::vector<int>& sources, Places places, Wide m, PixelRun from, int sourceSize) {
    const Wide n = std::abs(Wide{from.length}), divisor = 2 * m, firstNumber = (2 * places.first + 1) * n;
    Wide quotient = firstNumber / divisor, remainder = firstNumber % divisor;
    const Wide quotientStep = 2 * n / divisor, remainderStep = 2 * n % divisor;

    sources.reserve(static_cast<std::size_t>(places.end - places.first));
    Wide firstTaken = 0;
    for (Wide i = places.first; i < places.end; ++i) {
        const Wide position = from.start + (from.length > 0 ? quotient : -quotient);
        if (position >= 0 && position < sourceSize) {
            if (sources.empty()) firstTaken = i;
            sources.push_back(static_cast<int>(position));
        }
        quotient += quotientStep;
        remainder += remainderStep;
        if (remainder >= divisor) {
            remainder -= divisor;
            ++quotient;
        }
    }
    return firstTaken;
}

}  // namespace

AxisMap MapAxis(PixelRun to, int targetSize, PixelRun from, int sourceSize) {
    const Wide m = std::abs(Wide{to.length}), n = std::abs(Wide{from.length});
    if (m == 0 || n == 0) return {};

    // The target's part of the run, as pixels i of m: nothing beyond it is looked at.
    const bool targetUpward = to.length > 0, sourceUpward = from.length > 0;
    const Wide start = to.start;
    const Wide firstI = std::max<Wide>(0, targetUpward ? -start : start - (targetSize - 1));
    const Wide endI = std::min<Wide>(m, targetUpward ? targetSize - start : start + 1);
    if (firstI >= endI) return {};

    AxisMap map;
    const Wide firstTaken = m == n ? TakeOneByOne(map.sources, {firstI, endI}, from, sourceSize)
                                   : TakeStretched(map.sources, {firstI, endI}, m, from, sourceSize);
    if (map.Empty()) return {};

    const Wide lastTaken = firstTaken + static_cast<Wide>(map.sources.size()) - 1;
    map.first = static_cast<int>(targetUpward ? start + firstTaken : start - lastTaken);
    if (!targetUpward) std::reverse(map.sources.begin(), map.sources.end());
    if (m == n) {
        map.order = targetUpward == sourceUpward ? AxisMap::Order::Forward : AxisMap::Order::Backward;
    } else {
        map.order = AxisMap::Order::Stretched;
    }
    return map;
}

void Transfer(Surface& target, const TransferBox& to, const Image& source, const TransferBox& from,
              RasterOp op) {
    switch (op) {
        case SRCAND:
            return TransferRows(target, to, source, from, And{});
        case MERGE_NOT_SOURCE:
            return TransferRows(target, to, source, from, MergeNotSource{});
        case SRCCOPY:
            break;
    }
    TransferRows(target, to, source, from, Copy{});
}

void TransferWithout(Surface& target, const TransferBox& to, const Image& source, const TransferBox& from,
                     Pixel leftOut) {
    TransferRows(target, to, source, from, CopyWithout{leftOut});
}

}  // namespace coinlet
