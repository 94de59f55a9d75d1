#include "tools/info_panel_rows.h"

#include "base/numbers.h"
#include "colour/pms_table.h"
#include "core/context.h"
#include "core/info_panel.h"
#include "core/main_form.h"
#include "core/tool_codes.h"
#include "surface/device.h"

#include <optional>

namespace coinlet {

namespace {

constexpr Colour emptySwatch = RGB(195, 195, 195);
// The white frame of a swatch, in pixels; the rows of the frame count from the top of the row.
constexpr int frameLeft = 21, frameRight = 39, frameTop = 1, frameBottom = 19;
// The field for the name beside it.
constexpr int fieldLeft = 70, fieldRight = 200, fieldHeight = 20;

/// The top of the row whose swatch is at that place.
std::optional<int> RowTopAt(float x, float y) {
    for (int row = 0; row < infoRows; ++row) {
        const auto top = static_cast<float>(InfoRowTop(row));
        if (x > frameLeft && x < frameRight && y > top + frameTop && y < top + frameBottom)
            return InfoRowTop(row);
    }
    return {};
}

void FrameSwatch(Surface& panel, int top) {
    panel.Line(frameLeft, top + frameTop, frameRight, top + frameBottom, white, Box::Outline);
}

void FillSwatch(Surface& panel, float x, float y, int top, Colour colour) {
    panel.FillColor = colour;
    panel.FillStyle = solidFill;
    ExtFloodFill(panel.hDC(), RoundHalfEven(x), RoundHalfEven(y), panel.Point(x, y), FLOODFILLSURFACE);
    FrameSwatch(panel, top);
    panel.Refresh();
    panel.FillStyle = transparentFill;
}

void ClearRow(Surface& panel, int top) {
    panel.Line(frameLeft + 1, top + frameTop + 1, frameRight - 1, top + frameBottom - 1, emptySwatch,
               Box::Filled);
    FrameSwatch(panel, top);
    panel.Line(fieldLeft, top, fieldRight, top + fieldHeight, white, Box::Filled);
}

}  // namespace

InfoPanelRows::InfoPanelRows(Context& context) : context_(context) {
    context.main.InfoPic.MouseDown = [this](int button, int, float x, float y) {
        InfoPic_MouseDown(button, x, y);
    };
}

void InfoPanelRows::InfoPic_MouseDown(int button, float x, float y) {
    const Session& session = context_.session;
    if (session.ToolCode != pickTool) return;
    const std::optional<int> top = RowTopAt(x, y);
    if (!top) return;
    Surface& panel = context_.main.InfoPic.surface;
    panel.DrawMode = copyPen;
    if (button != leftButton) {
        ClearRow(panel, *top);
        return;
    }
    const Colour picked = RGB(PmsChannel(session.PmsRed), PmsChannel(session.PmsGreen), session.PmsBlue);
    FillSwatch(panel, x, y, *top, picked);
    PrintPmsLabel(context_, session.PmsRed, session.PmsGreen, session.PmsBlue, *top);
}

}  // namespace coinlet
