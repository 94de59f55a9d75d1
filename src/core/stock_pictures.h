#pragma once

#include "surface/image.h"

namespace coinlet {

/// The frames in the strip of a tool icon: normal, disabled and pressed.
constexpr int toolIconFrames = 3;
/// The picture of a tool button, `Main.Knop(index)`: these frames side by side, 14 by 14 pixels each, with
/// the buttons' usual mask colour, RGB(0,255,0), around the drawing. The empty picture for an index outside 0
/// to 15.
Image ToolIconStrip(int index);
/// Its finer edition: six times as large and without half-tones; each pixel is of the mask colour or isn't.
Image FineToolIconStrip(int index);

/// What the preview of the image browser shows until the user picks a picture: 175 by 175 pixels.
Image StartPicture();

/// What the preview of the print dialog shows for the jobs that print more than the canvas: a sheet with
/// designs, and one with cliparts. 140 by 140 pixels.
Image AllDesignsPicture();
Image AllClipartsPicture();

/// The ring of a hole in the four metals, side by side in the order of `materials`: 400 by 100 pixels. Around
/// the rings and in their holes it is pure white, so that AND leaves a design there as it is.
Image HoleRings();

/// The same for rings that are stamped over a border of their metal: in few tones, each of which AND turns
/// with each shade of the borders into a colour of that metal.
Image BorderHoleRings();

/// A blank tag of one metal, by its place in `materials`: 100 by 100 pixels, on white. The empty picture for
/// an index outside 0 to 3.
Image BlankTag(int index);

}  // namespace coinlet
