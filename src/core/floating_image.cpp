#include "core/floating_image.h"

#include "core/context.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/main_layout.h"
#include "core/text_keys.h"

namespace coinlet {

void FloatImage(Context& context, const Image& image, FloatingHint hint) {
    MainForm& main = context.main;
    context.session.ToolCode = imageFloats;
    main.ClipPic.surface.SetPicture(image);
    if (image.Empty()) {
        // The empty picture would leave the size of the one before.
        main.ClipPic.SetWidth(0);
        main.ClipPic.SetHeight(0);
    }
    main.ClipPic.Move(0, 0);
    main.ClipPic.Visible = true;
    if (hint == FloatingHint::Shown) {
        ShowHint(context, key::placeFloatingImage);
    } else {
        static_cast<void>(LookupInfoText(context, key::placeFloatingImage));
    }
    WidenCorner(main);
    main.HoekKnop.Visible = true;
    // The arrow keys now move the image.
    main.Pic.SetFocus();
}

bool ImageFloats(const Context& context) {
    return context.session.ToolCode == imageFloats && context.main.ClipPic.Shown();
}

void HideFloatingImage(Context& context) {
    MainForm& main = context.main;
    main.HoekKnop.Visible = false;
    NarrowCorner(main);
    main.ClipPic.Visible = false;
}

void ExportAsFloatingImage(Context& context, Form& dialog, const Image& image, FloatingHint hint) {
    FloatImage(context, image, hint);
    dialog.Unload();
}

}  // namespace coinlet
