#pragma once

#include <algorithm>

namespace coinlet {

/// A rectangle in whatever unit its user speaks of. A negative width or height is legal where it is said.
struct Rectangle {
    double x = 0, y = 0, width = 0, height = 0;
};

/// A rectangle of whole pixels; `right` and `bottom` lie outside it.
struct PixelRect {
    int left = 0, top = 0, right = 0, bottom = 0;

    bool Empty() const { return left >= right || top >= bottom; }
    int Width() const { return right - left; }
    int Height() const { return bottom - top; }

    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

inline PixelRect Intersection(const PixelRect& a, const PixelRect& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

/// The smallest rectangle around both; an empty one adds nothing.
inline PixelRect Union(const PixelRect& a, const PixelRect& b) {
    if (a.Empty()) return b;
    if (b.Empty()) return a;
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom)};
}

}  // namespace coinlet
