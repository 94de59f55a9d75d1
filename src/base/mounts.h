#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace coinlet {

/// The mount points below /media and /run/media, where desktops put sticks and cards, in a table of mounts (a
/// line a mount, the point its second field, with blanks written as \040), sorted, each once.
std::vector<std::string> RemovablePlaces(std::string_view mountTable);
/// The same of the running system.
std::vector<std::string> RemovablePlaces();

}  // namespace coinlet
