#pragma once

#include <array>
#include <string>
#include <string_view>

namespace coinlet {

struct Context;

/// A language that texts are delivered in.
struct Language {
    std::string_view name;     ///< In the title and the settings; its table is the file of that name.
    std::string_view caption;  ///< Its entry in the menu.
    std::string_view greeting;
    std::string_view chosen;  ///< The hint where it has been chosen from the menu.
};

/// In the order of the menu's entries; the first is the one of a first start.
constexpr std::array<Language, 2> languages{{
    {"Nederlands", "Dutch", "Maak uw keuze...", "Informatie..."},
    {"English", "English", "Make your choice...", "Information..."},
}};

/// Fills the language table from "Data/<language>.txt", ticks its entry in the menu and greets in it. A file
/// that is missing, or can't be one for its name, leaves the table empty; a language that isn't delivered is
/// ticked and greeted as the last one is.
void LoadLanguage(Context& context, const std::string& languageName);

/// The text of a three-digit key in the language in force, and its number on the small label at the foot of
/// the window. An unknown key gives an empty text and leaves the number as it was.
std::string LookupInfoText(Context& context, std::string_view key);

/// The same text without showing its number.
std::string InfoText(const Context& context, std::string_view key);

/// Shows the text of a key as the hint at the foot of the window.
void ShowHint(Context& context, std::string_view key);

/// Puts the language in force into the window's title.
void ShowLanguageInTitle(Context& context);

}  // namespace coinlet
