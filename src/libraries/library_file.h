#pragma once

#include "base/files.h"

#include <optional>
#include <string>
#include <string_view>

namespace coinlet {

/// The file of that name in a folder of ready-made things: the one of exactly that name, or else the first in
/// the folder's order whose name differs in case alone. Nothing if there is none, or if it is no plain name.
std::optional<fs::path> LibraryFile(const fs::path& folder, const std::string& name);

/// A file's name without its extension, which is taken to be the last four characters.
std::string WithoutLastFour(std::string_view fileName);

}  // namespace coinlet
