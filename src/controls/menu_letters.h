#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace coinlet {

class MenuItem;

/// The letter by which an entry of an open menu is chosen, and where in its caption it stands, in bytes. An
/// entry without one has the empty letter.
struct MenuLetter {
    std::string letter;
    std::size_t place = 0;
};

/// The letters of these entries of one menu, or menus of the bar: each has the first letter or digit of its
/// caption that none before it has, without regard to case and accents. Whether an entry is shown or enabled
/// plays no part, so that letters stay what they are.
std::vector<MenuLetter> MenuLetters(const std::vector<MenuItem*>& entries);

/// The entry that a letter chooses, in whatever case; nullptr if none of those that are shown does.
MenuItem* EntryOfLetter(const std::vector<MenuItem*>& entries, std::string_view letter);

}  // namespace coinlet
