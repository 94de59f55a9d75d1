#include "tools/canvas_keys.h"

#include "core/context.h"
#include "core/floating_image.h"
#include "core/main_form.h"
#include "tools/gesture_engine.h"

#include <algorithm>

namespace coinlet {

namespace {

constexpr float step = 1, longStep = 10;

/// The button of the pointer that a key stands for; none for other keys.
int ButtonOfKey(int code) {
    return code == keySpace ? leftButton : code == keyF10 ? rightButton : noButton;
}

}  // namespace

CanvasKeys::CanvasKeys(Context& context, const GestureEngine& gestures)
    : context_(context), gestures_(gestures) {
    PictureBox& canvas = context.main.Pic;
    canvas.KeyDown = [this](int code, int shift) { Pic_KeyDown(code, shift); };
    canvas.KeyUp = [this](int code, int shift) { Pic_KeyUp(code, shift); };
    canvas.GotFocus = [&main = context.main] { main.KeysShape.Visible = true; };
    canvas.LostFocus = [this] { Pic_LostFocus(); };
}

void CanvasKeys::Pic_KeyDown(int code, int shift) {
    if (!IsPlainKey(shift)) return;
    const bool withShift = (shift & shiftHeld) != 0;
    if (code == keySpace || (code == keyF10 && withShift)) Press(ButtonOfKey(code), shift);
    if (code == keyLeft) MoveBy(-1, 0, shift);
    if (code == keyRight) MoveBy(1, 0, shift);
    if (code == keyUp) MoveBy(0, -1, shift);
    if (code == keyDown) MoveBy(0, 1, shift);
}

void CanvasKeys::Pic_KeyUp(int code, int shift) {
    Release(ButtonOfKey(code), shift);
}

/// Keys that come up from now on are told to somebody else.
void CanvasKeys::Pic_LostFocus() {
    context_.main.KeysShape.Visible = false;
    for (const int button : {leftButton, rightButton})
        Release(button, 0);
}

void CanvasKeys::MoveBy(int columns, int rows, int shift) {
    const MainForm& main = context_.main;
    // What the pointer itself holds it drags alone.
    const bool drags = main.PointerHeld() && main.ButtonsHeldByKeys == noButton;
    // Slid aside as far as it goes, the canvas has no place for a pointer.
    const auto lastColumn = static_cast<float>(main.Pic.PixelWidth() - 1);
    const auto lastRow = static_cast<float>(main.Pic.PixelHeight() - 1);
    if (drags || ImageFloats(context_) || lastColumn < 0 || lastRow < 0) return;
    const float pixels = (shift & shiftHeld) != 0 ? longStep : step;
    const GesturePoint from = gestures_.Pointer();
    MoveTo(std::clamp(from.x + static_cast<float>(columns) * pixels, 0.0F, lastColumn),
           std::clamp(from.y + static_cast<float>(rows) * pixels, 0.0F, lastRow), shift);
}

void CanvasKeys::MoveTo(float x, float y, int shift) {
    MainForm& main = context_.main;
    context_.services.platform.MovePointer(main.Pic, x, y);
    main.Pic.PointerMoved(main.ButtonsHeldByKeys, shift, x, y);
}

void CanvasKeys::Press(int button, int shift) {
    MainForm& main = context_.main;
    // A key that stays down comes again and again.
    if (main.PointerHeld()) return;
    // The pointer may be elsewhere on the screen; what rides on it comes back with it.
    const GesturePoint at = gestures_.Pointer();
    MoveTo(at.x, at.y, shift);
    main.ButtonsHeldByKeys = button;
    main.Pic.PointerPressed(button, shift, at.x, at.y);
}

void CanvasKeys::Release(int button, int shift) {
    MainForm& main = context_.main;
    if (button == noButton || main.ButtonsHeldByKeys != button) return;
    main.ButtonsHeldByKeys = noButton;
    const GesturePoint at = gestures_.Pointer();
    main.Pic.PointerReleased(button, shift, at.x, at.y);
}

}  // namespace coinlet
