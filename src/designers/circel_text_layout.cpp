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
constexpr int labelHeight = 16, fieldHeight = 24, labelPitch = 18;

void Head(Label& label, const char* caption, int left, int top, int width) {
    label.Caption = caption;
    PlaceByPixels(label, left, top, width, labelHeight);
}

void PlaceText(CircelText& form) {
    Head(form.Label1, "My Text", column, margin, columnWidth);
    PlaceByPixels(form.Text1, column, margin + labelPitch, columnWidth, fieldHeight);
}

void PlaceMeasures(CircelText& form) {
    constexpr int top = 72, combos = 3, between = 9;
    constexpr int width = (columnWidth - (combos - 1) * between) / combos, pitch = width + between;
    struct Measure {
        Label& label;
        ComboBox& combo;
        const char* caption;
    };
    const Measure measures[] = {{form.Label2, form.Combo1, "Distance"},
                                {form.Label3, form.Combo2, "Radius"},
                                {form.Label5, form.Combo3, "Fontsize"}};
    int left = column;
    for (const Measure& measure : measures) {
        Head(measure.label, measure.caption, left, top, width);
        PlaceByPixels(measure.combo, left, top + labelPitch, width, fieldHeight);
        left += pitch;
    }
    constexpr int fontTop = 132;
    Head(form.Label7, "Letterfont", column, fontTop, columnWidth);
    constexpr int comboTop = fontTop + labelPitch, sampleHeight = 28;
    PlaceByPixels(form.Combo4, column, comboTop, columnWidth, fieldHeight);
    PlaceByPixels(form.FontLabel, column, comboTop + fieldHeight + gap / 2, columnWidth, sampleHeight);
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
    Head(form.Label4, "Draw curved text", column, drawTop - labelPitch, columnWidth);
    form.DrawKnop.SetCaption("Draw");
    PlaceByPixels(form.DrawKnop, column, drawTop, columnWidth, height);
    PlaceWaysOut(form.ExportKnop, form.CancelKnop, column, wayOutTop, columnWidth, height);
}

}  // namespace

void LayOutCircelText(CircelText& form) {
    form.Caption = "Curved Text";
    form.Width = formWidth * twipsPerPixel;
    form.Height = formHeight * twipsPerPixel;
    PlaceCanvasCopy(form.Pic, form.Shape1);
    constexpr int below = canvasBottom + gap;
    PlaceByPixels(form.Label8, margin, below, canvasSide, formHeight - margin - below);
    PlaceText(form);
    PlaceMeasures(form);
    PlaceStyle(form);
    PlaceButtons(form);
}

}  // namespace coinlet
