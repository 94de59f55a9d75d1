#include "store/open_file_layout.h"

#include "controls/house_colours.h"
#include "controls/placing.h"
#include "core/dialog_layout.h"
#include "store/open_file.h"

namespace coinlet {

void LayOutOpenFile(OpenFile& form) {
    SetTitleAndSize(form, "Open Coinlet", 304, 266);
    PlaceByPixels(form.Label2, 8, 8, 288, 32);
    PlaceByPixels(form.List1, 8, 44, 176, 180);
    PlaceByPixels(form.Label1, 192, 44, 104, 104);
    PlaceByPixels(form.Image1, 194, 46, 100, 100);
    PlaceByPixels(form.DelKnop, 192, 156, 104, 24);
    PlaceByPixels(form.OkKnop, 88, 232, 100, 24);
    PlaceByPixels(form.CancelKnop, 196, 232, 100, 24);

    form.List1.ForeColor = fileListTextColour;
    form.List1.BackColor = fileListColour;
    form.Label1.Border = true;
    form.File1.Visible = false;
    form.BackPic.Visible = false;
    form.BackPic.surface.AutoSize = true;
    form.OkKnop.SetCaption("Ok");
    form.CancelKnop.SetCaption("Cancel");
    form.DelKnop.SetCaption("Delete");
}

}  // namespace coinlet
