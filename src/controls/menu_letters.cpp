#include "controls/menu_letters.h"

#include "base/order_key.h"
#include "base/text.h"
#include "controls/menu.h"

#include <algorithm>

namespace coinlet {

namespace {

bool IsLetterOrDigit(const std::string& character) {
    // Beyond ASCII: from the first letter with an accent on up to the dashes and signs of all kinds.
    constexpr std::string_view firstLetter = "\u00C0", firstSign = "\u2000";
    const char first = character.front();
    const bool ascii = character.size() == 1;
    return ascii ? (first >= '0' && first <= '9') || (first >= 'A' && first <= 'Z') ||
                       (first >= 'a' && first <= 'z')
                 : character >= firstLetter && character < firstSign;
}

bool IsSameLetter(std::string_view a, std::string_view b) {
    return !a.empty() && !b.empty() && BeginsWith(a, b) && BeginsWith(b, a);
}

}  // namespace

std::vector<MenuLetter> MenuLetters(const std::vector<MenuItem*>& entries) {
    std::vector<MenuLetter> letters;
    const auto isTaken = [&letters](const std::string& character) {
        return std::ranges::any_of(
            letters, [&](const MenuLetter& other) { return IsSameLetter(other.letter, character); });
    };
    for (const MenuItem* entry : entries) {
        MenuLetter found;
        std::size_t place = 0;
        for (const std::string& character : Characters(entry->Caption)) {
            if (IsLetterOrDigit(character) && !isTaken(character)) {
                found = {LowerCase(character), place};
                break;
            }
            place += character.size();
        }
        letters.push_back(found);
    }
    return letters;
}

MenuItem* EntryOfLetter(const std::vector<MenuItem*>& entries, std::string_view letter) {
    const std::vector<MenuLetter> letters = MenuLetters(entries);
    for (std::size_t i = 0; i < entries.size(); ++i)
        if (entries[i]->Visible && IsSameLetter(letters[i].letter, letter)) return entries[i];
    return nullptr;
}

}  // namespace coinlet
