#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

namespace coinlet {

/// Bytes of a pixel in a PixelArray: blue, green, red, spare.
constexpr int pixelBytes = 4;
/// The bytes that are colour.
constexpr int colourChannels = 3;

/// A picture as the bytes that filters compute on: rows from top to bottom without padding. Loops take its
/// width into a constant first: a byte written may be anything to a compiler, the width too, and then the
/// loop isn't turned into wide instructions.
class PixelArray {
public:
    /// Bytes of no particular value. Negative sides count as 0.
    PixelArray(int width, int height)
        : width_(width > 0 ? width : 0),
          height_(height > 0 ? height : 0),
          bytes_(std::make_unique_for_overwrite<std::uint8_t[]>(Offset(height_))) {}

    int Width() const { return width_; }
    int Height() const { return height_; }

    std::uint8_t* Row(int y) { return bytes_.get() + Offset(y); }
    const std::uint8_t* Row(int y) const { return bytes_.get() + Offset(y); }
    std::span<std::uint8_t> Bytes() { return {bytes_.get(), Offset(height_)}; }
    std::span<const std::uint8_t> Bytes() const { return {bytes_.get(), Offset(height_)}; }

private:
    std::size_t Offset(int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) * pixelBytes;
    }

    int width_, height_;
    std::unique_ptr<std::uint8_t[]> bytes_;
};

}  // namespace coinlet
