#include "tools/shape_tools.h"

#include "base/numbers.h"
#include "core/context.h"
#include "core/main_form.h"
#include "core/tool_codes.h"
#include "surface/device.h"
#include "tools/kept_proportions.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <span>
#include <utility>

namespace coinlet {

namespace {

/// A place in the box of a figure, in eighths of its width and height.
struct Spot {
    int x, y;
};
/// A chain of lines.
using Chain = std::span<const Spot>;

constexpr std::array triangle{Spot{0, 8}, Spot{4, 0}, Spot{8, 8}, Spot{0, 8}};
constexpr std::array square{Spot{0, 4}, Spot{4, 0}, Spot{8, 4}, Spot{4, 8}, Spot{0, 4}};
constexpr std::array pentagon{Spot{0, 2}, Spot{4, 0}, Spot{8, 2}, Spot{6, 8}, Spot{2, 8}, Spot{0, 2}};
constexpr std::array hexagon{Spot{0, 2}, Spot{4, 0}, Spot{8, 2}, Spot{8, 6},
                             Spot{4, 8}, Spot{0, 6}, Spot{0, 2}};
constexpr std::array heartTip{Spot{8, 2}, Spot{4, 8}, Spot{0, 2}};
constexpr std::array diamondTip{Spot{8, 4}, Spot{4, 8}, Spot{0, 4}};
constexpr std::array star{Spot{4, 0}, Spot{5, 3}, Spot{8, 4}, Spot{5, 5}, Spot{4, 8},
                          Spot{3, 5}, Spot{0, 4}, Spot{3, 3}, Spot{4, 0}};
constexpr std::array starRow{Spot{0, 4}, Spot{8, 4}};
constexpr std::array starColumn{Spot{4, 0}, Spot{4, 8}};
constexpr std::array starRising{Spot{5, 3}, Spot{3, 5}};
constexpr std::array starFalling{Spot{3, 3}, Spot{5, 5}};
constexpr std::array triangleDown{Spot{0, 2}, Spot{8, 2}, Spot{4, 8}, Spot{0, 2}};
constexpr std::array triangleUp{Spot{0, 6}, Spot{8, 6}, Spot{4, 0}, Spot{0, 6}};
constexpr std::array tree{Spot{4, 0}, Spot{8, 8}, Spot{0, 2}, Spot{8, 2}, Spot{0, 8}, Spot{4, 0}};

/// What the chains of a figure are measured by.
enum class Span {
    Drag,  ///< From the anchor to the release.
    Band,  ///< The rubber band: the tips reach one pixel past the release.
};

struct Outline {
    int code;
    Span span;
    std::array<Chain, 5> chains;
};
constexpr std::array outlines{
    Outline{triangleShape, Span::Drag, {triangle}},
    Outline{squareShape, Span::Drag, {square}},
    Outline{pentagonShape, Span::Drag, {pentagon}},
    Outline{hexagonShape, Span::Drag, {hexagon}},
    Outline{heartShape, Span::Drag, {heartTip}},
    Outline{diamondShape, Span::Drag, {diamondTip}},
    Outline{openStarShape, Span::Band, {star}},
    Outline{starShape, Span::Band, {star, starRow, starColumn, starRising, starFalling}},
    Outline{innerBoxShape, Span::Band, {square}},
    Outline{doubleTriangleShape, Span::Band, {triangleDown, triangleUp}},
    Outline{treeShape, Span::Band, {tree}},
};

/// The ellipses of a figure: where their centres lie, and into how many each direction is divided.
struct Ellipses {
    int code;
    int divisor;
    std::optional<ArcAngles> arc;
    std::span<const Spot> centres;
};
constexpr std::array middle{Spot{4, 4}};
constexpr std::array upperQuarters{Spot{2, 2}, Spot{6, 2}};
constexpr std::array allQuarters{Spot{2, 2}, Spot{6, 2}, Spot{2, 6}, Spot{6, 6}};
/// Not quite a half turn: these arcs stop just short of the axis.
constexpr ArcAngles upperHalf{0, 3.14};
constexpr std::array ellipses{
    Ellipses{ellipseShape, 1, {}, middle},
    Ellipses{heartShape, 2, upperHalf, upperQuarters},
    Ellipses{diamondShape, 1, upperHalf, middle},
    Ellipses{quatroShape, 2, {}, allQuarters},
};

/// Eighths of one direction of a figure's box, as coordinates.
struct Scale {
    float start, eighth, end;

