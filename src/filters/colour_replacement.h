#pragma once

#include "surface/colour.h"

#include <array>
#include <span>

namespace coinlet {

/// The colours of a palette's five boxes, in the order of their index.
constexpr int paletteSize = 5;
using PaletteColours = std::array<Colour, paletteSize>;

/// Target colours, taken apart once for a whole picture.
class PaletteTargets {
public:
    explicit PaletteTargets(const PaletteColours& targets);

    /// Gives each pixel the result of the same index as the target nearest to it: the one with the least sum
    /// of the squared differences of red, green and blue. Of targets equally near the first wins.
    void Replace(std::span<Pixel> pixels, const PaletteColours& results) const;

private:
    std::array<float, paletteSize> reds_{}, greens_{}, blues_{};
};

/// What `ReplaceDarkColors` turns dark pixels into, by the number of the metal.
enum class Metal { Copper, Silver, Gold };

/// Gives the pixels whose channels are all below 50 the colour of a metal.
void ReplaceDarkPixels(std::span<Pixel> pixels, Metal metal);

}  // namespace coinlet
