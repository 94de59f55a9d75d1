#pragma once

#include "controls/check_box.h"
#include "controls/form.h"
#include "controls/label.h"
#include "controls/picture_box.h"
#include "controls/pointed_picture.h"
#include "controls/shapes.h"
#include "controls/timer.h"
#include "controls/vista_button.h"

namespace coinlet {

struct Context;

/// Wipes colours of the design to white, on a copy of the canvas that goes back there when the user accepts:
/// a colour that he clicks or all but that one, all but black, all but gray; or takes out a channel. A
/// magnifying glass helps to hit a colour.
class RemoveForm : public Form {
public:
    explicit RemoveForm(Context& context);

    ControlArray<Shape> Shape1{*this, "Shape1", 0, 2};  ///< Edges of the pictures.
    PointedPicture Pic{*this, "Pic"};                   ///< The working copy.
    Label Label2{*this, "Label2"};                      ///< What to do here.
    Label ColorLabel{*this, "ColorLabel"};              ///< The colour under the pointer.
    Label Label3{*this, "Label3"};                      ///< What ColorLabel is.
    Label Label4{*this, "Label4"};                      ///< Its channels.
    CheckBox Check1{*this, "Check1"};                   ///< A click leaves its colour and wipes the others.
    VistaButton BWKnop{*this, "BWKnop"};                ///< Wipes all but black; Label5 says so.
    Label Label5{*this, "Label5"};
    VistaButton GrayKnop{*this, "GrayKnop"};  ///< Wipes all but gray; Label6 says so.
    Label Label6{*this, "Label6"};
    ControlArray<VistaButton> RGBKnop{*this, "RGBKnop", 0, 3};  ///< Take out red, green, blue.
    ControlArray<Label> RGBLabel{*this, "RGBLabel", 0, 3};      ///< What they do.
    CheckBox Check2{*this, "Check2"};                           ///< Switches the magnifying glass.
    PictureBox Picture1{*this, "Picture1"};                     ///< The lens.
    VistaButton ResetKnop{*this, "ResetKnop"};                  ///< Goes back to the canvas.
    VistaButton ExportKnop{*this, "ExportKnop"};
    VistaButton CancelKnop{*this, "CancelKnop"};
    Timer LoepTimer{*this, "LoepTimer"};  ///< Keeps the lens up to date.

    void Form_Load() override;

private:
    void Pic_MouseDown(int button, float x, float y);
    void Pic_MouseMove(float x, float y);
    void BWKnop_Click();
    void GrayKnop_Click();
    void RGBKnop_Click(int index);
    void Check2_Click();
    void LoepTimer_Timer();

    bool WipesTheOthers() const { return Check1.Value(); }
    void RemoveColor(Colour colour);
    void ShowColour(Colour colour);

    Context& context_;
};

}  // namespace coinlet
