#pragma once

#include "controls/check_box.h"
#include "controls/combo_box.h"
#include "controls/form.h"
#include "controls/label.h"
#include "controls/picture_box.h"
#include "controls/shapes.h"
#include "controls/text_box.h"
#include "controls/vista_button.h"

#include <string_view>

namespace coinlet {

struct Context;

/// Writes a line of text along a circle around the centre of the design, letter by letter, on a copy of the
/// canvas that goes back there when the user accepts. Each drawing starts from the canvas anew.
class CircelText : public Form {
public:
    explicit CircelText(Context& context);

    Shape Shape1{*this, "Shape1"};  ///< Edge of the picture.
    PictureBox Pic{*this, "Pic"};   ///< The working copy.
    Label Label8{*this, "Label8"};  ///< What to do here.
    Label Label1{*this, "Label1"};
    TextBox Text1{*this, "Text1"};
    Label Label2{*this, "Label2"};
    ComboBox Combo1{*this, "Combo1"};  ///< Distance: the extra spacing between letters.
    Label Label3{*this, "Label3"};
    ComboBox Combo2{*this, "Combo2"};  ///< Radius in pixels.
    Label Label5{*this, "Label5"};
    ComboBox Combo3{*this, "Combo3"};  ///< Size of the letters in points.
    Label Label7{*this, "Label7"};
    ComboBox Combo4{*this, "Combo4"};  ///< Name of the font.
    CheckBox Check1{*this, "Check1"};
    Label Label9{*this, "Label9"};  ///< The fill colour, while the text takes it.
    CheckBox Check2{*this, "Check2"};
    CheckBox Check3{*this, "Check3"};
    CheckBox Check4{*this, "Check4"};
    CheckBox Check5{*this, "Check5"};
    Label Label4{*this, "Label4"};
    VistaButton DrawKnop{*this, "DrawKnop"};
    VistaButton ExportKnop{*this, "ExportKnop"};
    VistaButton CancelKnop{*this, "CancelKnop"};

    void Form_Load() override;

private:
    void Check1_Click();
    void DrawKnop_Click();

    void DrawCurvedText(bool onTop);
    void DrawGlyph(std::string_view glyph, double rotation, double x, double y);
    Colour InkColour() const;

    Context& context_;
};

}  // namespace coinlet
