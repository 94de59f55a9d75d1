#include "designers/curve_drawing.h"

#include "base/numbers.h"
#include "controls/form.h"
#include "controls/platform.h"
#include "surface/surface.h"

#include <cmath>
#include <string>
#include <utility>

namespace coinlet {

namespace {

constexpr Colour red = RGB(255, 0, 0);
/// The parameter of the curve grows by this. The sum of so many steps misses 1 by more than it should, so
/// that the last sample is at about 0.99.
constexpr double curveStep = 0.01;

}  // namespace

CurveDrawing::CurveDrawing(Form& form, Surface& picture, Surface& baked, std::function<void()> wiped)
    : Frame4(form, "Frame4"),
      Option2(Frame4, "Option2"),
      Option3(Frame4, "Option3"),
      Check4(Frame4, "Check4"),
      Label8(Frame4, "Label8"),
      Label9(Frame4, "Label9"),
      Label10(Frame4, "Label10"),
      DrawKnop(Frame4, "DrawKnop"),
      Check2(Frame4, "Check2"),
      Check3(Frame4, "Check3"),
      Check5(Frame4, "Check5"),
      Check6(Frame4, "Check6"),
      Check7(Frame4, "Check7"),
      form_(&form),
      picture_(&picture),
      baked_(&baked),
      wiped_(std::move(wiped)),
      sampler_(curveStep) {
    Option2.Click = [this] { Style_Click(); };
    Option3.Click = [this] { Style_Click(); };
    Check4.Click = [this] { Style_Click(); };
    DrawKnop.Click = [this] { DrawKnop_Click(); };
}

void CurveDrawing::Press(int button, float x, float y) {
    const double column = std::floor(x), row = std::floor(y);
    const int hit = points_.FindControlPoint(column, row);
    if (button == leftButton && hit > -1) {
        Dragging = true;
        DragIndex = hit;
        const std::string number = std::to_string(hit + 1);
        Label8.Caption = "Moving Point:  " + number;
        Label9.Caption = "Selected Point:  " + number;
    } else if (TakesPoints()) {
        AddPoint(column, row);
    }
}

void CurveDrawing::AddPoint(double x, double y) {
    if (const auto error = points_.AddControlPoint(x, y)) {
        form_->GetPlatform().ShowMessage(
            {.prompt = "(" + std::to_string(*error) + ") Cannot Add Points (Unclick Do Not Add Points)",
             .icon = MessageIcon::Warning});
        return;
    }
    const int count = points_.PointCount();
    Label10.Caption = "Total Points : " + std::to_string(count);
    // The first point is but marked, on whatever the picture shows and whatever the switches say, which are
    // for drawing anew. From the second one on there is a line.
    if (count == 1) {
        CirclePoint(count);
        NumberPoint(count);
    } else {
        YenidenCIZ();
    }
}

void CurveDrawing::Move(int, float x, float y) {
    form_->MousePointer = points_.FindControlPoint(x, y) > -1 ? crossPointer : defaultPointer;
    if (!Dragging) return;
    points_.MoveControlPoint(DragIndex, std::floor(x), std::floor(y));
    YenidenCIZ();
}

void CurveDrawing::Release() {
    if (!std::exchange(Dragging, false)) return;
    YenidenCIZ();
    Label8.Caption = TakesPoints() ? "Control Point Information" : "No Control Points can be added..";
}

/// A thicker pen draws the curve alone: lines from point to point would hide it.
void CurveDrawing::PenWidthChanged(int width) {
    constexpr int thick = 2;
    picture_->DrawWidth = width;
    if (width >= thick && Check4.Enabled()) Check4.SetValue(true);
    YenidenCIZ();
}

/// Without points there is nothing to draw anew, and what other modes drew may stay.
void CurveDrawing::Style_Click() {
    if (points_.PointCount() > 0) YenidenCIZ();
}

void CurveDrawing::YenidenCIZ() {
    picture_->Cls();
    wiped_();
    if (ShowsPoints()) {
        for (int number = 1; number <= points_.PointCount(); ++number) {
            if (!Check2.Value()) CirclePoint(number);
            if (!Check3.Value()) NumberPoint(number);
        }
    }
    picture_->DrawStyle = IsCurve() ? dottedLine : solidLine;
    if (ShowsJoiningLines()) DrawJoiningLines();
    picture_->DrawStyle = solidLine;
    DrawBezier();
}

void CurveDrawing::CirclePoint(int number) {
    constexpr double markRadius = 2;
    const auto point = static_cast<std::size_t>(number - 1);
    picture_->Circle(points_.PointX()[point], points_.PointY()[point], markRadius, red);
}

/// To the lower right of the point: its circle left the cursor in its middle.
void CurveDrawing::NumberPoint(int number) {
    picture_->Print(std::to_string(number));
}

void CurveDrawing::DrawJoiningLines() {
    const auto x = points_.PointX(), y = points_.PointY();
    for (std::size_t i = 0; i + 1 < x.size(); ++i)
        picture_->Line(x[i], y[i], x[i + 1], y[i + 1], IsStraight() ? CurveColour : black);
}

/// The curve ends a little before its last point. The rest is a red line from wherever the cursor is: also
/// without a curve, where it comes from the last line, or from behind the last number.
///
/// A sample is reduced to single precision, which the cursor has: each piece then begins on the pixel that
/// the one before ended at. One that is hardly less than a half would leave a hole between them.
void CurveDrawing::DrawBezier() {
    const int degree = points_.PointCount() - 1;
    if (degree < 1) return;
    const auto x = points_.PointX(), y = points_.PointY();
    if (ShowsCurve()) {
        picture_->PSet(x.front(), y.front(), black);
        for (const CurvePoint& sample : sampler_.Sample(x, y))
            picture_->LineTo(Single(sample.x), Single(sample.y), CurveColour);
    }
    picture_->LineTo(x.back(), y.back(), red);
}

void CurveDrawing::DrawKnop_Click() {
    CheckBox& onlyTheChosen = IsCurve() ? Check6 : Check7;
    onlyTheChosen.SetValue(true);
    YenidenCIZ();
    baked_->SetPicture(picture_->Image());
    points_.Clear();
    Check6.SetValue(false);
    Check7.SetValue(false);
    picture_->Cls();
    picture_->SetPicture(baked_->Image());
}

}  // namespace coinlet
