#pragma once

#include "base/files.h"
#include "surface/image.h"

#include <optional>
#include <span>

namespace coinlet {

/// A JPEG: colour, grey, or the four inks of print shops. One that is cut short or damaged behind its header
/// loads as far as it can be decoded. Nothing for a broken header or a size that IsPictureSize refuses.
std::optional<Image> DecodeJpegBytes(std::span<const std::uint8_t> bytes);

/// A JPEG with full colour resolution, since thin coloured outlines lose their colour without it. `quality`
/// is clamped to 1..100. Nothing for the empty picture.
std::optional<Bytes> EncodeJpegBytes(const Image& image, int quality);

}  // namespace coinlet
