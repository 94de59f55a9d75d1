#pragma once

#include "fuzz/reader.h"

namespace coinlet::test {

// The readers of this folder, one a file: x.cpp makes it by XReader(). Each is a target of libFuzzer, and
// some are given damaged files by a program beside it, too.

Reader BmpReader();
Reader FontReader();
Reader GifReader();
Reader JpegReader();

}  // namespace coinlet::test
