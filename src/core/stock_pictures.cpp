#include "core/stock_pictures.h"

#include "core/stock_bytes.h"
#include "surface/codecs.h"

#include <algorithm>
#include <array>

namespace coinlet {

namespace {

constexpr int iconSide = 14, framesAStrip = 3;
constexpr std::size_t toolIcons = 16;

/// The strips lie below each other in one bitmap, in the order of the buttons.
std::array<Image, toolIcons> CutStrips(const Image& sheet) {
    std::array<Image, toolIcons> strips;
    int top = 0;
    for (Image& strip : strips) {
        Bitmap bitmap(framesAStrip * iconSide, iconSide);
        for (int y = 0; y < iconSide; ++y)
            std::copy_n(sheet.Row(top + y), bitmap.Width(), bitmap.Row(y));
        strip = Image(std::move(bitmap));
        top += iconSide;
    }
    return strips;
}

}  // namespace

Image ToolIconStrip(int index) {
    static const std::array strips = CutStrips(DecodeBmp(stock_bytes::ToolIcons()).value());
    const auto place = static_cast<std::size_t>(index);
    return index >= 0 && place < strips.size() ? strips[place] : Image();
}

Image StartPicture() {
    static const Image picture = DecodeBmp(stock_bytes::StartPicture()).value();
    return picture;
}

}  // namespace coinlet
