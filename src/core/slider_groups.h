#pragma once

#include "core/main_form.h"

#include <array>
#include <string>

namespace coinlet {

/// A slider of the tools' panel and what belongs to it.
struct SliderGroup {
    ScrollBar MainForm::*bar;
    Label MainForm::*caption;        ///< Stands over the bar.
    std::string (*text)(int value);  ///< What the caption reads while the bar is at that value.
    /// What shows that the slider belongs to one tool; none for the pen's.
    Label MainForm::*panel = nullptr;
    CheckBox MainForm::*tick = nullptr;
};

extern const SliderGroup penSlider, cornerSlider, eraserSlider, rasterSlider, canvasSlider;

/// Those that are on show with their tool only.
inline constexpr std::array slidersOfTools{&cornerSlider, &eraserSlider, &rasterSlider, &canvasSlider};

/// Shows all that belongs to a slider, or hides it.
void ShowSlider(MainForm& main, const SliderGroup& group, bool shown);

}  // namespace coinlet
