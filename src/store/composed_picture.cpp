#include "store/composed_picture.h"

namespace coinlet {

namespace {

constexpr Colour ruleColour = RGB(190, 190, 190);
constexpr int verticalRule = 500;    ///< Its column.
constexpr int horizontalRule = 330;  ///< Its row.

}  // namespace

void ComposePicture(const Image& canvas, const Image& sidePanel, Surface& target) {
    target.PaintPicture(canvas, 0, 0);
    target.Line(verticalRule, 0, verticalRule, composedHeight, ruleColour);
    target.PaintPicture(sidePanel, composedPanelLeft, 0);
    target.Line(verticalRule, horizontalRule, composedWidth, horizontalRule, ruleColour);
}

}  // namespace coinlet
