#include "controls/control.h"

#include "base/numbers.h"
#include "controls/form.h"

#include <algorithm>
#include <utility>

namespace coinlet {

namespace {

/// The button of the pointer that a key stands for on what keys press.
int ButtonOfKey(int code, int shift) {
    if (!IsPlainKey(shift)) return noButton;
    if (code == keyReturn || code == keySpace) return leftButton;
    return code == keyF10 && (shift & shiftHeld) != 0 ? rightButton : noButton;
}

}  // namespace

Control::Control(Container& container, std::string_view name, int index, ControlKind kind)
    : Element(container.HostForm(), name, index),
      TabIndex(container.HostForm().controlsMade_++),
      container_(&container),
      kind_(kind) {
    container.children_.push_back(this);
}

Control::~Control() {
    std::erase(container_->children_, this);
    Form& form = OwnerForm();
    if (form.focus_ == this) form.focus_ = nullptr;
    if (form.lastFocus_ == this) form.lastFocus_ = nullptr;
    if (form.keyed_ == this) form.keyed_ = nullptr;
    if (form.DefaultButton == this) form.DefaultButton = nullptr;
}

void Control::Move(double left, double top, double width, double height) {
    Move(left, top);
    SetWidth(width);
    SetHeight(height);
}

void Control::SetFocus() {
    OwnerForm().MoveFocus(this);
}

bool Control::HasFocus() const {
    return OwnerForm().Focus() == this;
}

int Control::PixelWidth() const {
    return RoundHalfEven(Width() / container_->ChildUnitsPerPixel());
}

int Control::PixelHeight() const {
    return RoundHalfEven(Height() / container_->ChildUnitsPerPixel());
}

bool Control::ContainsPoint(float x, float y) const {
    const float units = PointerUnitsPerPixel();
    return x >= 0 && y >= 0 && x < static_cast<float>(PixelWidth()) * units &&
           y < static_cast<float>(PixelHeight()) * units;
}

bool Control::Answers() const {
    const bool floats = kind_ == ControlKind::Shape || kind_ == ControlKind::Line;
    return !floats && OwnerForm().Loaded() && Reachable();
}

bool Control::EndPress(int button) {
    OwnerForm().heldButtons_ &= ~button;
    return button == leftButton && std::exchange(leftPressed_, false);
}

void Control::PointerPressed(int button, int shift, float x, float y) {
    if (!Answers()) return;
    OwnerForm().heldButtons_ |= button;
    if (button != noButton) OwnerForm().keyed_ = nullptr;
    if (button == leftButton) {
        leftPressed_ = true;
        if (TakesFocusByPress()) SetFocus();
        if (!Answers()) return;
    }
    MouseDown(button, shift, x, y);
}

void Control::PointerMoved(int button, int shift, float x, float y) {
    // A release can be lost, to a menu that pops up for example; nothing is held then all the same.
    if (button == noButton) OwnerForm().heldButtons_ = 0;
    if (Answers()) MouseMove(button, shift, x, y);
}

void Control::PointerReleased(int button, int shift, float x, float y) {
    const bool clicks = EndPress(button) && ContainsPoint(x, y);
    if (!Answers()) return;
    MouseUp(button, shift, x, y);
    if (clicks && Answers()) Clicked();
}

Control::PressPlace Control::Middle() const {
    const float units = PointerUnitsPerPixel();
    const int column = PixelWidth() / 2, row = PixelHeight() / 2;
    return {static_cast<float>(column) * units, static_cast<float>(row) * units};
}

void Control::PointerClicked() {
    const auto [x, y] = Middle();
    PointerPressed(leftButton, 0, x, y);
    PointerReleased(leftButton, 0, x, y);
}

void Control::LetKeysPress() {
    MakeFocusable();
    keysPress_ = true;
}

Control::PressPlace Control::KeyPressPlace() const {
    return Middle();
}

bool Control::WantsKey(int code, int shift) const {
    return keysPress_ && ButtonOfKey(code, shift) != noButton;
}

void Control::PressByKey(int button) {
    const auto [x, y] = KeyPressPlace();
    PointerPressed(button, 0, x, y);
    PointerReleased(button, 0, x, y);
}

void Control::KeyPressed(int code, int shift) {
    if (!Answers()) return;
    KeyDown(code, shift);
    if (!keysPress_ || !Answers()) return;
    const int button = ButtonOfKey(code, shift);
    spaceIsDown_ = code == keySpace && button != noButton;
    if (button != noButton && !spaceIsDown_) PressByKey(button);
}

void Control::CharacterTyped(int character) {
    if (Answers()) KeyPress(character);
}

void Control::KeyReleased(int code, int shift) {
    const bool presses = code == keySpace && std::exchange(spaceIsDown_, false);
    if (!Answers()) return;
    KeyUp(code, shift);
    if (presses && Answers()) PressByKey(leftButton);
}

void Control::FocusGained() {
    GotFocus();
}

void Control::FocusLost() {
    spaceIsDown_ = false;
    LostFocus();
}

void Control::VisitProperties(PropertyVisitor& visitor) {
    Element::VisitProperties(visitor);
    VisitProperty(
        visitor, "Left", PropertyKind::Number, [this] { return Left(); },
        [this](double left) { SetLeft(left); });
    VisitProperty(
        visitor, "Top", PropertyKind::Number, [this] { return Top(); }, [this](double top) { SetTop(top); });
    VisitProperty(
        visitor, "Width", PropertyKind::Number, [this] { return Width(); },
        [this](double width) { SetWidth(width); });
    VisitProperty(
        visitor, "Height", PropertyKind::Number, [this] { return Height(); },
        [this](double height) { SetHeight(height); });
    VisitField(visitor, "Visible", Visible);
    VisitReadOnly(visitor, "Shown", PropertyKind::Flag, [this] { return Shown(); });
    VisitProperty(
        visitor, "Enabled", PropertyKind::Flag, [this] { return Enabled(); },
        [this](bool enabled) { SetEnabled(enabled); });
    VisitField(visitor, "TabIndex", TabIndex);
    VisitField(visitor, "TabStop", TabStop);
    VisitField(visitor, "ToolTipText", ToolTipText);
    VisitField(visitor, "MousePointer", MousePointer);
}

void Control::VisitEvents(EventVisitor& visitor) {
    VisitEvent(visitor, "Click", Click);
    VisitEvent(visitor, "MouseDown", MouseDown);
    VisitEvent(visitor, "MouseMove", MouseMove);
    VisitEvent(visitor, "MouseUp", MouseUp);
    VisitEvent(visitor, "KeyDown", KeyDown);
    VisitEvent(visitor, "KeyPress", KeyPress);
    VisitEvent(visitor, "KeyUp", KeyUp);
    VisitEvent(visitor, "GotFocus", GotFocus);
    VisitEvent(visitor, "LostFocus", LostFocus);
}

}  // namespace coinlet
