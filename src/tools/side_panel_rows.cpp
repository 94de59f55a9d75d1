#include "tools/side_panel_rows.h"

#include "colour/pms_table.h"
#include "core/context.h"
#include "core/main_form.h"
#include "core/side_panel.h"
#include "core/tool_codes.h"

#include <optional>

namespace coinlet {

SidePanelRows::SidePanelRows(Context& context) : context_(context) {
    context.main.InfoPic.MouseDown = [this](int button, int, float x, float y) {
        InfoPic_MouseDown(button, x, y);
    };
}

void SidePanelRows::InfoPic_MouseDown(int button, float x, float y) {
    const Session& session = context_.session;
    if (session.ToolCode != pickTool) return;
    const std::optional<int> row = SwatchAt(x, y);
    if (!row) return;
    Surface& panel = context_.main.InfoPic.surface;
    if (button != leftButton) {
        ClearRow(panel, *row);
        return;
    }
    const Colour picked = RGB(PmsChannel(session.PmsRed), PmsChannel(session.PmsGreen), session.PmsBlue);
    FillSwatch(panel, *row, x, y, picked);
    const ListBox& table = context_.main.PMSlist;
    // Without a table nothing has a name, and the one that stands there stays.
    if (table.ListCount() == 0) return;
    PrintRowName(panel, *row, PmsColourName(table, session.PmsRed, session.PmsGreen, session.PmsBlue));
}

}  // namespace coinlet
