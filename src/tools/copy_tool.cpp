#include "tools/copy_tool.h"

#include "core/context.h"
#include "core/floating_image.h"
#include "core/main_form.h"
#include "core/tool_codes.h"

namespace coinlet {

ToolFamily CopyTool(Context& context) {
    const auto release = [&context](GesturePoint) {
        MainForm& main = context.main;
        const double width = main.Layer.Width(), height = main.Layer.Height();
        main.IconPic.surface.SetPicture({});
        main.IconPic.SetWidth(width * twipsPerPixel);
        main.IconPic.SetHeight(height * twipsPerPixel);
        main.IconPic.surface.PaintPicture(main.Pic.surface.Image(), {0, 0, width, height},
                                          {main.Layer.Left(), main.Layer.Top(), width, height});
        FloatImage(context, main.IconPic.surface.Image());
    };
    return {.firstCode = copyTool,
            .lastCode = copyTool,
            .band = Band::Area,
            .release = release,
            .movesChangeDesign = true};
}

}  // namespace coinlet
