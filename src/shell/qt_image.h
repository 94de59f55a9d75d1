#pragma once

#include "surface/image.h"

#include <QImage>

namespace coinlet {

/// The pixels of `bitmap` as the toolkit sees them, without a copy. Good for as long as `bitmap` lives and
/// keeps its size. A bitmap of no size gives the null image.
QImage ViewPixels(const Bitmap& bitmap);
/// The same picture for the toolkit; it holds on to the shared pixels.
QImage ToQImage(const Image& image);
/// A picture of the toolkit as one of the program; transparent parts lie on white. One that is larger than
/// IsPictureSize allows gives the empty picture.
Image FromQImage(const QImage& picture);

}  // namespace coinlet
