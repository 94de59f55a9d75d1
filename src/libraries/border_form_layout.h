#pragma once

namespace coinlet {

class BorderForm;

/// A border in one metal is as large as the canvas, and on the preview half as large; in pixels.
constexpr int borderSide = 500, borderPreviewSide = borderSide / 2;

/// Places the dialog's controls on a grid of 4 pixels and gives them their looks and fixed captions.
void LayOutBorderForm(BorderForm& form);

}  // namespace coinlet
