#pragma once

#include "filters/filter_table.h"
#include "filters/pixel_array.h"

namespace coinlet::bench {

// The filters in which a pixel's value comes from its surroundings, in families.

/// Sharpen, Blur, Smooth, Edge, Contour, Relief and both gradients.
void PlainConvolution(FilterNumber number, std::int32_t parameter, PixelArray& work,
                      const PixelArray& source);
/// DiagonalBack with a sign of 1, DiagonalForward with -1.
void PlainDiagonal(int sign, std::int32_t parameter, PixelArray& work);
/// Erode, Dilate and Connection.
void PlainExtremes(FilterNumber number, PixelArray& work, const PixelArray& source);
void PlainAquarel(PixelArray& work, const PixelArray& source);
void PlainPixelize(int side, PixelArray& work, const PixelArray& source);

}  // namespace coinlet::bench
