#include "libraries/clipart_form_layout.h"

#include "controls/edge.h"
#include "controls/placing.h"
#include "core/dialog.h"
#include "core/stock_pictures.h"
#include "core/tool_codes.h"
#include "libraries/clipart_form.h"

namespace coinlet {

namespace {

// The choice on top, the clipart below with its size beside it, what can be done to it in a column on the
// right. All in pixels.
constexpr int margin = dialogMargin;
constexpr int sheetWidth = 550, sheetHeight = 120;
constexpr int largestWidth = 330, largestHeight = 360, smallestWidth = 110;
constexpr int formWidth = sheetWidth + 2 * margin;
constexpr int hintTop = margin, comboTop = 36, sheetTop = 72;
constexpr int clipartTop = sheetTop + sheetHeight + 16;
constexpr int formHeight = clipartTop + largestHeight + margin;
constexpr int sliderLeft = margin + largestWidth + dialogGap, sliderWidth = 20;
constexpr int column = sliderLeft + sliderWidth + 16, columnWidth = formWidth - margin - column;
constexpr int labelHeight = 16, fieldHeight = 24, buttonHeight = 28;

void PlaceHiddenPictures(ClipartForm& form) {
    form.File1.Visible = false;
    form.BackPic.surface.AutoSize = true;
    form.BackPic.Visible = false;
    form.ExportPic.Move(0, 0, 4950, 6400);
    form.ExportPic.Visible = false;
}

void PlaceLibrary(ClipartForm& form) {
    constexpr int nameWidth = 52, comboWidth = 248, totalWidth = 160;
    PlaceByPixels(form.Label6, margin, hintTop, sheetWidth, labelHeight);
    form.Label4.Caption = "Library";
    PlaceByPixels(form.Label4, margin, comboTop + 5, nameWidth, labelHeight);
    PlaceByPixels(form.Combo1, margin + nameWidth, comboTop, comboWidth, fieldHeight);
    form.Label5.Alignment = Alignment::Right;
    PlaceByPixels(form.Label5, formWidth - margin - totalWidth, comboTop + 5, totalWidth, labelHeight);
    PlaceByPixels(form.Pic, margin, sheetTop, sheetWidth, sheetHeight);
    SetEdge(form.Shape1[0], form.Pic);
}

void PlaceClipart(ClipartForm& form) {
    PlaceByPixels(form.BigPic, margin, clipartTop, largestWidth, largestHeight);
    SetEdge(form.Shape1[1], form.BigPic);
    form.VScroll2.SetRange(smallestWidth, largestWidth);
    form.VScroll2.SetValue(smallestWidth);
    PlaceByPixels(form.VScroll2, sliderLeft, clipartTop, sliderWidth, largestHeight);
    form.Label9.Caption = "Size Clipart (110x120)";
    PlaceByPixels(form.Label9, column, clipartTop, columnWidth, labelHeight);
}

/// A button with the words for what it does beside it, in as many lines as they take.
void PlaceWithLabel(VistaButton& button, Label& label, const char* caption, int lines, int top) {
    constexpr int width = 68;
    const int height = lines * labelHeight;
    PlaceByPixels(button, column, top, width, buttonHeight);
    label.Caption = caption;
    PlaceByPixels(label, column + width + dialogGap, top + (buttonHeight - height) / 2,
                  columnWidth - width - dialogGap, height);
}

void PlaceChanges(ClipartForm& form) {
    constexpr int firstTop = clipartTop + 36, pitch = buttonHeight + dialogGap;
    form.BWKnop.SetCaption("Remove");
    PlaceWithLabel(form.BWKnop, form.Label2, "All colors except Black", 2, firstTop);
    form.HorKnop.SetCaption("");
    form.HorKnop.LoadPictures(3);
    form.HorKnop.SetPicture(ToolIconStrip(flipMenuTool));
    PlaceWithLabel(form.HorKnop, form.Label7, "Mirror", 1, firstTop + pitch);
}

}  // namespace

void LayOutClipartForm(ClipartForm& form) {
    form.Caption = "Cliparts";
    form.Width = formWidth * twipsPerPixel;
    form.Height = formHeight * twipsPerPixel;
    PlaceHiddenPictures(form);
    PlaceLibrary(form);
    PlaceClipart(form);
    PlaceChanges(form);
    PlaceWaysOut(form.ExportKnop, form.CancelKnop, column, formHeight - margin - buttonHeight, columnWidth,
                 buttonHeight);
}

}  // namespace coinlet
