#pragma once

#include "surface/image.h"

#include <cstdint>
#include <optional>
#include <span>

namespace coinlet {

/// The first frame of a GIF at its place on the logical screen. Transparent pixels are white; what the frame
/// leaves of the screen is white with a transparent frame, else the file's background colour. One that is cut
/// short shows the rows that are there. Nothing for a broken header or a size that IsPictureSize refuses.
std::optional<Image> DecodeGifBytes(std::span<const std::uint8_t> bytes);

}  // namespace coinlet
