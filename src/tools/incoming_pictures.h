#pragma once

#include "base/files.h"

#include <span>

namespace coinlet {

class CanvasWork;
struct Context;
struct Offer;

/// Pictures from other programs: what is dropped on the main window, or pasted by Ctrl+V, floats over the
/// canvas, scaled down to it if it is larger. What holds no picture is told so at the foot of the window.
///
/// Nothing is taken while a dialog is open, a filter or a flip runs, an image is being burned in, a button of
/// the pointer is held, or a text hangs on the pointer.
class IncomingPictures {
public:
    IncomingPictures(Context& context, const CanvasWork& work);

    /// Ctrl+V; false for other keys.
    bool TakesKey(int code, int shift);
    /// The first readable picture among the files floats, or else the picture that was offered itself.
    void Take(const Offer& offer);

private:
    /// Nothing is going on that a new picture would disturb.
    bool IsFree() const;

    Context& context_;
    const CanvasWork& work_;
};

}  // namespace coinlet
