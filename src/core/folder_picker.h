#pragma once

#include <string>

namespace coinlet {

struct Context;

/// Asks the user for a folder with pictures, in the language in force. Returns its path, or an empty text if
/// he cancels. He begins in `start`.
std::string BrowseForFolder(Context& context, const std::string& start);

}  // namespace coinlet
