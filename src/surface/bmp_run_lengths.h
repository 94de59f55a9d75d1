#pragma once

#include "surface/bmp_header.h"
#include "surface/image.h"

namespace coinlet::bmp {

/// Draws the pixels of a run-length coded file (RLE8 or RLE4) into a bitmap of the header's size. Runs end at
/// the right edge, rows at the bottom one; pixels that the file skips or lacks stay as they are.
void DrawRunLengths(const Header& header, Bitmap& bitmap);

}  // namespace coinlet::bmp
