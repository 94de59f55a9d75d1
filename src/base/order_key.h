#pragma once

#include <string>
#include <string_view>

namespace coinlet {

/// What the order of ComesBefore (text.h) compares, byte by byte: a text that is compared often, such as
/// a name in a long list, gives it once.
std::string OrderKey(std::string_view utf8);

}  // namespace coinlet
