#include "controls/vista_button.h"

#include "controls/form.h"
#include "controls/platform.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace coinlet {

namespace {

constexpr int hoverInterval = 10;  // milliseconds

int ToShort(int value) {
    using Limits = std::numeric_limits<std::int16_t>;
    return std::clamp<int>(value, Limits::min(), Limits::max());
}

}  // namespace

VistaButton::VistaButton(Container& container, std::string_view name, int index)
    : Control(container, name, index, ControlKind::Button), face_(OwnerForm().Fonts().Installed(), 0, 0) {
    look_.caption = name;
    MakeFocusable();
}

// Drawing waits until somebody looks. A form that is built, filled and translated sets some ten properties of
// each of its buttons, and a script or a closed form never looks at most of them.
void VistaButton::Redraw() {
    look_.enabled = Enabled();
    look_.mouseDown = mouseDown_;
    ++lookRevision_;
}

const Surface& VistaButton::Face() const {
    if (drawnRevision_ != lookRevision_) {
        face_.Resize(PixelWidth(), PixelHeight());
        DrawButton(face_, state_, look_);
        drawnRevision_ = lookRevision_;
    }
    return face_;
}

void VistaButton::SetCaption(const std::string& caption) {
    look_.caption = caption;
    Redraw();
}

void VistaButton::SetForeColor(Colour colour) {
    look_.foreColor = colour;
    Redraw();
}

void VistaButton::SetFont(const FontProperties& font) {
    look_.font = font;
    Redraw();
}

void VistaButton::SetPicture(const Image& picture) {
    picture_ = picture;
    PreparePicture();
    Redraw();
}

// The picture is turned into a surface once, so that each drawing merely copies from it.
void VistaButton::PreparePicture() {
    look_.strip.reset();
    if (picture_.Empty()) return;
    look_.strip = std::make_unique<Surface>(OwnerForm().Fonts(), picture_.Width(), picture_.Height());
    look_.strip->SetPicture(picture_);
}

void VistaButton::SetPictures(int count) {
    LoadPictures(count < 0 ? 1 : std::min(count, 2));
}

void VistaButton::LoadPictures(int count) {
    look_.pictures = ToShort(count);
    Redraw();
}

void VistaButton::SetUseMaskColor(bool use) {
    look_.useMaskColor = use;
    Redraw();
}

void VistaButton::SetMaskColor(Colour colour) {
    look_.maskColor = colour;
    Redraw();
}

void VistaButton::SetNoBackground(bool flat) {
    look_.noBackground = flat;
    Redraw();
}

void VistaButton::SetBackColor(Colour colour) {
    look_.backColor = colour;
    Redraw();
}

void VistaButton::SetPictureOffset(int pixels) {
    look_.pictureOffset = ToShort(pixels);
    Redraw();
}

void VistaButton::SetEnabled(bool enabled) {
    Control::SetEnabled(enabled);
    state_ = enabled ? ButtonState::Normal : ButtonState::Disabled;
    // A disabled button takes no focus by tab; enabled again it does what it did before.
    if (!enabled && !savedTabStop_) {
        savedTabStop_ = TabStop;
        TabStop = false;
    } else if (enabled && savedTabStop_) {
        TabStop = *savedTabStop_;
        savedTabStop_.reset();
    }
    Redraw();
}

void VistaButton::SetWidth(double width) {
    Control::SetWidth(width);
    Redraw();
}

void VistaButton::SetHeight(double height) {
    Control::SetHeight(height);
    Redraw();
}

bool VistaButton::SetState(ButtonState state) {
    if (state == state_) return false;
    state_ = state;
    Redraw();
    return true;
}

bool VistaButton::IsMouseOver() const {
    return OwnerForm().GetPlatform().IsPointerOver(*this);
}

void VistaButton::StartHover() {
    if (hover_) return;
    hover_ = std::make_unique<Timer>(OwnerForm(), "Hover", this);
    hover_->Interval = hoverInterval;
    hover_->Tick = [this] {
        if (!IsMouseOver()) EndHover();
    };
}

void VistaButton::EndHover() {
    hover_.reset();
    if (!Enabled()) return;
    if (!mouseDown_) SetState(StateAtRest());
    MouseOut();
}

