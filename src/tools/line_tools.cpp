#include "tools/line_tools.h"

#include "core/context.h"
#include "core/main_form.h"
#include "core/tool_codes.h"
#include "tools/kept_proportions.h"

namespace coinlet {

ToolFamily FreeHandTool(Context& context) {
    const auto move = [&context](GesturePoint to) {
        Session& session = context.session;
        context.main.Pic.surface.Line(session.StartX, session.StartY, to.x, to.y, black);
        session.StartX = to.x;
        session.StartY = to.y;
    };
    return {.firstCode = freeHandTool, .lastCode = freeHandTool, .move = move, .movesChangeDesign = true};
}

ToolFamily LineTool(Context& context) {
    Session& session = context.session;
    Surface& canvas = context.main.Pic.surface;
    const auto press = [&session, &canvas](GesturePoint) {
        session.LastX = session.StartX;
        session.LastY = session.StartY;
        canvas.DrawMode = invertPen;
    };
    // Drawn a second time, the old line vanishes and what lay under it is back.
    const auto move = [&session, &canvas](GesturePoint to) {
        canvas.Line(session.StartX, session.StartY, session.LastX, session.LastY);
        canvas.Line(session.StartX, session.StartY, to.x, to.y);
    };
    const auto release = [&session, &canvas](GesturePoint to) {
        canvas.Line(session.StartX, session.StartY, to.x, to.y, black);
    };
    return {.firstCode = lineTool,
            .lastCode = lineTool,
            .press = press,
            .move = move,
            .release = release,
            .withShift = NextOnRay,
            .movesChangeDesign = true};
}

}  // namespace coinlet
