#include "store/clipboard_copy.h"

#include "core/context.h"
#include "core/main_form.h"
#include "surface/clipboard.h"

namespace coinlet {

ClipboardCopy::ClipboardCopy(Context& context) : context_(context) {
    context.main.BewerkenCopy.Click = [this] { BewerkenCopy_Click(); };
}

void ClipboardCopy::BewerkenCopy_Click() {
    context_.services.clipboard.SetImage(context_.main.Pic.surface.Image());
    // A clipboard tells nobody whether it took the picture; the user gets the same message either way.
    context_.services.platform.ShowMessage({.prompt = "Copy Image to Clipboard..."});
}

}  // namespace coinlet
