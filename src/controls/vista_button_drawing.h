#pragma once

#include "surface/colour.h"
#include "surface/font_properties.h"
#include "surface/surface.h"

#include <memory>
#include <string>

namespace coinlet {

/// The look of a button.
enum class ButtonState { Normal = 0, Hover = 1, Pressed = 2, Focused = 3, Disabled = 4 };

/// All that a button's pixels depend on beside its state and its size.
struct ButtonLook {
    std::string caption;
    Colour foreColor = black;
    FontProperties font;
    /// The frames of the picture side by side, ready to be copied; null without a picture.
    std::unique_ptr<Surface> strip;
    int pictures = 2;  ///< Frames in the strip. Not above 0: nothing of it shows.
    bool useMaskColor = true;
    Colour maskColor = RGB(0, 255, 0);
    bool noBackground = false;  ///< The body shows on hover and press alone.
    Colour backColor = RGB(240, 240, 240);
    int pictureOffset = 0;  ///< Pixels right and down, while the button is held down.
    bool enabled = true;
    bool mouseDown = false;
};

/// Draws the whole of a button on `face`, which has the button's size in pixels; any size is legal.
void DrawButton(Surface& face, ButtonState state, const ButtonLook& look);

}  // namespace coinlet