    float At(int eighths) const { return eighths == 8 ? end : start + static_cast<float>(eighths) * eighth; }
};
struct Scales {
    Scale x, y;
};

Scale ScaleOfDrag(float start, float end) {
    return {start, std::trunc(end - start) / 8, end};
}
Scale ScaleOfBand(float start, float size) {
    return {start, size / 8, start + size};
}
Scales DragScales(const ShapeBox& box) {
    return {ScaleOfDrag(box.left, box.right), ScaleOfDrag(box.top, box.bottom)};
}
Scales BandScales(const ShapeBox& box) {
    return {ScaleOfBand(box.left, box.bandWidth), ScaleOfBand(box.top, box.bandHeight)};
}

void DrawChain(Surface& surface, Chain chain, const Scales& scales) {
    for (std::size_t i = 1; i < chain.size(); ++i) {
        const Spot from = chain[i - 1], to = chain[i];
        surface.Line(scales.x.At(from.x), scales.y.At(from.y), scales.x.At(to.x), scales.y.At(to.y), black);
    }
}

void DrawOutline(Surface& surface, int code, const ShapeBox& box) {
    const auto outline = std::ranges::find(outlines, code, &Outline::code);
    if (outline == outlines.end()) return;
    const Scales scales = outline->span == Span::Drag ? DragScales(box) : BandScales(box);
    for (const Chain& chain : outline->chains)
        DrawChain(surface, chain, scales);
}

void DrawEllipses(Surface& surface, int code, const ShapeBox& box) {
    const auto figure = std::ranges::find(ellipses, code, &Ellipses::code);
    if (figure == ellipses.end()) return;
    const float a = (box.right - box.left) / 2, b = (box.bottom - box.top) / 2;
    const float radius = std::max(a, b) / static_cast<float>(figure->divisor), aspect = b / a;
    for (const Spot centre : figure->centres) {
        const float x = box.left + static_cast<float>(centre.x) * a / 4;
        const float y = box.top + static_cast<float>(centre.y) * b / 4;
        surface.Circle(x, y, radius, black, figure->arc, aspect);
    }
}

void DrawRoundedRectangle(Surface& surface, const ShapeBox& box, int cornerSize) {
    // The device draws in the surface's own colour, which other tools leave as they like.
    const Colour before = std::exchange(surface.ForeColor, black);
    RoundRect(surface.hDC(), RoundHalfEven(box.left), RoundHalfEven(box.top), RoundHalfEven(box.right),
              RoundHalfEven(box.bottom), cornerSize, cornerSize);
    surface.ForeColor = before;
}

/// Calls `draw` with the places of the raster's lines along one direction, without those that no pen brings
/// to the surface: a drag may end far outside.
template <class Draw>
void ForRasterLines(double first, double last, int step, const Surface& surface, int size, const Draw& draw) {
    const double margin = surface.DrawWidth + 1;
    const double visible = first < -margin ? step - margin - std::fmod(-margin - first, step) : first;
    const double end = std::min(last, size + margin);
    for (double place = visible; place <= end; place += step)
        draw(place);
}

void DrawRaster(Surface& surface, const ShapeBox& box, int step) {
    if (step < 1) return;
    ForRasterLines(box.left, box.right, step, surface, surface.PixelWidth(),
                   [&](double x) { surface.Line(x, box.top, x, box.bottom, black); });
    ForRasterLines(box.top, box.bottom, step, surface, surface.PixelHeight(),
                   [&](double y) { surface.Line(box.left, y, box.right, y, black); });
}

void DrawInnerBox(Surface& surface, const ShapeBox& box) {
    const Scales scales = BandScales(box);
    surface.Line(scales.x.At(1), scales.y.At(1), scales.x.At(7), scales.y.At(7), black, Box::Outline);
}

}  // namespace

void DrawShape(Surface& surface, int code, const ShapeBox& box, const ShapeMeasures& measures) {
    if (!(box.right > box.left && box.bottom > box.top)) return;
    if (code == rectangleShape) surface.Line(box.left, box.top, box.right, box.bottom, black, Box::Outline);
    if (code == roundedRectangleShape) DrawRoundedRectangle(surface, box, measures.cornerSize);
    if (code == rasterShape) DrawRaster(surface, box, measures.rasterStep);
    if (code == innerBoxShape) DrawInnerBox(surface, box);
    DrawEllipses(surface, code, box);
    DrawOutline(surface, code, box);
}

ToolFamily ShapeTools(Context& context) {
    const auto release = [&context](GesturePoint to) {
        const Session& session = context.session;
        const Shape& band = context.main.Layer;
        const ShapeBox box{session.StartX,
                           session.StartY,
                           to.x,
                           to.y,
                           static_cast<float>(band.Width()),
                           static_cast<float>(band.Height())};
        DrawShape(context.main.Pic.surface, session.ToolCode, box, {session.CornerSize, session.RasterStep});
    };
    // The sides of a raster have no proportion worth keeping.
    const auto withShift = [&session = context.session](GesturePoint anchor, GesturePoint pointer) {
        return session.ToolCode == rasterShape ? pointer : CornerOfSquare(anchor, pointer);
    };
    return {.firstCode = firstShapeTool,
            .lastCode = lastShapeTool,
            .band = Band::Drag,
            .release = release,
            .withShift = withShift,
            .movesChangeDesign = true};
}

}  // namespace coinlet
