#include "libraries/back_form.h"

#include "base/numbers.h"
#include "core/context.h"
#include "core/dialog.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/row_file.h"
#include "core/side_panel.h"
#include "core/text_keys.h"
#include "libraries/back_form_layout.h"
#include "surface/codecs.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace coinlet {

namespace {

constexpr int firstCollection = 1;
constexpr int cellSide = sidePanelBackSide, cellsARow = 4;  // pixels
constexpr double rowWidth = cellSide * cellsARow;
constexpr Rectangle oneCell{0, 0, cellSide, cellSide};

fs::path FileOf(const Context& context, int collection, const std::string& extension) {
    return Beneath(context.services.applicationFolder,
                   "\\Data\\Back-" + std::to_string(collection) + extension);
}

/// True if a press lies within one of the cells of a row, whose outermost pixels don't count.
bool IsWithinCell(float fromEdge) {
    constexpr float inset = 2;
    return fromEdge > inset && fromEdge < cellSide - inset;
}

/// The cell of a row that a press hits, from 0, or -1 for none.
int CellAt(float x, float y) {
    if (!IsWithinCell(y)) return -1;
    for (int cell = 0; cell < cellsARow; ++cell)
        if (IsWithinCell(x - static_cast<float>(cell * cellSide))) return cell;
    return -1;
}

std::vector<Rectangle> CellPlaces() {
    std::vector<Rectangle> places;
    places.reserve(cellsARow);
    for (int cell = 0; cell < cellsARow; ++cell)
        places.push_back({static_cast<double>(cell * cellSide), 0, cellSide, cellSide});
    return places;
}

}  // namespace

BackForm::BackForm(Context& context) : Form(context.services.ForForms(), "BackForm"), context_(context) {
    LayOutBackForm(*this);
    Option1.Bind(&OptionButton::Click, [this](int index) { Option1_Click(index); });
    HScroll1.Change = [this] { HScroll1_Change(); };
    HScroll1.Scroll = [this] { HScroll1_Change(); };
    Pic.MouseDown = [this](int, int, float x, float y) { Pic_MouseDown(x, y); };
    Pic.SetPressPlaces(CellPlaces());
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
    return RoundHalfEven(BackPic.surface.ScaleHeight() / cellSide - 1);
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
    const double top = double{cellSide} * HScroll1.Value();
    // What a row that is cut off lacks is blank, whatever stood there before.
    Pic.surface.Line(0, 0, rowWidth, cellSide, white, Box::Filled);
    Pic.surface.PaintPicture(BackPic.surface.Image(), {0, 0, rowWidth, cellSide},
                             {0, top, rowWidth, cellSide});
}

std::string BackForm::NameOfCell(int cell) const {
    const std::int64_t place = std::int64_t{HScroll1.Value()} * cellsARow + cell;
    return place >= 0 && place < List1.ListCount() ? List1.List(static_cast<int>(place)) : std::string();
}

void BackForm::Pic_MouseDown(float x, float y) {
    const int cell = CellAt(x, y);
    const double offset = std::max(cell, 0) * cellSide;
    Orgineel.surface.PaintPicture(Pic.surface.Image(), oneCell, {offset, 0, cellSide, cellSide});
    // Beside the cells lies no back, and so no name.
    context_.session.BackName = cell < 0 ? std::string() : NameOfCell(cell);
    ShowName(context_.session.BackName);
}

void BackForm::ExportKnop_Click() {
    MainForm& main = context_.main;
    main.Label16.Visible = false;
    PaintBack(main.InfoPic.surface, Orgineel.surface.Image());
    CloseDialog(context_, *this);
}

}  // namespace coinlet
