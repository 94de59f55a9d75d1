#include "core/slider_groups.h"

#include "core/tool_sliders.h"

namespace coinlet {

namespace {

std::string PenCaption(int value) {
    return "Line Width (" + std::to_string(value) + ")";
}
std::string CornerCaption(int value) {
    return "Corner (" + std::to_string(value) + ")";
}
std::string EraserCaption(int value) {
    return "Size (" + std::to_string(value) + "/" + std::to_string(eraserSizes.maximum) + ")";
}
std::string RasterCaption(int value) {
    return "Raster (" + std::to_string(value) + ")";
}
std::string CanvasCaption(int /*value*/) {
    return "Move Coinlet";
}

}  // namespace

constinit const SliderGroup penSlider{
    .bar = &MainForm::HScroll1, .caption = &MainForm::Label7, .text = PenCaption};
constinit const SliderGroup cornerSlider{.bar = &MainForm::HScroll2,
                                         .caption = &MainForm::Label10,
                                         .text = CornerCaption,
                                         .panel = &MainForm::Label9};
constinit const SliderGroup eraserSlider{.bar = &MainForm::HScroll3,
                                         .caption = &MainForm::Label12,
                                         .text = EraserCaption,
                                         .panel = &MainForm::Label11,
                                         .tick = &MainForm::Check1};
constinit const SliderGroup rasterSlider{.bar = &MainForm::HScroll4,
                                         .caption = &MainForm::Label21,
                                         .text = RasterCaption,
                                         .panel = &MainForm::Label20};
constinit const SliderGroup canvasSlider{.bar = &MainForm::HScroll5,
                                         .caption = &MainForm::Label22,
                                         .text = CanvasCaption,
                                         .panel = &MainForm::Label5};

void ShowSlider(MainForm& main, const SliderGroup& group, bool shown) {
    (main.*group.bar).Visible = shown;
    (main.*group.caption).Visible = shown;
    if (group.panel != nullptr) (main.*group.panel).Visible = shown;
    if (group.tick != nullptr) (main.*group.tick).Visible = shown;
}

}  // namespace coinlet
