// Text by device calls: laid out in a rectangle, or turned about a point.

#include "base/text.h"
#include "surface/device.h"
#include "surface/text_layout.h"
#include "surface/text_stamp.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <optional>
#include <utility>

namespace coinlet {
namespace {

constexpr std::size_t longestFaceName = 32;

// The letters' height in pixels is their size.
FontSpec ToFontSpec(const LOGFONT& font) {
    return {font.lfFaceName,
            std::abs(static_cast<double>(font.lfHeight)) * pointsPerInch / pixelsPerInch,
            font.lfWeight >= boldWeight,
            font.lfItalic != 0,
            font.lfUnderline != 0,
            font.lfStrikeOut != 0};
}

FontSpec SelectedFont(const Surface& surface) {
    return surface.DeviceFont ? ToFontSpec(*surface.DeviceFont) : surface.CurrentFont();
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
    const FontEngine& fonts = target.Fonts();
    const FontSpec font = SelectedFont(target);
    const std::int64_t room = std::int64_t{rectangle.right} - rectangle.left;
    const TextLayout layout =
        LayOutText(fonts, font, text, (flags & DT_WORDBREAK) != 0 ? std::optional(room) : std::nullopt);
    const std::int64_t height = layout.Height();

    if ((flags & DT_CALCRECT) != 0) {
        rectangle.right = Saturated(std::int64_t{rectangle.left} + WidestLine(fonts, font, layout));
        rectangle.bottom = Saturated(rectangle.top + height);
        return Saturated(height);
    }

    const PixelRect clip = {rectangle.left, rectangle.top, rectangle.right, rectangle.bottom};
    std::int64_t y = rectangle.top;
    for (const std::string_view line : layout.lines) {
        const bool centred = (flags & DT_CENTER) != 0;
        const std::int64_t margin = centred ? HalfDown(room - fonts.Measure(font, line).width) : 0;
        StampText(target, {font, line}, Saturated(rectangle.left + margin), Saturated(y), clip);
        y += layout.lineHeight;
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
    return index == LOGPIXELSY ? pixelsPerInch : 0;
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
