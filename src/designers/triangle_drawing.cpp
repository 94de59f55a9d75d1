#include "designers/triangle_drawing.h"

#include "controls/event.h"
#include "controls/form.h"
#include "surface/surface.h"

namespace coinlet {

namespace {

using Points = DraggedTriangle::Points;
using Outline = DraggedTriangle::Outline;

// The first point stays where the press was. It is the corner with the right angle, or the left end of the
// base; the pointer sets how far the third one lies beside it, and how far the second one above or below.
void Follow(Points& points, PlanePoint pointer) {
    points[2].x = pointer.x;
    points[1].y = pointer.y;
}

Outline RightAngled(const Points& points) {
    const auto& [a, b, c] = points;
    return {{{b, c}, {c, a}, {a, b}}};
}

PlanePoint Apex(const Points& points) {
    const auto& [left, top, right] = points;
    return {(left.x + right.x) / 2, top.y};
}

Outline Isosceles(const Points& points) {
    const PlanePoint left = points[0], right = points[2], apex = Apex(points);
    return {{{apex, right}, {right, left}, {left, apex}}};
}

Outline IsoscelesFromApex(const Points& points) {
    const PlanePoint left = points[0], right = points[2], apex = Apex(points);
    return {{{apex, right}, {apex, left}, {left, right}}};
}

}  // namespace

TriangleDrawing::TriangleDrawing(Form& form, Surface& picture)
    : Frame2(form, "Frame2"),
      Check1(Frame2, "Check1", 0, 2),
      picture_(&picture),
      RightTriangle{RightAngled, RightAngled},
      IsoTriangle{Isosceles, IsoscelesFromApex} {
    Check1.Bind(&CheckBox::Click, [this](int index) { Check1_Click(index); });
}

void TriangleDrawing::Check1_Click(int index) {
    if (Check1[index].Value()) Check1[1 - index].SetValue(false);
}

DraggedTriangle* TriangleDrawing::Current() {
    if (Check1[0].Value()) return &RightTriangle;
    return Check1[1].Value() ? &IsoTriangle : nullptr;
}

void TriangleDrawing::Draw(const Outline& outline, int drawMode) {
    picture_->DrawMode = drawMode;
    for (const auto& [from, to] : outline)
        picture_->Line(from.x, from.y, to.x, to.y);
}

void TriangleDrawing::Press(int, float x, float y) {
    DraggedTriangle* const triangle = Current();
    if (!triangle) return;
    Draw(triangle->outline(triangle->points), copyPen);
    triangle->points.fill({x, y});
    triangle->shown = false;
}

void TriangleDrawing::Move(int button, float x, float y) {
    DraggedTriangle* const triangle = Current();
    if (!triangle || button != leftButton) return;
    if (triangle->shown) Draw(triangle->preview(triangle->points), invertPen);
    Follow(triangle->points, {x, y});
    Draw(triangle->preview(triangle->points), invertPen);
    triangle->shown = true;
}

void TriangleDrawing::Release() {
    DraggedTriangle* const triangle = Current();
    if (!triangle) return;
    Draw(triangle->outline(triangle->points), copyPen);
    triangle->shown = false;  // The triangle covers it.
}

void TriangleDrawing::PictureWiped() {
    RightTriangle.shown = IsoTriangle.shown = false;
}

}  // namespace coinlet
