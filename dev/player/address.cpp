#include "player/address.h"

#include "player/failure.h"

#include <algorithm>
#include <charconv>

namespace coinlet::player {

namespace {

bool IsNameLetter(char letter) {
    return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
           (letter >= '0' && letter <= '9') || letter == '_';
}

/// A part, or nothing if the text is none.
std::optional<AddressPart> ParsePart(std::string_view text) {
    const auto nameEnd = std::ranges::find_if_not(text, IsNameLetter);
    AddressPart part{std::string(text.begin(), nameEnd), std::nullopt};
    if (part.name.empty()) return std::nullopt;
    if (nameEnd == text.end()) return part;

    const std::string_view rest = text.substr(part.name.size());
    if (rest.front() != '(' || rest.back() != ')') return std::nullopt;
    int index = 0;
    const char* const last = rest.data() + rest.size() - 1;
    const auto [end, error] = std::from_chars(rest.data() + 1, last, index);
    if (error != std::errc{} || end != last) return std::nullopt;
    part.index = index;
    return part;
}

}  // namespace

Address ParseAddress(std::string_view text) {
    Address address{std::string(text), {}};
    std::size_t begin = 0;
    while (true) {
        const std::size_t end = std::min(text.find('.', begin), text.size());
        auto part = ParsePart(text.substr(begin, end - begin));
        if (!part) Fail("no address: " + address.text);
        address.parts.push_back(*std::move(part));
        if (end == text.size()) return address;
        begin = end + 1;
    }
}

Address WithoutLast(const Address& address) {
    Address shorter{address.text.substr(0, address.text.rfind('.')), address.parts};
    shorter.parts.pop_back();
    return shorter;
}

std::string Show(const AddressPart& part) {
    return part.index ? part.name + "(" + std::to_string(*part.index) + ")" : part.name;
}

}  // namespace coinlet::player
