#include "core/font_sample.h"

#include "controls/label.h"

namespace coinlet {

void ShowFontSample(Label& label, const std::string& fontName) {
    constexpr float points = 14;
    label.Sample = true;
    label.FontName = fontName;
    label.FontSize = points;
    label.Caption = "Example";
}

}  // namespace coinlet
