#pragma once

namespace coinlet {

class Form;
class Image;
struct Context;

/// What the foot of the main window says when an image begins to float.
enum class FloatingHint {
    Shown,       ///< How to place and paste it.
    NumberOnly,  ///< The number of that text; the hint before it stays.
};

/// Lays an image over the canvas at its top left corner, where the user drags it to its place and then picks
/// the way of pasting. It replaces one that floats there already; no tool stays armed. An image of no pixels
/// floats unseen. The canvas gets the focus.
void FloatImage(Context& context, const Image& image, FloatingHint hint = FloatingHint::Shown);

/// True while an image floats over the canvas.
bool ImageFloats(const Context& context);

/// Takes the floating image away, with the button that pastes it.
void HideFloatingImage(Context& context);

/// What `ExportKnop` of a dialog does that hands over a floating image. Such a dialog makes its picture of
/// its own; it promises to the main form:
///
/// - Until `ExportKnop` it changes nothing of `Main` but the hint at the foot, and no session variable that
///   isn't its own business: `ToolCode` stays that of the button that opened it.
/// - `ExportKnop`: the image floats, as `FloatImage` tells it; then the dialog unloads. The hint stays that
///   of the floating image. Canvas, `UndoPic` and `DesignChanged` stay: they are the paste's.
/// - `CancelKnop` and Escape: `CloseDialog` (`core/dialog.h`). An image that floated before goes on floating.
/// - The close box: the dialog unloads, and no more.
void ExportAsFloatingImage(Context& context, Form& dialog, const Image& image,
                           FloatingHint hint = FloatingHint::Shown);

}  // namespace coinlet