void VistaButton::PointerPressed(int button, int shift, float x, float y) {
    Control::PointerPressed(button, shift, x, y);
    if (!Answers()) return;
    mouseDown_ = true;
    SetState(ButtonState::Pressed);
}

void VistaButton::PointerMoved(int button, int shift, float x, float y) {
    Control::PointerMoved(button, shift, x, y);
    const bool inside = ContainsPoint(x, y);
    if (inside && Answers()) MouseIn();
    if (!Answers()) return;
    // Outside, where a held button lets moves come from, the hover look stays until the timer sees the
    // pointer gone.
    const bool changed = SetState(inside && mouseDown_ ? ButtonState::Pressed : ButtonState::Hover);
    if (inside && changed) StartHover();
}

void VistaButton::PointerReleased(int button, int shift, float x, float y) {
    const bool pressedHere = EndPress(button);
    if (!Answers()) return;
    MouseUp(button, shift, x, y);
    if (!Answers()) return;
    mouseDown_ = false;
    const bool inside = ContainsPoint(x, y);
    SetState(inside ? ButtonState::Hover : StateAtRest());
    if (pressedHere && inside) Click();
}

void VistaButton::KeyPressed(int code, int shift) {
    // The space bar acts as a press that no button of the pointer makes.
    if (code == keySpace) PointerPressed(0, shift, 0, 0);
    Control::KeyPressed(code, shift);
}

void VistaButton::CharacterTyped(int character) {
    if (character != keySpace) Control::CharacterTyped(character);
}

void VistaButton::KeyReleased(int code, int shift) {
    if (code == keySpace) {
        PointerReleased(0, shift, IsMouseOver() ? 0.0F : -1.0F, 0);
        if (Answers()) Click();
    }
    Control::KeyReleased(code, shift);
}

void VistaButton::FocusGained() {
    hasFocus_ = true;
    if (!mouseDown_ && !IsMouseOver()) SetState(ButtonState::Focused);
    Control::FocusGained();
}

void VistaButton::FocusLost() {
    hasFocus_ = false;
    if (Enabled() && !IsMouseOver()) SetState(ButtonState::Normal);
    Control::FocusLost();
}

void VistaButton::VisitProperties(PropertyVisitor& visitor) {
    Control::VisitProperties(visitor);
    VisitProperty(
        visitor, "Caption", PropertyKind::Text, [this] { return Caption(); },
        [this](const std::string& caption) { SetCaption(caption); });
    VisitProperty(
        visitor, "ForeColor", PropertyKind::Colour, [this] { return ForeColor(); },
        [this](Colour colour) { SetForeColor(colour); });
    VisitFont(
        visitor, [this]() -> const FontProperties& { return Font(); },
        [this](const FontProperties& font) { SetFont(font); });
    VisitProperty(
        visitor, "Pictures", PropertyKind::Number, [this] { return Pictures(); },
        [this](int count) { SetPictures(count); });
    VisitProperty(
        visitor, "UseMaskColor", PropertyKind::Flag, [this] { return UseMaskColor(); },
        [this](bool use) { SetUseMaskColor(use); });
    VisitProperty(
        visitor, "MaskColor", PropertyKind::Colour, [this] { return MaskColor(); },
        [this](Colour colour) { SetMaskColor(colour); });
    VisitProperty(
        visitor, "NoBackground", PropertyKind::Flag, [this] { return NoBackground(); },
        [this](bool flat) { SetNoBackground(flat); });
    VisitProperty(
        visitor, "BackColor", PropertyKind::Colour, [this] { return BackColor(); },
        [this](Colour colour) { SetBackColor(colour); });
    VisitProperty(
        visitor, "PictureOffset", PropertyKind::Number, [this] { return PictureOffset(); },
        [this](int pixels) { SetPictureOffset(pixels); });
    VisitReadOnly(visitor, "State", PropertyKind::Number, [this] { return static_cast<int>(state_); });
}

void VistaButton::VisitEvents(EventVisitor& visitor) {
    Control::VisitEvents(visitor);
    VisitEvent(visitor, "MouseIn", MouseIn);
    VisitEvent(visitor, "MouseOut", MouseOut);
}

}  // namespace coinlet
