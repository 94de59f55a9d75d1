#include "core/rulers.h"

#include "core/main_form.h"

namespace coinlet {

namespace {

/// Not the paper's white: the canvas is to stand out between them.
constexpr Colour rulerColour = RGB(232, 230, 208);
constexpr Colour tickColour = RGB(170, 170, 170);
constexpr Colour quarterColour = RGB(255, 0, 0);
constexpr int tickPitch = 5, tickStart = 9;

}  // namespace

void DrawRulers(MainForm& main) {
    Surface& left = main.LeftPic.surface;
    Surface& top = main.TopPic.surface;
    for (Surface* ground : {&left, &top, &main.HoekPic.surface})
        ground->SetBackColor(rulerColour);
    const int leftDepth = left.PixelWidth(), topDepth = top.PixelHeight();
    for (int i = 0; i < canvasSide; i += tickPitch) {
        left.Line(tickStart, i, leftDepth, i, tickColour);
        top.Line(i, tickStart, i, topDepth, tickColour);
    }
    for (int quarter = canvasSide / 4; quarter < canvasSide; quarter += canvasSide / 4) {
        left.Line(0, quarter, leftDepth, quarter, quarterColour);
        top.Line(quarter, 0, quarter, topDepth, quarterColour);
    }
}

}  // namespace coinlet
