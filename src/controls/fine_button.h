#pragma once

#include "controls/vista_button.h"

#include <string>
#include <vector>

namespace coinlet {

/// Draws a button on `face` with as many pixels as the screen has for it, but without its caption: lines are
/// as many of them wide as fit the scale, at least one, and the picture is as fine as its finest edition can
/// be. Where a pixel of the screen is one of the button, they are those of the button's own face.
void DrawFineButton(Surface& face, const VistaButton& button);

/// A button's caption for a screen that prints it with its own letters: line below line from `top` on, each
/// at `left` or in the middle between there and `right`. In pixels of the button.
struct ButtonCaption {
    std::vector<std::string> lines;
    int left = 0, right = 0, top = 0, lineHeight = 0;
    bool centred = true;
    Colour colour = black;
};
ButtonCaption CaptionOf(const VistaButton& button);

/// What lies between the corners that are cut off, on a face of that many pixels: they end where it begins
/// and begin where it ends.
PixelRect UncutPart(const Surface& face, const VistaButton& button);

}  // namespace coinlet
