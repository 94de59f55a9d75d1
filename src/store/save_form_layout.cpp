#include "store/save_form_layout.h"

#include "controls/placing.h"
#include "store/composed_picture.h"
#include "store/save_form.h"

namespace coinlet {

namespace {

constexpr int nameWidth = 299, nameHeight = 20;  // pixels
constexpr Colour dialogColour = RGB(170, 240, 240);

}  // namespace

void LayOutSaveForm(SaveForm& form) {
    form.Width = 350 * twipsPerPixel;
    form.Height = 100 * twipsPerPixel;
    form.BackColor = dialogColour;
    form.Text1.ForeColor = RGB(240, 240, 160);
    form.Text1.BackColor = RGB(40, 40, 60);
    form.Label2.Caption = "Name";
    PlaceByPixels(form.Label2, 12, 6, nameWidth, 14);
    PlaceByPixels(form.Text1, 12, 22, nameWidth, nameHeight);
    PlaceByPixels(form.Bar, 12, 22, nameWidth, nameHeight);
    form.Bar.surface.SetBackColor(RGB(64, 0, 0));
    form.Bar.Visible = false;
    form.Label1.Alignment = Alignment::Center;
    PlaceByPixels(form.Label1, 312, 25, 36, 14);
    form.Check1.Caption = "Save with PMS colors and Back";
    form.Check1.BackColor = dialogColour;
    PlaceByPixels(form.Check1, 12, 46, nameWidth, 18);
    form.SaveKnop.SetCaption("Save");
    PlaceByPixels(form.SaveKnop, 143, 68, 80, 24);
    form.CancelKnop.SetCaption("Cancel");
    PlaceByPixels(form.CancelKnop, 231, 68, 80, 24);
    for (PictureBox* composing : {&form.Orgineel, &form.BmpPic}) {
        PlaceByPixels(*composing, 0, 0, composedWidth, composedHeight);
        composing->surface.SetBackColor(white);
        composing->Visible = false;
    }
}

}  // namespace coinlet
