#pragma once

#include <string_view>

namespace coinlet {

/// The names of the sheets that the user's cliparts stand on.
constexpr std::string_view clipartSheetPattern = "*.art";

/// How many cliparts a sheet has, side by side.
constexpr int clipartsASheet = 5;

}  // namespace coinlet
