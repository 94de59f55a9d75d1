#pragma once

#include "core/main_form.h"

namespace coinlet {

/// Where the canvas lies on its board while it isn't slid aside, and the length of its sides, in twips.
constexpr int canvasLeft = 495, canvasTop = 570, canvasTwips = static_cast<int>(canvasSide * twipsPerPixel);

/// The sides of the image browser's preview, in pixels: no picture shows larger.
constexpr int previewSide = 175;

/// Places every control of the main form and gives it its looks. Places that other rules speak of are twips;
/// the rest stands on a grid of 4 pixels.
void LayOutMain(MainForm& main);

/// Places a shape so that its edge is seen around a button.
void SurroundButton(Shape& shape, const VistaButton& button);

/// The corner between the rulers as blank as it is without a floating image.
void NarrowCorner(MainForm& main);
/// The corner with room for the whole caption of the button that it holds, over the beginning of the ruler.
void WidenCorner(MainForm& main);

}  // namespace coinlet
