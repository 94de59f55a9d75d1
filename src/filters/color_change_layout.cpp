#include "filters/color_change_layout.h"

#include "controls/edge.h"
#include "controls/placing.h"
#include "core/canvas_dialog.h"
#include "filters/color_change.h"
#include "filters/dialog_looks.h"

namespace coinlet {

namespace {

constexpr int column = canvasDialogColumn, columnWidth = dialogColumnWidth;

// The boxes stand in two columns about the middle of the dialog's right side.
constexpr int boxWidth = 80, boxHeight = 24, boxPitch = 32, boxesTop = 148;
constexpr int targetLeft = column + 32, resultLeft = column + columnWidth - 32 - boxWidth;
constexpr int boxesBottom = boxesTop + (paletteSize - 1) * boxPitch + boxHeight;

constexpr int patchTop = boxesBottom + 32, patchHeight = 32;

void PlacePalettes(ColorChange& form) {
    PlaceByPixels(form.InfoLabel, column, dialogMargin, columnWidth, 44);
    PlaceNamedField(form.Label5, "Change Colors", form.Combo1, column, 68, columnWidth);
}

void PlaceBoxes(ColorChange& form) {
    const auto head = [](Label& label, const char* caption, int left) {
        label.Alignment = Alignment::Center;
        PlaceText(label, caption, left, boxesTop - dialogTextHeight - 4, boxWidth);
    };
    head(form.Label2, "Target", targetLeft);
    head(form.Label3, "Result", resultLeft);
    int edge = 1;
    for (int i = 0; i < paletteSize; ++i) {
        const int top = boxesTop + i * boxPitch;
        PlaceByPixels(form.picTarget[i], targetLeft, top, boxWidth, boxHeight);
        PlaceByPixels(form.picResult[i], resultLeft, top, boxWidth, boxHeight);
        SetEdge(form.Shape1[edge++], form.picTarget[i]);
        SetEdge(form.Shape1[edge++], form.picResult[i]);
    }
}

void SetLine(LineShape& line, int x1, int y1, int x2, int y2) {
    line.X1 = x1 * twipsPerPixel;
    line.Y1 = y1 * twipsPerPixel;
    line.X2 = x2 * twipsPerPixel;
    line.Y2 = y2 * twipsPerPixel;
    line.BorderColor = bracketColour;
}

/// Joins the two columns from below, and hangs the sliders' colour on them, which goes where one clicks.
void PlaceBracket(ColorChange& form) {
    constexpr int top = boxesBottom + 6, bottom = boxesBottom + 18;
    constexpr int left = targetLeft + boxWidth / 2, right = resultLeft + boxWidth / 2;
    constexpr int middle = (left + right) / 2;
    SetLine(form.Line1[0], left, top, left, bottom);
    SetLine(form.Line1[1], right, top, right, bottom);
    SetLine(form.Line1[2], left, bottom, right, bottom);
    SetLine(form.Line1[3], middle, bottom, middle, patchTop - 4);
}

void PlaceSliders(ColorChange& form) {
    constexpr int slidersTop = patchTop + patchHeight + 16, pitch = 24, labelWidth = 52;
    constexpr int highest = 255;
    form.ColorLabel.Transparent = false;
    form.ColorLabel.Border = true;
    PlaceByPixels(form.ColorLabel, column + (columnWidth - boxWidth) / 2, patchTop, boxWidth, patchHeight);
    for (int i = form.HScroll1.First(); i <= form.HScroll1.Last(); ++i) {
        const int top = slidersTop + i * pitch;
        PlaceByPixels(form.Label6[i], column, top + 2, labelWidth, dialogTextHeight);
        form.HScroll1[i].SetRange(0, highest);
        PlaceByPixels(form.HScroll1[i], column + labelWidth, top, columnWidth - labelWidth, dialogTextHeight);
    }
}

void PlaceButtons(ColorChange& form) {
    constexpr int width = (columnWidth - dialogGap) / 2, height = 24, second = column + columnWidth - width;
    constexpr int upper = 456, lower = 488;
    form.StartKnop.SetCaption("Replace");
    PlaceByPixels(form.StartKnop, column, upper, width, height);
    form.ResetKnop.SetCaption("Back to Orginal");
    PlaceByPixels(form.ResetKnop, second, upper, width, height);
    PlaceWaysOut(form.ExportKnop, form.CancelKnop, column, lower, columnWidth, height);
}

}  // namespace

void LayOutColorChange(ColorChange& form) {
    SetTitleAndSize(form, "Replace Colors", dialogWidth, dialogHeight);
    PlaceCanvasCopy(form.Pic, form.Shape1[0]);
    PlaceByPixels(form.BackPic, 0, 0, canvasSide, canvasSide);
    form.BackPic.Visible = false;
    PlacePalettes(form);
    PlaceBoxes(form);
    PlaceBracket(form);
    PlaceSliders(form);
    PlaceButtons(form);
}

}  // namespace coinlet
