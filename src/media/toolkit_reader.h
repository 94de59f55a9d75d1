#pragma once

#include "surface/image.h"

#include <cstdint>
#include <optional>
#include <span>

class QImage;

namespace coinlet {

/// The first picture of a file as a reader of Qt for `format` ("gif", "png") gives it; the null picture for a
/// broken header, a size that IsWorthDecoding refuses, or a format that Qt has no reader for. `format` alone
/// says what the bytes are taken for: no other reader ever sees them.
QImage ReadByToolkit(std::span<const std::uint8_t> bytes, const char* format);

/// The same on white: what is half transparent lets half of it through.
std::optional<Image> DecodeToolkitBytes(std::span<const std::uint8_t> bytes, const char* format);

}  // namespace coinlet
