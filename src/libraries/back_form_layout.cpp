#include "libraries/back_form_layout.h"

#include "controls/edge.h"
#include "controls/placing.h"
#include "core/dialog_layout.h"
#include "core/side_panel.h"
#include "libraries/back_form.h"

namespace coinlet {

namespace {

// All in pixels.
constexpr int margin = dialogMargin;
constexpr int cellSide = sidePanelBackSide, rowWidth = 4 * cellSide;
constexpr int formWidth = rowWidth + 2 * margin;
constexpr int optionsTop = 40, rowTop = 72, sliderTop = rowTop + cellSide + 4, sliderHeight = 20;
constexpr int chosenTop = sliderTop + sliderHeight + 16;
constexpr int formHeight = chosenTop + cellSide + margin;
constexpr int besideChosen = margin + cellSide + 16;

void PlaceCatalogue(BackForm& form) {
    PlaceByPixels(form.Label4, margin, margin, rowWidth, 16);
    form.Option1[1].Caption = "Standard Tag Backs";
    PlaceByPixels(form.Option1[1], margin, optionsTop, 160, 20);
    form.Option1[2].Caption = "Give Backs";
    PlaceByPixels(form.Option1[2], margin + 176, optionsTop, 160, 20);
    form.Option1[1].SetValue(true);
    PlaceByPixels(form.Pic, margin, rowTop, rowWidth, cellSide);
    SetEdge(form.Shape1[0], form.Pic);
    // Until a collection tells how many rows it has.
    form.HScroll1.SetRange(0, 0);
    form.HScroll1.LargeChange = 1;
    PlaceByPixels(form.HScroll1, margin, sliderTop, rowWidth, sliderHeight);
}

void PlaceChoice(BackForm& form) {
    constexpr int width = 248, height = 28, top = formHeight - margin - height;
    PlaceByPixels(form.Orgineel, margin, chosenTop, cellSide, cellSide);
    SetEdge(form.Shape1[1], form.Orgineel);
    form.Label5.Caption = "Name : ";
    PlaceByPixels(form.Label5, besideChosen, chosenTop, formWidth - margin - besideChosen, 16);
    PlaceWaysOut(form.ExportKnop, form.CancelKnop, formWidth - margin - width, top, width, height);
}

}  // namespace

void LayOutBackForm(BackForm& form) {
    SetTitleAndSize(form, "Tag Backs", formWidth, formHeight);
    form.BackPic.surface.AutoSize = true;
    form.BackPic.Visible = false;
    form.List1.Visible = false;
    PlaceCatalogue(form);
    PlaceChoice(form);
}

}  // namespace coinlet
