#pragma once

#include "surface/surface.h"

namespace coinlet {

/// The picture that a design is stored and exported as: canvas and side panel beside each other, in pixels.
constexpr int composedWidth = 700, composedHeight = 500;
/// Draws the composed picture on a surface of that size: the canvas, a rule to its right, the side panel, and
/// a rule across the panel above the back of the tag. What stays free keeps the surface's background.
void ComposePicture(const Image& canvas, const Image& sidePanel, Surface& target);

/// Paints the side panel of such a picture over that of the main form, whose height it takes. What a narrow
/// picture has nothing of stays as it was.
void TakeSidePanel(const Image& composed, Surface& panel);

}  // namespace coinlet
