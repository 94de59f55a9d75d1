#pragma once

#include "core/context.h"

#include <concepts>
#include <string>

namespace coinlet {

/// Shows a dialog and returns when it has closed.
template <std::derived_from<Form> Dialog>
void OpenDialog(Context& context) {
    Dialog dialog(context);
    context.services.platform.ShowModal(dialog);
}

/// What nearly all dialogs end with: the dialog unloads, and the hint at the foot of the main window is the
/// one of a program where nothing is begun. The close box of a window only unloads, so that the hint stays.
void CloseDialog(Context& context, Form& dialog);

/// The same at the end of work during which events were served. The user may have closed the dialog before it
/// was done and gone on with other things: the hint of these stays. `hintBefore` is the one that stood there
/// when the work began.
void CloseDialogAfterWork(Context& context, Form& dialog, const std::string& hintBefore);

}  // namespace coinlet
