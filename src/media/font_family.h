#pragma once

#include "base/files.h"

#include <optional>
#include <span>
#include <string_view>

namespace coinlet {

/// The bytes of the same TrueType or OpenType font in a family of another name, which is ASCII. Nothing if
/// the bytes aren't one such font with a list of its tables. What the tables hold isn't looked at.
std::optional<Bytes> InFamily(std::span<const std::uint8_t> font, std::string_view family);

}  // namespace coinlet
