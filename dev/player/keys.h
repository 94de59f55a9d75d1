#pragma once

#include <optional>
#include <string>

namespace coinlet::player {

/// The character that a key gives without the shift key, as its code; nothing for keys that give none, such
/// as the arrows.
std::optional<int> CharacterOfKey(int keyCode);

/// The code point of a character, or of the first of several.
int CodeOfCharacter(const std::string& utf8);

}  // namespace coinlet::player
