#include "tools/image_browser.h"

#include "base/files.h"
#include "base/numbers.h"
#include "base/program_folders.h"
#include "base/text.h"
#include "controls/hourglass.h"
#include "core/context.h"
#include "core/floating_image.h"
#include "core/folder_picker.h"
#include "core/main_form.h"
#include "core/main_layout.h"
#include "core/plaatjes.h"
#include "surface/codecs.h"
#include "surface/device.h"
#include "surface/mirror.h"

#include <string>
#include <string_view>

namespace coinlet {

namespace {

constexpr std::string_view stockPattern = "*.bmp;*.jpg;*.gif", anyFoldersPattern = "*.jpg;*.gif;*.bmp";

fs::path StockFolder(const Context& context) {
    return context.services.applicationFolder / program_folder::images;
}

/// Fills the list with the pictures of the session's image folder that match `pattern`.
void ListImages(Context& context, std::string_view pattern) {
    MainForm& main = context.main;
    main.File1.SetPath(context.session.ImageFolder);
    main.File1.SetPattern(std::string(pattern));
    main.List1.Clear();
    for (int i = 0; i < main.File1.ListCount(); ++i)
        main.List1.AddItem(main.File1.List(i));
}

}  // namespace

void ListStockImages(Context& context) {
    context.session.ImageFolder = StockFolder(context).string();
    ListImages(context, stockPattern);
}

void ShowImageCount(Context& context) {
    context.main.Label8.Caption = "Images : " + std::to_string(context.main.File1.ListCount());
}

ImageBrowser::ImageBrowser(Context& context) : context_(context) {
    MainForm& main = context.main;
    main.List1.Click = [this] { List1_Click(); };
    main.ImgKnop.Click = [this] { ImgKnop_Click(); };
    main.MapKnop.Click = [this] { MapKnop_Click(); };
    main.HorKnop.Click = [this] { HorKnop_Click(); };
    main.VerKnop.Click = [this] { VerKnop_Click(); };
    main.RotatieKnop.Click = [this] { RotatieKnop_Click(); };
    main.OkKnop.Click = [this] { OkKnop_Click(); };
}

void ImageBrowser::List1_Click() {
    MainForm& main = context_.main;
    const Hourglass hourglass(context_.services.platform);
    const fs::path file = fs::path(context_.session.ImageFolder) / main.List1.Text();
    // A file that is no picture leaves the former one.
    if (const auto image = LoadPicture(file, context_.services.codecs))
        main.IconPic.surface.SetPicture(*image);
    const auto pixels = [](double twips) { return std::to_string(RoundHalfEven(twips / twipsPerPixel)); };
    main.Label8.Caption = pixels(main.IconPic.Width()) + " x " + pixels(main.IconPic.Height()) + " Pixels";
    ShowPicked();
}

void ImageBrowser::ImgKnop_Click() {
    // The path ends in a separator, and the files open all the same.
    context_.session.ImageFolder = (StockFolder(context_) / "").string();
    ListImages(context_, stockPattern);
    context_.main.Pic2.surface.SetPicture(context_.plaatjes.Img[0].Picture);
}

void ImageBrowser::MapKnop_Click() {
    const std::string folder = BrowseForFolder(context_, context_.session.ImageFolder);
    if (!TrimBlanks(folder).empty()) context_.session.ImageFolder = folder;
    ListImages(context_, anyFoldersPattern);
    context_.main.Pic2.surface.SetPicture({});
    ShowImageCount(context_);
}

bool ImageBrowser::IsLarge() const {
    const Surface& picked = context_.main.IconPic.surface;
    return picked.PixelWidth() > previewSide || picked.PixelHeight() > previewSide;
}

void ImageBrowser::ShowPicked() {
    MainForm& main = context_.main;
    const Surface& picked = main.IconPic.surface;
    if (IsLarge()) {
        constexpr double twips = previewSide * twipsPerPixel;
        main.Pic2.SetWidth(twips);
        main.Pic2.SetHeight(twips);
        main.Pic2.surface.PaintPicture(picked.Image(), {0, 0, previewSide, previewSide},
                                       {0, 0, picked.ScaleWidth(), picked.ScaleHeight()});
    } else {
        main.Pic2.surface.SetPicture(picked.Image());
    }
    main.RotatieKnop.SetEnabled(!IsLarge());
}

void ImageBrowser::HorKnop_Click() {
    Mirror(FlipHorizontal);
}

void ImageBrowser::VerKnop_Click() {
    Mirror(FlipVertical);
}

void ImageBrowser::Mirror(void (&flip)(Surface& picture)) {
    flip(context_.main.IconPic.surface);
    ShowPicked();
    if (IsLarge()) context_.services.platform.Screen.MousePointer = toolPointer;
}

void ImageBrowser::RotatieKnop_Click() {
    MainForm& main = context_.main;
    Surface& picked = main.IconPic.surface;
    Surface& turned = main.Pic2.surface;
    turned.Cls();
    main.Pic2.SetWidth(main.IconPic.Height());
    main.Pic2.SetHeight(main.IconPic.Width());
    // Columns become rows, so the picture is turned and mirrored at once.
    for (int y = 0; y < picked.PixelHeight(); ++y) {
        for (int x = 0; x < picked.PixelWidth(); ++x)
            SetPixel(turned.hDC(), y, x, GetPixel(picked.hDC(), x, y));
    }
    picked.SetPicture(turned.Image());
}

void ImageBrowser::OkKnop_Click() {
    FloatImage(context_, context_.main.IconPic.surface.Image());
}

}  // namespace coinlet
