#include "libraries/cell_row.h"

#include <cstddef>

namespace coinlet {

namespace {

bool IsWithin(float place, int start, int size, int edge) {
    return place > static_cast<float>(start + edge) && place < static_cast<float>(start + size - edge);
}

}  // namespace

std::vector<Rectangle> Places(const CellRow& row) {
    std::vector<Rectangle> places;
    places.reserve(static_cast<std::size_t>(row.count));
    const double width = row.width, height = row.height;
    for (int i = 0; i < row.count; ++i)
        places.push_back({i * width, 0, width, height});
    return places;
}

std::optional<int> CellAt(const CellRow& row, float x, float y) {
    if (!IsWithin(y, 0, row.height, row.edge)) return std::nullopt;
    for (int i = 0; i < row.count; ++i)
        if (IsWithin(x, i * row.width, row.width, row.edge)) return i;
    return std::nullopt;
}

}  // namespace coinlet
