#pragma once

#include "controls/label.h"
#include "controls/vista_button.h"
#include "designers/drawing_mode.h"
#include "designers/regular_polygon.h"

#include <array>

namespace coinlet {

/// An arc with one radius to its end, by three clicks of any button: the centre, the start (which is where
/// the pointer was last seen before the click, as it leads the rubber band), and the end. A finished arc
/// holds the gesture until the user clears the points.
class ArcDrawing : public DrawingMode {
public:
    ArcDrawing(Form& form, Surface& picture);

    Frame Frame7;
    VistaButton ClearKnop;
    Label Label18;  ///< What ClearKnop does.

    Frame& Panel() override { return Frame7; }
    void Press(int button, float x, float y) override;
    void Move(int button, float x, float y) override;
    void PictureWiped() override;

    /// Forgets the gesture. A rubber band that is on the picture stays there.
    void ClearArcPoints();

private:
    enum Stage { centrePlaced, radiusPlaced, arcFinished };
    enum Value { radius, startAngle, endAngle };  // angles in radians

    void Finish();
    void PlaceRadius();
    float AngleOfPointer() const;
    void DrawRadius();
    void DrawArc();
    /// Draws in the invert mode what is on the picture as a preview: a second time wipes it.
    void Invert();

    Surface* picture_;
    std::array<bool, 3> ArcStage{};
    std::array<float, 3> ArcValues{};
    PlanePoint ArcCentre, ArcPointer;
    bool lineShown_ = false, arcShown_ = false;  ///< What of the preview is on the picture.
};

}  // namespace coinlet
