#pragma once

#include "surface/colour.h"

#include <algorithm>
#include <cstdint>

namespace coinlet {

struct ColourChannels {
    int red = 0, green = 0, blue = 0;
};

/// Bits 0 to 7, 8 to 15 and 16 to 23 of a colour. Unlike `Red`, `Green` and `Blue` it takes the bits of
/// negative numbers, so that each channel lies within 0 to 255.
constexpr ColourChannels SplitColor(Colour colour) {
    const auto bits = static_cast<std::uint32_t>(colour);
    const auto channel = [bits](int shift) { return static_cast<int>(bits >> shift & 0xFFu); };
    return {channel(0), channel(8), channel(16)};
}

/// A channel brought into its range.
constexpr std::uint8_t ClampToByte(int value) {
    return static_cast<std::uint8_t>(std::clamp(value, 0, 255));
}

/// The nearest channel value, a half going to the even neighbour. `value` may be infinite, but no NaN.
inline std::uint8_t RoundToByte(double value) {
    // So large a sum has no room for a fraction: it is rounded, by the rule wanted.
    constexpr double noFractions = 0x1p52;
    return static_cast<std::uint8_t>(std::min(std::max(value, 0.0), 255.0) + noFractions - noFractions);
}

/// The nearest whole number, a half going to the even neighbour, of a value within the range of int.
inline int RoundWhole(double value) {
    constexpr double noFractions = 0x1.8p52;  // As above, for both signs.
    return static_cast<int>(value + noFractions - noFractions);
}

/// A percentage as a factor, in the single precision that it is kept in.
inline double FactorOf(std::int64_t percent) {
    return static_cast<float>(static_cast<double>(percent) / 100);
}

}  // namespace coinlet
