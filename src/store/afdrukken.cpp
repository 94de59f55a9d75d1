#include "store/afdrukken.h"

#include "base/numbers.h"
#include "controls/number_list.h"
#include "core/context.h"
#include "core/dialog.h"
#include "core/main_form.h"
#include "core/plaatjes.h"
#include "store/afdrukken_layout.h"
#include "store/print_jobs.h"
#include "surface/printer.h"

#include <string>

namespace coinlet {

namespace {

enum Job { currentDesign, allDesigns, allCliparts };

constexpr NumberList copies{1, 20, 1, 1};

}  // namespace

Afdrukken::Afdrukken(Context& context) : Form(context.services.ForForms(), "Afdrukken"), context_(context) {
    LayOutAfdrukken(*this);
    Option1[currentDesign].SetValue(true);
    Check1.SetValue(true);
    Option1.Bind(&OptionButton::Click, [this](int index) { Option1_Click(index); });
    Combo2.Change = [this] { SelectPrinter(Combo2.Text()); };
    Combo2.Click = [this] { SelectPrinter(Combo2.Text()); };
    PrintKnop.Click = [this] { PrintKnop_Click(); };
    CancelKnop.Click = [this] { CloseDialog(context_, *this); };
    DefaultButton = &PrintKnop;
}

void Afdrukken::Form_Load() {
    ShowPrinterInTitle();
    const Printer& printer = context_.services.printer;
    for (const std::string& name : printer.DeviceNames())
        Combo2.AddItem(name);
    Combo2.SetText(printer.DeviceName());
    FillWithNumbers(Combo1, copies);
    ShowCanvas();
    Combo1.SetFocus();
}

void Afdrukken::ShowCanvas() {
    Picture1.surface.PaintPicture(
        context_.main.Pic.surface.Image(),
        Rectangle{0, 0, Picture1.surface.ScaleWidth(), Picture1.surface.ScaleHeight()});
}

void Afdrukken::ShowPrinterInTitle() {
    Caption = "Print Coinlet (" + context_.services.printer.DeviceName() + ")";
}

void Afdrukken::SelectPrinter(const std::string& name) {
    context_.services.printer.SelectPrinter(name);
    ShowPrinterInTitle();
}

void Afdrukken::Option1_Click(int index) {
    const bool ofDesign = index == currentDesign;
    Combo1.SetEnabled(ofDesign);
    Check1.SetEnabled(ofDesign);
    Label5.SetEnabled(ofDesign);
    if (ofDesign) {
        ShowCanvas();
    } else {
        Picture1.surface.SetPicture(context_.plaatjes.Img[index].Picture);
    }
}

void Afdrukken::PrintKnop_Click() {
    // While a job serves events, nobody starts another one into it.
    PrintKnop.SetEnabled(false);
    const std::string hint = context_.main.InfoLabel.Caption;
    RunJob();
    CloseDialogAfterWork(context_, *this, hint);
}

double Afdrukken::Copies() const {
    return Val(Combo1.Text());
}

void Afdrukken::RunJob() {
    if (Option1[allDesigns].Value()) {
        PrintAllDesigns(context_, File1, Picture2.surface);
    } else if (Option1[allCliparts].Value()) {
        PrintAllCliparts(context_, File1, Picture2.surface);
    } else {
        PrintDesign(context_, Copies(), WithInfoText());
    }
}

}  // namespace coinlet
