#pragma once

#include "surface/device.h"

#include <string_view>

namespace coinlet {

/// The font record of the letters that a surface prints with: its height for the points of the font on a
/// device, not turned, with smooth edges.
LOGFONT FillLogFont(const FontProperties& font, DeviceContext hDC);

/// Writes a text in the font and colour of `target`, its cell's top left corner at the pixel (x, y), turned
/// `rotation` whole degrees counter-clockwise about that corner. A font that can't be made, or a rotation
/// that the font record can't hold, writes nothing.
void DrawRotatedText(std::string_view text, int rotation, int x, int y, Surface& target);

}  // namespace coinlet
