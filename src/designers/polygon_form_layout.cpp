#include "designers/polygon_form_layout.h"

#include "controls/house_colours.h"
#include "controls/number_list.h"
#include "controls/placing.h"
#include "core/dialog_layout.h"
#include "designers/polygon_figure.h"
#include "designers/polygon_form.h"

#include <string>

namespace coinlet {

namespace {

// All in pixels. The drawing on its board on the left, its size below it; what it is made from and the
// figures in two columns on the right, the ways out below them.
constexpr int margin = dialogMargin, gap = dialogGap;
constexpr int board = 2 + largestStep * pixelsAStep + 2, boardFrame = 2;
constexpr int columnPitch = 136, columnWidth = 120;
constexpr int column1 = margin + board + 20, column2 = column1 + columnPitch;
constexpr int columnsWidth = columnPitch + columnWidth;
constexpr int formWidth = column1 + columnsWidth + margin, formHeight = 466;
constexpr int rowPitch = 50;
constexpr int barThickness = 20;
// The groups, from above.
constexpr int shapeTop = margin, rotationTop = 134, figuresTop = 202, penTop = 324;

constexpr Colour boardColour = RGB(200, 200, 168);

/// A field that can be typed into is told from the others by a light ground.
void MakeLight(TextBox& field, Colour colour) {
    field.BackColor = colour;
    field.ForeColor = fieldColour;
}

void PlaceDrawing(PolygonForm& form) {
    form.Label8.Transparent = false;
    form.Label8.Border = true;
    form.Label8.BackColor = boardColour;
    PlaceByPixels(form.Label8, margin, margin, board, board);
    constexpr int corner = margin + boardFrame, side = largestStep * pixelsAStep;
    PlaceByPixels(form.Picture1, corner, corner, side, side);

    constexpr int top = 428, labelWidth = 80, valueWidth = 24;
    constexpr int barLeft = margin + labelWidth + gap, valueLeft = margin + board - valueWidth;
    form.Label13.Caption = "Size Polygon";
    PlaceByPixels(form.Label13, margin, top + 2, labelWidth, dialogTextHeight);
    form.HScroll1.SetRange(smallestStep, largestStep);
    form.HScroll1.SetValue(largestStep);
    form.HScroll1.LargeChange = 2;
    PlaceByPixels(form.HScroll1, barLeft, top, valueLeft - gap - barLeft, barThickness);
    form.Label14.Caption = std::to_string(largestStep - smallestStep);
    form.Label14.Alignment = Alignment::Right;
    PlaceByPixels(form.Label14, valueLeft, top + 2, valueWidth, dialogTextHeight);
}

/// Both bars grow upward: their largest value stands at the top.
void PlaceShape(PolygonForm& form) {
    constexpr int width = columnWidth - barThickness - 4, barOffset = columnWidth - barThickness;
    constexpr int usualSides = 10, leastTenths = 1, mostTenths = 1000, usualTenths = 10;
    PlaceNamedField(form.Label1, "Number of faces", form.txtNumberofSides, column1, shapeTop, width);
    PlaceNamedField(form.Label9, "Degrees Corners", form.txtDegrees, column1, shapeTop + rowPitch, width);
    PlaceNamedField(form.Label6, "Circle diameter", form.txtDiameter, column2, shapeTop, width);
    PlaceNamedField(form.Label7, "Radius", form.txtRadius, column2, shapeTop + rowPitch, width);
    MakeLight(form.txtNumberofSides, RGB(190, 220, 220));
    MakeLight(form.txtDiameter, RGB(190, 230, 190));

    constexpr int barTop = shapeTop + dialogFieldOffset, barLength = rowPitch + dialogFieldHeight;
    PlaceByPixels(form.vsbNumberofSides, column1 + barOffset, barTop, barThickness, barLength);
    PlaceByPixels(form.vsbDiameter, column2 + barOffset, barTop, barThickness, barLength);
    form.vsbNumberofSides.SetRange(mostSides, fewestSides);
    form.vsbNumberofSides.SetValue(usualSides);
    form.vsbDiameter.SetRange(mostTenths, leastTenths);
    form.vsbDiameter.SetValue(usualTenths);
    form.txtNumberofSides.SetText(std::to_string(usualSides));
    form.txtDiameter.SetText("1");
    form.txtRadius.SetText("0.5");
}

void PlaceRotation(PolygonForm& form) {
    constexpr int width = 56, barLeft = column1 + width + gap, top = rotationTop + dialogFieldOffset;
    PlaceNamedField(form.Label11, "Rotation", form.txtInitialSide, column1, rotationTop, width);
    form.hsbRotate.SetRange(0, wholeTurn);
    form.hsbRotate.LargeChange = 15;
    PlaceByPixels(form.hsbRotate, barLeft, top + 2, column1 + columnsWidth - barLeft, barThickness);
    form.txtInitialSide.SetText(WholeDegrees(form.hsbRotate.Value()));
}

void PlaceFigures(PolygonForm& form) {
    constexpr int below = figuresTop + rowPitch;
    PlaceNamedField(form.Label4, "Circumference", form.txtCircumference, column1, figuresTop, columnWidth);
    PlaceNamedField(form.Label5, "Arc length", form.txtArcLength, column2, figuresTop, columnWidth);
    PlaceNamedField(form.Label2, "Length of side", form.txtLengthofSide, column1, below, columnWidth);
    PlaceNamedField(form.Label3, "Perimeter", form.txtPerimeter, column2, below, columnWidth);
}

void PlacePen(PolygonForm& form) {
    constexpr NumberList penWidths{1, 9, 1, 1};
    constexpr int checkHeight = 20, checkPitch = 22;
    FillWithNumbers(form.Combo1, penWidths);
    PlaceNamedField(form.Label15, "Line Width", form.Combo1, column1, penTop, columnWidth);
    form.Check1.Caption = "Flat Circle";
    PlaceByPixels(form.Check1, column2, penTop, columnWidth, checkHeight);
    form.chkCircle.Caption = "Half Circle";
    PlaceByPixels(form.chkCircle, column2, penTop + checkPitch, columnWidth, checkHeight);
}

}  // namespace

void LayOutPolygonForm(PolygonForm& form) {
    SetTitleAndSize(form, "Design Polygons", formWidth, formHeight);
    PlaceDrawing(form);
    PlaceShape(form);
    PlaceRotation(form);
    PlaceFigures(form);
    PlacePen(form);
    constexpr int buttonHeight = 28;
    PlaceWaysOut(form.ExportKnop, form.CancelKnop, column1, formHeight - margin - buttonHeight, columnsWidth,
                 buttonHeight);
    // What is computed can be read and copied, not changed.
    for (TextBox* const field :
         {&form.txtDegrees, &form.txtRadius, &form.txtInitialSide, &form.txtCircumference, &form.txtArcLength,
          &form.txtLengthofSide, &form.txtPerimeter})
        field->Locked = true;
}

}  // namespace coinlet
