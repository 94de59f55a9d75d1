#pragma once

#include "surface/colour.h"

#include <cstddef>
#include <memory>
#include <span>

namespace coinlet {

/// The largest picture that is made or read: 65,535 pixels a side, which is enough for a whole font in a row
/// at its largest, and 256 MiB.
constexpr int maximumSide = 65535;
constexpr std::size_t maximumPictureBytes = std::size_t{256} << 20;

/// True if a picture of this size can be made. A side of 0 is legal: a picture of no pixels.
constexpr bool IsPictureSize(long long width, long long height) {
    return width >= 0 && height >= 0 && width <= maximumSide && height <= maximumSide &&
           static_cast<std::size_t>(width * height) * sizeof(Pixel) <= maximumPictureBytes;
}

/// Pixels in rows from top to bottom, without padding. Owns them; moves, but never copies by accident.
class Bitmap {
public:
    Bitmap() = default;
    /// Pixels of no particular value. A size that IsPictureSize refuses gives the empty bitmap.
    Bitmap(int width, int height);
    Bitmap(int width, int height, Pixel fill);

    Bitmap(Bitmap&&) noexcept = default;
    Bitmap& operator=(Bitmap&&) noexcept = default;
    Bitmap Clone() const;

    int Width() const { return width_; }
    int Height() const { return height_; }
    bool Contains(int x, int y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }

    Pixel* Row(int y) { return pixels_.get() + Offset(y); }
    const Pixel* Row(int y) const { return pixels_.get() + Offset(y); }
    std::span<Pixel> Pixels() { return {pixels_.get(), Offset(height_)}; }
    std::span<const Pixel> Pixels() const { return {pixels_.get(), Offset(height_)}; }

private:
    std::size_t Offset(int y) const { return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_); }

    int width_ = 0, height_ = 0;
    std::unique_ptr<Pixel[]> pixels_;
};

/// An immutable picture that is cheap to copy: copies share their pixels. Undo, stored pictures and floating
/// images are such snapshots; a surface copies the pixels only when it draws on while somebody holds one.
class Image {
public:
    /// The empty picture.
    Image() = default;
    explicit Image(Bitmap bitmap);
    explicit Image(std::shared_ptr<const Bitmap> bitmap);

    bool Empty() const { return Width() == 0 || Height() == 0; }
    int Width() const { return bitmap_ ? bitmap_->Width() : 0; }
    int Height() const { return bitmap_ ? bitmap_->Height() : 0; }

    /// Row y, `Width()` pixels; y is within the picture.
    const Pixel* Row(int y) const { return bitmap_->Row(y); }
    /// The colour at (x, y), or -1 outside the picture.
    Colour At(int x, int y) const {
        return bitmap_ && bitmap_->Contains(x, y) ? ToColour(bitmap_->Row(y)[x]) : -1;
    }
    const std::shared_ptr<const Bitmap>& Shared() const { return bitmap_; }

    /// The same size and, pixel by pixel, the same colours.
    friend bool operator==(const Image& a, const Image& b);

private:
    std::shared_ptr<const Bitmap> bitmap_;
};

}  // namespace coinlet
