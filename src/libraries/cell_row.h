#pragma once

#include "surface/geometry.h"

#include <optional>
#include <vector>

namespace coinlet {

/// Equal cells side by side, from the top left corner of a picture, which the user chooses from. In pixels.
struct CellRow {
    int count, width, height;
    int edge;  ///< So many pixels of a cell, at each of its sides, don't count as the cell's.
};

/// Where the cells are, from left to right.
std::vector<Rectangle> Places(const CellRow& row);

/// The cell, from 0, that a place hits; nothing between the cells, beyond them, and for places that are no
/// numbers.
std::optional<int> CellAt(const CellRow& row, float x, float y);

}  // namespace coinlet
