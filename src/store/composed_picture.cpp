#include "store/composed_picture.h"

#include "core/main_form.h"
#include "core/side_panel.h"

namespace coinlet {

namespace {

constexpr Colour ruleColour = RGB(190, 190, 190);
constexpr int verticalRule = canvasSide;               ///< Its column, beside the canvas.
constexpr int horizontalRule = sidePanelBackTop - 10;  ///< Its row, above the back.
constexpr int panelLeft = verticalRule + 10;
static_assert(composedHeight == canvasSide && composedHeight == sidePanelHeight);
static_assert(panelLeft + sidePanelWidth <= composedWidth);

}  // namespace

void ComposePicture(const Image& canvas, const Image& sidePanel, Surface& target) {
    target.PaintPicture(canvas, 0, 0);
    target.Line(verticalRule, 0, verticalRule, composedHeight, ruleColour);
    target.PaintPicture(sidePanel, panelLeft, 0);
    target.Line(verticalRule, horizontalRule, composedWidth, horizontalRule, ruleColour);
}

void TakeSidePanel(const Image& composed, Surface& panel) {
    panel.PaintPicture(composed, {0, 0, sidePanelWidth, sidePanelHeight},
                       {panelLeft, 0, sidePanelWidth, static_cast<double>(composed.Height())});
}

}  // namespace coinlet
