#pragma once

#include <cstdint>

namespace coinlet {

class CanvasWork;
struct Context;

/// The image that floats over the canvas: the user drags it to its place, and picks in the menu of the button
/// in the corner of the rulers how it is burned in.
class FloatingClip {
public:
    FloatingClip(Context& context, CanvasWork& work);

    /// What a key does while an image floats: the arrows move it by a pixel, with Shift by ten, Enter pastes
    /// as the first entry of the menu does, Escape is the last one. False for other keys, or without an
    /// image.
    bool TakesKey(int code, int shift);

private:
    void ClipPic_MouseDown(float x, float y);
    void ClipPic_MouseMove(int button, float x, float y);
    void HoekKnop_Click();
    void MoveTo(float left, double top);
    void Paste_Click(int index);

    /// All but the pixels of the background's colour, row by row before the user's eyes.
    void PasteWithoutBackground();

    Context& context_;
    CanvasWork& work_;
    // Where on the image the pointer took hold of it, in pixels.
    float clipGrabX_ = 0;
    std::int16_t clipGrabY_ = 0;
};

}  // namespace coinlet
