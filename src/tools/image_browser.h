#pragma once

#include <string_view>

namespace coinlet {

struct Context;

/// Fills the list of the image browser with the pictures of the session's image folder that match `pattern`.
void ListImages(Context& context, std::string_view pattern);
/// Shows how many there are.
void ShowImageCount(Context& context);

}  // namespace coinlet
