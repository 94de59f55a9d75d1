#include "surface/surface.h"

#include "base/numbers.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace coinlet {

namespace {

/// Copies what two bitmaps have in common, their top left corners laid on each other.
void CopyTopLeft(const Bitmap& from, Bitmap& to) {
    const int width = std::min(from.Width(), to.Width());
    const int height = std::min(from.Height(), to.Height());
    for (int y = 0; y < height; ++y)
        std::copy_n(from.Row(y), width, to.Row(y));
}

}  // namespace

Surface::Surface(const FontEngine& fonts, int width, int height)
    : fonts_(&fonts), bitmap_(std::make_shared<Bitmap>(width, height, ToPixel(white))) {}

bool Surface::Resize(int width, int height) {
    if (!IsPictureSize(width, height)) return false;
    if (width == PixelWidth() && height == PixelHeight()) return true;
    auto resized = std::make_shared<Bitmap>(width, height, ToPixel(backColor_));
    CopyTopLeft(*bitmap_, *resized);
    bitmap_ = std::move(resized);
    changed_ = {0, 0, width, height};
    ++revision_;
    return true;
}

void Surface::SetScaleMode(int mode) {
    if (mode != twipScale && mode != pixelScale) return;
    scaleMode_ = mode;
    userScale_.reset();
}

double Surface::ScaleWidth() const {
    if (userScale_) return userScale_->right - userScale_->left;
    return scaleMode_ == twipScale ? PixelWidth() * twipsPerPixel : PixelWidth();
}

double Surface::ScaleHeight() const {
    if (userScale_) return userScale_->bottom - userScale_->top;
    return scaleMode_ == twipScale ? PixelHeight() * twipsPerPixel : PixelHeight();
}

void Surface::Scale(double left, double top, double right, double bottom) {
    // Edges near both ends of the range of double have a distance beyond it.
    if (!std::isfinite(right - left) || !std::isfinite(bottom - top)) return;
    if (left == right || top == bottom) return;
    userScale_ = {left, top, right, bottom};
}

double Surface::PixelX(double x) const {
    return PixelLengthX(userScale_ ? x - userScale_->left : x);
}

double Surface::PixelY(double y) const {
    return PixelLengthY(userScale_ ? y - userScale_->top : y);
}

double Surface::PixelLengthX(double width) const {
    if (userScale_) return width / ScaleWidth() * PixelWidth();
    return scaleMode_ == twipScale ? width / twipsPerPixel : width;
}

double Surface::PixelLengthY(double height) const {
    if (userScale_) return height / ScaleHeight() * PixelHeight();
    return scaleMode_ == twipScale ? height / twipsPerPixel : height;
}

double Surface::UnitsPerPixelX() const {
    if (userScale_) return PixelWidth() > 0 ? ScaleWidth() / PixelWidth() : 0;
    return scaleMode_ == twipScale ? twipsPerPixel : 1;
}

double Surface::UnitsPerPixelY() const {
    if (userScale_) return PixelHeight() > 0 ? ScaleHeight() / PixelHeight() : 0;
    return scaleMode_ == twipScale ? twipsPerPixel : 1;
}

void Surface::SetBackColor(Colour colour) {
    backColor_ = colour;
    ShowBackground();
}

void Surface::SetPicture(const coinlet::Image& picture) {
    picture_ = picture;
    // Its pixels are shared at once; a bitmap of the new size would be made and filled for nothing.
    if (AutoSize && !picture.Empty()) bitmap_ = std::const_pointer_cast<Bitmap>(picture.Shared());
    ShowBackground();
}

void Surface::Cls() {
    ShowBackground();
    CurrentX = CurrentY = 0;
}

/// Shows the stored picture on the bare background.
void Surface::ShowBackground() {
    const int width = PixelWidth(), height = PixelHeight();
    if (picture_.Width() == width && picture_.Height() == height && !picture_.Empty()) {
        // Shared, not copied: the stored picture keeps hold of these pixels for as long as they are shown, so
        // that Write always finds them shared and never changes them.
        bitmap_ = std::const_pointer_cast<Bitmap>(picture_.Shared());
    } else {
        if (bitmap_.use_count() > 1) bitmap_ = std::make_shared<Bitmap>(width, height);
        std::ranges::fill(bitmap_->Pixels(), ToPixel(backColor_));
        if (!picture_.Empty()) CopyTopLeft(*picture_.Shared(), *bitmap_);
    }
    changed_ = {0, 0, width, height};
    ++revision_;
}

void Surface::Detach() {
    bitmap_ = std::make_shared<Bitmap>(bitmap_->Clone());
}

Colour Surface::Point(double x, double y) const {
    // Walks over whole pictures ask for every point, and nearly all count in pixels.
    const bool inPixels = !userScale_ && scaleMode_ == pixelScale;
    const double column = inPixels ? x : PixelX(x), row = inPixels ? y : PixelY(y);
    if (std::isnan(column) || std::isnan(row)) return -1;
    const int px = RoundHalfEven(column), py = RoundHalfEven(row);
    const Bitmap& pixels = *bitmap_;
    return pixels.Contains(px, py) ? ToColour(pixels.Row(py)[px]) : -1;
}

void Surface::Refresh() {
    if (screen_) screen_->SurfaceRefreshed(*this);
}

}  // namespace coinlet
