#include "libraries/symbol_form.h"

#include "base/file_name.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/program_folders.h"
#include "controls/hourglass.h"
#include "core/context.h"
#include "core/dialog.h"
#include "core/floating_image.h"
#include "core/main_form.h"
#include "libraries/drawn_box.h"
#include "libraries/symbol_form_layout.h"
#include "surface/print_at.h"

#include <string_view>

namespace coinlet {

namespace {

constexpr std::string_view extension = ".ttf";

}  // namespace

SymbolForm::SymbolForm(Context& context)
    : Form(context.services.ForForms(), "SymbolForm"), context_(context) {
    LayOutSymbolForm(*this);
    InstalKnop.Click = [this] { InstalKnop_Click(); };
    Combo2.Change = [this] { Combo2_Change(); };
    Combo2.Click = [this] { Combo2_Change(); };
    HScroll1.Change = [this] { HScroll1_Change(); };
    HScroll1.Scroll = [this] { HScroll1_Change(); };
    Pic.MouseDown = [this](int button, int, float x, float y) { Pic_MouseDown(button, x, y); };
    Pic.MouseMove = [this](int button, int, float x, float y) { Pic_MouseMove(button, x, y); };
    ExportKnop.Click = [this] { ExportKnop_Click(); };
    CancelKnop.Click = [this] { CloseDialog(context_, *this); };
}

void SymbolForm::Form_Load() {
    File1.SetPattern("*" + std::string(extension));
    File1.SetPath((context_.services.applicationFolder / program_folder::fonts).string());
    for (int i = 0; i < File1.ListCount(); ++i)
        Combo1.AddItem(WithoutExtension(File1.List(i)));
    Combo1.SetListIndex(0);
    BackLabel.FontName = Combo1.Text();
    Combo1.SetFocus();
}

std::string SymbolForm::AddChosenFont() {
    const fs::path folder = File1.Path();
    // A row stands for its own file, whatever the letters of its extension; a name that was typed is looked
    // for.
    const int row = Combo1.ListIndex();
    const auto file = row >= 0 && row < File1.ListCount()
                          ? folder / File1.List(row)
                          : FindFile(folder, Combo1.Text() + std::string(extension));
    return file ? context_.services.fonts.AddFontFile(*file) : std::string();
}

float SymbolForm::ChosenSize() const {
    return Single(Val(Combo2.Text()));
}

void SymbolForm::InstalKnop_Click() {
    const Hourglass hourglass(context_.services.platform);
    const std::string family = AddChosenFont();
    printed_.reset();
    BackLabel.FontName = family;
    BackLabel.FontSize = ChosenSize();
    BackPic.surface.FontName = family;
    context_.services.platform.DoEvents();
    DrawSymbolStrip();
}

void SymbolForm::PrintStrip() {
    Surface& strip = BackPic.surface;
    strip.FontSize = ChosenSize();
    // Every letter that is typed into the field of the size comes here, and most leave its number as it is.
    const Strip wanted{strip.FontName, BackLabel.Caption, strip.FontSize, BackLabel.Width()};
    if (printed_ == wanted) return;
    printed_.reset();
    strip.SetPicture({});
    // A text that no picture can hold leaves the strip as wide as it was.
    BackPic.SetWidth(BackLabel.Width());
    PrintAt(strip, 0, 0, BackLabel.Caption);
    printed_ = wanted;
}

void SymbolForm::DrawSymbolStrip() {
    PrintStrip();
    const Surface& strip = BackPic.surface;
    ShowStrip(0);
    // A strip narrower than the window leaves nothing to scroll.
    HScroll1.SetMax(RoundHalfEven(strip.ScaleWidth() - Pic.surface.ScaleWidth()));
    HScroll1.SetValue(0);
    Caption = "True Type Symbols (" + FormatNumber(BackLabel.Width() / twipsPerPixel) + ")";
}

void SymbolForm::ShowStrip(int column) {
    Surface& window = Pic.surface;
    const double width = window.ScaleWidth(), height = window.ScaleHeight();
    // Beside a narrow strip the window is blank, whatever it showed before.
    window.Cls();
    window.PaintPicture(BackPic.surface.Image(), {0, 0, width, height},
                        {static_cast<double>(column), 0, width, height});
}

void SymbolForm::HScroll1_Change() {
    ShowStrip(HScroll1.Value());
    context_.services.platform.DoEvents();
}

void SymbolForm::Combo2_Change() {
    const Hourglass hourglass(context_.services.platform);
    const int size = RoundHalfEven(ChosenSize());
    BackPic.surface.FontSize = BackLabel.FontSize = static_cast<float>(size);
    DrawSymbolStrip();
    context_.services.platform.DoEvents();
}

void SymbolForm::Pic_MouseDown(int button, float x, float y) {
    if (button == leftButton) BeginBox(context_.session, Layer, x, y);
}

void SymbolForm::Pic_MouseMove(int button, float x, float y) {
    if (button == leftButton) StretchBox(context_.session, Layer, x, y);
}

void SymbolForm::ExportKnop_Click() {
    PictureBox& clip = context_.main.ClipPic;
    const double width = Layer.Width(), height = Layer.Height();
    clip.SetWidth(width);
    clip.SetHeight(height);
    clip.surface.PaintPicture(Pic.surface.Image(), {0, 0, width, height},
                              {Layer.Left(), Layer.Top(), width, height});
    ExportAsFloatingImage(context_, *this, clip.surface.Image());
}

}  // namespace coinlet
