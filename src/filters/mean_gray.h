#pragma once

#include "filters/pixel_array.h"

namespace coinlet {

/// The sum of all gray values divided by the number of pixels, cut off; 0 if there are none.
int MeanGray(const PixelArray& picture);

}  // namespace coinlet
