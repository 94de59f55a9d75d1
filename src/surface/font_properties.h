#pragma once

#include "base/font.h"

#include <string>

namespace coinlet {

/// The font of whatever prints: surfaces, labels, text boxes. What is set is what is read back.
struct FontProperties {
    std::string FontName{standardFontName};
    float FontSize{standardFontSize};
    bool FontBold = false;
    bool FontItalic = false;
    bool FontUnderline = false;
    bool FontStrikethru = false;

    FontSpec CurrentFont() const {
        return {FontName, FontSize, FontBold, FontItalic, FontUnderline, FontStrikethru};
    }

    friend bool operator==(const FontProperties&, const FontProperties&) = default;
};

}  // namespace coinlet
