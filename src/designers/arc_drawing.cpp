#include "designers/arc_drawing.h"

#include "controls/form.h"
#include "designers/atan3.h"
#include "surface/surface.h"

#include <cmath>

namespace coinlet {

ArcDrawing::ArcDrawing(Form& form, Surface& picture)
    : Frame7(form, "Frame7"), ClearKnop(Frame7, "ClearKnop"), Label18(Frame7, "Label18"), picture_(&picture) {
    ClearKnop.Click = [this] { ClearArcPoints(); };
}

void ArcDrawing::ClearArcPoints() {
    ArcStage = {};
    ArcValues = {};
    PictureWiped();
}

void ArcDrawing::PictureWiped() {
    lineShown_ = arcShown_ = false;
}

// The last step comes first, so that one press is one step.
void ArcDrawing::Press(int, float x, float y) {
    if (!ArcStage[arcFinished] && ArcStage[radiusPlaced]) Finish();
    if (!ArcStage[radiusPlaced] && ArcStage[centrePlaced]) PlaceRadius();
    if (!ArcStage[centrePlaced]) {
        ArcCentre = {x, y};
        ArcStage[centrePlaced] = true;
        picture_->DrawMode = invertPen;
    }
    ArcPointer = {x, y};
}

void ArcDrawing::PlaceRadius() {
    if (lineShown_) Invert();
    PictureWiped();
    ArcValues[radius] = std::hypot(ArcPointer.x - ArcCentre.x, ArcPointer.y - ArcCentre.y);
    ArcValues[startAngle] = AngleOfPointer();
    ArcStage[radiusPlaced] = true;
    picture_->DrawMode = invertPen;
}

void ArcDrawing::Finish() {
    picture_->DrawMode = copyPen;
    DrawRadius();
    ArcValues[endAngle] = AngleOfPointer();
    DrawArc();
    ArcStage[arcFinished] = true;
    PictureWiped();  // The result covers the preview, unless the pen has been made thinner since.
}

void ArcDrawing::Move(int, float x, float y) {
    if (!ArcStage[centrePlaced] || ArcStage[arcFinished]) return;
    Invert();
    ArcPointer = {x, y};
    if (ArcStage[radiusPlaced]) ArcValues[endAngle] = AngleOfPointer();
    lineShown_ = true;
    arcShown_ = ArcStage[radiusPlaced];
    Invert();
}

float ArcDrawing::AngleOfPointer() const {
    return ATan3(ArcPointer.x - ArcCentre.x, ArcPointer.y - ArcCentre.y);
}

void ArcDrawing::DrawRadius() {
    picture_->Line(ArcCentre.x, ArcCentre.y, ArcPointer.x, ArcPointer.y, black);
}

void ArcDrawing::DrawArc() {
    picture_->Circle(ArcCentre.x, ArcCentre.y, ArcValues[radius], black,
                     ArcAngles{ArcValues[startAngle], ArcValues[endAngle]});
}

// Another mode may have left another way of drawing behind, which stays for it.
void ArcDrawing::Invert() {
    const int drawMode = picture_->DrawMode;
    picture_->DrawMode = invertPen;
    if (lineShown_) DrawRadius();
    if (arcShown_) DrawArc();
    picture_->DrawMode = drawMode;
}

}  // namespace coinlet
