#include "designers/polygon_form.h"

#include "base/numbers.h"
#include "core/context.h"
#include "core/dialog.h"
#include "core/floating_image.h"
#include "designers/polygon_figure.h"
#include "designers/polygon_form_layout.h"

#include <cstdint>

namespace coinlet {

namespace {

constexpr double stepsOfDiameter = 10;

std::string SingleText(double value) {
    return FormatNumber(Single(value));
}

}  // namespace

PolygonForm::PolygonForm(Context& context)
    : Form(context.services.ForForms(), "PolygonForm"), context_(context) {
    LayOutPolygonForm(*this);
    vsbNumberofSides.Change = [this] { vsbNumberofSides_Change(); };
    vsbDiameter.Change = [this] { vsbDiameter_Change(); };
    hsbRotate.Change = [this] { hsbRotate_Change(); };
    hsbRotate.Scroll = [this] { hsbRotate_Change(); };
    chkCircle.Click = [this] { Draw(); };
    HScroll1.Change = [this] { HScroll1_Change(); };
    HScroll1.Scroll = [this] { HScroll1_Change(); };
    Check1.Click = [this] { HScroll1_Change(); };
    Combo1.Click = [this] { HScroll1_Change(); };
    txtNumberofSides.KeyPress = [this](int character) {
        if (character == keyReturn) Draw();
    };
    txtDiameter.KeyPress = [this](int character) {
        if (character == keyReturn) txtDiameter_Enter();
    };
    ExportKnop.Click = [this] { ExportAsFloatingImage(context_, *this, Picture1.surface.Image()); };
    CancelKnop.Click = [this] { CloseDialog(context_, *this); };
}

void PolygonForm::Form_Load() {
    vsbNumberofSides.SetFocus();
    Draw();
}

std::optional<int> PolygonForm::Sides() const {
    double number = 0;
    if (!ParseNumber(txtNumberofSides.Text(), &number)) return {};
    const int sides = RoundHalfEven(number);
    if (sides < fewestSides || sides > mostSides) return {};
    return sides;
}

double PolygonForm::Diameter() const {
    double diameter = 0;
    return ParseNumber(txtDiameter.Text(), &diameter) ? diameter : 0;
}

// The turned polygon is drawn with its new number of faces before the rotation goes back to 0, and that is
// not seen until the next drawing.
void PolygonForm::vsbNumberofSides_Change() {
    txtNumberofSides.SetText(std::to_string(vsbNumberofSides.Value()));
    Draw();
    rotationReset_ = true;
    hsbRotate.SetValue(0);
    rotationReset_ = false;
}

void PolygonForm::vsbDiameter_Change() {
    txtDiameter.SetText(FormatNumber(vsbDiameter.Value() / stepsOfDiameter));
    ShowRadius();
    Draw();
}

void PolygonForm::txtDiameter_Enter() {
    ShowRadius();
    Draw();
}

void PolygonForm::ShowRadius() {
    txtRadius.SetText(FormatNumber(Diameter() / 2));
}

void PolygonForm::hsbRotate_Change() {
    // A whole turn is none. The assignment comes back here.
    if (hsbRotate.Value() == wholeTurn) return hsbRotate.SetValue(0);
    txtInitialSide.SetText(WholeDegrees(hsbRotate.Value()));
    if (!rotationReset_) Draw();
}

void PolygonForm::HScroll1_Change() {
    const double side = twipsPerPixel * pixelsAStep * HScroll1.Value();
    Picture1.SetWidth(side);
    Picture1.SetHeight(Check1.Value() ? side / 2 : side);
    Picture1.surface.SetPicture({});
    Draw();
    Label14.Caption = std::to_string(std::int64_t{HScroll1.Value()} - smallestStep);
}

void PolygonForm::Draw() {
    const std::optional<int> sides = Sides();
    if (!sides) return;
    const double radius = Diameter() / 2;
    const PolygonFigures figures = FiguresOf(*sides, radius);
    txtArcLength.SetText(SingleText(figures.arcLength));
    txtCircumference.SetText(SingleText(figures.circumference));
    txtLengthofSide.SetText(SingleText(figures.sideLength));
    txtPerimeter.SetText(SingleText(figures.perimeter));
    txtDegrees.SetText(DegreesWithDecimals(figures.cornerAngle));
    Picture1.surface.DrawWidth = RoundHalfEven(Val(Combo1.Text()));
    DrawPolygonFigure(Picture1.surface, {*sides, hsbRotate.Value(), chkCircle.Value() ? halfTurn : wholeTurn},
                      radius);
}

}  // namespace coinlet
