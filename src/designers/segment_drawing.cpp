#include "designers/segment_drawing.h"

#include "base/numbers.h"
#include "controls/form.h"
#include "surface/surface.h"

#include <array>
#include <string>

namespace coinlet {

namespace {

enum SliderIndex { leftSlider, topSlider, diameterSlider };

struct Slider {
    const char* name;
    int lowest, highest, standard;
};
/// The last one has the name of half of what it sets.
constexpr std::array<Slider, 3> sliders{{
    {"Left", 0, 300, 150},
    {"Top", 0, 300, 150},
    {"Radius", 20, 500, 200},
}};

/// Of two decimals each, so that hairline gaps stay between the four.
constexpr std::array<ArcAngles, 4> quarters{{{1.57, 3.14}, {0, 1.57}, {3.14, 4.71}, {4.71, 0}}};

const Slider& SliderOf(int index) {
    return sliders.at(static_cast<std::size_t>(index));
}

}  // namespace

void DrawSegmentArc(Surface& picture, int X, int Y, int Radius, Colour colour, double Start, double End,
                    double Aspect) {
    picture.Circle(X, Y, Radius, colour, ArcAngles{Start, End}, Aspect);
}

SegmentDrawing::SegmentDrawing(Form& form, Surface& picture, Shape& layer, const ScrollBar& penWidth)
    : Frame3(form, "Frame3"),
      ScrolLabel(Frame3, "ScrolLabel", 0, 3),
      HScroll2(Frame3, "HScroll2", 0, 3, Orientation::Horizontal),
      Label6(Frame3, "Label6"),
      SegmentKnop(Frame3, "SegmentKnop", 0, 4),
      picture_(&picture),
      layer_(&layer),
      penWidth_(&penWidth) {
    for (int i = HScroll2.First(); i <= HScroll2.Last(); ++i) {
        const Slider& slider = SliderOf(i);
        HScroll2[i].SetRange(slider.lowest, slider.highest);
        HScroll2[i].SetValue(slider.standard);
        ShowValue(i);
    }
    HScroll2.Bind(&ScrollBar::Change, [this](int index) { HScroll2_Change(index); });
    HScroll2.Bind(&ScrollBar::Scroll, [this](int index) { HScroll2_Change(index); });
    SegmentKnop.Bind(&VistaButton::Click, [this](int index) { SegmentKnop_Click(index); });
}

// The circle starts where the sliders stand at first, whatever they say now.
void SegmentDrawing::Chosen() {
    const int side = SliderOf(diameterSlider).standard;
    layer_->Move(SliderOf(leftSlider).standard, SliderOf(topSlider).standard, side, side);
    layer_->Visible = true;
}

void SegmentDrawing::ResetSliders() {
    for (int i = HScroll2.First(); i <= HScroll2.Last(); ++i)
        HScroll2[i].SetValue(SliderOf(i).standard);
}

void SegmentDrawing::ShowValue(int index) {
    ScrolLabel[index].Caption =
        std::string(SliderOf(index).name) + " (" + std::to_string(HScroll2[index].Value()) + ")";
}

void SegmentDrawing::HScroll2_Change(int index) {
    const int value = HScroll2[index].Value();
    if (index == leftSlider) layer_->SetLeft(value);
    if (index == topSlider) layer_->SetTop(value);
    if (index == diameterSlider) {
        layer_->SetWidth(value);
        layer_->SetHeight(value);
    }
    ShowValue(index);
}

// The arc lies one pixel to the left of the circle that is shown.
void SegmentDrawing::SegmentKnop_Click(int index) {
    picture_->DrawWidth = penWidth_->Value();
    const int SegmentRadius = RoundHalfEven(layer_->Width() / 2);
    const auto SegmentAspect = static_cast<float>(layer_->Height() / layer_->Width());
    const int x = RoundHalfEven(layer_->Left() + SegmentRadius - SegmentAspect);
    const int y = RoundHalfEven(layer_->Top() + SegmentRadius);
    const ArcAngles& quarter = quarters.at(static_cast<std::size_t>(index));
    DrawSegmentArc(*picture_, x, y, SegmentRadius, black, quarter.start, quarter.end, SegmentAspect);
}

}  // namespace coinlet
