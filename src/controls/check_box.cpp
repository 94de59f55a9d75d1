#include "controls/check_box.h"

#include "controls/arrow_keys.h"

#include <algorithm>
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

std::vector<OptionButton*> OptionButton::Choices() const {
    std::vector<OptionButton*> choices;
    for (Control* neighbour : Parent().Children()) {
        auto* const option = dynamic_cast<OptionButton*>(neighbour);
        if (option && option->TabStop && option->CanFocus()) choices.push_back(option);
    }
    std::ranges::stable_sort(choices, {}, &Control::TabIndex);
    return choices;
}

bool OptionButton::StopsTab() const {
    if (!ToggleControl::StopsTab()) return false;
    const auto choices = Choices();
    const auto chosen = std::ranges::find_if(choices, &OptionButton::Value);
    return (chosen != choices.end() ? *chosen : choices.front()) == this;
}

void OptionButton::KeyPressed(int code, int shift) {
    ToggleControl::KeyPressed(code, shift);
    if (!Answers() || !WantsKey(code, shift)) return;
    auto choices = Choices();
    if (code == keyLeft || code == keyUp) std::ranges::reverse(choices);
    const auto self = std::ranges::find(choices, this);
    if (self == choices.end() || choices.size() == 1) return;
    OptionButton& next = self + 1 == choices.end() ? *choices.front() : **(self + 1);
    next.SetFocus();
    if (next.HasFocus()) next.SetValue(true);
}

bool OptionButton::WantsKey(int code, int shift) const {
    return IsArrowKey(code) && IsPlainKey(shift);
}

}  // namespace coinlet
