#include "filters/color_change.h"

#include "base/numbers.h"
#include "base/text.h"
#include "controls/hourglass.h"
#include "core/canvas_dialog.h"
#include "core/context.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/text_keys.h"
#include "filters/color_change_layout.h"
#include "filters/colour_palettes.h"
#include "filters/surface_walk.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <string>
#include <vector>

namespace coinlet {

namespace {

/// What the sliders are called and where they stand at first.
struct SliderStart {
    const char* caption;
    int value;
};
constexpr std::array<SliderStart, 3> sliderStarts{{{"R : ", 250}, {"G : ", 100}, {"B : ", 0}}};

void SetBoxes(ControlArray<PictureBox>& boxes, const PaletteColours& colours) {
    for (int i = boxes.First(); i <= boxes.Last(); ++i)
        boxes[i].surface.SetBackColor(colours.at(static_cast<std::size_t>(i)));
}

PaletteColours ColoursOf(const ControlArray<PictureBox>& boxes) {
    PaletteColours colours{};
    for (int i = boxes.First(); i <= boxes.Last(); ++i)
        colours.at(static_cast<std::size_t>(i)) = boxes[i].surface.BackColor();
    return colours;
}

}  // namespace

ColorChange::ColorChange(Context& context)
    : Form(context.services.ForForms(), "ColorChange"), context_(context) {
    LayOutColorChange(*this);
    SetBoxes(picTarget, colourPalettes[ownPalette].targets);
    SetBoxes(picResult, colourPalettes[ownPalette].results);
    HScroll1.Bind(&ScrollBar::Change, [this](int index) { HScroll1_Change(index); });
    HScroll1.Bind(&ScrollBar::Scroll, [this](int index) { HScroll1_Change(index); });
    for (ControlArray<PictureBox>* boxes : {&picTarget, &picResult}) {
        for (int i = boxes->First(); i <= boxes->Last(); ++i)
            (*boxes)[i].LetKeysPress();
    }
    picTarget.Bind(&PictureBox::Click, [this](int index) { Box_Click(picTarget[index]); });
    picResult.Bind(&PictureBox::Click, [this](int index) { Box_Click(picResult[index]); });
    Combo1.Change = [this] { Combo1_Change(); };
    Combo1.Click = [this] { Combo1_Change(); };
    StartKnop.Click = [this] { StartKnop_Click(); };
    ResetKnop.Click = [this] { ResetKnop_Click(); };
    ExportKnop.Click = [this] { ExportToCanvas(context_, *this, Pic.surface.Image()); };
    CancelKnop.Click = [this] { CloseDialog(context_, *this); };
}

void ColorChange::Form_Load() {
    InfoLabel.Caption = LookupInfoText(context_, key::replacementHelp);
    Combo1.Clear();
    for (const ColourPalette& palette : colourPalettes)
        Combo1.AddItem(std::string(palette.name));
    Combo1.SetListIndex(ownPalette);
    for (int i = HScroll1.First(); i <= HScroll1.Last(); ++i) {
        ShowSlider(i);
        HScroll1[i].SetValue(sliderStarts.at(static_cast<std::size_t>(i)).value);
    }
    ResetKnop_Click();
    Combo1.SetFocus();
}

void ColorChange::ShowSlider(int index) {
    Label6[index].Caption =
        sliderStarts.at(static_cast<std::size_t>(index)).caption + std::to_string(HScroll1[index].Value());
}

void ColorChange::HScroll1_Change(int index) {
    ShowSlider(index);
    GetPlatform().DoEvents();
    ColorLabel.BackColor = RGB(HScroll1[0].Value(), HScroll1[1].Value(), HScroll1[2].Value());
}

int ColorChange::ChosenPalette() const {
    if (Combo1.ListIndex() >= 0) return Combo1.ListIndex();
    const std::string typed = LowerCase(Combo1.Text());
    const auto* const found = std::ranges::find_if(
        colourPalettes, [&typed](const ColourPalette& palette) { return LowerCase(palette.name) == typed; });
    return found == std::end(colourPalettes) ? -1 : static_cast<int>(found - std::begin(colourPalettes));
}

void ColorChange::Box_Click(PictureBox& box) {
    if (ChosenPalette() == ownPalette) box.surface.SetBackColor(ColorLabel.BackColor);
}

void ColorChange::Combo1_Change() {
    const int chosen = ChosenPalette();
    // The bracket tells that the boxes take the sliders' colour.
    for (int i = Line1.First(); i <= Line1.Last(); ++i)
        Line1[i].BorderColor = chosen == ownPalette ? bracketColour : BackColor;
    if (chosen <= ownPalette) return;
    const ColourPalette& palette = colourPalettes.at(static_cast<std::size_t>(chosen));
    SetBoxes(picTarget, palette.targets);
    SetBoxes(picResult, palette.results);
}

void ColorChange::StartKnop_Click() {
    const int chosen = ChosenPalette();
    if (chosen < firstMetalPalette) {
        ReplaceByPalette();
    } else {
        ReplaceDarkColors(static_cast<Metal>(chosen - firstMetalPalette));
    }
}

void ColorChange::ReplaceByPalette() {
    const PaletteTargets targets(ColoursOf(picTarget));
    const Hourglass hourglass(GetPlatform());
    std::vector<Pixel> column;
    const int columns = Truncate(BackPic.surface.ScaleWidth());
    for (int x = 0; x < columns; ++x) {
        ReadColumn(BackPic.surface, x, column);
        targets.Replace(column, ColoursOf(picResult));
        WriteColumn(Pic.surface, x, column);
        Pic.surface.Refresh();
        GetPlatform().DoEvents();
    }
    // The next run starts from this one's result.
    BackPic.surface.SetPicture(Pic.surface.Image());
}

void ColorChange::ReplaceDarkColors(Metal metal) {
    const Hourglass hourglass(GetPlatform());
    for (int y = 0; y < canvasSide; ++y) {
        ReplaceDarkPixels(RowToChange(Pic.surface, y, canvasSide), metal);
        Pic.surface.Refresh();
        GetPlatform().DoEvents();
    }
    BackPic.surface.SetPicture(Pic.surface.Image());
}

void ColorChange::ResetKnop_Click() {
    BackPic.surface.SetPicture(context_.main.Pic.surface.Image());
    Pic.surface.SetPicture(BackPic.surface.Image());
}

}  // namespace coinlet
