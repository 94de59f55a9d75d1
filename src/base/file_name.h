#pragma once

#include <string>
#include <string_view>

namespace coinlet {

/// The name of a thing from that of its file, such as "coin" from "coin.pat": all but the last four bytes,
/// which are the extension. A shorter name leaves an empty one.
std::string WithoutExtension(std::string_view fileName);

}  // namespace coinlet
