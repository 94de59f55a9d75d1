#include "libraries/clipart_form_layout.h"

#include "base/numbers.h"
#include "controls/edge.h"
#include "controls/placing.h"
#include "core/clipart_library.h"
#include "core/dialog_layout.h"
#include "core/stock_pictures.h"
#include "core/tool_codes.h"
#include "libraries/clipart_form.h"

namespace coinlet {

namespace {

// The choice on top, the clipart below with its size beside it, what can be done to it in a column on the
// right. All in pixels.
constexpr int margin = dialogMargin;
constexpr int sheetWidth = clipartsASheet * thumbnailWidth, sheetHeight = thumbnailHeight;
constexpr int formWidth = sheetWidth + 2 * margin;
constexpr int hintTop = margin, comboTop = 36, sheetTop = 72;
constexpr int clipartTop = sheetTop + sheetHeight + 16;
constexpr int formHeight = clipartTop + clipartHeight + margin;
constexpr int sliderLeft = margin + clipartWidth + dialogGap, sliderWidth = 20;
constexpr int column = sliderLeft + sliderWidth + 16, columnWidth = formWidth - margin - column;
constexpr int buttonHeight = 28;

void PlaceHiddenPictures(ClipartForm& form) {
    form.File1.Visible = false;
    form.BackPic.surface.AutoSize = true;
    form.BackPic.Visible = false;
    // In twips: as wide as a clipart, and higher; what lies below the clipart isn't shown.
    constexpr double exportWidth = clipartWidth * twipsPerPixel, exportHeight = 6400;
    form.ExportPic.Move(0, 0, exportWidth, exportHeight);
    form.ExportPic.Visible = false;
}

void PlaceLibrary(ClipartForm& form) {
    constexpr int nameWidth = 52, comboWidth = 248, totalWidth = 160;
    PlaceByPixels(form.Label6, margin, hintTop, sheetWidth, dialogTextHeight);
    PlaceText(form.Label4, "Library", margin, comboTop + 5, nameWidth);
    PlaceByPixels(form.Combo1, margin + nameWidth, comboTop, comboWidth, dialogFieldHeight);
    form.Label5.Alignment = Alignment::Right;
    PlaceByPixels(form.Label5, formWidth - margin - totalWidth, comboTop + 5, totalWidth, dialogTextHeight);
    PlaceByPixels(form.Pic, margin, sheetTop, sheetWidth, sheetHeight);
    SetEdge(form.Shape1[0], form.Pic);
}

void PlaceClipart(ClipartForm& form) {
    PlaceByPixels(form.BigPic, margin, clipartTop, clipartWidth, clipartHeight);
    SetEdge(form.Shape1[1], form.BigPic);
    form.VScroll2.SetRange(thumbnailWidth, clipartWidth);
    form.VScroll2.SetValue(thumbnailWidth);
    PlaceByPixels(form.VScroll2, sliderLeft, clipartTop, sliderWidth, clipartHeight);
    PlaceText(form.Label9, ClipartSizeText(thumbnailWidth, thumbnailHeight), column, clipartTop, columnWidth);
}

void PlaceChanges(ClipartForm& form) {
    constexpr int firstTop = clipartTop + 36, secondTop = firstTop + buttonHeight + dialogGap, width = 68;
    form.BWKnop.SetCaption("Remove");
    PlaceButtonRow(form.BWKnop, form.Label2, "All colors except Black",
                   {column, firstTop, columnWidth, width, buttonHeight}, 2);
    form.HorKnop.SetCaption("");
    form.HorKnop.LoadPictures(toolIconFrames);
    form.HorKnop.SetPicture(ToolIconStrip(flipMenuTool));
    PlaceButtonRow(form.HorKnop, form.Label7, "Mirror",
                   {column, secondTop, columnWidth, width, buttonHeight});
}

}  // namespace

std::string ClipartSizeText(double width, double height) {
    return "Size Clipart (" + FormatNumber(width) + "x" + FormatNumber(height) + ")";
}

void LayOutClipartForm(ClipartForm& form) {
    SetTitleAndSize(form, "Cliparts", formWidth, formHeight);
    PlaceHiddenPictures(form);
    PlaceLibrary(form);
    PlaceClipart(form);
    PlaceChanges(form);
    PlaceWaysOut(form.ExportKnop, form.CancelKnop, column, formHeight - margin - buttonHeight, columnWidth,
                 buttonHeight);
}

}  // namespace coinlet
