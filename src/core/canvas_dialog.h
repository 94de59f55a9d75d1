#pragma once

#include "core/dialog.h"
#include "core/dialog_layout.h"
#include "core/main_form.h"

namespace coinlet {

class Image;
class Surface;
struct Context;

// A dialog over the canvas lets the user try something on a copy of the design before he takes it or leaves
// it. It has a picture `Pic` of the canvas's size, an edge around that, and the buttons `ExportKnop` and
// `CancelKnop`. What it promises to the main form:
//
// - It reads the canvas when it opens and when the user goes back to the beginning: the image as it stands
//   then, not as it was at the opening, as events may have been served since. Other things of `Main`, such
//   as the fill colour, it reads when it needs them.
// - Until `ExportKnop` it changes nothing of `Main` but the hint at the foot. It writes no session variable.
// - `ExportKnop`: the canvas takes the copy, all of it; then the dialog unloads; then the hint is that of a
//   program where nothing is begun. `UndoPic` and `DesignChanged` stay: the press that opened the dialog
//   takes no copy for undo, nor does its end.
// - `CancelKnop` and Escape: the dialog unloads, and the hint is the same. The canvas stays.
// - The close box: the dialog unloads. Canvas and hint stay.

/// The column of controls beside the copy, in pixels; it ends a margin before the dialog's right border.
constexpr int canvasDialogColumn = dialogMargin + canvasSide + dialogMargin;

/// Places the copy in the upper left corner of its dialog, with its edge around it.
void PlaceCanvasCopy(PictureBox& copy, Shape& edge);

/// Paints the canvas as it is now over the copy. The copy's background, its font and its pens stay.
void CopyCanvas(const Context& context, Surface& copy);

/// What `ExportKnop` of a dialog over the canvas does with the image of its copy.
void ExportToCanvas(Context& context, Form& dialog, const Image& copy);

}  // namespace coinlet
