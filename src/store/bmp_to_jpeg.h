#pragma once

#include "base/files.h"
#include "surface/codecs.h"

#include <cstdint>
#include <span>

namespace coinlet {

/// Turns the bytes of a bitmap file into a JPEG file of that quality (1 to 100), over an older one. If the
/// source is no picture or the target can't be written whole, what stood there still does; nobody is told.
void BmpToJpeg(std::span<const std::uint8_t> source, const fs::path& target, int quality,
               const PictureCodecs& codecs, FileCalls& calls = SystemFileCalls());

}  // namespace coinlet
