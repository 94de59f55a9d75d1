#pragma once

#include "controls/check_box.h"
#include "controls/combo_box.h"
#include "controls/file_boxes.h"
#include "controls/form.h"
#include "controls/label.h"
#include "controls/picture_box.h"
#include "controls/vista_button.h"

#include <string>

namespace coinlet {

struct Context;

/// The print dialog: the user chooses what is printed and on which printer. The printer stays the current one
/// until the program ends.
class Afdrukken : public Form {
public:
    explicit Afdrukken(Context& context);

    Label Label2{*this, "Label2"};                               ///< The frame around the preview.
    PictureBox Picture1{*this, "Picture1"};                      ///< The preview.
    ControlArray<OptionButton> Option1{*this, "Option1", 0, 3};  ///< The jobs, by `Job`.
    Label Label5{*this, "Label5"};                               ///< What Combo1 is for.
    ComboBox Combo1{*this, "Combo1"};                            ///< The number of copies.
    CheckBox Check1{*this, "Check1"};                            ///< The info text comes with the design.
    Label Label1{*this, "Label1"};                               ///< What Combo2 is for.
    ComboBox Combo2{*this, "Combo2"};                            ///< The printer.
    VistaButton PrintKnop{*this, "PrintKnop"};
    VistaButton CancelKnop{*this, "CancelKnop"};
    // For the jobs that print what lies in a folder.
    FileListBox File1{*this, "File1"};
    PictureBox Picture2{*this, "Picture2"};

    void Form_Load() override;

private:
    void Option1_Click(int index);
    void PrintKnop_Click();
    /// Makes the printer of that name the current one; an unknown name changes nothing.
    void SelectPrinter(const std::string& name);
    void ShowPrinterInTitle();
    void ShowCanvas();
    void RunJob();
    double Copies() const;
    bool WithInfoText() const { return Check1.Value(); }

    Context& context_;
};

}  // namespace coinlet
