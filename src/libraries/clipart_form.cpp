#include "libraries/clipart_form.h"

#include "base/files.h"
#include "base/numbers.h"
#include "controls/hourglass.h"
#include "core/context.h"
#include "core/dialog.h"
#include "core/floating_image.h"
#include "core/language.h"
#include "core/text_keys.h"
#include "filters/colour_removal.h"
#include "libraries/clipart_form_layout.h"
#include "surface/codecs.h"
#include "surface/mirror.h"

#include <string>
#include <string_view>
#include <vector>

namespace coinlet {

namespace {

constexpr std::string_view libraryFolder = "\\Cliparts";

// All in pixels.
constexpr int sheetWidth = cliparts * clipartWidth, sheetHeight = clipartHeight;
constexpr Rectangle wholeSheet{0, 0, sheetWidth, sheetHeight};
constexpr Rectangle thumbnails{0, 0, cliparts* thumbnailWidth, thumbnailHeight};
constexpr Rectangle wholeClipart{0, 0, clipartWidth, clipartHeight};

/// Height of a clipart for each pixel of its width.
constexpr double proportion = 1.09;

/// The clipart of the sheet that a press on the thumbnails hits, from 0: the first one between them, too.
int ClipartAt(float x, float y) {
    constexpr int inset = 5;
    if (y > inset && y < thumbnailHeight - inset) {
        for (int i = 0; i < cliparts; ++i) {
            const int left = i * thumbnailWidth;
            if (x > static_cast<float>(left + inset) && x < static_cast<float>(left + thumbnailWidth - inset))
                return i;
        }
    }
    return 0;
}

std::vector<Rectangle> ThumbnailPlaces() {
    std::vector<Rectangle> places;
    places.reserve(cliparts);
    for (int i = 0; i < cliparts; ++i)
        places.push_back({static_cast<double>(i * thumbnailWidth), 0, thumbnailWidth, thumbnailHeight});
    return places;
}

}  // namespace

ClipartForm::ClipartForm(Context& context)
    : Form(context.services.ForForms(), "ClipartForm"), context_(context) {
    LayOutClipartForm(*this);
    Combo1.Change = [this] { Combo1_Change(); };
    Combo1.Click = [this] { Combo1_Change(); };
    Pic.MouseDown = [this](int, int, float x, float y) { Pic_MouseDown(x, y); };
    Pic.SetPressPlaces(ThumbnailPlaces());
    VScroll2.Change = [this] { VScroll2_Change(); };
    VScroll2.Scroll = [this] { VScroll2_Change(); };
    BWKnop.Click = [this] { BWKnop_Click(); };
    HorKnop.Click = [this] { HorKnop_Click(); };
    ExportKnop.Click = [this] { ExportAsFloatingImage(context_, *this, BigPic.surface.Image()); };
    CancelKnop.Click = [this] { CloseDialog(context_, *this); };
}

void ClipartForm::Form_Load() {
    Label6.Caption = LookupInfoText(context_, key::clipartHelp);
    File1.SetPattern("*.art");
    File1.SetPath(Beneath(context_.services.applicationFolder, libraryFolder).string());
    for (int i = 0; i < File1.ListCount(); ++i)
        Combo1.AddItem(File1.List(i));
    Combo1.SetFocus();
    // Chosen like any other, the first sheet is shown.
    Combo1.SetListIndex(0);
    Label5.Caption = "Total " + std::to_string(Combo1.ListCount() * cliparts) + " Cliparts";
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
    const double left = ClipartAt(x, y) * clipartWidth;
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
    Label9.Caption = "Size Clipart (" + FormatNumber(BigPic.surface.ScaleWidth()) + "x" +
                     FormatNumber(BigPic.surface.ScaleHeight()) + ")";
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
