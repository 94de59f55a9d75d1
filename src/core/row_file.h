#pragma once

#include "base/files.h"

#include <cstddef>
#include <string_view>

namespace coinlet {

class ListBox;

/// No text whose lines are rows is read any further, in bytes: who has more than this has another kind of
/// file.
inline constexpr std::size_t largestRowText = std::size_t{16} << 20;

/// Adds the lines of a text in the code page of the program's files to a list, as they stand; lines of blanks
/// are left out.
void AddRows(ListBox& list, std::string_view text);
/// The same with the text of a file. One that can't be read, or is larger than largestRowText, adds nothing.
void AddRowsOfFile(ListBox& list, const fs::path& path);

}  // namespace coinlet
