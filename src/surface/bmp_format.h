#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace coinlet::bmp {

// The file starts with "BM", its size, four spare bytes and the offset of the pixels; then comes the header
// that tells the picture's size, and every number is little-endian.
constexpr std::size_t fileHeaderSize = 14;
constexpr std::size_t coreHeaderSize = 12;
constexpr std::size_t infoHeaderSize = 40;

enum class Compression : std::uint32_t {
    None = 0,
    RunLength8 = 1,
    RunLength4 = 2,
    BitFields = 3,
    BitFieldsWithAlpha = 6
};

/// The bytes that a row takes: whole 32-bit words.
constexpr std::size_t RowSize(int width, unsigned bits) {
    return (static_cast<std::size_t>(width) * bits + 31) / 32 * 4;
}

/// A little-endian number at `offset`; bytes beyond the end count as 0.
template <class Number>
constexpr Number Read(std::span<const std::uint8_t> bytes, std::size_t offset) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < sizeof(Number) && offset + i < bytes.size(); ++i)
        number |= static_cast<std::uint32_t>(bytes[offset + i]) << 8 * i;
    return static_cast<Number>(number);
}

}  // namespace coinlet::bmp
