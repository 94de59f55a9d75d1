// Text at the graphics cursor.

#include "base/numbers.h"
#include "base/text.h"
#include "surface/text_stamp.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

namespace coinlet {

namespace {

/// A line as the pieces that it is drawn in: one, but for a line so long that a font engine needn't make a
/// mask of it as a whole. A user who places such a line sees but a part of it.
std::vector<std::string> Pieces(std::string_view line, const TextExtent& extent) {
    constexpr int longestPiece = 4096;  // pixels
    if (extent.width <= 2 * longestPiece) return {std::string(line)};
    // A letter is hardly wider than its line is high.
    const int letters = std::max(1, longestPiece / std::max(1, extent.height));
    std::vector<std::string> pieces;
    int inPiece = letters;
    for (const std::string& letter : Graphemes(line)) {
        if (inPiece == letters) {
            pieces.emplace_back();
            inPiece = 0;
        }
        pieces.back() += letter;
        ++inPiece;
    }
    return pieces;
}

}  // namespace

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
    const FontSpec font = CurrentFont();
    const TextExtent whole = fonts_->Measure(font, line);
    if (!std::isnan(CurrentX) && !std::isnan(CurrentY)) {
        const PixelRect all = {0, 0, PixelWidth(), PixelHeight()};
        const int y = RoundHalfEven(PixelY(CurrentY));
        std::int64_t x = RoundHalfEven(PixelX(CurrentX));
        for (const std::string& piece : Pieces(line, whole)) {
            const int width = piece.size() == line.size() ? whole.width : fonts_->Measure(font, piece).width;
            // Letters may reach out of their cells, but not by more than the height of a line.
            if (x + width + whole.height >= 0 && x - whole.height <= PixelWidth())
                StampText(*this, {font, piece}, static_cast<int>(x), y, all);
            x += width;
        }
    }
    CurrentX += static_cast<float>(whole.width * UnitsPerPixelX());
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
