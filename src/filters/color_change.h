#pragma once

#include "controls/combo_box.h"
#include "controls/form.h"
#include "controls/label.h"
#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "controls/shapes.h"
#include "controls/vista_button.h"
#include "filters/colour_replacement.h"

namespace coinlet {

struct Context;

/// Repaints a copy of the canvas with a palette: every pixel takes the result colour that belongs to the
/// target colour nearest to it. The user makes the palette himself or chooses a ready-made one; three of
/// these turn what is dark into a metal. Events are served during a run: a button that the user presses
/// meanwhile acts on the half-done picture.
class ColorChange : public Form {
public:
    explicit ColorChange(Context& context);

    ControlArray<Shape> Shape1{*this, "Shape1", 0, 1 + 2 * paletteSize};  ///< Edges of the pictures.
    ControlArray<LineShape> Line1{*this, "Line1", 0, 4};  ///< The bracket that joins the boxes.
    PictureBox Pic{*this, "Pic"};                         ///< The working copy.
    PictureBox BackPic{*this, "BackPic"};                 ///< What a run reads.
    Label InfoLabel{*this, "InfoLabel"};                  ///< What to do here.
    Label Label5{*this, "Label5"};                        ///< What Combo1 is for.
    ComboBox Combo1{*this, "Combo1"};                     ///< The palettes.
    Label Label2{*this, "Label2"};                        ///< Heads of the two columns of boxes.
    Label Label3{*this, "Label3"};
    ControlArray<PictureBox> picTarget{*this, "picTarget", 0, paletteSize};  ///< The colours to be replaced.
    ControlArray<PictureBox> picResult{*this, "picResult", 0, paletteSize};  ///< What they become.
    Label ColorLabel{*this, "ColorLabel"};                                   ///< The sliders' colour.
    ControlArray<Label> Label6{*this, "Label6", 0, 3};                       ///< The values of the sliders.
    ControlArray<ScrollBar> HScroll1{*this, "HScroll1", 0, 3,
                                     Orientation::Horizontal};  ///< Red, green, blue.
    VistaButton StartKnop{*this, "StartKnop"};                  ///< Replaces the colours.
    VistaButton ResetKnop{*this, "ResetKnop"};                  ///< Goes back to the canvas.
    VistaButton ExportKnop{*this, "ExportKnop"};
    VistaButton CancelKnop{*this, "CancelKnop"};

    void Form_Load() override;

private:
    void HScroll1_Change(int index);
    void Box_Click(PictureBox& box);
    void Combo1_Change();
    void StartKnop_Click();
    void ResetKnop_Click();

    /// The row of the palette that is picked, or that the typed text names without regard to case; else -1.
    int ChosenPalette() const;
    void ReplaceByPalette();
    void ReplaceDarkColors(Metal metal);
    void ShowSlider(int index);

    Context& context_;
};

}  // namespace coinlet
