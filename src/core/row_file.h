#pragma once

#include "base/files.h"

#include <string_view>

namespace coinlet {

class ListBox;

/// Adds the lines of a text in the code page of the program's files to a list, as they stand; lines of blanks
/// are left out.
void AddRows(ListBox& list, std::string_view text);
/// The same with the text of a file. One that can't be read, or is larger than 16 MiB, adds nothing.
void AddRowsOfFile(ListBox& list, const fs::path& path);

}  // namespace coinlet
