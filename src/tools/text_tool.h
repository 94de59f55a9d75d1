#pragma once

#include "tools/gesture_engine.h"

#include <optional>
#include <string>
#include <string_view>

namespace coinlet {

class MainForm;
class Surface;

/// How a text is printed.
struct TextStyle {
    std::string fontName;
    std::optional<float> size;  ///< Points; nothing if what the user typed is no number that a font can have.
    bool bold = false, italic = false, underline = false;
    bool open = false;    ///< White letters in a black outline, instead of plainly black ones.
    bool shadow = false;  ///< A soft shadow below the letters.
};
/// What is chosen on the text panel.
TextStyle StyleOnPanel(const MainForm& main);

/// Prints a text, its cell's top left corner at (x, y) in the units of `target`. The font and the colour stay
/// with `target`. A style without a size prints nothing and gives false.
[[nodiscard]] bool DrawStyledText(Surface& target, float x, int y, std::string_view text,
                                  const TextStyle& style);

/// The text panel: the user types a text and chooses its letters, takes it to the pointer and burns it into
/// the canvas with one click.
class TextTool {
public:
    explicit TextTool(Context& context);

    /// Burns the text that hangs on the pointer into the canvas. While the size on the panel is no number a
    /// level text stays on the pointer; a vertical one has its size from before and doesn't.
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
