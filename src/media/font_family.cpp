#include "media/font_family.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace coinlet {

namespace {

// A font file begins with its kind and a directory of tables: tag, checksum, place and length of each. All
// numbers are big-endian. Readers pass the checksums over.
constexpr std::size_t headerSize = 12, entrySize = 16;
constexpr std::size_t countPlace = 4, offsetInEntry = 8, lengthInEntry = 12;
constexpr std::array<std::uint32_t, 3> kinds{0x00010000, 0x74727565 /* true */, 0x4F54544F /* OTTO */};
constexpr std::uint32_t nameTag = 0x6E616D65;

std::uint32_t Number(std::span<const std::uint8_t> bytes, std::size_t place, int size) {
    std::uint32_t number = 0;
    for (const std::uint8_t byte : bytes.subspan(place, static_cast<std::size_t>(size)))
        number = number << 8 | byte;
    return number;
}

void Put(Bytes& bytes, std::size_t place, std::uint32_t number) {
    for (const int shift : {24, 16, 8, 0})
        bytes[place++] = static_cast<std::uint8_t>(number >> shift);
}

void Append16(Bytes& bytes, std::initializer_list<std::size_t> numbers) {
    for (const std::size_t number : numbers) {
        bytes.push_back(static_cast<std::uint8_t>(number >> 8));
        bytes.push_back(static_cast<std::uint8_t>(number));
    }
}

/// A table of names that says of family, full name and PostScript name the same.
Bytes NameTable(std::string_view family) {
    constexpr std::string_view regular = "Regular";
    struct Name {
        std::size_t id;
        std::string_view text;
    };
    const std::array<Name, 4> names{{{1, family}, {2, regular}, {4, family}, {6, family}}};
    constexpr std::size_t windows = 3, unicode = 1, english = 0x409, recordSize = 12;
    Bytes table, texts;
    Append16(table, {0, names.size(), 6 + recordSize * names.size()});
    for (const Name& name : names) {
        Append16(table, {windows, unicode, english, name.id, 2 * name.text.size(), texts.size()});
        for (const char letter : name.text)
            Append16(texts, {static_cast<unsigned char>(letter)});
    }
    table.insert(table.end(), texts.begin(), texts.end());
    return table;
}

/// Where the directory has the entry of the table of names.
std::optional<std::size_t> NameEntry(std::span<const std::uint8_t> font) {
    if (font.size() < headerSize || std::ranges::find(kinds, Number(font, 0, 4)) == kinds.end()) return {};
    const std::size_t count = Number(font, countPlace, 2);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t entry = headerSize + entrySize * i;
        if (font.size() < entry + entrySize) return {};
        if (Number(font, entry, 4) == nameTag) return entry;
    }
    return {};
}

}  // namespace

std::optional<Bytes> InFamily(std::span<const std::uint8_t> font, std::string_view family) {
    const auto entry = NameEntry(font);
    if (!entry) return {};
    const Bytes names = NameTable(family);
    Bytes renamed(font.begin(), font.end());
    while (renamed.size() % 4 != 0)
        renamed.push_back(0);
    Put(renamed, *entry + offsetInEntry, static_cast<std::uint32_t>(renamed.size()));
    Put(renamed, *entry + lengthInEntry, static_cast<std::uint32_t>(names.size()));
    renamed.insert(renamed.end(), names.begin(), names.end());
    return renamed;
}

}  // namespace coinlet
