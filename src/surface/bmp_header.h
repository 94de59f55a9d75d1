#pragma once

#include "surface/bmp_format.h"
#include "surface/colour.h"

#include <array>
#include <optional>

namespace coinlet::bmp {

/// What a bitmap file says of its pixels before it gives them.
struct Header {
    int width = 0, height = 0;  ///< Above 0, and a size that IsPictureSize allows.
    bool topDown = false;       ///< The first row of the file is the top one.
    unsigned bits = 0;          ///< A pixel: 1, 4, 8, 16, 24 or 32.
    Compression compression = Compression::None;
    std::uint32_t redMask = 0, greenMask = 0, blueMask = 0;  ///< For 16 and 32 bits.
    std::array<Pixel, 256> palette{};      ///< For 1, 4 and 8 bits; black where the file has no entry.
    std::span<const std::uint8_t> pixels;  ///< As far as the file goes.
};

/// Reads it, or nothing if it is broken or tells of a picture that can't be made.
std::optional<Header> ReadHeader(std::span<const std::uint8_t> file);

}  // namespace coinlet::bmp
