#pragma once

#include "controls/control.h"
#include "surface/geometry.h"
#include "surface/surface.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace coinlet {

/// A line of text on a picture: the upper left corner of its first letter's cell in pixels of the picture.
struct PrintedLine {
    std::string text;
    int x = 0, y = 0;
    FontProperties font;
    Colour colour = black;
};

/// A control that shows a surface and may hold other controls, placed in the units of its scale.
///
/// It keeps the size assigned in its container's units; the bitmap has a fifteenth of the twips, rounded half
/// to even.
class PictureBox : public Control, public Container {
public:
    PictureBox(Container& container, std::string_view name, int index = noIndex);

    /// The pixels and the drawing state.
    Surface surface;

    /// True: the bitmap stays as it is whatever the size assigned, and the window shows the part of it that
    /// the size leaves, from its top left pixel on.
    bool FixedBitmap = false;

    /// True: a dotted line of one pixel runs around the picture on the screen, so that a picture can be told
    /// from what it lies on. The line begins at the place of the control, and the picture inside it. For
    /// pictures without controls in them.
    bool Border = false;

    /// The size assigned; or, after a picture resized the surface (`AutoSize`), the size of the bitmap.
    double Width() const override;
    double Height() const override;
    /// Resizes the bitmap. A size that can't be made (see IsPictureSize) is refused: nothing changes.
    void SetWidth(double width) override;
    void SetHeight(double height) override;

    /// Inner size in the units of the surface's scale.
    virtual double ScaleWidth() const { return surface.ScaleWidth(); }
    virtual double ScaleHeight() const { return surface.ScaleHeight(); }
    /// What it shows.
    virtual coinlet::Image Image() const { return surface.Image(); }
    /// Gives the surface a picture.
    virtual void SetPicture(const coinlet::Image& picture) { surface.SetPicture(picture); }

    /// Prints one line as the surface's `Print` does, on a picture that shows no more than its `BackColor`
    /// and such lines. They are there to be read, not to be filled or kept: a screen may show them with the
    /// letters of its labels.
    void PrintToRead(std::string_view line);
    /// These lines; none where anything else was drawn, before or since.
    const std::vector<PrintedLine>& LinesToRead() const;

    /// Gives the picture places that are pressed each for itself, in the units of the scale. Keys press it
    /// then (see LetKeysPress), in the middle of the place that the user is at; the arrows lead to the next
    /// place in their direction, Home and End to the first and the last.
    void SetPressPlaces(std::vector<Rectangle> places);
    const std::vector<Rectangle>& PressPlaces() const { return places_; }
    /// The one that the user is at, from 0, or -1 without any.
    int PlaceNumber() const { return place_; }

    float PointerUnitsPerPixel() const override;
    PressPlace KeyPressPlace() const override;
    bool WantsKey(int code, int shift) const override;
    void KeyPressed(int code, int shift) override;
    void VisitProperties(PropertyVisitor& visitor) override;

    Form& HostForm() override { return OwnerForm(); }
    bool ContainerShown() const override { return Shown(); }
    bool ContainerEnabled() const override { return Reachable(); }
    double ChildUnitsPerPixel() const override;

protected:
    bool TakesFocusByPress() const override { return false; }

private:
    double SizeToTell(double assigned, int pixels) const;
    int PlaceAfterKey(int code) const;

    std::vector<Rectangle> places_;
    int place_ = -1;
    std::vector<PrintedLine> linesToRead_;
    std::uint64_t linesRevision_ = 0;  ///< Of the surface with no more than these lines.
};

/// A picture of a form that no window shows: stock pictures, scratch pictures of a fixed content.
class StockPicture : public Element {
public:
    StockPicture(Form& form, std::string_view name, int index = noIndex) : Element(form, name, index) {}

    Image Picture;

    void VisitProperties(PropertyVisitor& visitor) override;
};

}  // namespace coinlet
