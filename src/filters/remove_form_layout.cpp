#include "filters/remove_form_layout.h"

#include "controls/edge.h"
#include "controls/placing.h"
#include "core/canvas_dialog.h"
#include "filters/dialog_looks.h"
#include "filters/remove_form.h"
#include "surface/finer_edition.h"

#include <array>

namespace coinlet {

namespace {

constexpr int column = canvasDialogColumn, columnWidth = dialogColumnWidth;
constexpr int glassInterval = 25;  // milliseconds

/// The swatch on a button shows the colours that the button leaves or, where it takes out a channel, those
/// that it takes.
constexpr int swatchSide = 12;

/// The swatch in its own size, or so many times as large.
Image Swatch(const FontEngine& fonts, Colour upper, Colour lower, int times = 1) {
    const int side = swatchSide * times, edge = times, inner = side - 2 * edge;
    Surface swatch(fonts, side, side);
    swatch.SetBackColor(RGB(60, 60, 60));
    for (int y = 0; y < inner; ++y) {
        const auto mixed = [&](int (*channel)(Colour)) {
            return (channel(upper) * (inner - 1 - y) + channel(lower) * y) / (inner - 1);
        };
        swatch.Line(edge, y + edge, edge + inner - 1, y + edge, RGB(mixed(Red), mixed(Green), mixed(Blue)),
                    Box::Filled);
    }
    return swatch.Image();
}

struct RemovalRow {
    int top;
    const char* caption;
    const char* label;
    Colour upper, lower;  ///< Of the swatch.
};
constexpr RemovalRow blackRow{140, "Black", "Remove all colors except Black", black, black};
constexpr RemovalRow grayRow{168, "Gray", "Remove all colors except Gray", white, black};
constexpr std::array<RemovalRow, 3> channelRows{{
    {204, "Red", "Remove Red Filter", RGB(255, 120, 110), RGB(200, 0, 0)},
    {232, "Green", "Remove Green Filter", RGB(110, 230, 110), RGB(0, 140, 0)},
    {260, "Blue", "Remove Blue Filter", RGB(120, 150, 255), RGB(0, 30, 200)},
}};

void Place(VistaButton& button, Label& label, const RemovalRow& row, const FontEngine& fonts) {
    constexpr int buttonWidth = 76, buttonHeight = 24, fineness = 6;
    button.SetCaption(row.caption);
    button.SetUseMaskColor(false);
    button.SetPictures(1);
    button.SetPicture(Swatch(fonts, row.upper, row.lower));
    // The fonts are the program's: no copy of the picture outlives them.
    HasFinerEdition(button.Picture(),
                    [&fonts, row] { return Swatch(fonts, row.upper, row.lower, fineness); });
    PlaceButtonRow(button, label, row.label, {column, row.top, columnWidth, buttonWidth, buttonHeight});
}

void PlaceReadOut(RemoveForm& form) {
    form.ColorLabel.Transparent = false;
    form.ColorLabel.Border = true;
    PlaceByPixels(form.ColorLabel, column, 64, 40, 40);
    form.Label3.Caption = "Current Color";
    PlaceByPixels(form.Label3, column + 48, 68, 200, 16);
    PlaceByPixels(form.Label4, column + 48, 86, 200, 16);
    form.Check1.Caption = "Remove all colors except Current.";
    PlaceByPixels(form.Check1, column, 112, columnWidth, 20);
}

void PlaceGlass(RemoveForm& form) {
    form.Check2.Caption = "Magnifying Glass";
    PlaceByPixels(form.Check2, column, 296, columnWidth, 20);
    PlaceByPixels(form.Picture1, column, 320, columnWidth, 152);
    form.LoepTimer.Interval = glassInterval;
    form.LoepTimer.Enabled = false;
}

void PlaceWaysOut(RemoveForm& form) {
    constexpr int buttonTop = 488, buttonWidth = 80, buttonHeight = 24, pitch = buttonWidth + dialogGap;
    form.ResetKnop.SetCaption("Reset");
    PlaceByPixels(form.ResetKnop, column, buttonTop, buttonWidth, buttonHeight);
    PlaceWaysOut(form.ExportKnop, form.CancelKnop, column + pitch, buttonTop, columnWidth - pitch,
                 buttonHeight);
}

}  // namespace

void LayOutRemoveForm(RemoveForm& form) {
    SetTitleAndSize(form, "Color Adjustment / Removal", dialogWidth, dialogHeight);
    PlaceCanvasCopy(form.Pic, form.Shape1[0]);
    form.Pic.MousePointer = crossPointer;
    PlaceByPixels(form.Label2, column, dialogMargin, columnWidth, 44);
    PlaceReadOut(form);
    Place(form.BWKnop, form.Label5, blackRow, form.Fonts());
    Place(form.GrayKnop, form.Label6, grayRow, form.Fonts());
    for (int i = form.RGBKnop.First(); i <= form.RGBKnop.Last(); ++i)
        Place(form.RGBKnop[i], form.RGBLabel[i], channelRows.at(static_cast<std::size_t>(i)), form.Fonts());
    PlaceGlass(form);
    PlaceWaysOut(form);
    SetEdge(form.Shape1[1], form.Picture1);
}

}  // namespace coinlet
