#include "controls/picture_box.h"

#include "base/numbers.h"
#include "controls/form.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace coinlet {

namespace {

bool IsOfOneColour(const Bitmap& pixels, Pixel colour) {
    for (int y = 0; y < pixels.Height(); ++y) {
        const Pixel* row = pixels.Row(y);
        if (std::find_if(row, row + pixels.Width(), [&](Pixel each) { return each != colour; }) !=
            row + pixels.Width())
            return false;
    }
    return true;
}

}  // namespace

PictureBox::PictureBox(Container& container, std::string_view name, int index)
    : Control(container, name, index, ControlKind::PictureBox), surface(OwnerForm().Fonts(), 0, 0) {}

void PictureBox::PrintToRead(std::string_view line) {
    const bool goesOn = !linesToRead_.empty() && linesRevision_ == surface.Revision();
    const bool isPlain = goesOn || IsOfOneColour(surface.Pixels(), ToPixel(surface.BackColor()));
    if (!goesOn) linesToRead_.clear();
    if (isPlain) {
        linesToRead_.push_back({.text = std::string(line),
                                .x = RoundHalfEven(surface.CurrentX / ChildUnitsPerPixel()),
                                .y = RoundHalfEven(surface.CurrentY / ChildUnitsPerPixel()),
                                .font = surface,
                                .colour = surface.ForeColor});
    }
    surface.Print(line);
    linesRevision_ = surface.Revision();
}

const std::vector<PrintedLine>& PictureBox::LinesToRead() const {
    static const std::vector<PrintedLine> none;
    return linesRevision_ == surface.Revision() ? linesToRead_ : none;
}

void PictureBox::SetPressPlaces(std::vector<Rectangle> places) {
    places_ = std::move(places);
    place_ = places_.empty() ? -1 : 0;
    LetKeysPress();
}

Control::PressPlace PictureBox::KeyPressPlace() const {
    if (place_ < 0) return Control::KeyPressPlace();
    const Rectangle& place = places_[static_cast<std::size_t>(place_)];
    return {static_cast<float>(std::floor(place.x + place.width / 2)),
            static_cast<float>(std::floor(place.y + place.height / 2))};
}

/// Of the places whose middles lie farther in the direction of the key the nearest one; to turn aside counts
/// double.
int PictureBox::PlaceAfterKey(int code) const {
    const int last = static_cast<int>(places_.size()) - 1;
    if (code == keyHome) return 0;
    if (code == keyEnd) return last;
    const bool sideways = code == keyLeft || code == keyRight;
    if (!sideways && code != keyUp && code != keyDown) return place_;
    const double direction = code == keyLeft || code == keyUp ? -1 : 1;
    const auto middle = [this](int number) {
        const Rectangle& place = places_[static_cast<std::size_t>(number)];
        return std::pair(place.x + place.width / 2, place.y + place.height / 2);
    };
    const auto [x, y] = middle(place_);
    int nearest = place_;
    double least = std::numeric_limits<double>::infinity();
    for (int i = 0; i <= last; ++i) {
        const auto [otherX, otherY] = middle(i);
        const double along = direction * (sideways ? otherX - x : otherY - y);
        const double aside = std::abs(sideways ? otherY - y : otherX - x);
        if (along <= 0 || along + 2 * aside >= least) continue;
        least = along + 2 * aside;
        nearest = i;
    }
    return nearest;
}

bool PictureBox::WantsKey(int code, int shift) const {
    const bool walks = code >= keyEnd && code <= keyDown;
    return Control::WantsKey(code, shift) || (place_ >= 0 && walks && IsPlainKey(shift));
}

void PictureBox::KeyPressed(int code, int shift) {
    if (place_ >= 0 && Answers() && IsPlainKey(shift)) place_ = PlaceAfterKey(code);
    Control::KeyPressed(code, shift);
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
    if (place_ >= 0) VisitReadOnly(visitor, "PlaceNumber", PropertyKind::Number, [this] { return place_; });
    VisitFont(visitor, surface);
}

void StockPicture::VisitProperties(PropertyVisitor& visitor) {
    Element::VisitProperties(visitor);
    VisitReadOnly(visitor, "Width", PropertyKind::Number, [this] { return Picture.Width(); });
    VisitReadOnly(visitor, "Height", PropertyKind::Number, [this] { return Picture.Height(); });
}

}  // namespace coinlet
