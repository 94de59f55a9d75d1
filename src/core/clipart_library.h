#pragma once

#include <string_view>

namespace coinlet {

/// The cliparts that the user has: sheets in a folder of the application folder, with names of a pattern.
constexpr std::string_view clipartFolder = "\\Cliparts", clipartSheetPattern = "*.art";

/// How many cliparts a sheet has, side by side.
constexpr int clipartsASheet = 5;

}  // namespace coinlet
