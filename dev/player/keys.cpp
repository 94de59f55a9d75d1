#include "player/keys.h"

#include "controls/event.h"

#include <bit>
#include <cstdint>

namespace coinlet::player {

std::optional<int> CharacterOfKey(int keyCode) {
    constexpr int backspace = 8;
    constexpr int toSmallLetter = 'a' - 'A';
    if (keyCode == backspace || keyCode == keyReturn || keyCode == keyEscape || keyCode == keySpace)
        return keyCode;
    if (keyCode >= '0' && keyCode <= '9') return keyCode;
    if (keyCode >= 'A' && keyCode <= 'Z') return keyCode + toSmallLetter;
    return std::nullopt;
}

int CodeOfCharacter(const std::string& utf8) {
    if (utf8.empty()) return 0;
    const auto first = static_cast<std::uint8_t>(utf8.front());
    const int following = std::countl_one(first) > 1 ? std::countl_one(first) - 1 : 0;
    unsigned code = following == 0 ? first : first & (0x3FU >> following);
    for (int i = 1; i <= following && static_cast<std::size_t>(i) < utf8.size(); ++i)
        code = code << 6U | (static_cast<std::uint8_t>(utf8[static_cast<std::size_t>(i)]) & 0x3FU);
    return static_cast<int>(code);
}

}  // namespace coinlet::player
