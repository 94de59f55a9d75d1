#pragma once

namespace coinlet {

class CanvasWork;
class Surface;
struct Context;

/// Turns a picture by any angle in degrees into another one, from the middle outward and before the user's
/// eyes: each step is shown and told by the progress bar, and events are served. By a quarter, the target's
/// width and height are exchanged. What comes from outside the source leaves the target as it was. The
/// surfaces must not be the same. Throws ProgramEnded if the program ended in an event.
void RotatePicture(Context& context, const Surface& source, Surface& target, float angle, bool clockwise);

/// The menu of flips and turns of the whole canvas, each under one step of undo.
class FlipMenu {
public:
    FlipMenu(Context& context, CanvasWork& work);

private:
    void FlipPic_Click(int index);

    Context& context_;
    CanvasWork& work_;
};

}  // namespace coinlet
