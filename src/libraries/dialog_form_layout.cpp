#include "libraries/dialog_form_layout.h"

#include "controls/edge.h"
#include "controls/placing.h"
#include "core/dialog_layout.h"
#include "libraries/dialog_form.h"

#include <array>
#include <cstddef>
#include <initializer_list>
#include <string_view>

namespace coinlet {

namespace {

// Two columns: where to find pictures, and the picture. All in pixels.
constexpr int margin = dialogMargin, gap = 16, labelPitch = 20;
constexpr int columnWidth = 220;
constexpr int placesHeight = 68, foldersHeight = 180;
constexpr int viewLeft = margin + columnWidth + gap, viewTop = margin;
constexpr int viewWidth = static_cast<int>(viewportWidth / twipsPerPixel);
constexpr int viewHeight = static_cast<int>(viewportHeight / twipsPerPixel);
constexpr int barSize = 16, barGap = 4;
constexpr int formWidth = viewLeft + viewWidth + barGap + barSize + margin;
constexpr int factsTop = viewTop + viewHeight + barGap + barSize + 12;
constexpr int buttonHeight = 28, buttonTop = factsTop + 2 * labelPitch + 12;
constexpr int formHeight = buttonTop + buttonHeight + margin;

/// A heading and the list under it; gives the row below.
int PlaceList(Label& heading, std::string_view caption, ListBox& list, int top, int height) {
    PlaceText(heading, caption, margin, top, columnWidth);
    PlaceByPixels(list, margin, top + labelPitch, columnWidth, height);
    return top + labelPitch + height + 12;
}

void PlaceLists(DialogForm& form) {
    int top = PlaceList(form.Label1, "Drives", form.Drive1, margin, placesHeight);
    top = PlaceList(form.Label2, "Folders", form.Dir1, top, foldersHeight);
    PlaceList(form.Label3, "Pictures", form.List1, top, formHeight - margin - top - labelPitch);
}

void PlaceView(DialogForm& form) {
    PlaceByPixels(form.Pic, viewLeft, viewTop, viewWidth, viewHeight);
    SetEdge(form.Shape1, form.Pic);
    constexpr int arrowStep = 10, pageStep = 200;
    for (ScrollBar* bar : {&form.HScroll1, &form.VScroll1}) {
        bar->SetRange(0, 0);
        bar->SmallChange = arrowStep * static_cast<int>(twipsPerPixel);
        bar->LargeChange = pageStep * static_cast<int>(twipsPerPixel);
        bar->SetEnabled(false);
    }
    PlaceByPixels(form.HScroll1, viewLeft, viewTop + viewHeight + barGap, viewWidth, barSize);
    PlaceByPixels(form.VScroll1, viewLeft + viewWidth + barGap, viewTop, barSize, viewHeight);
    form.Layer.BorderDotted = true;
    form.Layer.Visible = false;
}

void PlaceHiddenPictures(DialogForm& form) {
    form.Orgineel.surface.AutoSize = true;
    // Blank paper of the viewport's size, until a picture is picked.
    for (PictureBox* picture : std::initializer_list<PictureBox*>{&form.Orgineel, &form.BackPic})
        PlaceByPixels(*picture, 0, 0, viewWidth, viewHeight);
    for (PictureBox* picture :
         std::initializer_list<PictureBox*>{&form.Orgineel, &form.BackPic, &form.ClipPic, &form.Pic})
        picture->surface.SetScaleMode(twipScale);
    for (PictureBox* picture :
         std::initializer_list<PictureBox*>{&form.Orgineel, &form.BackPic, &form.ClipPic})
        picture->Visible = false;
}

void PlaceFoot(DialogForm& form) {
    constexpr int stretchWidth = 120, waysOutWidth = 248, right = viewLeft + viewWidth + barGap + barSize;
    PlaceByPixels(form.Label4, viewLeft, factsTop, right - viewLeft, dialogTextHeight);
    PlaceByPixels(form.Label5, viewLeft, factsTop + labelPitch, right - viewLeft, dialogTextHeight);
    form.HoekKnop.SetCaption(" Stretch Picture ");
    PlaceByPixels(form.HoekKnop, viewLeft, buttonTop, stretchWidth, buttonHeight);
    PlaceWaysOut(form.ExportKnop, form.CancelKnop, right - waysOutWidth, buttonTop, waysOutWidth,
                 buttonHeight);
}

void NameSizes(DialogForm& form) {
    constexpr std::array<std::string_view, 10> captions{"10%",  "20%",  "25%",  "50%", "75%",
                                                        "100%", "150%", "200%", "-",   "Stretch"};
    for (int i = form.SizePic.First(); i <= form.SizePic.Last(); ++i)
        form.SizePic[i].Caption = captions.at(static_cast<std::size_t>(i - form.SizePic.First()));
}

}  // namespace

void LayOutDialogForm(DialogForm& form) {
    SetTitleAndSize(form, "Import Pictures (Jpg, Bmp, Gif)", formWidth, formHeight);
    form.File1.SetPattern("*.bmp;*.jpg;*.gif");
    form.File1.Visible = false;
    PlaceLists(form);
    PlaceView(form);
    PlaceHiddenPictures(form);
    PlaceFoot(form);
    NameSizes(form);
}

}  // namespace coinlet
