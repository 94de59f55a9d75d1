#pragma once

#include "controls/check_box.h"
#include "controls/label.h"
#include "controls/vista_button.h"
#include "designers/bezier.h"
#include "designers/control_points.h"
#include "designers/drawing_mode.h"

#include <functional>

namespace coinlet {

/// A curve, or a line of straight pieces, through points that the user sets and drags. It is drawn anew on
/// the background of the picture with each change, and so takes with it what other modes have drawn there
/// since that background was set; painting it makes it part of the background.
class CurveDrawing : public DrawingMode {
public:
    /// `baked` keeps the picture that was painted last. `wiped` is called whenever the picture goes back to
    /// its background.
    CurveDrawing(Form& form, Surface& picture, Surface& baked, std::function<void()> wiped);

    Frame Frame4;
    OptionButton Option2;  ///< A Bezier curve whose degree is one less than the number of points.
    OptionButton Option3;  ///< Straight pieces.
    CheckBox Check4;       ///< No lines from point to point.
    Label Label8;          ///< The point that moves.
    Label Label9;          ///< The point that moves or moved last.
    Label Label10;         ///< How many points there are.
    VistaButton DrawKnop;
    // Switches that the user doesn't see.
    CheckBox Check2;  ///< No circles at the points.
    CheckBox Check3;  ///< No numbers at the points.
    CheckBox Check5;  ///< No more points.
    CheckBox Check6;  ///< While a curve is painted: nothing but it.
    CheckBox Check7;  ///< While a line is painted: nothing but it.

    Frame& Panel() override { return Frame4; }
    void Press(int button, float x, float y) override;
    void Move(int button, float x, float y) override;
    void Release() override;
    void PenWidthChanged(int width) override;

private:
    void DrawKnop_Click();
    void Style_Click();

    void AddPoint(double x, double y);
    void YenidenCIZ();
    // Points count from 1, as the user sees them.
    void CirclePoint(int number);
    void NumberPoint(int number);
    void DrawJoiningLines();
    void DrawBezier();
    bool IsCurve() const { return Option2.Value(); }
    bool IsStraight() const { return Option3.Value(); }
    bool ShowsCurve() const { return IsCurve() && !Check7.Value(); }
    bool ShowsPoints() const { return !Check6.Value() && !Check7.Value(); }
    bool ShowsJoiningLines() const { return !Check6.Value() && !Check4.Value(); }
    bool TakesPoints() const { return !Check5.Value(); }

    Form* form_;
    Surface* picture_;
    Surface* baked_;
    std::function<void()> wiped_;
    ControlPoints points_;
    bool Dragging = false;
    int DragIndex = 0;
    Colour CurveColour = black;
    BezierSampler sampler_;
};

}  // namespace coinlet
