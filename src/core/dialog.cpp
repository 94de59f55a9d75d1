#include "core/dialog.h"

#include "core/language.h"
#include "core/main_form.h"
#include "core/text_keys.h"

namespace coinlet {

void CloseDialog(Context& context, Form& dialog) {
    dialog.Unload();
    ShowHint(context, key::ready);
}

void CloseDialogAfterWork(Context& context, Form& dialog, const std::string& hintBefore) {
    const bool userWentOn = !dialog.Loaded() && context.main.InfoLabel.Caption != hintBefore;
    if (!userWentOn) CloseDialog(context, dialog);
}

}  // namespace coinlet
