#pragma once

#include "surface/colour.h"

#include <array>

namespace coinlet::test {

/// How far colours lie from a metal: from the line of colours that it runs through from black to its gleam.
/// Lengths are those of CIE Lab with the white of screens (D65); a difference of some 2 can just be seen side
/// by side.
class MetalLine {
public:
    /// The metal by its place in `materials`, 0 to 3.
    explicit MetalLine(int metal);

    /// How far a colour lies from the line at its lightness, in the plane of hue and chroma.
    double Strays(Colour colour) const;

private:
    struct Lab {
        double lightness, greenToRed, blueToYellow;
    };
    static Lab Of(double red, double green, double blue);

    static constexpr int parts = 400;
    std::array<Lab, parts + 1> line_;
};

}  // namespace coinlet::test
