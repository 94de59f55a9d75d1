#include "designers/circel_text_layout.h"

#include "controls/placing.h"
#include "core/canvas_dialog.h"
#include "designers/circel_text.h"

namespace coinlet {

namespace {

// All in pixels. The picture and what to do on the left, the settings in a column on the right, the ways out
// below them.
constexpr int formWidth = 776, formHeight = 560;
constexpr int margin = dialogMargin, gap = dialogGap;
constexpr int column = canvasDialogColumn, columnWidth = formWidth - margin - column;
constexpr int canvasBottom = margin + canvasSide;

void PlaceMeasures(CircelText& form) {
    constexpr int measuresTop = 72, between = 9, fontTop = 132;
    PlaceNamedFields({{form.Label2, "Distance", form.Combo1},
                      {form.Label3, "Radius", form.Combo2},
                      {form.Label5, "Fontsize", form.Combo3}},
                     column, measuresTop, columnWidth, between);
    PlaceNamedField(form.Label7, "Letterfont", form.Combo4, column, fontTop, columnWidth);
    constexpr int sampleTop = fontTop + dialogFieldOffset + dialogFieldHeight + gap / 2, sampleHeight = 28;
    PlaceByPixels(form.FontLabel, column, sampleTop, columnWidth, sampleHeight);
}

void PlaceStyle(CircelText& form) {
    constexpr int height = 20, pitch = 26, swatchLeft = 128, swatchWidth = 40;
    struct Style {
        CheckBox& check;
        const char* caption;
    };
    const Style styles[] = {{form.Check1, "Text in Fillcolor"},
                            {form.Check2, "Text on top"},
                            {form.Check3, "Bold"},
                            {form.Check4, "Italic"},
                            {form.Check5, "Open Text"}};
    int top = 220;
    PlaceByPixels(form.Label9, column + swatchLeft, top, swatchWidth, height);
    form.Label9.Transparent = false;
    form.Label9.Border = true;
    form.Label9.Visible = false;
    for (const Style& style : styles) {
        style.check.Caption = style.caption;
        const int width = &style.check == &form.Check1 ? swatchLeft - gap : columnWidth;
        PlaceByPixels(style.check, column, top, width, height);
        top += pitch;
    }
    form.Check2.SetValue(true);
    form.Check3.FontBold = true;
    form.Check4.FontItalic = true;
}

void PlaceButtons(CircelText& form) {
    constexpr int height = 28;
    constexpr int drawTop = canvasBottom - height, wayOutTop = formHeight - margin - height;
    PlaceText(form.Label4, "Draw curved text", column, drawTop - dialogFieldOffset, columnWidth);
    form.DrawKnop.SetCaption("Draw");
    PlaceByPixels(form.DrawKnop, column, drawTop, columnWidth, height);
    PlaceWaysOut(form.ExportKnop, form.CancelKnop, column, wayOutTop, columnWidth, height);
}

}  // namespace

void LayOutCircelText(CircelText& form) {
    SetTitleAndSize(form, "Curved Text", formWidth, formHeight);
    PlaceCanvasCopy(form.Pic, form.Shape1);
    constexpr int below = canvasBottom + gap;
    PlaceByPixels(form.Label8, margin, below, canvasSide, formHeight - margin - below);
    PlaceNamedField(form.Label1, "My Text", form.Text1, column, margin, columnWidth);
    PlaceMeasures(form);
    PlaceStyle(form);
    PlaceButtons(form);
}

}  // namespace coinlet
