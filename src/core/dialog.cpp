#include "core/dialog.h"

#include "controls/placing.h"
#include "controls/vista_button.h"
#include "core/language.h"
#include "core/text_keys.h"

namespace coinlet {

void CloseDialog(Context& context, Form& dialog) {
    dialog.Unload();
    ShowHint(context, key::ready);
}

void PlaceWaysOut(VistaButton& exportKnop, VistaButton& cancelKnop, int left, int top, int width,
                  int height) {
    const int each = (width - dialogGap) / 2;
    exportKnop.SetCaption("Export");
    PlaceByPixels(exportKnop, left, top, each, height);
    cancelKnop.SetCaption("Cancel");
    PlaceByPixels(cancelKnop, left + width - each, top, each, height);
}

}  // namespace coinlet
