#include "tools/hole_tool.h"

#include "core/context.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/materials.h"
#include "core/plaatjes.h"
#include "core/text_keys.h"
#include "core/tool_codes.h"

#include <algorithm>

namespace coinlet {

namespace {

constexpr int discRadius = 43, ringSide = 100;

// The marker that rides on the pointer: a circle about the disc to come.
constexpr double markerSide = 89;
constexpr float markerOffset = 43;

void WipeDisc(Surface& canvas, GesturePoint centre) {
    // Circle about circle; a pen of one pixel would leave gaps between them.
    constexpr int pen = 2;
    canvas.DrawWidth = pen;
    for (int radius = 1; radius <= discRadius; ++radius)
        canvas.Circle(centre.x, centre.y, radius, white);
}

/// Burns in the ring of the metal; a design of another metal gets none.
void StampRing(Context& context, GesturePoint centre) {
    const auto* metal = std::ranges::find(materials, context.session.MaterialName, &Material::name);
    if (metal == materials.end()) return;
    constexpr double half = ringSide / 2.0;
    const double column = metal->holeColumn;
    context.main.Pic.surface.PaintPicture(context.plaatjes.HolePic.Picture,
                                          {centre.x - half, centre.y - half, ringSide, ringSide},
                                          {column, 0, ringSide, ringSide}, SRCAND);
}

}  // namespace

ToolFamily HoleTool(Context& context) {
    Shape& marker = context.main.HoleShape;
    marker.SetWidth(markerSide);
    marker.SetHeight(markerSide);
    const auto show = [&marker](GesturePoint) { marker.Visible = true; };
    const auto follow = [&marker](GesturePoint pointer) {
        marker.Visible = true;
        marker.Move(pointer.x - markerOffset, pointer.y - markerOffset);
    };
    const auto release = [&context, &marker](GesturePoint centre) {
        Surface& canvas = context.main.Pic.surface;
        Session& session = context.session;
        WipeDisc(canvas, centre);
        StampRing(context, centre);
        canvas.DrawWidth = session.LineWidth;
        session.ToolCode = nothingArmed;
        marker.Visible = false;
        ShowHint(context, key::ready);
    };
    return {.firstCode = holeTool, .lastCode = holeTool, .follow = follow, .press = show, .release = release};
}

}  // namespace coinlet
