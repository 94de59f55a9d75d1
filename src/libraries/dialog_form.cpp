#include "libraries/dialog_form.h"

#include "base/clock.h"
#include "base/desktop.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/text.h"
#include "controls/hourglass.h"
#include "core/context.h"
#include "core/dialog.h"
#include "core/floating_image.h"
#include "core/language.h"
#include "core/text_keys.h"
#include "libraries/dialog_form_layout.h"
#include "libraries/drawn_box.h"
#include "surface/codecs.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace coinlet {

namespace {

/// Above the largest viewport a picture that was just loaded gets a viewport that is a little lower.
constexpr double loadedViewportHeight = 6430;
constexpr int naturalSize = 6, separator = 9, stretch = 10;

/// What the sizes of the menu divide width and height by. "75%" and "150%" are 67% and 133% really.
constexpr std::array<double, 8> divisors{10, 5, 4, 2, 1.5, 1, 0.75, 0.5};

/// "12,345": parted in thousands, at least three digits.
std::string FormatLength(std::uintmax_t bytes) {
    constexpr std::size_t leastDigits = 3, group = 3;
    std::string digits = std::to_string(bytes);
    if (digits.size() < leastDigits) digits.insert(0, leastDigits - digits.size(), '0');
    for (std::size_t place = digits.size(); place > group;) {
        place -= group;
        digits.insert(place, 1, ',');
    }
    return digits;
}

std::string WholePixels(double twips) {
    return std::to_string(Truncate(twips / twipsPerPixel));
}

std::string SizeText(const std::string& width, const std::string& height) {
    return "Size... : " + width + " x " + height + " Pixels";
}

std::string LastCharacters(const std::string& text, std::size_t count) {
    const std::vector<std::string> characters = Characters(text);
    std::string last;
    for (std::size_t i = characters.size() - std::min(count, characters.size()); i < characters.size(); ++i)
        last += characters[i];
    return last;
}

/// Where the picture begins that a scroll bar shows, in pixels.
int ScrolledPixels(const ScrollBar& bar) {
    return RoundHalfEven(bar.Value() / twipsPerPixel);
}

/// Lets a bar move over what the viewport doesn't show.
void SetReach(ScrollBar& bar, double viewport, double picture) {
    bar.SetEnabled(viewport < picture);
    if (viewport < picture) bar.SetMax(RoundHalfEven(picture - viewport));
}

}  // namespace

DialogForm::DialogForm(Context& context)
    : Form(context.services.ForForms(), "DialogForm"), context_(context) {
    LayOutDialogForm(*this);
    Drive1.Change = [this] { Drive1_Change(); };
    Dir1.Change = [this] { Dir1_Change(); };
    List1.Click = [this] { List1_Click(); };
    SizePic.Bind(&MenuItem::Click, [this](int index) { SizePic_Click(index); });
    HoekKnop.Click = [this] { SizePic_Click(stretch); };
    for (ScrollBar* bar : {&HScroll1, &VScroll1}) {
        bar->Change = [this] { ScrollPicture(); };
        bar->Scroll = [this] { ScrollPicture(); };
    }
    Pic.MouseDown = [this](int, int, float x, float y) { Pic_MouseDown(x, y); };
    Pic.MouseMove = [this](int, int, float x, float y) { Pic_MouseMove(x, y); };
    Pic.MouseUp = [this](int, int, float, float) { Pic_MouseUp(); };
    FileExit.Click = [this] { Unload(); };
    ExportKnop.Click = [this] { ExportKnop_Click(); };
    CancelKnop.Click = [this] { CloseDialog(context_, *this); };
}

void DialogForm::Form_Load() {
    Label4.Caption = LookupInfoText(context_, key::importHelp);
    Label5.Caption = "Size... :";
    // Where the user's pictures are, without listing them yet; else at home.
    const std::vector<std::string> places = context_.services.desktop.StartingPlaces();
    if (!Dir1.StartWith(context_.services.desktop.PictureFolder().string())) {
        const bool isHome = places.size() > 1 && Dir1.StartWith(places[1]);
        if (!isHome) Dir1.StartWith(places.front());
    }
    Drive1.StartWith(places, Dir1.Path());
    Dir1.SetFocus();
}

void DialogForm::Drive1_Change() {
    Dir1.SetPath(Drive1.Drive());
}

void DialogForm::Dir1_Change() {
    File1.SetPath(Dir1.Path());
    List1.Clear();
    for (int i = 0; i < File1.ListCount(); ++i)
        List1.AddItem(File1.List(i));
}

void DialogForm::CheckSize(int index) {
    for (int i = SizePic.First(); i <= SizePic.Last(); ++i)
        SizePic[i].Checked = i == index;
}

