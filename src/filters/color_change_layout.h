#pragma once

#include "surface/colour.h"

namespace coinlet {

class ColorChange;

/// The bracket that joins the boxes, while the user may change them.
constexpr Colour bracketColour = RGB(150, 150, 150);

/// Places the dialog's controls on a grid of 4 pixels and gives them their looks and fixed captions.
void LayOutColorChange(ColorChange& form);

}  // namespace coinlet
