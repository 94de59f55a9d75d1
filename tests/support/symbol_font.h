#pragma once

#include "base/files.h"

#include <string_view>

namespace coinlet::test {

/// The bytes of a TrueType font of pictograms, of which each of the characters 33 to 255 is a solid square:
/// a cell is one em wide, and its square covers the middle half of it, standing on the base line. An em is
/// 1000 units; the ascent is 800, the descent 200. The family's name is ASCII.
Bytes SymbolFont(std::string_view family);

}  // namespace coinlet::test
