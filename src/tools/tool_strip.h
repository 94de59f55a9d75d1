#pragma once

#include "controls/event.h"

namespace coinlet {

struct Context;

/// The tool buttons, their sliders, and the popup menu of shapes: what they arm, show and say.
class ToolStrip {
public:
    explicit ToolStrip(Context& context);

    /// Opens the chooser of the fill colour.
    Event<> openColourChooser;

private:
    void Knop_Click(int index);
    void Vormen_Click(int index);
    void ColorLabel_MouseDown();
    void ExitKnop_Click();
    void HScroll5_Change();
    void BindSliders();

    Context& context_;
};

}  // namespace coinlet
