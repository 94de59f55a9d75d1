#include "controls/form.h"

#include "controls/control.h"
#include "controls/platform.h"

#include <algorithm>

namespace coinlet {

Form::Form(FormServices services, std::string_view name) : services_(services), name_(name) {}

Form::~Form() {
    if (loaded_) services_.platform.Remove(*this);
}

void Form::Form_Unload(bool&) {}

void Form::Unload() {
    if (!loaded_ || unloading_) return;
    unloading_ = true;
    bool cancel = false;
    try {
        Form_Unload(cancel);
    } catch (...) {
        unloading_ = false;
        throw;
    }
    unloading_ = false;
    if (!cancel) services_.platform.Remove(*this);
}

Control* Form::Focus() const {
    return focus_ && focus_->CanFocus() ? focus_ : nullptr;
}

void Form::MoveFocus(Control* control) {
    if (control == focus_ || (control && !control->CanFocus())) return;
    Control* const former = focus_;
    focus_ = control;
    lastFocus_ = nullptr;
    if (former) former->FocusLost();
    // What is told of the loss may have moved the focus on, or taken away what it needs.
    if (focus_ != control || !control) return;
    if (control->CanFocus()) {
        control->FocusGained();
    } else {
        focus_ = nullptr;
    }
}

void Form::SettleFocus() {
    if (!focus_ || focus_->CanFocus()) return;
    Control* const lost = focus_;
    MoveFocus(nullptr);
    if (!focus_) lastFocus_ = lost;
}

std::vector<Control*> Form::TabOrder() const {
    std::vector<Control*> order;
    for (Element* element : elements_)
        if (auto* control = dynamic_cast<Control*>(element)) order.push_back(control);
    std::ranges::stable_sort(order, {}, &Control::TabIndex);
    return order;
}

void Form::MoveFocusByTab(bool backward) {
    auto order = TabOrder();
    if (backward) std::ranges::reverse(order);
    // Round about from the one behind the focus, or behind the place where it was lost; without either find
    // gives the end, which is the start.
    const auto focused = std::ranges::find(order, focus_ ? focus_ : lastFocus_);
    if (focused != order.end()) std::rotate(order.begin(), focused + 1, order.end());
    const auto next = std::ranges::find_if(order, &Control::StopsTab);
    if (next != order.end()) MoveFocus(*next);
}

void Form::KeyDown(Control* target, int code, int shift) {
    if (!loaded_) return;
    Control* const control = target ? target : Focus();
    const bool spare = !control || !control->WantsKey(code, shift);
    keyed_ = control;
    if (control) control->KeyPressed(code, shift);
    if (!loaded_) return;
    if (spare && Form_SpareKey(code, shift)) return;
    if (code == keyEscape) PressCancel();
    if (code == keyReturn) PressDefault(control);
}

void Form::KeyUp(Control* target, int code, int shift) {
    if (!loaded_) return;
    keyed_ = target ? target : Focus();
    if (keyed_) keyed_->KeyReleased(code, shift);
    if (loaded_) Form_KeyReleased(code, shift);
}

void Form::KeyTyped(Control* target, int character) {
    if (!loaded_) return;
    if (Control* control = target ? target : Focus()) control->CharacterTyped(character);
}

void Form::PressCancel() {
    for (const std::string_view name : {"CancelKnop", "ExitKnop"}) {
        const auto* button = dynamic_cast<Control*>(Find(name));
        if (button && button->Shown() && button->Reachable()) return button->Click();
    }
}

void Form::PressDefault(const Control* focused) {
    if (focused && !focused->PassesEnterOn()) return;
    if (DefaultButton && DefaultButton->Shown() && DefaultButton->Reachable()) DefaultButton->Click();
}

Element* Form::Find(std::string_view name, int index) const {
    const auto found = std::ranges::find_if(
        elements_, [&](const Element* e) { return e->Name() == name && e->Index() == index; });
    return found == elements_.end() ? nullptr : *found;
}

std::string Form::FocusName() const {
    const Control* focus = Focus();
    if (!focus) return {};
    std::string name(focus->Name());
    if (focus->Index() != noIndex) name.append("(").append(std::to_string(focus->Index())).append(")");
    return name;
}

void Form::VisitProperties(PropertyVisitor& visitor) {
    VisitReadOnly(visitor, "Name", PropertyKind::Text, [this] { return std::string(name_); });
    VisitField(visitor, "Caption", Caption);
    VisitField(visitor, "Width", Width);
    VisitField(visitor, "Height", Height);
    VisitColour(visitor, "BackColor", BackColor);
    VisitField(visitor, "MousePointer", MousePointer);
    VisitReadOnly(visitor, "Loaded", PropertyKind::Flag, [this] { return loaded_; });
    VisitReadOnly(visitor, "Focus", PropertyKind::Text, [this] { return FocusName(); });
}

void Form::VisitEvents(EventVisitor& visitor) {
    visitor.Visit({"Load", 0, [this](std::span<const double>) { Form_Load(); }});
    visitor.Visit({"Activate", 0, [this](std::span<const double>) { Form_Activate(); }});
    visitor.Visit({"Unload", 0, [this](std::span<const double>) {
                       bool cancel = false;
                       Form_Unload(cancel);
                   }});
}

}  // namespace coinlet
