// Text at the graphics cursor.

#include "base/numbers.h"
#include "surface/text_stamp.h"

#include <algorithm>
#include <cmath>

namespace coinlet {

void Surface::Print(std::string_view text) {
    PrintOn(text);
    PrintOn("\r\n");
}

void Surface::PrintOn(std::string_view text) {
    const double lineHeight = fonts_->Measure(CurrentFont(), {}).height * UnitsPerPixelY();
    const auto lines = DrawnLines(text);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i > 0) {
            CurrentX = 0;
            CurrentY += static_cast<float>(lineHeight);
        }
        PrintLine(lines[i]);
    }
}

void Surface::PrintLine(std::string_view line) {
    if (line.empty()) return;
    if (!std::isnan(CurrentX) && !std::isnan(CurrentY)) {
        StampText(*this, fonts_->Render(CurrentFont(), line, Edges::Crisp), RoundHalfEven(PixelX(CurrentX)),
                  RoundHalfEven(PixelY(CurrentY)), {0, 0, PixelWidth(), PixelHeight()});
    }
    CurrentX += static_cast<float>(fonts_->Measure(CurrentFont(), line).width * UnitsPerPixelX());
}

double Surface::TextWidth(std::string_view text) const {
    int width = 0;
    for (const std::string_view line : DrawnLines(text))
        width = std::max(width, fonts_->Measure(CurrentFont(), line).width);
    return width * std::abs(UnitsPerPixelX());
}

double Surface::TextHeight(std::string_view text) const {
    const int lineHeight = fonts_->Measure(CurrentFont(), {}).height;
    return static_cast<double>(DrawnLines(text).size()) * lineHeight * std::abs(UnitsPerPixelY());
}

}  // namespace coinlet
