#pragma once

#include "core/context.h"

#include <concepts>

namespace coinlet {

class VistaButton;

/// The distance of what a dialog holds from its border, and of a button from the next one, in pixels.
constexpr int dialogMargin = 12, dialogGap = 8;

/// Shows a dialog and returns when it has closed.
template <std::derived_from<Form> Dialog>
void OpenDialog(Context& context) {
    Dialog dialog(context);
    context.services.platform.ShowModal(dialog);
}

/// What nearly all dialogs end with: the dialog unloads, and the hint at the foot of the main window is the
/// one of a program where nothing is begun. The close box of a window only unloads, so that the hint stays.
void CloseDialog(Context& context, Form& dialog);

/// Gives the pair of buttons that end a dialog their captions, and the two halves of a place in pixels.
void PlaceWaysOut(VistaButton& exportKnop, VistaButton& cancelKnop, int left, int top, int width, int height);

}  // namespace coinlet
