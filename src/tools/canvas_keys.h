#pragma once

namespace coinlet {

class GestureEngine;
struct Context;

/// The pointer in the hands of the keyboard. While the canvas has the focus the arrows move it there, by a
/// pixel or with Shift by ten, Space is its left button and Shift+F10 its right one; so whatever can be drawn
/// can be drawn by keys. While an image floats the arrows are the image's.
class CanvasKeys {
public:
    CanvasKeys(Context& context, const GestureEngine& gestures);

private:
    void Pic_KeyDown(int code, int shift);
    void Pic_KeyUp(int code, int shift);
    void Pic_LostFocus();

    void MoveBy(int columns, int rows, int shift);
    void Press(int button, int shift);
    void Release(int button, int shift);
    /// Puts the pointer on a place of the canvas and tells the canvas.
    void MoveTo(float x, float y, int shift);

    Context& context_;
    const GestureEngine& gestures_;
};

}  // namespace coinlet
