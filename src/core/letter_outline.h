#pragma once

#include <array>

namespace coinlet {

/// Where a letter is printed again and again, in pixels from its place, so that together the prints make an
/// outline two pixels wide around it.
struct LetterOffset {
    int x, y;
};
constexpr std::array<LetterOffset, 8> letterOutline{
    {{0, -2}, {1, -1}, {2, 0}, {1, 1}, {0, 2}, {-1, 1}, {-2, 0}, {-1, -1}}};

}  // namespace coinlet
