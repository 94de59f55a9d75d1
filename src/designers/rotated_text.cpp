#include "designers/rotated_text.h"

#include "base/numbers.h"

#include <limits>
#include <utility>

namespace coinlet {

namespace {

constexpr int unitsPerDegree = 10;

bool FitsEscapement(int rotation) {
    constexpr int most = std::numeric_limits<std::int32_t>::max() / unitsPerDegree;
    return rotation >= -most && rotation <= most;
}

std::uint8_t Flag(bool set) {
    return set ? 1 : 0;
}

}  // namespace

LOGFONT FillLogFont(const FontProperties& font, DeviceContext hDC) {
    LOGFONT record;
    record.lfHeight = MulDiv(RoundHalfEven(-font.FontSize), GetDeviceCaps(hDC, LOGPIXELSY), pointsPerInch);
    record.lfWeight = font.FontBold ? boldWeight : plainWeight;
    record.lfItalic = Flag(font.FontItalic);
    record.lfUnderline = Flag(font.FontUnderline);
    record.lfStrikeOut = Flag(font.FontStrikethru);
    record.lfQuality = smoothQuality;
    record.lfFaceName = font.FontName;
    return record;
}

void DrawRotatedText(std::string_view text, int rotation, int x, int y, Surface& target) {
    if (!FitsEscapement(rotation)) return;
    const DeviceContext hDC = target.hDC();
    LOGFONT record = FillLogFont(target, hDC);
    record.lfEscapement = rotation * unitsPerDegree;
    if (HFONT font = CreateFontIndirectA(record)) {
        HFONT before = SelectObject(hDC, std::move(font));
        TextOutA(hDC, x, y, text);
        SelectObject(hDC, std::move(before));
    }
    target.Refresh();
}

}  // namespace coinlet
