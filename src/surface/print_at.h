#pragma once

#include "surface/surface.h"

namespace coinlet {

/// Prints a line of text, its cell's top left corner at (x, y) in the units of the surface.
inline void PrintAt(Surface& surface, double x, double y, std::string_view text) {
    surface.CurrentX = static_cast<float>(x);
    surface.CurrentY = static_cast<float>(y);
    surface.Print(text);
}

}  // namespace coinlet
