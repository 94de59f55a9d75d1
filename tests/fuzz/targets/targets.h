#pragma once

#include "fuzz/reader.h"

namespace coinlet::test {

// The readers of this folder, one a file: x.cpp makes it by XReader(). Each is a target of libFuzzer, and
// some are given damaged files by a program beside it, too.

Reader AboutTextReader();
Reader BackNamesReader();
Reader BmpReader();
Reader CollectionReader();
Reader FontReader();
Reader GifReader();
Reader InfoTextReader();
Reader JpegReader();
Reader LanguageTableReader();
Reader NamesReader();
Reader NumbersReader();
Reader PmsTableReader();
Reader ProgramReader();
Reader SettingsReader();
Reader SurfaceCallsReader();

}  // namespace coinlet::test
