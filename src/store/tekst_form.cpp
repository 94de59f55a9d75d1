#include "store/tekst_form.h"

#include "core/context.h"
#include "core/dialog.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/text_keys.h"
#include "store/tekst_form_layout.h"
#include "store/text_box_rows.h"

#include <string>
#include <vector>

namespace coinlet {

TekstForm::TekstForm(Context& context) : Form(context.services.ForForms(), "TekstForm"), context_(context) {
    LayOutTekstForm(*this);
    OkKnop.Click = [this] { OkKnop_Click(); };
    CancelKnop.Click = [this] { CloseDialog(context_, *this); };
}

void TekstForm::Form_Load() {
    Label2.Caption = LookupInfoText(context_, key::infoTextHelp);
    const ListBox& rows = context_.main.List2;
    if (rows.ListCount() == 0) {
        Text1.SetText(LookupInfoText(context_, key::infoTextPrompt));
        Text1.SelectText();
    } else {
        std::string text;
        for (int i = 0; i < rows.ListCount(); ++i)
            text += rows.List(i) + "\r\n";
        Text1.SetText(text);
    }
    Text1.SetFocus();
}

void TekstForm::OkKnop_Click() {
    ListBox& list = context_.main.List2;
    list.Clear();
    std::vector<std::string> rows;
    const int last = GetTextBoxLines(Text1, rows);
    for (int i = 0; i <= last; ++i)
        list.AddItem(rows[static_cast<std::size_t>(i)]);
    CloseDialog(context_, *this);
}

}  // namespace coinlet
