// Points, lines, boxes and circles of a surface: from scale units to pixels, and to the pen that fits.

#include "base/numbers.h"
#include "surface/ellipse.h"
#include "surface/line.h"
#include "surface/surface.h"

#include <algorithm>
#include <cmath>

namespace coinlet {

namespace {

int PenWidth(const Surface& surface) {
    return std::clamp(surface.DrawWidth, 1, lineReach);
}

bool IsDotted(const Surface& surface) {
    return surface.DrawStyle == dottedLine && PenWidth(surface) == 1;
}

Ink InkOf(const Surface& surface, Colour colour) {
    return {ToPixel(colour), surface.DrawMode == invertPen};
}

std::optional<Ink> FillOf(const Surface& surface) {
    if (surface.FillStyle != solidFill) return {};
    return InkOf(surface, surface.FillColor);
}

int Rounded(double value, int reach) {
    return RoundHalfEven(std::clamp<double>(value, -reach, reach));
}

/// The cursor has single precision. A NaN would spoil all that starts from the cursor later on, so it leaves
/// it where it is.
void MoveCursor(Surface& surface, double x, double y) {
    if (std::isnan(x) || std::isnan(y)) return;
    surface.CurrentX = Single(x);
    surface.CurrentY = Single(y);
}

/// Calls `draw` with the bitmap if a figure with these bounds can be seen on it at all.
template <class Draw>
void DrawWithin(Surface& surface, const PixelRect& bounds, const Draw& draw) {
    const PixelRect area = Intersection(bounds, {0, 0, surface.PixelWidth(), surface.PixelHeight()});
    if (!area.Empty()) draw(surface.Write(area));
}

void DrawLine(Surface& surface, const PixelLine& line, const Ink& ink) {
    const int penWidth = PenWidth(surface);
    DrawWithin(surface, PenBounds(line.from, line.to, penWidth), [&](Bitmap& bitmap) {
        if (penWidth > 1) {
            DrawWideLine(bitmap, line.from, line.to, penWidth, ink);
        } else {
            DrawThinLine(bitmap, line.from, line.to, ink,
                         IsDotted(surface) ? std::optional<std::int64_t>(0) : std::nullopt);
        }
    });
}

/// The box of pixels that an ellipse fills. Its four edges are rounded, not its centre and its semi-axes: one
/// that is drawn into a box of even size then ends at the edges of the box. Nothing if an edge is NaN.
std::optional<PixelRect> EllipsePath(double x, double y, double semiAxisX, double semiAxisY) {
    const double left = x - semiAxisX, top = y - semiAxisY, right = x + semiAxisX, bottom = y + semiAxisY;
    if (std::isnan(left) || std::isnan(top) || std::isnan(right) || std::isnan(bottom)) return {};
    return PixelRect{Rounded(left, ellipseReach), Rounded(top, ellipseReach),
                     Rounded(right, ellipseReach) + 1, Rounded(bottom, ellipseReach) + 1};
}

void DrawBox(Surface& surface, PixelPoint first, PixelPoint opposite, const Ink& ink, Box kind) {
    const PixelRect path = PenBounds(first, opposite, 1);
    if (kind == Box::Filled) {
        DrawWithin(surface, path, [&](Bitmap& bitmap) { FillRoundedBox(bitmap, {path}, ink); });
        return;
    }
    const RoundedBox outside = BoxOutside(path, 0, 0, PenWidth(surface));
    DrawWithin(surface, outside.edges, [&](Bitmap& bitmap) {
        const auto fill = FillOf(surface);
        if (!IsDotted(surface)) {
            DrawRing(bitmap, outside, PenWidth(surface), ink, fill);
            return;
        }
        DrawDottedBox(bitmap, first, opposite, ink);
        const RoundedBox inside{{path.left + 1, path.top + 1, path.right - 1, path.bottom - 1}};
        if (fill) FillRoundedBox(bitmap, inside, *fill);
    });
}

}  // namespace

void Surface::PSet(double x, double y, std::optional<Colour> colour) {
    MoveCursor(*this, x, y);
    const double column = PixelX(x), row = PixelY(y);
    if (std::isnan(column) || std::isnan(row)) return;
    const int left = Rounded(column, lineReach), top = Rounded(row, lineReach);
    const RoundedBox dot = EllipseOutside({left, top, left + 1, top + 1}, PenWidth(*this));
    DrawWithin(*this, dot.edges, [&](Bitmap& bitmap) {
        FillRoundedBox(bitmap, dot, InkOf(*this, colour.value_or(ForeColor)));
    });
}

void Surface::Line(double x1, double y1, double x2, double y2, std::optional<Colour> colour, Box box) {
    MoveCursor(*this, x2, y2);
    const PlaneLine line{PixelX(x1), PixelY(y1), PixelX(x2), PixelY(y2)};
    const Ink ink = InkOf(*this, colour.value_or(ForeColor));
    if (box == Box::None) {
        if (const auto pixels = WithinReach(line)) DrawLine(*this, *pixels, ink);
        return;
    }
    if (std::isnan(line.x1) || std::isnan(line.y1) || std::isnan(line.x2) || std::isnan(line.y2)) return;
    const auto corner = [](double x, double y) {
        return PixelPoint{Rounded(x, lineReach), Rounded(y, lineReach)};
    };
    DrawBox(*this, corner(line.x1, line.y1), corner(line.x2, line.y2), ink, box);
}

void Surface::LineTo(double x2, double y2, std::optional<Colour> colour, Box box) {
    Line(CurrentX, CurrentY, x2, y2, colour, box);
}

void Surface::Circle(double x, double y, double radius, std::optional<Colour> colour,
                     std::optional<ArcAngles> arc, double aspect) {
    MoveCursor(*this, x, y);
    const double column = PixelX(x), row = PixelY(y);
    const double semiAxisX = std::abs(PixelLengthX(aspect > 1 ? radius / aspect : radius));
    const double semiAxisY = std::abs(PixelLengthY(aspect < 1 ? radius * aspect : radius));
    if (radius < 0 || !(aspect > 0)) return;
    const std::optional<Arc> part = arc ? Arc::Between(*arc) : std::nullopt;
    if (arc && !part) return;
    const std::optional<PixelRect> path = EllipsePath(column, row, semiAxisX, semiAxisY);
    if (!path) return;

    const int penWidth = PenWidth(*this);
    const RoundedBox outside = EllipseOutside(*path, penWidth);
    const Ink ink = InkOf(*this, colour.value_or(ForeColor));
    DrawWithin(*this, outside.edges, [&](Bitmap& bitmap) {
        if (part && !part->IsWholeTurn()) {
            DrawRingPart(bitmap, outside, penWidth, ink, Rounded(column, ellipseReach),
                         Rounded(row, ellipseReach), *part);
        } else {
            DrawRing(bitmap, outside, penWidth, ink, FillOf(*this));
        }
    });
}

}  // namespace coinlet
