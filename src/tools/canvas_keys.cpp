#include "tools/canvas_keys.h"

#include "core/context.h"
#include "core/floating_image.h"
#include "core/main_form.h"

namespace coinlet {

void BindCanvasKeys(Context& context) {
    MainForm& main = context.main;
    main.Pic.GotFocus = [&main] { main.KeysShape.Visible = true; };
    main.Pic.LostFocus = [&main] { main.KeysShape.Visible = false; };
    main.Pic.ArrowsAreTaken = [&context] { return ImageFloats(context); };
}

}  // namespace coinlet
