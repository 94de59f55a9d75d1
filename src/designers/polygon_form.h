#pragma once

#include "controls/check_box.h"
#include "controls/combo_box.h"
#include "controls/form.h"
#include "controls/label.h"
#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "controls/vista_button.h"

#include <optional>

namespace coinlet {

struct Context;

/// Computes the figures of a regular polygon and draws it with its spokes; the drawing goes to the canvas as
/// a floating image. It starts from nothing, whatever is on the canvas.
///
/// Number of faces and diameter can be typed as well. What is typed counts from the next drawing on: Enter in
/// the field draws, and so does every other control. A number of faces that no polygon has draws nothing
/// anew.
class PolygonForm : public Form {
public:
    explicit PolygonForm(Context& context);

    Label Label8{*this, "Label8"};           ///< The board that the picture lies on.
    PictureBox Picture1{*this, "Picture1"};  ///< The drawing.
    Label Label1{*this, "Label1"};           ///< What the field behind it is for, as are the labels below.
    TextBox txtNumberofSides{*this, "txtNumberofSides"};
    ScrollBar vsbNumberofSides{*this, "vsbNumberofSides", Orientation::Vertical};
    Label Label6{*this, "Label6"};
    TextBox txtDiameter{*this, "txtDiameter"};
    ScrollBar vsbDiameter{*this, "vsbDiameter", Orientation::Vertical};  ///< In tenths.
    Label Label9{*this, "Label9"};
    TextBox txtDegrees{*this, "txtDegrees"};
    Label Label7{*this, "Label7"};
    TextBox txtRadius{*this, "txtRadius"};
    Label Label11{*this, "Label11"};
    TextBox txtInitialSide{*this, "txtInitialSide"};
    ScrollBar hsbRotate{*this, "hsbRotate", Orientation::Horizontal};  ///< In degrees.
    Label Label4{*this, "Label4"};
    TextBox txtCircumference{*this, "txtCircumference"};
    Label Label5{*this, "Label5"};
    TextBox txtArcLength{*this, "txtArcLength"};
    Label Label2{*this, "Label2"};
    TextBox txtLengthofSide{*this, "txtLengthofSide"};
    Label Label3{*this, "Label3"};
    TextBox txtPerimeter{*this, "txtPerimeter"};
    Label Label15{*this, "Label15"};         ///< What Combo1 is for.
    ComboBox Combo1{*this, "Combo1"};        ///< Width of the pen in pixels.
    CheckBox Check1{*this, "Check1"};        ///< The picture is half as high as it is wide.
    CheckBox chkCircle{*this, "chkCircle"};  ///< The corners go half a turn only.
    Label Label13{*this, "Label13"};         ///< What HScroll1 is for.
    ScrollBar HScroll1{*this, "HScroll1", Orientation::Horizontal};  ///< In steps of 20 pixels.
    Label Label14{*this, "Label14"};                                 ///< The number of steps.
    VistaButton ExportKnop{*this, "ExportKnop"};
    VistaButton CancelKnop{*this, "CancelKnop"};

    void Form_Load() override;

private:
    void vsbNumberofSides_Change();
    void vsbDiameter_Change();
    void hsbRotate_Change();
    void HScroll1_Change();
    void txtDiameter_Enter();

    /// Computes all figures and draws, from what the controls say now.
    void Draw();
    void ShowRadius();
    /// The number of faces in the field, if it is one that a polygon can have.
    std::optional<int> Sides() const;
    /// The diameter in the field; 0 if there is none.
    double Diameter() const;

    Context& context_;
    bool rotationReset_ = false;  ///< The rotation goes back to 0 without a drawing of its own.
};

}  // namespace coinlet
