#pragma once

#include "surface/colour.h"

namespace coinlet {

// The colours that all forms have in common; controls are made with them. A colour that one form has for
// itself stands with that form.

/// The ground of forms and of what lies flat on them.
constexpr Colour formColour = RGB(220, 220, 190);
/// Fields that the user types or chooses in.
constexpr Colour fieldColour = RGB(0, 0, 50);
constexpr Colour fieldTextColour = RGB(220, 220, 250);
/// Lists of picture files.
constexpr Colour fileListColour = RGB(200, 220, 220);
constexpr Colour fileListTextColour = RGB(60, 60, 60);
/// Notes that lie over something else for a while, tooltips too.
constexpr Colour noteColour = RGB(255, 255, 225);
/// The fill colour that the program starts with, and what is to catch the eye.
constexpr Colour accentColour = RGB(255, 252, 13);

}  // namespace coinlet
