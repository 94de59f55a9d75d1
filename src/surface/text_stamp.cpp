#include "surface/text_stamp.h"

#include <algorithm>
#include <cstdint>

namespace coinlet {
namespace {

constexpr Pixel fullInk = 255;

Pixel Blend(Pixel below, Pixel ink, Pixel coverage) {
    Pixel blended = spareByte;
    for (const int shift : {0, 8, 16}) {
        const Pixel sum = (below >> shift & 0xFF) * (fullInk - coverage) + (ink >> shift & 0xFF) * coverage;
        blended |= (sum + fullInk / 2) / fullInk << shift;
    }
    return blended;
}

int Clamped(std::int64_t position, int low, int high) {
    return static_cast<int>(std::clamp<std::int64_t>(position, low, high));
}

}  // namespace

void StampText(Surface& target, const TextMask& mask, int x, int y, const PixelRect& clip) {
    const PixelRect bounds = Intersection(clip, {0, 0, target.PixelWidth(), target.PixelHeight()});
    if (bounds.Empty()) return;
    const std::int64_t left = std::int64_t{x} + mask.left, top = std::int64_t{y} + mask.top;
    const PixelRect inked = {Clamped(left, bounds.left, bounds.right),
                             Clamped(top, bounds.top, bounds.bottom),
                             Clamped(left + mask.width, bounds.left, bounds.right),
                             Clamped(top + mask.height, bounds.top, bounds.bottom)};
    if (inked.Empty()) return;

    const Pixel ink = ToPixel(target.ForeColor);
    Bitmap& pixels = target.Write(inked);
    for (int row = inked.top; row < inked.bottom; ++row) {
        const std::uint8_t* coverage = mask.coverage.data() + (row - top) * mask.width + (inked.left - left);
        Pixel* pixel = pixels.Row(row) + inked.left;
        for (int column = inked.left; column < inked.right; ++column, ++pixel, ++coverage) {
            if (*coverage == fullInk) {
                *pixel = ink;
            } else if (*coverage != 0) {
                *pixel = Blend(*pixel, ink, *coverage);
            }
        }
    }
}

std::vector<std::string_view> DrawnLines(std::string_view text) {
    constexpr std::string_view lineBreak = "\r\n";
    std::vector<std::string_view> lines;
    for (auto end = text.find(lineBreak); end != std::string_view::npos; end = text.find(lineBreak)) {
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end + lineBreak.size());
    }
    lines.push_back(text);
    return lines;
}

}  // namespace coinlet
