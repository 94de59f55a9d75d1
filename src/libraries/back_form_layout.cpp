#include "libraries/back_form_layout.h"

#include "controls/edge.h"
#include "controls/placing.h"
#include "core/dialog_layout.h"
#include "libraries/back_form.h"

namespace coinlet {

namespace {

// All in pixels.
constexpr int margin = dialogMargin;
constexpr int formWidth = backRowWidth + 2 * margin;
constexpr int optionsTop = 40, rowTop = 72, sliderTop = rowTop + backSide + 4, sliderHeight = 20;
constexpr int chosenTop = sliderTop + sliderHeight + 16;
constexpr int formHeight = chosenTop + backSide + margin;
constexpr int besideChosen = margin + backSide + 16;

void PlaceCatalogue(BackForm& form) {
    PlaceByPixels(form.Label4, margin, margin, backRowWidth, 16);
    form.Option1[1].Caption = "Standard Tag Backs";
    PlaceByPixels(form.Option1[1], margin, optionsTop, 160, 20);
    form.Option1[2].Caption = "Give Backs";
    PlaceByPixels(form.Option1[2], margin + 176, optionsTop, 160, 20);
    form.Option1[1].SetValue(true);
    PlaceByPixels(form.Pic, margin, rowTop, backRowWidth, backSide);
    SetEdge(form.Shape1[0], form.Pic);
    // Until a collection tells how many rows it has.
    form.HScroll1.SetRange(0, 0);
    form.HScroll1.LargeChange = 1;
    PlaceByPixels(form.HScroll1, margin, sliderTop, backRowWidth, sliderHeight);
}

void PlaceChoice(BackForm& form) {
    constexpr int width = 248, height = 28, top = formHeight - margin - height;
    PlaceByPixels(form.Orgineel, margin, chosenTop, backSide, backSide);
    SetEdge(form.Shape1[1], form.Orgineel);
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
