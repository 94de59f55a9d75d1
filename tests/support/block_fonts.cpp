#include "support/block_fonts.h"

namespace coinlet::test {

TextMask BlockFonts::Render(const FontSpec& font, std::string_view text, Edges, double angle) const {
    const auto letters = Characters(text);
    const int cell = CellWidth(font), line = CellHeight(font);
    TextMask flat;
    flat.width = cell * static_cast<int>(letters.size());
    flat.height = line;
    flat.coverage.assign(static_cast<std::size_t>(flat.width) * static_cast<std::size_t>(line), 0);
    const auto at = [](const TextMask& mask, int x, int y) {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(mask.width) +
               static_cast<std::size_t>(x);
    };
    for (std::size_t i = 0; i < letters.size(); ++i) {
        if (letters[i] == " ") continue;
        for (int y = 0; y < line - 1; ++y)
            for (int x = 0; x < cell - 1; ++x)
                flat.coverage[at(flat, static_cast<int>(i) * cell + x, y)] = 255;
    }
    const int quarters = static_cast<int>(std::lround(angle / 90.0)) & 3;
    if (quarters == 0) return flat;

    TextMask turned;
    turned.width = quarters == 2 ? flat.width : flat.height;
    turned.height = quarters == 2 ? flat.height : flat.width;
    // About the top left corner: 90 degrees runs upward from it, 180 to its upper left, 270 downward to its
    // left.
    turned.left = quarters == 1 ? 0 : -turned.width;
    turned.top = quarters == 3 ? 0 : -turned.height;
    turned.coverage.assign(flat.coverage.size(), 0);
    for (int y = 0; y < flat.height; ++y) {
        for (int x = 0; x < flat.width; ++x) {
            const int tx = quarters == 1 ? y : quarters == 2 ? flat.width - 1 - x : flat.height - 1 - y;
            const int ty = quarters == 1 ? flat.width - 1 - x : quarters == 2 ? flat.height - 1 - y : x;
            turned.coverage[at(turned, tx, ty)] = flat.coverage[at(flat, x, y)];
        }
    }
    return turned;
}

}  // namespace coinlet::test