void DialogForm::List1_Click() {
    const Hourglass hourglass(context_.services.platform);
    CheckSize(naturalSize);
    const fs::path file = fs::path(File1.Path()) / File1.List(List1.ListIndex());
    // Nobody acts on it: saving sets it anew before it reads it.
    constexpr std::size_t extensionLength = 3;
    context_.session.SaveMode = LastCharacters(file.string(), extensionLength);
    // A file that is no picture leaves the former one, which is shown anew.
    if (const auto picture = LoadPicture(file, context_.services.codecs))
        Orgineel.surface.SetPicture(*picture);
    BackPic.Show(Orgineel.Image(), Orgineel.Width(), Orgineel.Height());
    ShowFile(file);
    Pic.SetWidth(std::min(BackPic.Width(), viewportWidth));
    Pic.SetHeight(BackPic.Height() > viewportHeight ? loadedViewportHeight : BackPic.Height());
    AdjustScrollBars();
}

void DialogForm::ShowFile(const fs::path& file) {
    Label4.Caption = "File..... : " + file.string();
    // A file that has gone meanwhile has no date; what stood there stays.
    const auto state = StateOfFile(file);
    if (!state) return;
    const auto pixels = [](double twips) { return std::to_string(RoundHalfEven(twips / twipsPerPixel)); };
    const DateTime changed = ToLocalTime(state->changed);
    Label5.Caption = SizeText(pixels(Orgineel.Width()), pixels(Orgineel.Height())) +
                     "  /  Date : " + FormatDate(changed) + " " + FormatTime(changed) +
                     "  /  Bytes : " + FormatLength(state->bytes);
}

void DialogForm::SizePic_Click(int index) {
    if (index == separator) return;
    const Hourglass hourglass(context_.services.platform);
    CheckSize(index);
    double width = viewportWidth, height = viewportHeight;
    if (index != stretch) {
        const double divisor = divisors.at(static_cast<std::size_t>(index - 1));
        width = Truncate(Orgineel.Width() / divisor);
        height = Truncate(Orgineel.Height() / divisor);
    }
    BackPic.Show(Orgineel.Image(), width, height);
    Pic.SetWidth(std::min(width, viewportWidth));
    Pic.SetHeight(std::min(height, viewportHeight));
    AdjustScrollBars();
}

void DialogForm::AdjustScrollBars() {
    HScroll1.SetValue(0);
    VScroll1.SetValue(0);
    Pic.surface.SetPicture({});
    BackPic.PaintOnto(Pic.surface, 0, 0);
    Pic.surface.SetPicture(Pic.surface.Image());
    SetReach(HScroll1, Pic.Width(), BackPic.Width());
    SetReach(VScroll1, Pic.Height(), BackPic.Height());
}

void DialogForm::ScrollPicture() {
    BackPic.PaintOnto(Pic.surface, ScrolledPixels(HScroll1), ScrolledPixels(VScroll1));
    context_.services.platform.DoEvents();
}

void DialogForm::Pic_MouseDown(float x, float y) {
    BeginBox(context_.session, Layer, x, y);
}

void DialogForm::Pic_MouseMove(float x, float y) {
    // Pressed or not: the box follows, but is seen only while it is drawn. The text tells of the box before.
    Label5.Caption = SizeText(WholePixels(Layer.Width()), WholePixels(Layer.Height()));
    StretchBox(context_.session, Layer, x, y);
}

void DialogForm::Pic_MouseUp() {
    ClipPic.SetWidth(Layer.Width());
    ClipPic.SetHeight(Layer.Height());
    // Heights are kept in 16 bits; a box that is drawn farther than they reach isn't cut out.
    const double width = ClipPic.Width();
    const int height = RoundHalfEven(ClipPic.Height());
    if (height > std::numeric_limits<std::int16_t>::max()) return;
    const Session& session = context_.session;
    ClipPic.surface.PaintPicture(Pic.surface.Image(), {0, 0, width, static_cast<double>(height)},
                                 {session.StartX, session.StartY, width, static_cast<double>(height)});
    Pic.SetWidth(ClipPic.Width());
    Pic.SetHeight(ClipPic.Height());
    Pic.surface.SetPicture(ClipPic.surface.Image());
    Label5.Caption = SizeText(WholePixels(width), WholePixels(height));
    Layer.Visible = false;
}

void DialogForm::ExportKnop_Click() {
    // The hint at the foot stays what it was; only its number follows.
    ExportAsFloatingImage(context_, *this, Pic.surface.Image(), FloatingHint::NumberOnly);
}

}  // namespace coinlet
