#include "controls/check_box.h"

namespace coinlet {

CheckBox::CheckBox(Container& container, std::string_view name, int index)
    : Control(container, name, index, ControlKind::CheckBox) {
    MakeFocusable();
}

void CheckBox::SetValue(bool value) {
    if (value == value_) return;
    value_ = value;
    Click();
}

void CheckBox::KeyReleased(int code, int shift) {
    if (code == keySpace && Answers()) Clicked();
    Control::KeyReleased(code, shift);
}

void CheckBox::VisitProperties(PropertyVisitor& visitor) {
    Control::VisitProperties(visitor);
    VisitField(visitor, "Caption", Caption);
    VisitColour(visitor, "ForeColor", ForeColor);
    VisitColour(visitor, "BackColor", BackColor);
    VisitProperty(
        visitor, "Value", PropertyKind::Flag, [this] { return value_; },
        [this](bool value) { SetValue(value); });
    VisitFont(visitor, *this);
}

OptionButton::OptionButton(Container& container, std::string_view name, int index)
    : Control(container, name, index, ControlKind::OptionButton) {
    MakeFocusable();
}

void OptionButton::SetValue(bool value) {
    if (value == value_) return;
    value_ = value;
    if (!value) return;
    for (Control* neighbour : Parent().Children()) {
        auto* const option = dynamic_cast<OptionButton*>(neighbour);
        if (option && option != this) option->value_ = false;
    }
    Click();
}

void OptionButton::KeyReleased(int code, int shift) {
    if (code == keySpace && Answers()) Clicked();
    Control::KeyReleased(code, shift);
}

void OptionButton::VisitProperties(PropertyVisitor& visitor) {
    Control::VisitProperties(visitor);
    VisitField(visitor, "Caption", Caption);
    VisitColour(visitor, "ForeColor", ForeColor);
    VisitColour(visitor, "BackColor", BackColor);
    VisitProperty(
        visitor, "Value", PropertyKind::Flag, [this] { return value_; },
        [this](bool value) { SetValue(value); });
    VisitFont(visitor, *this);
}

}  // namespace coinlet
