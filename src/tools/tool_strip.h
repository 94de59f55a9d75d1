#pragma once

#include "controls/event.h"
#include "core/tool_codes.h"

#include <array>

namespace coinlet {

struct Context;

/// The tool buttons, their sliders, and the popup menu of shapes: what they arm, show and say.
class ToolStrip {
public:
    explicit ToolStrip(Context& context);

    /// The dialogs of the tools that have one, by the tools' buttons, and the chooser of the fill colour;
    /// they come when all else is done that belongs to the press.
    std::array<Event<>, toolButtonCount> openDialog;
    Event<> openColourChooser;

    /// Chooses the tool of a key, as a click on its button does, if that can be clicked. The canvas gets the
    /// focus, so that who chooses by keys draws by keys. False for keys of no tool, with Shift, Ctrl or Alt
    /// held, and while the pointer is held down.
    bool TakesKey(int code, int shift);

private:
    void Knop_Click(int index);
    void Vormen_Click(int index);
    void ColorLabel_MouseDown();
    void ExitKnop_Click();
    void HScroll5_Change();
    void MarkTool();
    void BindSliders();

    Context& context_;
};

}  // namespace coinlet
