#include "store/afdrukken.h"

#include "base/numbers.h"
#include "controls/placing.h"
#include "core/context.h"
#include "core/dialog.h"
#include "core/main_form.h"
#include "core/plaatjes.h"
#include "store/print_jobs.h"
#include "surface/printer.h"

#include <array>

namespace coinlet {

namespace {

enum Job { currentDesign, allDesigns, allCliparts };
constexpr std::array jobCaptions{"Print Current Design", "Print All Designs", "Print All Cliparts"};

constexpr int previewSide = 140;
constexpr int mostCopiesListed = 20;

}  // namespace

Afdrukken::Afdrukken(Context& context) : Form(context.services.ForForms(), "Afdrukken"), context_(context) {
    LayOut();
    Option1[currentDesign].SetValue(true);
    Check1.SetValue(true);
    Option1.Bind(&OptionButton::Click, [this](int index) { Option1_Click(index); });
    Combo2.Change = [this] { SelectPrinter(Combo2.Text()); };
    Combo2.Click = [this] { SelectPrinter(Combo2.Text()); };
    PrintKnop.Click = [this] { PrintKnop_Click(); };
    CancelKnop.Click = [this] { CloseDialog(context_, *this); };
    DefaultButton = &PrintKnop;
}

void Afdrukken::LayOut() {
    constexpr int margin = 12, column = 168, optionPitch = 24;
    Width = 360 * twipsPerPixel;
    Height = 246 * twipsPerPixel;
    Label2.Border = true;
    PlaceByPixels(Label2, margin, margin, previewSide + 4, previewSide + 4);
    PlaceByPixels(Picture1, margin + 2, margin + 2, previewSide, previewSide);
    for (int i = Option1.First(); i <= Option1.Last(); ++i) {
        Option1[i].Caption = jobCaptions.at(static_cast<std::size_t>(i));
        PlaceByPixels(Option1[i], column, margin + i * optionPitch, 180, 20);
    }
    Label5.Caption = "Copy's";
    PlaceByPixels(Label5, column, 104, 48, 16);
    PlaceByPixels(Combo1, column + 52, 100, 56, 22);
    Check1.Caption = "Print including info text";
    PlaceByPixels(Check1, column, 134, 180, 20);
    Label1.Caption = "Printer Choice";
    PlaceByPixels(Label1, margin, 166, 144, 16);
    PlaceByPixels(Combo2, margin, 184, 336, 22);
    for (ComboBox* combo : {&Combo1, &Combo2}) {
        combo->ForeColor = black;
        combo->BackColor = RGB(240, 210, 210);
    }
    PrintKnop.SetCaption("Print");
    PlaceByPixels(PrintKnop, 180, 214, 80, 24);
    CancelKnop.SetCaption("Cancel");
    PlaceByPixels(CancelKnop, 268, 214, 80, 24);
    File1.Visible = false;
    Picture2.Visible = false;
    Picture2.surface.AutoSize = true;
}

void Afdrukken::Form_Load() {
    ShowPrinterInTitle();
    const Printer& printer = context_.services.printer;
    for (const std::string& name : printer.DeviceNames())
        Combo2.AddItem(name);
    Combo2.SetText(printer.DeviceName());
    for (int copies = 1; copies <= mostCopiesListed; ++copies)
        Combo1.AddItem(std::to_string(copies));
    Combo1.SetListIndex(0);
    ShowCanvas();
    Combo1.SetFocus();
}

void Afdrukken::ShowCanvas() {
    Picture1.surface.PaintPicture(context_.main.Pic.surface.Image(),
                                  Rectangle{0, 0, previewSide, previewSide});
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
    RunJob();
    CloseDialog(context_, *this);
}

void Afdrukken::RunJob() {
    if (Option1[allDesigns].Value()) {
        PrintAllDesigns(context_, File1, Picture2.surface);
    } else if (Option1[allCliparts].Value()) {
        PrintAllCliparts(context_, File1, Picture2.surface);
    } else {
        PrintDesign(context_, Val(Combo1.Text()), Check1.Value());
    }
}

}  // namespace coinlet
