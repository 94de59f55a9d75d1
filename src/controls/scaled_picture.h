#pragma once

#include "controls/picture_box.h"

#include <optional>

namespace coinlet {

/// A hidden picture that shows another one at some other size. Its pixels are computed when and where they
/// are asked for: the picture of a camera at twice its size takes no memory for that. Once it is given a size
/// or a picture of its own it is a picture like any other.
class ScaledPicture : public PictureBox {
public:
    using PictureBox::PictureBox;

    /// Shows the whole of `picture`, stretched to that size, which is in the container's units and not
    /// negative. The empty picture shows the bare `BackColor`.
    void Show(const coinlet::Image& picture, double width, double height);
    /// Copies what it shows, from its pixel (left, top) on, to the top left corner of `target`. Pixels that
    /// it doesn't have leave the target as it was.
    void PaintOnto(Surface& target, int left, int top) const;

    double Width() const override;
    double Height() const override;
    void SetWidth(double width) override;
    void SetHeight(double height) override;
    double ScaleWidth() const override;
    double ScaleHeight() const override;
    /// All its pixels at once; the empty picture if they are more than IsPictureSize allows.
    coinlet::Image Image() const override;
    void SetPicture(const coinlet::Image& picture) override;

private:
    /// What is shown while the surface has no pixels.
    struct Stretched {
        coinlet::Image picture;
        double width = 0, height = 0;  ///< In the container's units.
        int columns = 0, rows = 0;     ///< The same in whole pixels.
    };

    /// Gives it pixels of its own, as far as IsPictureSize allows.
    void TakePixels();

    std::optional<Stretched> stretched_;
};

}  // namespace coinlet
