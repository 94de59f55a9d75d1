#include "colour/glitter_form_layout.h"

#include "colour/glitter_form.h"
#include "controls/edge.h"
#include "controls/placing.h"
#include "core/dialog_layout.h"

namespace coinlet {

void LayOutGlitterForm(GlitterForm& form) {
    // All in pixels.
    constexpr int margin = dialogMargin, beside = 4, barWidth = 20;
    constexpr int frameWidth = 672, frameHeight = 504, frameTop = 36;
    constexpr int formWidth = margin + frameWidth + beside + barWidth + margin;
    constexpr int exitWidth = 120, exitHeight = 28;
    constexpr int exitTop = frameTop + frameHeight + beside + barWidth + margin;

    SetTitleAndSize(form, "Glitter Color Chart", formWidth, exitTop + exitHeight + margin);
    PlaceByPixels(form.Label1, margin, margin, formWidth - 2 * margin, 16);
    PlaceByPixels(form.PicCont, margin, frameTop, frameWidth, frameHeight);
    SetEdge(form.Shape1, form.PicCont);
    // The chart takes the size of its picture; until it has one, the bars lead nowhere.
    form.SlidePic.surface.AutoSize = true;
    PlaceByPixels(form.VScroll, margin + frameWidth + beside, frameTop, barWidth, frameHeight);
    PlaceByPixels(form.HScroll, margin, frameTop + frameHeight + beside, frameWidth, barWidth);
    for (ScrollBar* bar : {&form.VScroll, &form.HScroll}) {
        bar->SetRange(0, 0);
        bar->SmallChange = 20;
        bar->LargeChange = 250;
    }
    form.ExitKnop.SetCaption("Exit");
    PlaceByPixels(form.ExitKnop, formWidth - margin - exitWidth, exitTop, exitWidth, exitHeight);
}

}  // namespace coinlet
