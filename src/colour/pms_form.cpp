#include "colour/pms_form.h"

#include "base/numbers.h"
#include "colour/pms_form_layout.h"
#include "colour/pms_table.h"
#include "core/context.h"
#include "core/dialog.h"
#include "core/main_form.h"
#include "surface/device.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace coinlet {

namespace {

/// The labels that tell a field of the table, and what stands before the field.
struct FieldLabel {
    Label PMSForm::*label;
    std::string_view caption;
    PmsFieldNumbers field;
};
constexpr std::array fieldLabels{
    FieldLabel{&PMSForm::Label8, "PMS Code : ", pmsCode}, FieldLabel{&PMSForm::Label4, "Hex : ", pmsHex},
    FieldLabel{&PMSForm::Label5, "R : ", pmsRed},         FieldLabel{&PMSForm::Label6, "G : ", pmsGreen},
    FieldLabel{&PMSForm::Label7, "B : ", pmsBlue},        FieldLabel{&PMSForm::Label9, "C : ", pmsCyan},
    FieldLabel{&PMSForm::Label10, "M : ", pmsMagenta},    FieldLabel{&PMSForm::Label11, "Y : ", pmsYellow},
    FieldLabel{&PMSForm::Label12, "K : ", pmsBlack},
};
constexpr std::string_view numberCaption = "Color : ";

void ShowField(PMSForm& form, PmsFieldNumbers field, std::string_view value) {
    const FieldLabel& row = *std::ranges::find(fieldLabels, field, &FieldLabel::field);
    (form.*row.label).Caption = std::string(row.caption) + std::string(value);
}

}  // namespace

PMSForm::PMSForm(Context& context) : Form(context.services.ForForms(), "PMSForm"), context_(context) {
    LayOutPmsForm(*this);
    HScroll1.Change = [this] { HScroll1_Change(); };
    HScroll1.Scroll = [this] { HScroll1_Change(); };
    Combo1.Change = [this] { Combo1_Change(); };
    Combo1.Click = [this] { Combo1_Change(); };
    Pic.MouseDown = [this](int button, int, float x, float y) { Pic_MouseDown(button, x, y); };
    OkKnop.Click = [this] { OkKnop_Click(); };
    CancelKnop.Click = [this] { CancelKnop_Click(); };
    DefaultButton = &OkKnop;
}

void PMSForm::Form_Load() {
    const Session& session = context_.session;
    savedRed_ = session.PmsRed;
    savedGreen_ = session.PmsGreen;
    savedBlue_ = session.PmsBlue;
    for (const FieldLabel& row : fieldLabels)
        ShowField(*this, row.field, "");
    Label1.Caption = numberCaption;
    // Without a table the first thing to see is the colour there is.
    Label2.BackColor = context_.main.ColorLabel.BackColor;
    DrawPmsPalette(Pic.surface);
    HScroll1.SetMax(context_.main.PMSlist.ListCount() - 1);
    HScroll1_Change();
    FillPmsCombo();
    Combo1.SetFocus();
}

void PMSForm::FillPmsCombo() {
    if (TableIsEmpty()) return;
    const ListBox& table = context_.main.PMSlist;
    Combo1.Clear();
    for (int i = 0; i < table.ListCount(); ++i)
        Combo1.AddItem(PmsCodeOf(table.List(i)));
    Combo1.SetListIndex(0);
}

void PMSForm::HScroll1_Change() {
    if (TableIsEmpty()) return;
    const ListBox& table = context_.main.PMSlist;
    Label1.Caption = std::string(numberCaption) + std::to_string(HScroll1.Value()) + " / " +
                     std::to_string(table.ListCount() - 1);
    ShowPmsEntry(table.List(HScroll1.Value()));
}

/// Where the slider stands already, a colour from outside the table may be shown.
void PMSForm::ShowNumber(int number) {
    if (number == HScroll1.Value()) {
        HScroll1_Change();
    } else {
        HScroll1.SetValue(number);
    }
}

void PMSForm::ShowPmsEntry(const std::string& line) {
    const auto fields = SplitPmsLine(line);
    if (!fields) return;
    for (const FieldLabel& row : fieldLabels)
        ShowField(*this, row.field, (*fields)[row.field]);
    const std::string_view red = (*fields)[pmsRed], green = (*fields)[pmsGreen], blue = (*fields)[pmsBlue];
    Session& session = context_.session;
    session.PmsRed = red;
    session.PmsGreen = green;
    session.PmsBlue = PmsChannel(blue);
    Label2.BackColor = RGB(PmsChannel(red), PmsChannel(green), PmsChannel(blue));
}

void PMSForm::Combo1_Change() {
    const ListBox& table = context_.main.PMSlist;
    for (int i = 0; i < table.ListCount(); ++i) {
        if (PmsCodeOf(table.List(i)) != Combo1.Text()) continue;
        ShowNumber(i);
        return;
    }
}

void PMSForm::Pic_MouseDown(int button, float x, float y) {
    if (button != leftButton) return;
    const Colour picked = GetPixel(Pic.surface.hDC(), RoundHalfEven(x), RoundHalfEven(y));
    const int red = Red(picked), green = Green(picked), blue = Blue(picked);
    ShowField(*this, pmsRed, std::to_string(red));
    ShowField(*this, pmsGreen, std::to_string(green));
    ShowField(*this, pmsBlue, std::to_string(blue));
    Session& session = context_.session;
    session.PmsRed = std::to_string(std::max(red, 0));
    session.PmsGreen = std::to_string(std::max(green, 0));
    session.PmsBlue = static_cast<std::int16_t>(std::max(blue, 0));
    Label2.BackColor = RGB(red, green, blue);
    FindPmsColor();
}

void PMSForm::FindPmsColor() {
    const Session& session = context_.session;
    const int found = FindPmsColour(context_.main.PMSlist, session.PmsRed, session.PmsGreen, session.PmsBlue);
    if (found >= 0) ShowNumber(found);
}

void PMSForm::OkKnop_Click() {
    context_.main.ColorLabel.BackColor = Label2.BackColor;
    CloseDialog(context_, *this);
}

void PMSForm::CancelKnop_Click() {
    Session& session = context_.session;
    session.PmsRed = savedRed_;
    session.PmsGreen = savedGreen_;
    session.PmsBlue = savedBlue_;
    CloseDialog(context_, *this);
}

bool PMSForm::TableIsEmpty() const {
    return context_.main.PMSlist.ListCount() == 0;
}

}  // namespace coinlet
