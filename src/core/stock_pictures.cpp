#include "core/stock_pictures.h"

#include "core/materials.h"
#include "core/stock_bytes.h"
#include "core/tool_codes.h"
#include "surface/codecs.h"
#include "surface/finer_edition.h"

#include <algorithm>
#include <array>

namespace coinlet {

namespace {

constexpr int iconSide = 14, fineness = 6, tagSide = 100;

Image Cut(const Image& sheet, int left, int top, int width, int height) {
    Bitmap bitmap(width, height);
    for (int y = 0; y < height; ++y)
        std::copy_n(sheet.Row(top + y) + left, width, bitmap.Row(y));
    return Image(std::move(bitmap));
}

/// The strips lie below each other in one bitmap, in the order of the buttons.
std::array<Image, toolButtonCount> CutIcons(const Image& sheet, int side) {
    std::array<Image, toolButtonCount> strips;
    int top = 0;
    for (Image& strip : strips) {
        strip = Cut(sheet, 0, top, toolIconFrames * side, side);
        top += side;
    }
    return strips;
}

/// The tags stand side by side in one bitmap, in the order of the materials.
std::array<Image, materials.size()> CutTags(const Image& sheet) {
    std::array<Image, materials.size()> tags;
    int left = 0;
    for (Image& tag : tags) {
        tag = Cut(sheet, left, 0, tagSide, tagSide);
        left += tagSide;
    }
    return tags;
}

template <std::size_t count>
Image At(const std::array<Image, count>& pictures, int index) {
    const auto place = static_cast<std::size_t>(index);
    return index >= 0 && place < count ? pictures[place] : Image();
}

}  // namespace

Image ToolIconStrip(int index) {
    static const std::array strips = [] {
        std::array cut = CutIcons(DecodeBmp(stock_bytes::ToolIcons()).value(), iconSide);
        for (int i = 0; i < static_cast<int>(cut.size()); ++i)
            HasFinerEdition(At(cut, i), [i] { return FineToolIconStrip(i); });
        return cut;
    }();
    return At(strips, index);
}

Image FineToolIconStrip(int index) {
    static const std::array strips =
        CutIcons(DecodeBmp(stock_bytes::FineToolIcons()).value(), fineness * iconSide);
    return At(strips, index);
}

Image StartPicture() {
    static const Image picture = DecodeBmp(stock_bytes::StartPicture()).value();
    return picture;
}

Image AllDesignsPicture() {
    static const Image picture = DecodeBmp(stock_bytes::PrintAllDesigns()).value();
    return picture;
}

Image AllClipartsPicture() {
    static const Image picture = DecodeBmp(stock_bytes::PrintAllCliparts()).value();
    return picture;
}

Image HoleRings() {
    static const Image picture = DecodeBmp(stock_bytes::HoleRings()).value();
    return picture;
}

Image BorderHoleRings() {
    static const Image picture = DecodeBmp(stock_bytes::BorderHoleRings()).value();
    return picture;
}

Image BlankTag(int index) {
    static const std::array tags = CutTags(DecodeBmp(stock_bytes::BlankTags()).value());
    return At(tags, index);
}

}  // namespace coinlet
