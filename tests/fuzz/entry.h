#pragma once

#include "fuzz/reader.h"

namespace coinlet::test {

/// The reader of the target that is built.
const Reader& TheReader();

/// Hands the bytes to it. Whatever is wrong with what it makes of them ends the process as a crash would.
/// Returns whether they were read.
bool Play(std::span<const std::uint8_t> bytes);

}  // namespace coinlet::test
