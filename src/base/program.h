#pragma once

#include <string_view>

namespace coinlet {

/// The program's name: of its windows and message boxes, of its print jobs, and the text that the text tools
/// begin with.
constexpr std::string_view programTitle = "Coinlet Designer";

}  // namespace coinlet
