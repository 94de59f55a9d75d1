#include "libraries/back_form.h"

#include "base/numbers.h"
#include "base/program_folders.h"
#include "core/context.h"
#include "core/dialog.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/row_file.h"
#include "core/side_panel.h"
#include "core/text_keys.h"
#include "libraries/back_form_layout.h"
#include "libraries/cell_row.h"
#include "surface/codecs.h"

#include <cstdint>
#include <optional>
#include <string>

namespace coinlet {

namespace {

constexpr int firstCollection = 1;
constexpr Rectangle oneBack{0, 0, backSide, backSide};
constexpr CellRow backRow{backsARow, backSide, backSide, 2};

fs::path FileOf(const Context& context, int collection, const std::string& extension) {
    return context.services.applicationFolder / program_folder::data /
           ("Back-" + std::to_string(collection) + extension);
}

}  // namespace

BackForm::BackForm(Context& context) : Form(context.services.ForForms(), "BackForm"), context_(context) {
    LayOutBackForm(*this);
    ShowName("");
    Option1.Bind(&OptionButton::Click, [this](int index) { Option1_Click(index); });
    HScroll1.Change = [this] { HScroll1_Change(); };
    HScroll1.Scroll = [this] { HScroll1_Change(); };
    Pic.MouseDown = [this](int, int, float x, float y) { Pic_MouseDown(x, y); };
    Pic.SetPressPlaces(Places(backRow));
    ExportKnop.Click = [this] { ExportKnop_Click(); };
    CancelKnop.Click = [this] { Unload(); };
}

void BackForm::Form_Load() {
    Label4.Caption = LookupInfoText(context_, key::backsHelp);
    HScroll1.SetFocus();
    if (!LoadBackPicture(firstCollection)) return;
    HScroll1.SetMax(LastRow());
    LoadBackNames(firstCollection);
    ShowName(List1.List(0));
}

bool BackForm::LoadBackPicture(int collection) {
    const auto picture = LoadPicture(FileOf(context_, collection, ".bak"), context_.services.codecs);
    if (!picture) return false;
    BackPic.surface.SetPicture(*picture);
    Pic.surface.SetPicture(BackPic.surface.Image());
    return true;
}

void BackForm::LoadBackNames(int collection) {
    List1.Clear();
    AddRowsOfFile(List1, FileOf(context_, collection, ".txt"));
}

int BackForm::LastRow() const {
    return RoundHalfEven(BackPic.surface.ScaleHeight() / backSide - 1);
}

void BackForm::ShowName(const std::string& name) {
    Label5.Caption = "Name : " + name;
}

void BackForm::Option1_Click(int index) {
    if (!LoadBackPicture(index)) return;
    HScroll1.SetValue(0);
    ShowName("");
    HScroll1.SetMax(LastRow());
    LoadBackNames(index);
}

void BackForm::HScroll1_Change() {
    const double top = double{backSide} * HScroll1.Value();
    // What a row that is cut off lacks is blank, whatever stood there before.
    Pic.surface.Line(0, 0, backRowWidth, backSide, white, Box::Filled);
    Pic.surface.PaintPicture(BackPic.surface.Image(), {0, 0, backRowWidth, backSide},
                             {0, top, backRowWidth, backSide});
}

std::string BackForm::NameOfCell(int cell) const {
    const std::int64_t place = std::int64_t{HScroll1.Value()} * backsARow + cell;
    return place >= 0 && place < List1.ListCount() ? List1.List(static_cast<int>(place)) : std::string();
}

void BackForm::Pic_MouseDown(float x, float y) {
    const std::optional<int> cell = CellAt(backRow, x, y);
    const double left = cell.value_or(0) * backSide;
    Orgineel.surface.PaintPicture(Pic.surface.Image(), oneBack, {left, 0, backSide, backSide});
    // Beside the cells lies no back, and so no name.
    context_.session.BackName = cell ? NameOfCell(*cell) : std::string();
    ShowName(context_.session.BackName);
}

void BackForm::ExportKnop_Click() {
    MainForm& main = context_.main;
    main.Label16.Visible = false;
    PaintBack(main.InfoPic.surface, Orgineel.surface.Image());
    CloseDialog(context_, *this);
}

}  // namespace coinlet
