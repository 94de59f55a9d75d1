#pragma once

#include "surface/image.h"

namespace coinlet {

/// The picture of a tool button, `Main.Knop(index)`: three frames of 14 by 14 pixels side by side, normal,
/// disabled and pressed, with the buttons' usual mask colour, RGB(0,255,0), around the drawing. The empty
/// picture for an index outside 0 to 15.
Image ToolIconStrip(int index);

/// What the preview of the image browser shows until the user picks a picture: 175 by 175 pixels.
Image StartPicture();

}  // namespace coinlet
