#pragma once

#include <string>
#include <string_view>

namespace coinlet {

/// What the order of ComesBefore (text.h) compares, byte by byte: a text that is compared often, such as
/// a name in a long list, gives it once.
std::string OrderKey(std::string_view utf8);

/// True if a reader finds `beginning` at the beginning of `text`: letters count as the order of ComesBefore
/// regards them first, without their accents and their case (é as e, Æ as ae). Every text begins with the
/// empty one.
bool BeginsWith(std::string_view text, std::string_view beginning);

}  // namespace coinlet
