#pragma once

#include "tools/gesture_engine.h"

#include <string_view>

namespace coinlet {

class MainForm;
class Surface;

/// Prints a text in the font and style of the text panel, its cell's top left corner at (x, y) in the units
/// of `target`: with a soft shadow below, as white letters in a black outline, or plainly black. The font
/// and the colour stay with `target`. A size on the panel that is no number prints nothing and gives false.
[[nodiscard]] bool DrawStyledText(const MainForm& main, Surface& target, float x, int y,
                                  std::string_view text);

/// The text panel: the user types a text and chooses its letters, takes it to the pointer and burns it into
/// the canvas with one click.
class TextTool {
public:
    explicit TextTool(Context& context);

    /// Burns the text that hangs on the pointer into the canvas. While the size on the panel is no number
    /// the text stays on the pointer.
    void Place(GesturePoint pointer);

private:
    void Combo2_Change();
    void PlaatsKnop_Click();

    void PassPointerOn();
    void PrintForTurning();
    void PlaceTurned(GesturePoint pointer);

    Context& context_;
};

}  // namespace coinlet
