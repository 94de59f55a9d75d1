#pragma once

#include "base/font.h"

#include <string>
#include <string_view>
#include <vector>

namespace coinlet {

class TextBox;

// What a text box of several lines keeps free around its text, in pixels. A shell draws the box by these
// measures, so that a text is cut in the same places with and without a window.
constexpr int textBoxFrame = 1;
constexpr int textBoxMargin = 4;
constexpr int textBoxScrollBar = 16;

/// Where the caption of a check box or an option starts, in pixels: behind its mark.
constexpr int toggleMark = 13;
constexpr int toggleCaptionLeft = toggleMark + 5;

/// The width in pixels that lines of the box wrap at; at least 1.
int WrapWidth(const TextBox& box);

/// Cuts a text without line ends into lines of at most `width` pixels, as wide as their letters' advances
/// together. A line takes the words that fit; the blanks behind a word stay with it, even beyond the edge. A
/// word wider than a line is cut where it is full; a line has at least one letter. The empty text is one
/// line.
std::vector<std::string> WrapLine(std::string_view text, int width, const FontSpec& font,
                                  const FontEngine& fonts);

/// The lines as the box displays them, in order; together they are its text. CR LF ends a line and stands at
/// its end; behind the last one there is an empty line.
std::vector<std::string> DisplayedLines(const TextBox& box);

}  // namespace coinlet
