#include "unit/app/metal_line.h"

#include <algorithm>
#include <cmath>

namespace coinlet::test {
namespace {

constexpr std::size_t stops = 7;
using Metal = std::array<std::array<double, 3>, stops>;

/// From black over the shadow and the body to the gleam, in the order of `materials`.
constexpr std::array<Metal, 4> metals = {{
    {{{0, 0, 0}, {6, 7, 10}, {20, 23, 29}, {44, 49, 59}, {82, 90, 104}, {142, 151, 167}, {218, 225, 233}}},
    {{{0, 0, 0}, {38, 12, 4}, {98, 36, 9}, {170, 74, 18}, {224, 112, 36}, {246, 166, 104}, {255, 228, 200}}},
    {{{0, 0, 0},
      {24, 24, 28},
      {70, 71, 77},
      {120, 121, 127},
      {170, 171, 177},
      {211, 212, 216},
      {233, 233, 234}}},
    {{{0, 0, 0}, {48, 27, 0}, {112, 70, 0}, {184, 124, 0}, {236, 172, 8}, {252, 213, 82}, {255, 245, 186}}},
}};

double Linear(double channel) {
    const double share = channel / 255;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Response(double part) {
    return part > 0.008856 ? std::cbrt(part) : 7.787 * part + 16.0 / 116;
}

}  // namespace

MetalLine::Lab MetalLine::Of(double red, double green, double blue) {
    const double r = Linear(red), g = Linear(green), b = Linear(blue);
    const double x = Response((0.4124564 * r + 0.3575761 * g + 0.1804375 * b) / 0.95047);
    const double y = Response(0.2126729 * r + 0.7151522 * g + 0.0721750 * b);
    const double z = Response((0.0193339 * r + 0.1191920 * g + 0.9503041 * b) / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

MetalLine::MetalLine(int metal) : line_() {
    const Metal& colours = metals.at(static_cast<std::size_t>(metal));
    for (std::size_t i = 0; i < line_.size(); ++i) {
        const double place = static_cast<double>(i * (stops - 1)) / parts;
        const auto before = std::min(static_cast<std::size_t>(place), stops - 2);
        const double share = place - static_cast<double>(before);
        std::array<double, 3> channels{};
        for (std::size_t c = 0; c < channels.size(); ++c)
            channels[c] = std::lerp(colours[before][c], colours[before + 1][c], share);
        line_[i] = Of(channels[0], channels[1], channels[2]);
    }
}

double MetalLine::Strays(Colour colour) const {
    const Lab here = Of(Red(colour), Green(colour), Blue(colour));
    const auto lighter =
        std::ranges::upper_bound(line_, here.lightness, std::ranges::less(), &Lab::lightness);
    const Lab after = lighter == line_.end() ? line_.back() : *lighter;
    const Lab before = lighter == line_.begin() ? line_.front() : *(lighter - 1);
    const double span = after.lightness - before.lightness;
    const double share = span > 0 ? (here.lightness - before.lightness) / span : 0;
    return std::hypot(here.greenToRed - std::lerp(before.greenToRed, after.greenToRed, share),
                      here.blueToYellow - std::lerp(before.blueToYellow, after.blueToYellow, share));
}

}  // namespace coinlet::test
