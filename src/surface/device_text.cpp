// Text by device calls: laid out in a rectangle, or turned about a point.

#include "base/text.h"
#include "surface/device.h"
#include "surface/text_stamp.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <utility>
#include <vector>

namespace coinlet {
namespace {

constexpr int dotsPerInch = 96;
constexpr double pointsPerInch = 72;
constexpr std::size_t longestFaceName = 32;
constexpr int boldWeight = 700;
constexpr int smoothQuality = 4;

// The letters' height in pixels is their size; 96 dots an inch make it points.
FontSpec ToFontSpec(const LOGFONT& font) {
    return {font.lfFaceName,
            std::abs(static_cast<double>(font.lfHeight)) * pointsPerInch / dotsPerInch,
            font.lfWeight >= boldWeight,
            font.lfItalic != 0,
            font.lfUnderline != 0,
            font.lfStrikeOut != 0};
}

FontSpec SelectedFont(const Surface& surface) {
    return surface.DeviceFont ? ToFontSpec(*surface.DeviceFont) : surface.CurrentFont();
}

// What a rectangle's lines are measured with.
struct Ruler {
    const FontEngine& fonts;
    FontSpec font;
    int Width(std::string_view text) const { return fonts.Measure(font, text).width; }
    int LineHeight() const { return fonts.Measure(font, {}).height; }
};

// The longest front part of `text` that ends with a word, or is all of it, and fits; at least one word.
std::string_view FrontThatFits(std::string_view text, const Ruler& ruler, std::int64_t width) {
    std::size_t taken = 0;
    while (taken < text.size()) {
        const auto word = text.find_first_not_of(' ', taken);
        const auto end =
            word == std::string_view::npos ? text.size() : std::min(text.find(' ', word), text.size());
        if (taken > 0 && ruler.Width(text.substr(0, end)) > width) break;
        taken = end;
    }
    return text.substr(0, taken);
}

void AddWrapped(std::string_view text, const Ruler& ruler, std::int64_t width,
                std::vector<std::string_view>& lines) {
    do {
        const std::string_view line = FrontThatFits(text, ruler, width);
        lines.push_back(line);
        text.remove_prefix(line.size());
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    } while (!text.empty());
}

std::vector<std::string_view> LaidOutLines(std::string_view text, const Ruler& ruler, std::int64_t width,
                                           unsigned flags) {
    if ((flags & DT_WORDBREAK) == 0) return DrawnLines(text);
    std::vector<std::string_view> lines;
    for (const std::string_view line : DrawnLines(text))
        AddWrapped(line, ruler, width, lines);
    return lines;
}

int Saturated(std::int64_t value) {
    return static_cast<int>(
        std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

// Half of what is left over, rounded down also where a line is wider than its rectangle.
std::int64_t HalfDown(std::int64_t value) {
    return value >> 1;
}

}  // namespace

int DrawTextA(DeviceContext hDC, std::string_view text, RECT& rectangle, unsigned flags) {
    Surface& target = hDC.Target();
    const Ruler ruler = {target.Fonts(), SelectedFont(target)};
    const std::int64_t room = std::int64_t{rectangle.right} - rectangle.left;
    const auto lines = LaidOutLines(text, ruler, room, flags);
    const std::int64_t lineHeight = ruler.LineHeight();
    const std::int64_t height = lineHeight * static_cast<std::int64_t>(lines.size());

    if ((flags & DT_CALCRECT) != 0) {
        int widest = 0;
        for (const std::string_view line : lines)
            widest = std::max(widest, ruler.Width(line));
        rectangle.right = Saturated(std::int64_t{rectangle.left} + widest);
        rectangle.bottom = Saturated(rectangle.top + height);
        return Saturated(height);
    }

    const PixelRect clip = {rectangle.left, rectangle.top, rectangle.right, rectangle.bottom};
    std::int64_t y = rectangle.top;
    for (const std::string_view line : lines) {
        const std::int64_t margin = (flags & DT_CENTER) != 0 ? HalfDown(room - ruler.Width(line)) : 0;
        StampText(target, {ruler.font, line}, Saturated(rectangle.left + margin), Saturated(y), clip);
        y += lineHeight;
    }
    return Saturated(height);
}

Colour SetTextColor(DeviceContext hDC, Colour colour) {
    return std::exchange(hDC.Target().ForeColor, colour);
}

HFONT CreateFontIndirectA(const LOGFONT& font) {
    if (font.lfHeight == 0 || Characters(font.lfFaceName).size() > longestFaceName) return nullptr;
    return std::make_shared<const LOGFONT>(font);
}

HFONT SelectObject(DeviceContext hDC, HFONT font) {
    return std::exchange(hDC.Target().DeviceFont, std::move(font));
}

void TextOutA(DeviceContext hDC, int x, int y, std::string_view text) {
    Surface& target = hDC.Target();
    constexpr double unitsPerDegree = 10;
    const bool smooth = target.DeviceFont && target.DeviceFont->lfQuality == smoothQuality;
    const double angle = target.DeviceFont ? target.DeviceFont->lfEscapement / unitsPerDegree : 0;
    StampText(target, {SelectedFont(target), text, smooth ? Edges::Smooth : Edges::Crisp, angle}, x, y,
              {0, 0, target.PixelWidth(), target.PixelHeight()});
}

int GetDeviceCaps(DeviceContext, int index) {
    return index == LOGPIXELSY ? dotsPerInch : 0;
}

int MulDiv(int number, int numerator, int denominator) {
    if (denominator == 0) return -1;
    const std::int64_t product = std::int64_t{number} * numerator;
    const std::int64_t divisor = std::abs(std::int64_t{denominator});
    const std::int64_t magnitude = (std::abs(product) + divisor / 2) / divisor;
    const std::int64_t quotient = (product < 0) != (denominator < 0) ? -magnitude : magnitude;
    return Saturated(quotient) == quotient ? static_cast<int>(quotient) : -1;
}

}  // namespace coinlet
