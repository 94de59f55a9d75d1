#pragma once

#include "fuzz/reader.h"

namespace coinlet::test {

/// Makes the reader that the target is of; each program has a function of its own.
Reader MakeReader();

/// It, made once.
const Reader& TheReader();

/// Hands the bytes to it. Whatever is wrong with what it makes of them ends the process as a crash would.
/// Returns whether they were read.
bool Play(std::span<const std::uint8_t> bytes);

}  // namespace coinlet::test
