#pragma once

#include <string>
#include <string_view>

namespace coinlet {

struct Context;

/// Fills the language table from "Data/<language>.txt" and greets in that language. A file that is missing,
/// or can't be one for its name, leaves the table empty; every language but "Nederlands" is greeted in
/// English.
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
