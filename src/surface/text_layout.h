#pragma once

#include "base/font.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace coinlet {

/// A text cut into lines, and what they take of room in pixels.
struct TextLayout {
    std::vector<std::string_view> lines;  ///< Parts of the text that was laid out.
    int lineHeight = 0;

    std::int64_t Height() const { return std::int64_t{lineHeight} * static_cast<std::int64_t>(lines.size()); }
};

/// Cuts a text at each CR LF; with a `width` also before each word that would pass it, and then drops the
/// blanks before that word. A word wider than that stands in a line of its own, unbroken. An empty text is
/// one line.
TextLayout LayOutText(const FontEngine& fonts, const FontSpec& font, std::string_view text,
                      std::optional<std::int64_t> width);

/// How wide the widest of the lines is.
int WidestLine(const FontEngine& fonts, const FontSpec& font, const TextLayout& layout);

}  // namespace coinlet
