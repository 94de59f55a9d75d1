#include "store/afdrukken_layout.h"

#include "controls/placing.h"
#include "core/dialog_layout.h"
#include "store/afdrukken.h"

#include <array>
#include <cstddef>

namespace coinlet {

namespace {

constexpr std::array jobCaptions{"Print Current Design", "Print All Designs", "Print All Cliparts"};

}  // namespace

void LayOutAfdrukken(Afdrukken& form) {
    constexpr int margin = dialogMargin, previewSide = 140, column = 168, optionPitch = 24;
    form.Width = 360 * twipsPerPixel;
    form.Height = 246 * twipsPerPixel;
    form.Label2.Border = true;
    PlaceByPixels(form.Label2, margin, margin, previewSide + 4, previewSide + 4);
    PlaceByPixels(form.Picture1, margin + 2, margin + 2, previewSide, previewSide);
    for (int i = form.Option1.First(); i <= form.Option1.Last(); ++i) {
        form.Option1[i].Caption = jobCaptions.at(static_cast<std::size_t>(i));
        PlaceByPixels(form.Option1[i], column, margin + i * optionPitch, 180, 20);
    }
    form.Label5.Caption = "Copy's";
    PlaceByPixels(form.Label5, column, 104, 48, 16);
    PlaceByPixels(form.Combo1, column + 52, 100, 56, 22);
    form.Check1.Caption = "Print including info text";
    PlaceByPixels(form.Check1, column, 134, 180, 20);
    form.Label1.Caption = "Printer Choice";
    PlaceByPixels(form.Label1, margin, 166, 144, 16);
    PlaceByPixels(form.Combo2, margin, 184, 336, 22);
    for (ComboBox* combo : {&form.Combo1, &form.Combo2}) {
        combo->ForeColor = black;
        combo->BackColor = RGB(240, 210, 210);
    }
    form.PrintKnop.SetCaption("Print");
    PlaceByPixels(form.PrintKnop, 180, 214, 80, 24);
    form.CancelKnop.SetCaption("Cancel");
    PlaceByPixels(form.CancelKnop, 268, 214, 80, 24);
    form.File1.Visible = false;
    form.Picture2.Visible = false;
    form.Picture2.surface.AutoSize = true;
}

}  // namespace coinlet
