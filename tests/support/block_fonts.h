#pragma once

#include "base/font.h"
#include "base/text.h"

#include <algorithm>
#include <cmath>

namespace coinlet::test {

/// A font whose letters are solid blocks, so that a test can tell by hand where ink falls. At a size of s
/// points a letter's cell is round(s) pixels high and half as wide; its block fills the cell but for one
/// pixel at the right and one at the bottom. Blanks are cells without ink. Turned text is drawn for multiples
/// of 90 degrees.
class BlockFonts : public FontEngine {
public:
    static int CellHeight(const FontSpec& font) {
        return std::max(2, static_cast<int>(std::lround(font.size)));
    }
    static int CellWidth(const FontSpec& font) { return std::max(2, CellHeight(font) / 2); }

    TextExtent Measure(const FontSpec& font, std::string_view text) const override {
        return {CellWidth(font) * static_cast<int>(Characters(text).size()), CellHeight(font)};
    }
    TextMask Render(const FontSpec& font, std::string_view text, Edges edges, double angle) const override;
    std::vector<std::string> Families() const override { return {"Arial", "Block"}; }
    std::string AddFontFile(const std::filesystem::path&) override { return {}; }
};

}  // namespace coinlet::test
