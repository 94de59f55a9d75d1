#pragma once

#include "base/numbers.h"
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

    Shape Shape1{*this, "Shape1"};        ///< Edge of the picture.
    PictureBox Pic{*this, "Pic"};         ///< The working copy.
    Label Label8{*this, "Label8"};        ///< What to do here.
    Label Label1{*this, "Label1"};        ///< What Text1 is for.
    TextBox Text1{*this, "Text1"};        ///< The text.
    Label Label2{*this, "Label2"};        ///< What Combo1 is for.
    ComboBox Combo1{*this, "Combo1"};     ///< Distance: the extra spacing between letters.
    Label Label3{*this, "Label3"};        ///< What Combo2 is for.
    ComboBox Combo2{*this, "Combo2"};     ///< Radius in pixels.
    Label Label5{*this, "Label5"};        ///< What Combo3 is for.
    ComboBox Combo3{*this, "Combo3"};     ///< Size of the letters in points.
    Label Label7{*this, "Label7"};        ///< What Combo4 is for.
    ComboBox Combo4{*this, "Combo4"};     ///< Name of the font.
    Label FontLabel{*this, "FontLabel"};  ///< A sample of the font.
    CheckBox Check1{*this, "Check1"};     ///< The text takes the fill colour.
    Label Label9{*this, "Label9"};        ///< The fill colour, while the text takes it.
    CheckBox Check2{*this, "Check2"};  ///< The text stands on the circle; else it hangs into it from below.
    CheckBox Check3{*this, "Check3"};  ///< Bold.
    CheckBox Check4{*this, "Check4"};  ///< Italic.
    CheckBox Check5{*this, "Check5"};  ///< Letters are outlines.
    Label Label4{*this, "Label4"};     ///< What DrawKnop does.
    VistaButton DrawKnop{*this, "DrawKnop"};
    VistaButton ExportKnop{*this, "ExportKnop"};
    VistaButton CancelKnop{*this, "CancelKnop"};

    void Form_Load() override;

private:
    void Check1_Click();
    void Combo4_Change();
    void DrawKnop_Click();

    void DrawCurvedText(bool onTop);
    void DrawGlyph(std::string_view glyph, double rotation, double x, double y);
    Colour InkColour() const;

    // What the user has set.
    bool TextIsInFillColour() const { return Check1.Value(); }
    bool TextIsOnTop() const { return Check2.Value(); }
    bool LettersAreOpen() const { return Check5.Value(); }
    double ExtraSpacing() const { return Val(Combo1.Text()); }
    double Radius() const { return Val(Combo2.Text()); }
    /// Points. What a surface can't hold is the largest that it can.
    float LetterSize() const;

    Context& context_;
};

}  // namespace coinlet
