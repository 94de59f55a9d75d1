#include "surface/text_stamp.h"

#include <algorithm>
#include <cstdint>
#include <limits>

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

/// `bounds` as seen from a point.
TextWindow WindowFrom(int x, int y, const PixelRect& bounds) {
    const auto from = [](int origin, int position) {
        using Limits = std::numeric_limits<int>;
        return Clamped(std::int64_t{position} - origin, Limits::min(), Limits::max());
    };
    return {from(x, bounds.left), from(y, bounds.top), from(x, bounds.right), from(y, bounds.bottom)};
}

void StampMask(Surface& target, const TextMask& mask, int x, int y, const PixelRect& bounds) {
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

}  // namespace

void StampText(Surface& target, const Lettering& lettering, int x, int y, const PixelRect& clip) {
    const PixelRect bounds = Intersection(clip, {0, 0, target.PixelWidth(), target.PixelHeight()});
    if (bounds.Empty()) return;
    const auto& [font, text, edges, angle] = lettering;
    StampMask(target, target.Fonts().RenderSeen(font, text, edges, angle, WindowFrom(x, y, bounds)), x, y,
              bounds);
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
