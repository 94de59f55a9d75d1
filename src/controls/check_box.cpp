#include "controls/check_box.h"

#include <utility>

namespace coinlet {

ToggleControl::ToggleControl(Container& container, std::string_view name, int index, ControlKind kind)
    : Control(container, name, index, kind) {
    MakeFocusable();
}

bool ToggleControl::Mark(bool value) {
    return std::exchange(value_, value) != value;
}

void ToggleControl::KeyReleased(int code, int shift) {
    if (code == keySpace && Answers()) Clicked();
    Control::KeyReleased(code, shift);
}

void ToggleControl::VisitProperties(PropertyVisitor& visitor) {
    Control::VisitProperties(visitor);
    VisitField(visitor, "Caption", Caption);
    VisitColour(visitor, "ForeColor", ForeColor);
    VisitColour(visitor, "BackColor", BackColor);
    VisitProperty(
        visitor, "Value", PropertyKind::Flag, [this] { return value_; },
        [this](bool value) { SetValue(value); });
    VisitFont(visitor, *this);
}

CheckBox::CheckBox(Container& container, std::string_view name, int index)
    : ToggleControl(container, name, index, ControlKind::CheckBox) {}

void CheckBox::SetValue(bool value) {
    if (Mark(value)) Click();
}

OptionButton::OptionButton(Container& container, std::string_view name, int index)
    : ToggleControl(container, name, index, ControlKind::OptionButton) {}

void OptionButton::SetValue(bool value) {
    if (!Mark(value) || !value) return;
    for (Control* neighbour : Parent().Children()) {
        auto* const option = dynamic_cast<OptionButton*>(neighbour);
        if (option && option != this) option->Mark(false);
    }
    Click();
}

}  // namespace coinlet
