#include "surface/image.h"

#include <algorithm>
#include <utility>

namespace coinlet {

Bitmap::Bitmap(int width, int height) {
    if (!IsPictureSize(width, height)) return;
    width_ = width;
    height_ = height;
    pixels_ = std::make_unique_for_overwrite<Pixel[]>(Offset(height));
}

Bitmap::Bitmap(int width, int height, Pixel fill) : Bitmap(width, height) {
    std::ranges::fill(Pixels(), fill);
}

Bitmap Bitmap::Clone() const {
    Bitmap copy(width_, height_);
    std::ranges::copy(Pixels(), copy.pixels_.get());
    return copy;
}

Image::Image(Bitmap bitmap) : bitmap_(std::make_shared<const Bitmap>(std::move(bitmap))) {}

Image::Image(std::shared_ptr<const Bitmap> bitmap) : bitmap_(std::move(bitmap)) {}

bool operator==(const Image& a, const Image& b) {
    if (a.bitmap_ == b.bitmap_) return true;
    if (a.Width() != b.Width() || a.Height() != b.Height()) return false;
    return a.Empty() || std::ranges::equal(a.bitmap_->Pixels(), b.bitmap_->Pixels());
}

}  // namespace coinlet
