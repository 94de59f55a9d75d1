#include "tools/fill_tools.h"

#include "base/numbers.h"
#include "core/context.h"
#include "core/main_form.h"
#include "core/tool_codes.h"
#include "surface/device.h"

#include <cstdint>
#include <string>

namespace coinlet {

namespace {

void Fill(MainForm& main, GesturePoint at) {
    Surface& canvas = main.Pic.surface;
    canvas.DrawMode = copyPen;
    canvas.FillColor = main.ColorLabel.BackColor;
    canvas.FillStyle = solidFill;
    const Colour seed = canvas.Point(at.x, at.y);
    ExtFloodFill(canvas.hDC(), RoundHalfEven(at.x), RoundHalfEven(at.y), seed, FLOODFILLSURFACE);
    canvas.Refresh();
    canvas.FillStyle = transparentFill;
}

void Dab(MainForm& main, int eraserSize, GesturePoint at) {
    // The dab falls inside the marker, whose bottom right corner is at the pointer.
    constexpr double withinMarker = 2;
    Surface& canvas = main.Pic.surface;
    const bool inFillColour = main.Check1.Value();
    const Colour colour = inFillColour ? main.ColorLabel.BackColor : white;
    const double half = eraserSize / 2.0;
    canvas.FillColor = colour;
    canvas.FillStyle = solidFill;
    canvas.Circle(at.x - half, at.y - half, half - withinMarker, colour);
    canvas.FillStyle = transparentFill;
}

}  // namespace

ToolFamily FillTool(Context& context) {
    const auto press = [&main = context.main](GesturePoint at) { Fill(main, at); };
    return {.firstCode = fillTool, .lastCode = fillTool, .press = press};
}

ToolFamily EraseTool(Context& context) {
    const auto dab = [&context](GesturePoint at) { Dab(context.main, context.session.EraserSize, at); };
    const auto press = [&context, dab](GesturePoint at) {
        Shape& marker = context.main.Gom;
        marker.SetWidth(context.session.EraserSize);
        marker.SetHeight(context.session.EraserSize);
        marker.Visible = true;
        dab(at);
    };
    return {.firstCode = eraseTool,
            .lastCode = eraseTool,
            .press = press,
            .move = dab,
            .movesChangeDesign = true};
}

ToolFamily PickTool(Context& context) {
    // The field shows the colour under the pointer all the time.
    const auto follow = [&main = context.main](GesturePoint at) {
        main.ColorLabel.BackColor = main.Pic.surface.Point(at.x, at.y);
    };
    const auto press = [&context](GesturePoint at) {
        const Colour colour = context.main.Pic.surface.Point(at.x, at.y);
        Session& session = context.session;
        session.PmsRed = std::to_string(Red(colour));
        session.PmsGreen = std::to_string(Green(colour));
        session.PmsBlue = static_cast<std::int16_t>(Blue(colour));
    };
    return {.firstCode = pickTool, .lastCode = pickTool, .follow = follow, .press = press};
}

}  // namespace coinlet
