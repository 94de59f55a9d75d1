#include "collection/collection_form_layout.h"

#include "collection/collection_form.h"
#include "controls/placing.h"
#include "core/dialog_layout.h"

namespace coinlet {

namespace {

void LayOutHelp(CollectionForm& form) {
    constexpr Colour ground = RGB(0, 40, 0);
    form.Label6.Transparent = false;
    form.Label6.BackColor = ground;
    form.Text4.MultiLine = true;
    form.Text4.Locked = true;
    form.Text4.ForeColor = RGB(230, 230, 200);
    form.Text4.BackColor = ground;
    for (Control* panel : {static_cast<Control*>(&form.Label6), static_cast<Control*>(&form.Text4)})
        panel->Move(form.List1.Left(), form.List1.Top(), form.List1.Width(), form.List1.Height());
    form.Label6.Visible = false;
    form.Text4.Visible = false;
}

}  // namespace

void LayOutCollectionForm(CollectionForm& form) {
    constexpr int pictureWidth = 211, pictureHeight = 148;
    constexpr int margin = dialogMargin, column = 215, columnWidth = 213, buttonHeight = 24;
    SetTitleAndSize(form, "My Collection", 440, 400);
    form.List1.SetSorted(true);
    form.List1.ForeColor = RGB(230, 230, 200);
    form.List1.BackColor = RGB(0, 0, 60);
    PlaceByPixels(form.List1, margin, margin, 192, 340);
    PlaceByPixels(form.Label5, margin, 369, 192, 16);

    form.Label1.Border = true;
    form.Label1.Caption = "\r\n\r\n\r\n\r\n             No Image available!";
    PlaceByPixels(form.Label1, column, margin, columnWidth, pictureHeight + 2);
    PlaceByPixels(form.Image1, column + 1, margin + 1, pictureWidth, pictureHeight);
    form.Image1.Visible = false;
    form.BackPic.Visible = false;
    form.BackPic.surface.AutoSize = true;

    form.Label2.Caption = "ID Number";
    PlaceByPixels(form.Label2, column, 176, columnWidth, 16);
    form.Text1.ForeColor = RGB(230, 230, 190);
    PlaceByPixels(form.Text1, column, 194, columnWidth, 22);
    int top = 228;
    for (VistaButton* button : {&form.AddKnop, &form.ChangeKnop, &form.DelKnop}) {
        PlaceByPixels(*button, column, top, columnWidth, buttonHeight);
        top += 32;
    }
    form.AddKnop.SetCaption("Add");
    form.ChangeKnop.SetCaption("Change");
    form.DelKnop.SetCaption("Delete");

    constexpr int bottom = 364, pitch = 74;
    int left = column;
    for (VistaButton* button : {&form.HelpKnop, &form.OkKnop, &form.CancelKnop}) {
        PlaceByPixels(*button, left, bottom, 65, buttonHeight);
        left += pitch;
    }
    form.HelpKnop.SetCaption("Help");
    form.OkKnop.SetCaption("Save");
    form.CancelKnop.SetCaption("Cancel");
    LayOutHelp(form);
}

}  // namespace coinlet
