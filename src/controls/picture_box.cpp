#include "controls/picture_box.h"

#include "base/numbers.h"
#include "controls/form.h"

#include <cmath>

namespace coinlet {

PictureBox::PictureBox(Container& container, std::string_view name, int index)
    : Control(container, name, index, ControlKind::PictureBox), surface(OwnerForm().Fonts(), 0, 0) {}

void PictureBox::LetHaveFocus() {
    MakeFocusable();
    TabStop = false;
}

double PictureBox::SizeToTell(double assigned, int pixels) const {
    const double units = Parent().ChildUnitsPerPixel();
    return FixedBitmap || RoundHalfEven(assigned / units) == pixels ? assigned : pixels * units;
}

double PictureBox::Width() const {
    return SizeToTell(Control::Width(), surface.PixelWidth());
}

double PictureBox::Height() const {
    return SizeToTell(Control::Height(), surface.PixelHeight());
}

void PictureBox::SetWidth(double width) {
    if (!(width >= 0)) return;
    const int pixels = RoundHalfEven(width / Parent().ChildUnitsPerPixel());
    if (!IsPictureSize(pixels, surface.PixelHeight())) return;
    if (!FixedBitmap && pixels != surface.PixelWidth() && !surface.Resize(pixels, surface.PixelHeight()))
        return;
    Control::SetWidth(width);
}

void PictureBox::SetHeight(double height) {
    if (!(height >= 0)) return;
    const int pixels = RoundHalfEven(height / Parent().ChildUnitsPerPixel());
    if (!IsPictureSize(surface.PixelWidth(), pixels)) return;
    if (!FixedBitmap && pixels != surface.PixelHeight() && !surface.Resize(surface.PixelWidth(), pixels))
        return;
    Control::SetHeight(height);
}

float PictureBox::PointerUnitsPerPixel() const {
    return static_cast<float>(ChildUnitsPerPixel());
}

double PictureBox::ChildUnitsPerPixel() const {
    return surface.ScaleMode() == twipScale ? twipsPerPixel : 1;
}

void PictureBox::VisitProperties(PropertyVisitor& visitor) {
    Control::VisitProperties(visitor);
    VisitColour(visitor, "ForeColor", surface.ForeColor);
    VisitColour(visitor, "FillColor", surface.FillColor);
    VisitProperty(
        visitor, "BackColor", PropertyKind::Colour, [this] { return surface.BackColor(); },
        [this](Colour colour) { surface.SetBackColor(colour); });
    VisitField(visitor, "DrawMode", surface.DrawMode);
    VisitField(visitor, "DrawStyle", surface.DrawStyle);
    VisitField(visitor, "DrawWidth", surface.DrawWidth);
    VisitField(visitor, "FillStyle", surface.FillStyle);
    VisitField(visitor, "CurrentX", surface.CurrentX);
    VisitField(visitor, "CurrentY", surface.CurrentY);
    VisitField(visitor, "AutoSize", surface.AutoSize);
    VisitField(visitor, "Border", Border);
    VisitProperty(
        visitor, "ScaleMode", PropertyKind::Number, [this] { return surface.ScaleMode(); },
        [this](int mode) { surface.SetScaleMode(mode); });
    VisitReadOnly(visitor, "ScaleWidth", PropertyKind::Number, [this] { return ScaleWidth(); });
    VisitReadOnly(visitor, "ScaleHeight", PropertyKind::Number, [this] { return ScaleHeight(); });
    VisitFont(visitor, surface);
}

void StockPicture::VisitProperties(PropertyVisitor& visitor) {
    Element::VisitProperties(visitor);
    VisitReadOnly(visitor, "Width", PropertyKind::Number, [this] { return Picture.Width(); });
    VisitReadOnly(visitor, "Height", PropertyKind::Number, [this] { return Picture.Height(); });
}

}  // namespace coinlet
