#include "store/tekst_form_layout.h"

#include "controls/house_colours.h"
#include "controls/placing.h"
#include "core/dialog_layout.h"
#include "store/tekst_form.h"

namespace coinlet {

namespace {

/// A sheet of paper with a heading and lines of text.
void DrawIcon(TekstForm& form) {
    constexpr Colour outline = RGB(40, 40, 60), accent = accentColour, text = RGB(110, 110, 130);
    Surface& icon = form.Image1.surface;
    icon.SetBackColor(form.BackColor);
    icon.Line(5, 1, 26, 30, white, Box::Filled);
    icon.Line(6, 2, 25, 8, accent, Box::Filled);
    icon.Line(5, 1, 26, 30, outline, Box::Outline);
    icon.Line(5, 9, 26, 9, outline);
    for (const int row : {13, 17, 21, 25})
        icon.Line(9, row, row == 25 ? 18 : 23, row, text);
}

}  // namespace

void LayOutTekstForm(TekstForm& form) {
    SetTitleAndSize(form, "Coinlet Info Text", 380, 284);
    PlaceByPixels(form.Image1, 12, 12, 32, 32);
    DrawIcon(form);
    PlaceByPixels(form.Label2, 56, 12, 312, 40);
    form.Label1.Transparent = false;
    form.Label1.BackColor = fieldColour;
    PlaceByPixels(form.Label1, 12, 60, 356, 176);
    form.Text1.MultiLine = true;
    form.Text1.VerticalScroll = true;
    form.Text1.FontName = "Arial";
    form.Text1.FontSize = 8.25F;
    PlaceByPixels(form.Text1, 20, 68, 340, 160);
    form.OkKnop.SetCaption("Save");
    PlaceByPixels(form.OkKnop, 200, 248, 80, 24);
    form.CancelKnop.SetCaption("Cancel");
    PlaceByPixels(form.CancelKnop, 288, 248, 80, 24);
}

}  // namespace coinlet
