#pragma once

#include "surface/image.h"

#include <algorithm>

namespace coinlet {

/// What a pen or a fill does to the pixels that it meets.
struct CopyInk {
    Pixel pixel;
    void operator()(Pixel& target) const { target = pixel; }
};

/// The complement of the three channels; twice is nothing.
struct InvertInk {
    void operator()(Pixel& target) const { target ^= ~spareByte; }
};

/// One of the two, known only when the program runs.
struct Ink {
    Pixel pixel = 0;
    bool inverts = false;

    /// Calls `draw` with the one that this is, so that inner loops don't ask for every pixel.
    template <class Draw>
    void Visit(const Draw& draw) const {
        if (inverts) {
            draw(InvertInk{});
        } else {
            draw(CopyInk{pixel});
        }
    }
};

/// Inks the pixels `left` to `right` - 1 of a row, as far as they lie in the bitmap. The row must exist.
template <class Paint>
void InkRow(Bitmap& bitmap, int y, int left, int right, const Paint& ink) {
    Pixel* const row = bitmap.Row(y);
    const int end = std::min(right, bitmap.Width());
    for (int x = std::max(left, 0); x < end; ++x)
        ink(row[x]);
}

}  // namespace coinlet
