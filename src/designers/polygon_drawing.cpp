#include "designers/polygon_drawing.h"

#include "base/numbers.h"
#include "controls/form.h"
#include "controls/number_list.h"
#include "controls/platform.h"
#include "designers/regular_polygon.h"
#include "surface/device.h"

#include <array>
#include <string>

namespace coinlet {

namespace {

constexpr std::array<int, 3> standardChannels{255, 255, 0};
constexpr int mostOfAChannel = 255;

constexpr NumberList sides{3, 20, 1, 3}, sizes{10, 400, 5, 60};

/// From 0.00 to 4.00.
void FillWithTurns(ComboBox& combo) {
    constexpr int lastHundredth = 400, hundred = 100, ten = 10;
    for (int hundredths = 0; hundredths <= lastHundredth; ++hundredths) {
        const int behindThePoint = hundredths % hundred;
        combo.AddItem(std::to_string(hundredths / hundred) + "." + std::to_string(behindThePoint / ten) +
                      std::to_string(behindThePoint % ten));
    }
    combo.SetListIndex(0);
}

}  // namespace

PolygonDrawing::PolygonDrawing(Form& form, Surface& picture, Shape& layer)
    : Frame6(form, "Frame6"),
      Label12(Frame6, "Label12"),
      Combo1(Frame6, "Combo1"),
      Label13(Frame6, "Label13"),
      Combo2(Frame6, "Combo2"),
      Label14(Frame6, "Label14"),
      Combo3(Frame6, "Combo3"),
      Label17(Frame6, "Label17"),
      Label16(Frame6, "Label16"),
      Label15(Frame6, "Label15", 0, 3),
      ColorScroll(Frame6, "ColorScroll", 0, 3, Orientation::Horizontal),
      ColLabel(Frame6, "ColLabel", 0, 3),
      form_(&form),
      picture_(&picture),
      layer_(&layer) {
    FillWithNumbers(Combo1, sides);
    FillWithNumbers(Combo2, sizes);
    FillWithTurns(Combo3);
    for (int i = ColorScroll.First(); i <= ColorScroll.Last(); ++i) {
        const int standard = standardChannels.at(static_cast<std::size_t>(i));
        ColorScroll[i].SetRange(0, mostOfAChannel);
        ColorScroll[i].SetValue(standard);
        ColLabel[i].Caption = std::to_string(standard);
    }
    Label16.BackColor = RGB(standardChannels[0], standardChannels[1], standardChannels[2]);
    ColorScroll.Bind(&ScrollBar::Change, [this](int index) { ColorScroll_Change(index); });
    ColorScroll.Bind(&ScrollBar::Scroll, [this](int index) { ColorScroll_Change(index); });
}

void PolygonDrawing::Chosen() {
    layer_->Visible = true;
}

int PolygonDrawing::Sides() const {
    return RoundHalfEven(Val(Combo1.Text()));
}

double PolygonDrawing::Size() const {
    return Val(Combo2.Text());
}

double PolygonDrawing::Rotation() const {
    return Val(Combo3.Text());
}

void PolygonDrawing::Move(int, float x, float y) {
    const double side = 2 * Size();
    layer_->Move(x - side / 2, y - side / 2, side, side);
}

void PolygonDrawing::DrawAt(float x, float y, Colour colour) {
    constexpr float aspect = 1;
    DrawPolygon(*picture_, Single(Rotation()), aspect, {x, y}, Single(Size()), Sides(), colour);
}

// The fill goes from the centre to its own colour as the border, so it runs out where the polygon was drawn
// around a pixel of that colour: then nothing is filled. An outlined polygon isn't filled at all.
void PolygonDrawing::Press(int button, float x, float y) {
    const bool fills = button == rightButton;
    if (!fills && button != leftButton) return;
    if (Sides() < 1) return;
    if (!fills) {
        picture_->FillStyle = transparentFill;
        DrawAt(x, y, black);
        return;
    }
    const Colour colour = Label16.BackColor;
    picture_->FillColor = colour;
    picture_->FillStyle = solidFill;
    DrawAt(x, y, colour);
    FloodFill(picture_->hDC(), RoundHalfEven(x), RoundHalfEven(y), colour);
    DrawAt(x, y, black);
}

// Events are served between the number and the colour, so that a slider that is dragged follows the pointer.
// The sliders may have moved on by then.
void PolygonDrawing::ColorScroll_Change(int index) {
    ColLabel[index].Caption = std::to_string(ColorScroll[index].Value());
    form_->GetPlatform().DoEvents();
    Label16.BackColor = RGB(ColorScroll[0].Value(), ColorScroll[1].Value(), ColorScroll[2].Value());
}

}  // namespace coinlet
