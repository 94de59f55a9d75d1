#include "player/pointer_place.h"

#include "controls/control.h"
#include "controls/form.h"
#include "controls/platform.h"
#include "player/pictures.h"

#include <algorithm>
#include <cmath>

namespace coinlet::player {

namespace {

struct Point {
    double x = 0, y = 0;
};

Point CornerInContainer(const Control& control) {
    const double unit = control.Parent().ChildUnitsPerPixel();
    return {control.Left() / unit, control.Top() / unit};
}

bool Contains(const Control& control, Point point) {
    return point.x >= 0 && point.y >= 0 && point.x < control.PixelWidth() && point.y < control.PixelHeight();
}

/// Outlines float over their container without taking events.
bool TakesPointer(const Control& control) {
    return control.Kind() != ControlKind::Shape && control.Kind() != ControlKind::Line;
}

/// The control in front at a point, which is in pixels from the container's corner; nullptr if there is none.
const Control* FrontControl(const Container& container, Point point) {
    const auto inside = [point](const Control& control) {
        const Point corner = CornerInContainer(control);
        return Point{point.x - corner.x, point.y - corner.y};
    };
    const auto& children = container.Children();
    const auto front = std::find_if(children.rbegin(), children.rend(), [&](const Control* child) {
        return child->Visible && TakesPointer(*child) && Contains(*child, inside(*child));
    });
    if (front == children.rend()) return nullptr;
    const auto* const inner = dynamic_cast<const Container*>(*front);
    const Control* const deeper = inner ? FrontControl(*inner, inside(**front)) : nullptr;
    return deeper ? deeper : *front;
}

/// From a control's own corner to the corner of its form.
Point InForm(const Control& control, Point point) {
    const Point corner = CornerInContainer(control);
    const Point outside{point.x + corner.x, point.y + corner.y};
    const auto* const container = dynamic_cast<const Control*>(&control.Parent());
    return container ? InForm(*container, outside) : outside;
}

}  // namespace

void PointerPlace::PutOn(const Control& control, double x, double y) {
    const double unit = control.PointerUnitsPerPixel();
    control_ = &control;
    x_ = x / unit;
    y_ = y / unit;
}

void PointerPlace::PutInMiddleOf(const Control& control) {
    const int column = control.PixelWidth() / 2, row = control.PixelHeight() / 2;
    control_ = &control;
    x_ = column;
    y_ = row;
}

const Control* PointerPlace::PlacedOn() const {
    if (!control_) return nullptr;
    const bool isThere = std::ranges::any_of(platform_.Forms(), [this](const Form* form) {
        return std::ranges::any_of(form->Elements(), [this](const Element* element) {
            return dynamic_cast<const Control*>(element) == control_;
        });
    });
    return isThere ? control_ : nullptr;
}

bool PointerPlace::IsOver(const Control& control) const {
    const Control* const placed = PlacedOn();
    if (!placed || &placed->OwnerForm() != &control.OwnerForm() || !control.Shown()) return false;
    return FrontControl(control.OwnerForm(), InForm(*placed, {x_, y_})) == &control;
}

int PointerPlace::PixelX() const {
    return control_ ? static_cast<int>(std::floor(x_)) : 0;
}

int PointerPlace::PixelY() const {
    return control_ ? static_cast<int>(std::floor(y_)) : 0;
}

void PictureGrab::GetCursorPos(int* x, int* y) const {
    *x = pointer_.PixelX();
    *y = pointer_.PixelY();
}

Image PictureGrab::Grab(const PixelRect& area) const {
    if (area.Empty()) return {};
    const Control* const control = pointer_.PlacedOn();
    const Image shown = control ? PictureOf(*control).value_or(Image()) : Image();
    Bitmap grabbed(area.Width(), area.Height(), ToPixel(white));
    for (int y = 0; y < grabbed.Height(); ++y) {
        for (int x = 0; x < grabbed.Width(); ++x) {
            const Colour colour = shown.At(area.left + x, area.top + y);
            if (colour >= 0) grabbed.Row(y)[x] = ToPixel(colour);
        }
    }
    return Image(std::move(grabbed));
}

}  // namespace coinlet::player
