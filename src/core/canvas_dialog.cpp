#include "core/canvas_dialog.h"

#include "controls/edge.h"
#include "controls/placing.h"
#include "core/context.h"

namespace coinlet {

namespace {

constexpr Rectangle wholeCanvas{0, 0, canvasSide, canvasSide};

}  // namespace

void PlaceCanvasCopy(PictureBox& copy, Shape& edge) {
    PlaceByPixels(copy, dialogMargin, dialogMargin, canvasSide, canvasSide);
    SetEdge(edge, copy);
}

void CopyCanvas(const Context& context, Surface& copy) {
    copy.PaintPicture(context.main.Pic.surface.Image(), wholeCanvas, wholeCanvas);
}

void ExportToCanvas(Context& context, Form& dialog, const Image& copy) {
    context.main.Pic.surface.PaintPicture(copy, wholeCanvas, wholeCanvas);
    CloseDialog(context, dialog);
}

}  // namespace coinlet
