#include "controls/scaled_picture.h"

#include "base/numbers.h"
#include "surface/transfer.h"

#include <utility>

namespace coinlet {

namespace {

/// Copies a picture, stretched to `columns` by `rows`, so that its pixel (left, top) comes to the corner.
void PaintStretched(Surface& target, const Image& picture, int columns, int rows, int left, int top) {
    Transfer(target, {{-left, columns}, {-top, rows}}, picture, {{0, picture.Width()}, {0, picture.Height()}},
             SRCCOPY);
}

}  // namespace

void ScaledPicture::Show(const coinlet::Image& picture, double width, double height) {
    surface.SetPicture({});
    surface.Resize(0, 0);
    const double unit = Parent().ChildUnitsPerPixel();
    stretched_ = Stretched{picture, width, height, RoundHalfEven(width / unit), RoundHalfEven(height / unit)};
}

void ScaledPicture::PaintOnto(Surface& target, int left, int top) const {
    if (!stretched_) {
        return PaintStretched(target, surface.Image(), surface.PixelWidth(), surface.PixelHeight(), left,
                              top);
    }
    if (stretched_->picture.Empty()) {
        const coinlet::Image blank(Bitmap(1, 1, ToPixel(surface.BackColor())));
        return PaintStretched(target, blank, stretched_->columns, stretched_->rows, left, top);
    }
    PaintStretched(target, stretched_->picture, stretched_->columns, stretched_->rows, left, top);
}

double ScaledPicture::Width() const {
    return stretched_ ? stretched_->width : PictureBox::Width();
}

double ScaledPicture::Height() const {
    return stretched_ ? stretched_->height : PictureBox::Height();
}

void ScaledPicture::SetWidth(double width) {
    TakePixels();
    PictureBox::SetWidth(width);
}

void ScaledPicture::SetHeight(double height) {
    TakePixels();
    PictureBox::SetHeight(height);
}

double ScaledPicture::ScaleWidth() const {
    return stretched_ ? stretched_->columns * ChildUnitsPerPixel() : PictureBox::ScaleWidth();
}

double ScaledPicture::ScaleHeight() const {
    return stretched_ ? stretched_->rows * ChildUnitsPerPixel() : PictureBox::ScaleHeight();
}

coinlet::Image ScaledPicture::Image() const {
    if (!stretched_) return PictureBox::Image();
    const Stretched& shown = *stretched_;
    if (shown.picture.Width() == shown.columns && shown.picture.Height() == shown.rows) return shown.picture;
    if (!IsPictureSize(shown.columns, shown.rows)) return {};
    Surface whole(surface.Fonts(), shown.columns, shown.rows);
    PaintOnto(whole, 0, 0);
    return whole.Image();
}

void ScaledPicture::SetPicture(const coinlet::Image& picture) {
    TakePixels();
    PictureBox::SetPicture(picture);
}

void ScaledPicture::TakePixels() {
    if (!stretched_) return;
    const coinlet::Image pixels = Image();
    const Stretched shown = *std::exchange(stretched_, std::nullopt);
    PictureBox::SetWidth(shown.width);
    PictureBox::SetHeight(shown.height);
    surface.SetPicture(pixels);
}

}  // namespace coinlet
