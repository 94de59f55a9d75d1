#include "controls/pointed_picture.h"

#include "base/numbers.h"
#include "controls/arrow_keys.h"
#include "controls/form.h"
#include "controls/platform.h"

#include <algorithm>

namespace coinlet {

namespace {

/// The button of the pointer that a key stands for; none for other keys.
int ButtonOfKey(int code) {
    return code == keySpace ? leftButton : code == keyF10 ? rightButton : noButton;
}

struct PixelPlace {
    int column, row;
};

/// Where the corner of a control is, in pixels of its container.
PixelPlace CornerOf(const Control& control) {
    const double units = control.Parent().ChildUnitsPerPixel();
    return {RoundHalfEven(control.Left() / units), RoundHalfEven(control.Top() / units)};
}

/// Whether the key presses that button: F10 alone is the menus'.
bool Presses(int code, int shift) {
    return code == keySpace || (code == keyF10 && (shift & shiftHeld) != 0);
}

}  // namespace

PointedPicture::PointedPicture(Container& container, std::string_view name, int index)
    : PictureBox(container, name, index) {
    MakeFocusable();
}

PixelRect PointedPicture::ShownPart() const {
    PixelRect part{0, 0, PixelWidth(), PixelHeight()};
    // Where the corner of the container is, in pixels of the picture.
    int left = 0, top = 0;
    const Control* inner = this;
    while (const auto* outer = dynamic_cast<const Control*>(&inner->Parent())) {
        const PixelPlace corner = CornerOf(*inner);
        left -= corner.column;
        top -= corner.row;
        part = Intersection(part, {left, top, left + outer->PixelWidth(), top + outer->PixelHeight()});
        inner = outer;
    }
    return part;
}

void PointedPicture::RememberPointer(float x, float y) {
    const double units = PointerUnitsPerPixel();
    const PixelPlace corner = CornerOf(*this);
    pointer_ = {corner.column + x / units, corner.row + y / units};
}

Control::PressPlace PointedPicture::Pointer() const {
    if (!pointer_) return {0, 0};
    const double units = PointerUnitsPerPixel();
    const PixelPlace corner = CornerOf(*this);
    return {static_cast<float>((pointer_->x - corner.column) * units),
            static_cast<float>((pointer_->y - corner.row) * units)};
}

std::optional<Control::PressPlace> PointedPicture::PlaceFromPointer(int columns, int rows) const {
    const PixelRect part = ShownPart();
    // Slid aside as far as it goes, a picture has no place for a pointer.
    if (part.Empty()) return {};
    const auto units = PointerUnitsPerPixel();
    const auto nearest = [units](float from, int steps, int first, int end) {
        return std::clamp(from + static_cast<float>(steps) * units, static_cast<float>(first) * units,
                          static_cast<float>(end - 1) * units);
    };
    const auto [x, y] = Pointer();
    return PressPlace{nearest(x, columns, part.left, part.right), nearest(y, rows, part.top, part.bottom)};
}

bool PointedPicture::StopsTab() const {
    return PictureBox::StopsTab() && PixelWidth() > 0 && PixelHeight() > 0;
}

bool PointedPicture::WantsKey(int code, int shift) const {
    if (PictureBox::WantsKey(code, shift)) return true;
    if (!IsPlainKey(shift)) return false;
    return Presses(code, shift) || (IsArrowKey(code) && !(ArrowsAreTaken && ArrowsAreTaken()));
}

void PointedPicture::PointerPressed(int button, int shift, float x, float y) {
    RememberPointer(x, y);
    PictureBox::PointerPressed(button, shift, x, y);
}

void PointedPicture::PointerMoved(int button, int shift, float x, float y) {
    RememberPointer(x, y);
    if (button == noButton && HoldsByKeys()) button = OwnerForm().ButtonsHeldByKeys;
    PictureBox::PointerMoved(button, shift, x, y);
}

void PointedPicture::PointerReleased(int button, int shift, float x, float y) {
    RememberPointer(x, y);
    PictureBox::PointerReleased(button, shift, x, y);
}

void PointedPicture::KeyPressed(int code, int shift) {
    PictureBox::KeyPressed(code, shift);
    if (!Answers() || !PointedPicture::WantsKey(code, shift)) return;
    if (Presses(code, shift)) PressByKeys(ButtonOfKey(code), shift);
    if (const auto steps = ArrowSteps(code, shift)) MoveByKeys(steps->columns, steps->rows, shift);
}

void PointedPicture::KeyReleased(int code, int shift) {
    PictureBox::KeyReleased(code, shift);
    ReleaseByKeys(ButtonOfKey(code), shift);
}

/// Keys that come up from now on are told to somebody else.
void PointedPicture::FocusLost() {
    PictureBox::FocusLost();
    for (const int button : {leftButton, rightButton})
        ReleaseByKeys(button, 0);
}

bool PointedPicture::HoldsByKeys() const {
    return HasFocus() && OwnerForm().ButtonsHeldByKeys != noButton;
}

void PointedPicture::MoveByKeys(int columns, int rows, int shift) {
    // What the pointer itself holds it drags alone.
    if (OwnerForm().PointerHeld() && !HoldsByKeys()) return;
    const auto place = PlaceFromPointer(columns, rows);
    if (!place) return;
    OwnerForm().GetPlatform().MovePointer(*this, place->x, place->y);
    PointerMoved(OwnerForm().ButtonsHeldByKeys, shift, place->x, place->y);
}

void PointedPicture::PressByKeys(int button, int shift) {
    Form& form = OwnerForm();
    // A key that stays down comes again and again.
    if (form.PointerHeld()) return;
    // The pointer may be elsewhere on the screen; what rides on it comes back with it.
    MoveByKeys(0, 0, shift);
    const auto place = PlaceFromPointer(0, 0);
    if (!place || !Answers() || !HasFocus()) return;
    form.ButtonsHeldByKeys = button;
    PointerPressed(button, shift, place->x, place->y);
}

void PointedPicture::ReleaseByKeys(int button, int shift) {
    Form& form = OwnerForm();
    if (button == noButton || form.ButtonsHeldByKeys != button) return;
    form.ButtonsHeldByKeys = noButton;
    const auto [x, y] = Pointer();
    PointerReleased(button, shift, x, y);
}

}  // namespace coinlet
