#include "core/dialog.h"

#include "core/language.h"
#include "core/text_keys.h"

namespace coinlet {

void CloseDialog(Context& context, Form& dialog) {
    dialog.Unload();
    ShowHint(context, key::ready);
}

}  // namespace coinlet
