#pragma once

#include "base/font.h"
#include "surface/surface.h"

#include <string_view>
#include <vector>

namespace coinlet {

/// A line of text as a font engine draws it.
struct Lettering {
    FontSpec font;
    std::string_view text;
    Edges edges = Edges::Crisp;
    double angle = 0;  ///< Degrees counter-clockwise.
};

/// Draws a text in `ForeColor` with its point at (x, y), as far as it lies in `clip`. Half-tones are blended
/// with what lies below: round((below (255 - c) + ink c) / 255) for each channel.
void StampText(Surface& target, const Lettering& lettering, int x, int y, const PixelRect& clip);

/// The lines of a text that is drawn: CR LF parts them, so that there is always one more line than breaks.
std::vector<std::string_view> DrawnLines(std::string_view text);

}  // namespace coinlet
