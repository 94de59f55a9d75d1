#pragma once

#include "controls/form.h"
#include "controls/label.h"
#include "controls/picture_box.h"
#include "controls/text_box.h"
#include "controls/vista_button.h"

namespace coinlet {

struct Context;

/// Edits the info text of the present design. A row of it is a line as the text box displays it.
class TekstForm : public Form {
public:
    explicit TekstForm(Context& context);

    Label Label1{*this, "Label1"};       ///< The dark panel behind the text.
    PictureBox Image1{*this, "Image1"};  ///< A sheet of paper.
    Label Label2{*this, "Label2"};       ///< What the text is for.
    TextBox Text1{*this, "Text1"};       ///< The info text.
    VistaButton OkKnop{*this, "OkKnop"};
    VistaButton CancelKnop{*this, "CancelKnop"};

    void Form_Load() override;

private:
    void OkKnop_Click();

    Context& context_;
};

}  // namespace coinlet
