#pragma once

#include "filters/pixel_array.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace coinlet {

// A pixel as one number of 32 bits, blue lowest, then green, red, spare. Loops over whole pixels are turned
// into wide instructions where loops over every fourth byte aren't.

static_assert(std::endian::native == std::endian::little, "words hold a pixel's bytes the other way round");

inline std::uint32_t PixelAt(const std::uint8_t* row, int x) {
    std::uint32_t word;
    std::memcpy(&word, row + x * pixelBytes, sizeof word);
    return word;
}

inline void PutPixel(std::uint8_t* row, int x, std::uint32_t word) {
    std::memcpy(row + x * pixelBytes, &word, sizeof word);
}

/// The gray value of a pixel, (blue + green + red) / 3 cut off. With 3 * 21,846 = 65,538 the product exceeds
/// a third of the sum by 2 * sum / (3 * 65,536): for sums up to 765 less than the 1 / 3 to the next whole
/// number.
constexpr std::uint32_t GrayOf(std::uint32_t word) {
    const std::uint32_t sum = (word & 0xFFu) + (word >> 8 & 0xFFu) + (word >> 16 & 0xFFu);
    return sum * 21'846u >> 16;
}

/// The gray pixel of a value from 0 to 255.
constexpr std::uint32_t GrayPixel(std::uint32_t value) {
    return value * 0x010101u;
}

}  // namespace coinlet
