#pragma once

#include <cstdint>

namespace coinlet {

/// A colour as the program's interfaces speak of it: 0x00BBGGRR, red in the low byte. -1 is what `Point`
/// gives outside a surface; a colour below 0 is drawn white.
using Colour = std::int32_t;

/// A pixel as it lies in memory: blue, green, red, spare; as a number 0xSSRRGGBB. The spare byte is 255 in
/// every surface and image, so that pixels compare as whole numbers and a screen takes them as opaque.
using Pixel = std::uint32_t;

constexpr Pixel spareByte = 0xFF000000u;

/// The colour of three channels, red + 256 green + 65536 blue in 32 bits. Channels out of 0..255 go over into
/// the others: RGB(-1, 0, 0) is -1.
constexpr Colour RGB(int red, int green, int blue) {
    return static_cast<Colour>(static_cast<std::uint32_t>(red) + 256U * static_cast<std::uint32_t>(green) +
                               65536U * static_cast<std::uint32_t>(blue));
}

/// The channels of a colour, by truncating arithmetic: those of -1 are -1, 0, 0.
constexpr int Red(Colour colour) {
    return colour % 256;
}
constexpr int Green(Colour colour) {
    return (colour / 256) % 256;
}
constexpr int Blue(Colour colour) {
    return colour / 65536;
}

constexpr Pixel ToPixel(Colour colour) {
    constexpr std::uint32_t whiteBits = 0xFFFFFF;
    const std::uint32_t bits = colour < 0 ? whiteBits : static_cast<std::uint32_t>(colour);
    return spareByte | (bits & 0xFFu) << 16 | (bits & 0xFF00u) | (bits >> 16 & 0xFFu);
}

constexpr Colour ToColour(Pixel pixel) {
    return static_cast<Colour>((pixel & 0xFFu) << 16 | (pixel & 0xFF00u) | (pixel >> 16 & 0xFFu));
}

constexpr Colour black = RGB(0, 0, 0);
constexpr Colour white = RGB(255, 255, 255);

}  // namespace coinlet
