#pragma once

#include "controls/form.h"
#include "controls/label.h"
#include "controls/picture_box.h"
#include "controls/pointed_picture.h"
#include "controls/scroll_bar.h"
#include "controls/shapes.h"
#include "controls/vista_button.h"

#include <cstdint>

namespace coinlet {

struct Context;

/// The chart of the glitter colours: a large picture that the user pans inside a frame, by dragging it or
/// with scroll bars.
class GlitterForm : public Form {
public:
    explicit GlitterForm(Context& context);

    Label Label1{*this, "Label1"};                                 ///< What to do here.
    Shape Shape1{*this, "Shape1"};                                 ///< The edge of the frame.
    PictureBox PicCont{*this, "PicCont"};                          ///< The frame, which clips the chart.
    PointedPicture SlidePic{PicCont, "SlidePic"};                  ///< The chart.
    ScrollBar VScroll{*this, "VScroll", Orientation::Vertical};    ///< How far the chart is moved up.
    ScrollBar HScroll{*this, "HScroll", Orientation::Horizontal};  ///< How far it is moved to the left.
    VistaButton ExitKnop{*this, "ExitKnop"};

    void Form_Load() override;

private:
    void SlidePic_MouseDown(float x, float y);
    void SlidePic_MouseMove(int button, float x, float y);
    void HScroll_Change();
    void VScroll_Change();

    Context& context_;
    // All in pixels: where the chart is in its frame, 0 or negative; where a drag took hold of it; how far it
    // can be moved.
    std::int16_t slideLeft_ = 0, slideTop_ = 0;
    std::int16_t grabX_ = 0, grabY_ = 0;
    std::int16_t panWidth_ = 0, panHeight_ = 0;
};

}  // namespace coinlet
