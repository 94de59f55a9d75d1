#pragma once

#include "controls/label.h"
#include "controls/scroll_bar.h"
#include "controls/shapes.h"
#include "controls/vista_button.h"
#include "designers/drawing_mode.h"

namespace coinlet {

/// One arc on a picture; the angles are those of `Surface::Circle`.
void DrawSegmentArc(Surface& picture, int X, int Y, int Radius, Colour colour, double Start, double End,
                    double Aspect);

/// Quarters of a circle that floats over the picture, placed by sliders and drawn by four buttons. The
/// pointer does nothing on the picture.
class SegmentDrawing : public DrawingMode {
public:
    SegmentDrawing(Form& form, Surface& picture, Shape& layer, const ScrollBar& penWidth);

    Frame Frame3;
    ControlArray<Label> ScrolLabel;    ///< What the sliders say.
    ControlArray<ScrollBar> HScroll2;  ///< Left, top, and diameter of the circle, in pixels.
    Label Label6;                      ///< What SegmentKnop is for.
    /// Upper left, upper right, lower left, lower right.
    ControlArray<VistaButton> SegmentKnop;

    Frame& Panel() override { return Frame3; }
    void Chosen() override;
    /// The sliders go back to where they were at first.
    void ResetSliders();

private:
    void ShowValue(int index);
    void HScroll2_Change(int index);
    void SegmentKnop_Click(int index);

    Surface* picture_;
    Shape* layer_;
    const ScrollBar* penWidth_;
};

}  // namespace coinlet
