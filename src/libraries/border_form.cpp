#include "libraries/border_form.h"

#include "base/program_folders.h"
#include "core/context.h"
#include "core/dialog.h"
#include "core/main_form.h"
#include "core/side_panel.h"
#include "core/stock_pictures.h"
#include "core/undo.h"
#include "libraries/border_form_layout.h"
#include "surface/codecs.h"

#include <array>
#include <initializer_list>
#include <iterator>
#include <string>
#include <string_view>

namespace coinlet {

namespace {

constexpr int tagSide = 100, holeSide = 100;  // pixels
constexpr Rectangle fullSize{0, 0, borderSide, borderSide};
constexpr Rectangle previewSize{0, 0, borderPreviewSide, borderPreviewSide};
constexpr Rectangle tagSize{0, 0, tagSide, tagSide};
constexpr Rectangle previewMiddle{75, 75, tagSide, tagSide};

struct HolePosition {
    std::string_view name;
    int x, y;  ///< On the preview, in pixels.
};
constexpr std::array<HolePosition, 8> holePositions{{
    {"Top", 100, 11},
    {"Top-Right", 165, 40},
    {"Right", 187, 100},
    {"Right-Bottom", 164, 160},
    {"Bottom", 100, 189},
    {"Left-Bottom", 38, 161},
    {"Left", 12, 100},
    {"Top-Left", 38, 39},
}};

/// Wipes what lies outside of a tag, out to beyond the corners of the canvas.
void CutOutTag(Surface& canvas) {
    constexpr int beyondTheCorners = 355, tagRadius = 240, wideEnoughToLeaveNoGap = 3;
    constexpr double middle = canvasSide / 2.0;
    canvas.DrawWidth = wideEnoughToLeaveNoGap;
    for (int radius = beyondTheCorners; radius >= tagRadius; --radius)
        canvas.Circle(middle, middle, radius, white);
}

}  // namespace

BorderForm::BorderForm(Context& context)
    : Form(context.services.ForForms(), "BorderForm"), context_(context) {
    LayOutBorderForm(*this);
    HolePic.Picture = BorderHoleRings();
    for (int i = Image1.First(); i <= Image1.Last(); ++i)
        Image1[i].Picture = BlankTag(i);
    List1.Click = [this] { List1_Click(); };
    Option1.Bind(&OptionButton::Click, [this](int index) { Option1_Click(index); });
    HScroll1.Change = [this] { HScroll1_Change(); };
    HScroll1.Scroll = [this] { HScroll1_Change(); };
    Check1.Click = [this] { Check1_Click(); };
    ExportKnop.Click = [this] { ExportKnop_Click(); };
    CancelKnop.Click = [this] { CancelKnop_Click(); };
}

void BorderForm::Form_Load() {
    File1.SetPattern("*.gif");
    File1.SetPath((context_.services.applicationFolder / program_folder::borders).string());
    for (int i = 0; i < File1.ListCount(); ++i)
        List1.AddItem(File1.List(i));
    // Chosen like any other, the first border is shown.
    List1.SetListIndex(0);
    // Also without a border the metal is the one that the dialog shows as chosen.
    SetMaterial(0);
    List1.SetFocus();
}

void BorderForm::SetMaterial(int index) {
    borderMetal_ = static_cast<std::size_t>(index);
    const Material& material = materials.at(borderMetal_);
    Session& session = context_.session;
    session.MaterialName = material.name;
    session.MaterialRed = material.red;
    session.MaterialGreen = material.green;
    session.MaterialBlue = material.blue;
}

int BorderForm::BorderColumn() const {
    return static_cast<int>(borderMetal_) * borderSide;
}

int BorderForm::HoleColumn() const {
    return materials.at(borderMetal_).holeColumn;
}

void BorderForm::List1_Click() {
    const fs::path folder = context_.services.applicationFolder / program_folder::borders;
    // A file that is no picture leaves the former border.
    if (const auto strip = LoadPicture(folder / List1.Text(), context_.services.codecs))
        BackPic.surface.SetPicture(*strip);
    DrawBorderPreview();
}

void BorderForm::Option1_Click(int index) {
    SetMaterial(index);
    DrawBorderPreview();
}

void BorderForm::HScroll1_Change() {
    const int chosen = HScroll1.Value();
    if (chosen < 0 || chosen >= std::ssize(holePositions)) return;
    const auto& [name, x, y] = holePositions.at(static_cast<std::size_t>(chosen));
    holeX_ = x;
    holeY_ = y;
    DrawBorderPreview();
    Label3.Caption = "Hole position (" + std::string(name) + ")";
}

void BorderForm::Check1_Click() {
    for (Control* control : std::initializer_list<Control*>{&Label2, &HScroll1, &Label3})
        control->Visible = HasHole();
    DrawBorderPreview();
}

void BorderForm::DrawBorderPreview() {
    const Image strip = BackPic.surface.Image();
    const int column = BorderColumn();
    const Rectangle frame{static_cast<double>(column), 0, borderSide, borderSide};
    // What a short strip lacks stays blank, whatever was shown before.
    Orgineel.surface.Cls();
    Orgineel.surface.PaintPicture(strip, fullSize, frame);
    Pic.surface.Cls();
    Pic.surface.PaintPicture(strip, previewSize, frame);
    Pic.surface.PaintPicture(Image1[static_cast<int>(borderMetal_)].Picture, previewMiddle, tagSize);
    if (!HasHole()) return;
    StampHole(Pic.surface, 1, HoleColumn());
    // Not the stamp's own column: beyond the first metal there is nothing to stamp here, and only the export
    // stamps the border.
    StampHole(Orgineel.surface, 2, column);
}

void BorderForm::StampHole(Surface& border, int scale, int column) const {
    constexpr double holeOnPreview = holeSide / 2.0;
    const double enlarged = scale;
    const Rectangle place{enlarged * holeX_, enlarged * holeY_, enlarged * holeOnPreview,
                          enlarged * holeOnPreview};
    border.PaintPicture(HolePic.Picture, place, {static_cast<double>(column), 0, holeSide, holeSide}, SRCAND);
}

void BorderForm::ExportKnop_Click() {
    MainForm& main = context_.main;
    Surface& canvas = main.Pic.surface;
    KeepForUndo(main);
    CutOutTag(canvas);
    canvas.DrawWidth = main.HScroll1.Value();
    if (HasHole()) StampHole(Orgineel.surface, 2, HoleColumn());
    canvas.PaintPicture(Orgineel.surface.Image(), fullSize, fullSize, Merges() ? SRCAND : SRCCOPY);
    CloseDialog(context_, *this);
    PrintMetal(main.InfoPic.surface, context_.session.MaterialName);
}

void BorderForm::CancelKnop_Click() {
    context_.session.MaterialName.clear();
    CloseDialog(context_, *this);
    WipeMetal(context_.main.InfoPic.surface);
}

}  // namespace coinlet
