#include "filters/colour_replacement.h"

#include "core/materials.h"
#include "filters/channels.h"

#include <algorithm>

namespace coinlet {

PaletteTargets::PaletteTargets(const PaletteColours& targets) {
    for (std::size_t i = 0; i < paletteSize; ++i) {
        const auto [red, green, blue] = SplitColor(targets[i]);
        reds_[i] = static_cast<float>(red);
        greens_[i] = static_cast<float>(green);
        blues_[i] = static_cast<float>(blue);
    }
}

void PaletteTargets::Replace(std::span<Pixel> pixels, const PaletteColours& results) const {
    // Each distance is a whole number below 2^24, which single precision holds exactly; processors of all
    // kinds multiply four of these at once.
    constexpr float beyondAll = 1e9F;
    const auto channel = [](Pixel bits) { return static_cast<float>(static_cast<int>(bits & 0xFFu)); };
    // Copies that no pixel written can change: only then is the loop turned into wide instructions.
    const PaletteTargets targets = *this;
    std::array<Pixel, paletteSize> inks{};
    std::ranges::transform(results, inks.begin(), ToPixel);
    for (Pixel& pixel : pixels) {
        const float red = channel(pixel >> 16);
        const float green = channel(pixel >> 8);
        const float blue = channel(pixel);
        float best = beyondAll;
        Pixel ink = pixel;
        for (std::size_t i = 0; i < paletteSize; ++i) {
            const float reds = red - targets.reds_[i];
            const float greens = green - targets.greens_[i];
            const float blues = blue - targets.blues_[i];
            const float distance = reds * reds + greens * greens + blues * blues;
            const bool nearer = distance < best;
            best = nearer ? distance : best;
            ink = nearer ? inks[i] : ink;
        }
        pixel = ink;
    }
}

void ReplaceDarkPixels(std::span<Pixel> pixels, Metal metal) {
    // Copper is meant to come out as a strong red, unlike the box that stands for it.
    constexpr std::array colours{RGB(228, 11, 30), shinySilver.Shade(), shinyGold.Shade()};
    constexpr Pixel darkBelow = 50;
    const Pixel ink = ToPixel(colours.at(static_cast<std::size_t>(metal)));
    for (Pixel& pixel : pixels) {
        const Pixel brightest = std::max(std::max(pixel >> 16 & 0xFFu, pixel >> 8 & 0xFFu), pixel & 0xFFu);
        pixel = brightest < darkBelow ? ink : pixel;
    }
}

}  // namespace coinlet
