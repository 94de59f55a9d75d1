#pragma once

#include "controls/combo_box.h"
#include "controls/form.h"
#include "controls/label.h"
#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "controls/vista_button.h"

#include <cstdint>
#include <string>

namespace coinlet {

struct Context;

/// The chooser of the fill colour: by a slider over the PMS table, by a PMS code, or from a small palette.
/// The session's colour follows each pick and comes back if the user cancels; the main form's colour field
/// waits for the OK button.
class PMSForm : public Form {
public:
    explicit PMSForm(Context& context);

    Label Label15{*this, "Label15"};  ///< Title of the panel.
    Label Label2{*this, "Label2"};    ///< The colour as chosen.
    Label Label8{*this, "Label8"};    ///< PMS code.
    Label Label4{*this, "Label4"};    ///< Hexadecimal.
    Label Label5{*this, "Label5"};    ///< Red, green, blue.
    Label Label6{*this, "Label6"};
    Label Label7{*this, "Label7"};
    Label Label9{*this, "Label9"};  ///< Cyan, magenta, yellow, black.
    Label Label10{*this, "Label10"};
    Label Label11{*this, "Label11"};
    Label Label12{*this, "Label12"};
    Label Label1{*this, "Label1"};  ///< Number of the colour.
    ScrollBar HScroll1{*this, "HScroll1",
                       Orientation::Horizontal};  ///< The colours of the table, by their place.
    Label Label13{*this, "Label13"};              ///< What Combo1 is for.
    ComboBox Combo1{*this, "Combo1"};             ///< The codes of the table.
    PictureBox Pic{*this, "Pic"};                 ///< The palette.
    VistaButton OkKnop{*this, "OkKnop"};
    VistaButton CancelKnop{*this, "CancelKnop"};

    void Form_Load() override;

private:
    void HScroll1_Change();
    void ShowNumber(int number);
    void Combo1_Change();
    void Pic_MouseDown(int button, float x, float y);
    void OkKnop_Click();
    void CancelKnop_Click();

    void ShowPmsEntry(const std::string& line);
    void FindPmsColor();
    void FillPmsCombo();
    bool TableIsEmpty() const;

    Context& context_;
    std::string savedRed_, savedGreen_;
    std::int16_t savedBlue_ = 0;
};

}  // namespace coinlet
