#include "libraries/clipart_form.h"

#include "base/files.h"
#include "base/numbers.h"
#include "base/program_folders.h"
#include "controls/hourglass.h"
#include "core/clipart_library.h"
#include "core/context.h"
#include "core/dialog.h"
#include "core/floating_image.h"
#include "core/language.h"
#include "core/text_keys.h"
#include "filters/colour_removal.h"
#include "libraries/cell_row.h"
#include "libraries/clipart_form_layout.h"
#include "surface/codecs.h"
#include "surface/mirror.h"

#include <string>

namespace coinlet {

namespace {

// All in pixels.
constexpr int sheetWidth = clipartsASheet * clipartWidth, sheetHeight = clipartHeight;
constexpr Rectangle wholeSheet{0, 0, sheetWidth, sheetHeight};
constexpr Rectangle thumbnails{0, 0, clipartsASheet* thumbnailWidth, thumbnailHeight};
constexpr CellRow thumbnailRow{clipartsASheet, thumbnailWidth, thumbnailHeight, 5};
constexpr Rectangle wholeClipart{0, 0, clipartWidth, clipartHeight};

/// Height of a clipart for each pixel of its width.
constexpr double proportion = 1.09;

}  // namespace

ClipartForm::ClipartForm(Context& context)
    : Form(context.services.ForForms(), "ClipartForm"), context_(context) {
    LayOutClipartForm(*this);
    Combo1.Change = [this] { Combo1_Change(); };
    Combo1.Click = [this] { Combo1_Change(); };
    Pic.MouseDown = [this](int, int, float x, float y) { Pic_MouseDown(x, y); };
    Pic.SetPressPlaces(Places(thumbnailRow));
    VScroll2.Change = [this] { VScroll2_Change(); };
    VScroll2.Scroll = [this] { VScroll2_Change(); };
    BWKnop.Click = [this] { BWKnop_Click(); };
    HorKnop.Click = [this] { HorKnop_Click(); };
    ExportKnop.Click = [this] { ExportAsFloatingImage(context_, *this, BigPic.surface.Image()); };
    CancelKnop.Click = [this] { CloseDialog(context_, *this); };
}

void ClipartForm::Form_Load() {
    Label6.Caption = LookupInfoText(context_, key::clipartHelp);
    File1.SetPattern(std::string(clipartSheetPattern));
    File1.SetPath((context_.services.applicationFolder / program_folder::cliparts).string());
    for (int i = 0; i < File1.ListCount(); ++i)
        Combo1.AddItem(File1.List(i));
    Combo1.SetFocus();
    // Chosen like any other, the first sheet is shown.
    Combo1.SetListIndex(0);
    Label5.Caption = "Total " + std::to_string(Combo1.ListCount() * clipartsASheet) + " Cliparts";
}

void ClipartForm::LoadSheet() {
    const auto file = FindFile(File1.Path(), Combo1.Text());
    if (!file) return;
    if (const auto sheet = LoadPicture(*file, context_.services.codecs)) BackPic.surface.SetPicture(*sheet);
}

bool ClipartForm::HasSheet() const {
    return RoundHalfEven(BackPic.Width() / twipsPerPixel) == sheetWidth &&
           RoundHalfEven(BackPic.Height() / twipsPerPixel) == sheetHeight;
}

void ClipartForm::Combo1_Change() {
    {
        const Hourglass hourglass(context_.services.platform);
        LoadSheet();
        if (HasSheet()) {
            Pic.surface.PaintPicture(BackPic.surface.Image(), thumbnails, wholeSheet);
            return;
        }
    }
    context_.services.platform.ShowMessage({.prompt = LookupInfoText(context_, key::noClipartLibrary),
                                            .title = "Error",
                                            .icon = MessageIcon::Stop});
}

void ClipartForm::Pic_MouseDown(float x, float y) {
    // Between the thumbnails the first one is meant.
    const double left = CellAt(thumbnailRow, x, y).value_or(0) * clipartWidth;
    ExportPic.surface.PaintPicture(BackPic.surface.Image(), wholeClipart,
                                   {left, 0, clipartWidth, clipartHeight});
    ShowChosen();
}

void ClipartForm::ShowChosen() {
    Surface& big = BigPic.surface;
    big.PaintPicture(ExportPic.surface.Image(), {0, 0, big.ScaleWidth(), big.ScaleHeight()}, wholeClipart);
}

void ClipartForm::VScroll2_Change() {
    const int width = VScroll2.Value(), height = RoundHalfEven(width * proportion);
    BigPic.surface.Cls();
    BigPic.SetWidth(width * twipsPerPixel);
    BigPic.SetHeight(height * twipsPerPixel);
    ShowChosen();
    Label9.Caption = ClipartSizeText(BigPic.surface.ScaleWidth(), BigPic.surface.ScaleHeight());
}

void ClipartForm::BWKnop_Click() {
    const Hourglass hourglass(context_.services.platform);
    ApplyBlackWhite(context_, BigPic.surface);
}

void ClipartForm::HorKnop_Click() {
    FlipHorizontal(BigPic.surface);
    BigPic.surface.Refresh();
}

}  // namespace coinlet
