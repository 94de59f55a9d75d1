#include "filters/colour_replacement.h"

#include "filters/channels.h"

#include <algorithm>

namespace coinlet {

PaletteTargets::PaletteTargets(const PaletteColours& targets) {
    for (std::size_t i = 0; i < paletteSize; ++i) {
        const auto [red, green, blue] = SplitColor(targets[i]);
        reds_[i] = static_cast<std::int16_t>(red);
        greens_[i] = static_cast<std::int16_t>(green);
        blues_[i] = static_cast<std::int16_t>(blue);
    }
}

void PaletteTargets::Replace(std::span<Pixel> pixels, const PaletteColours& results) const {
    constexpr int beyondAll = 1'000'000'000;
    // Copies that no pixel written can change: only then is the loop turned into wide instructions.
    const PaletteTargets targets = *this;
    std::array<Pixel, paletteSize> inks{};
    std::ranges::transform(results, inks.begin(), ToPixel);
    for (Pixel& pixel : pixels) {
        const int red = static_cast<int>(pixel >> 16 & 0xFFu);
        const int green = static_cast<int>(pixel >> 8 & 0xFFu);
        const int blue = static_cast<int>(pixel & 0xFFu);
        int best = beyondAll;
        Pixel ink = pixel;
        for (std::size_t i = 0; i < paletteSize; ++i) {
            const int reds = red - targets.reds_[i];
            const int greens = green - targets.greens_[i];
            const int blues = blue - targets.blues_[i];
            const int distance = reds * reds + greens * greens + blues * blues;
            const bool nearer = distance < best;
            best = nearer ? distance : best;
            ink = nearer ? inks[i] : ink;
        }
        pixel = ink;
    }
}

void ReplaceDarkPixels(std::span<Pixel> pixels, Metal metal) {
    // Copper is meant to come out as a strong red, unlike the box that stands for it.
    constexpr std::array colours{RGB(228, 11, 30), RGB(128, 128, 132), RGB(240, 173, 0)};
    constexpr Pixel darkBelow = 50;
    const Pixel ink = ToPixel(colours.at(static_cast<std::size_t>(metal)));
    for (Pixel& pixel : pixels) {
        const Pixel brightest = std::max(std::max(pixel >> 16 & 0xFFu, pixel >> 8 & 0xFFu), pixel & 0xFFu);
        pixel = brightest < darkBelow ? ink : pixel;
    }
}

}  // namespace coinlet
