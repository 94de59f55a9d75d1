#include "libraries/border_form_layout.h"

#include "controls/edge.h"
#include "controls/placing.h"
#include "core/dialog_layout.h"
#include "libraries/border_form.h"

#include <cstddef>
#include <initializer_list>

namespace coinlet {

namespace {

// Three columns: the names, the preview, the choices. All in pixels.
constexpr int margin = dialogMargin, gap = 16;
constexpr int listWidth = 196, listHeight = 292;
constexpr int previewLeft = margin + listWidth + gap;
constexpr int column = previewLeft + borderPreviewSide + gap, columnWidth = 180;
constexpr int formWidth = column + columnWidth + margin;
constexpr int formHeight = listHeight + 2 * margin;
constexpr int rowHeight = 20, rowPitch = 24;

void PlaceHiddenPictures(BorderForm& form) {
    form.BackPic.surface.AutoSize = true;
    PlaceByPixels(form.Orgineel, 0, 0, borderSide, borderSide);
    form.File1.Visible = false;
    form.BackPic.Visible = false;
    form.Orgineel.Visible = false;
}

void PlaceChoices(BorderForm& form) {
    int top = margin;
    for (int i = form.Option1.First(); i <= form.Option1.Last(); ++i) {
        form.Option1[i].Caption = materials.at(static_cast<std::size_t>(i)).name;
        PlaceByPixels(form.Option1[i], column, top, columnWidth, rowHeight);
        top += rowPitch;
    }
    form.Option1[0].SetValue(true);
    top += gap;
    form.Check2.Caption = "Merge Transparant";
    form.Check2.SetValue(true);
    PlaceByPixels(form.Check2, column, top, columnWidth, rowHeight);
    top += rowPitch;
    form.Check1.Caption = "Including Hole";
    PlaceByPixels(form.Check1, column, top, columnWidth, rowHeight);
}

void PlaceHoleSlider(BorderForm& form) {
    constexpr int panelHeight = 56, panelTop = margin + borderPreviewSide - panelHeight, inset = 8;
    constexpr int lastPosition = 7;
    form.Label2.Border = true;
    PlaceByPixels(form.Label2, column, panelTop, columnWidth, panelHeight);
    form.Label3.Caption = "Hole position (Top)";
    PlaceByPixels(form.Label3, column + inset, panelTop + 8, columnWidth - 2 * inset, 16);
    form.HScroll1.SetRange(0, lastPosition);
    form.HScroll1.LargeChange = 1;
    PlaceByPixels(form.HScroll1, column + inset, panelTop + 28, columnWidth - 2 * inset, rowHeight);
    for (Control* control : std::initializer_list<Control*>{&form.Label2, &form.Label3, &form.HScroll1})
        control->Visible = false;
}

void PlaceWaysOut(BorderForm& form) {
    constexpr int width = 248, height = 28, top = formHeight - margin - height;
    PlaceWaysOut(form.ExportKnop, form.CancelKnop, formWidth - margin - width, top, width, height);
}

}  // namespace

void LayOutBorderForm(BorderForm& form) {
    SetTitleAndSize(form, "Tag Borders", formWidth, formHeight);
    PlaceHiddenPictures(form);
    PlaceByPixels(form.List1, margin, margin, listWidth, listHeight);
    PlaceByPixels(form.Pic, previewLeft, margin, borderPreviewSide, borderPreviewSide);
    SetEdge(form.Shape1, form.Pic);
    PlaceChoices(form);
    PlaceHoleSlider(form);
    PlaceWaysOut(form);
}

}  // namespace coinlet
