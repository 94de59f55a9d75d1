#include "store/tekst_form.h"

#include "controls/house_colours.h"
#include "controls/placing.h"
#include "core/context.h"
#include "core/dialog.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/text_keys.h"
#include "store/text_box_rows.h"

#include <string>
#include <vector>

namespace coinlet {

TekstForm::TekstForm(Context& context) : Form(context.services.ForForms(), "TekstForm"), context_(context) {
    OkKnop.Click = [this] { OkKnop_Click(); };
    CancelKnop.Click = [this] { CloseDialog(context_, *this); };
    LayOut();
}

void TekstForm::LayOut() {
    Caption = "Coinlet Info Text";
    Width = 380 * twipsPerPixel;
    Height = 284 * twipsPerPixel;
    PlaceByPixels(Image1, 12, 12, 32, 32);
    DrawIcon();
    PlaceByPixels(Label2, 56, 12, 312, 40);
    Label1.Transparent = false;
    Label1.BackColor = fieldColour;
    PlaceByPixels(Label1, 12, 60, 356, 176);
    Text1.MultiLine = true;
    Text1.VerticalScroll = true;
    Text1.FontName = "Arial";
    Text1.FontSize = 8.25F;
    PlaceByPixels(Text1, 20, 68, 340, 160);
    OkKnop.SetCaption("Save");
    PlaceByPixels(OkKnop, 200, 248, 80, 24);
    CancelKnop.SetCaption("Cancel");
    PlaceByPixels(CancelKnop, 288, 248, 80, 24);
}

/// A sheet of paper with a heading and lines of text.
void TekstForm::DrawIcon() {
    constexpr Colour outline = RGB(40, 40, 60), accent = accentColour, text = RGB(110, 110, 130);
    Surface& icon = Image1.surface;
    icon.SetBackColor(BackColor);
    icon.Line(5, 1, 26, 30, white, Box::Filled);
    icon.Line(6, 2, 25, 8, accent, Box::Filled);
    icon.Line(5, 1, 26, 30, outline, Box::Outline);
    icon.Line(5, 9, 26, 9, outline);
    for (const int row : {13, 17, 21, 25})
        icon.Line(9, row, row == 25 ? 18 : 23, row, text);
}

void TekstForm::Form_Load() {
    Label2.Caption = LookupInfoText(context_, key::infoTextHelp);
    const ListBox& rows = context_.main.List2;
    if (rows.ListCount() == 0) {
        Text1.SetText(LookupInfoText(context_, key::infoTextPrompt));
        Text1.SelectText();
    } else {
        std::string text;
        for (int i = 0; i < rows.ListCount(); ++i)
            text += rows.List(i) + "\r\n";
        Text1.SetText(text);
    }
    Text1.SetFocus();
}

void TekstForm::OkKnop_Click() {
    ListBox& list = context_.main.List2;
    list.Clear();
    std::vector<std::string> rows;
    const int last = GetTextBoxLines(Text1, rows);
    for (int i = 0; i <= last; ++i)
        list.AddItem(rows[static_cast<std::size_t>(i)]);
    CloseDialog(context_, *this);
}

}  // namespace coinlet
