#pragma once

#include <string>

namespace coinlet {
class Element;
class Form;
}  // namespace coinlet

namespace coinlet::player {

/// "Knop(5)", as it stands in an address behind the form.
std::string NameOf(const Element& element);
/// "Main.Knop(5)".
std::string FullNameOf(const Element& element);

}  // namespace coinlet::player
