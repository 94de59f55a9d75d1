#include "support/symbol_font.h"

#include <map>
#include <string>

namespace coinlet::test {

namespace {

/// Big-endian numbers, as font files have them.
class Table {
public:
    Table& U16(std::initializer_list<int> numbers) {
        for (const int number : numbers) {
            bytes_.push_back(static_cast<std::uint8_t>(number >> 8));
            bytes_.push_back(static_cast<std::uint8_t>(number));
        }
        return *this;
    }
    Table& U32(std::initializer_list<std::uint32_t> numbers) {
        for (const std::uint32_t number : numbers)
            U16({static_cast<int>(number >> 16), static_cast<int>(number & 0xFFFF)});
        return *this;
    }
    Table& Text(std::string_view text) {
        bytes_.insert(bytes_.end(), text.begin(), text.end());
        return *this;
    }
    Table& Append(const Table& table) {
        bytes_.insert(bytes_.end(), table.bytes_.begin(), table.bytes_.end());
        return *this;
    }
    Table& Pad() {
        while (bytes_.size() % 4 != 0)
            bytes_.push_back(0);
        return *this;
    }
    const Bytes& Data() const { return bytes_; }

private:
    Bytes bytes_;
};

constexpr int unitsPerEm = 1000, ascent = 800, descent = 200, squareLeft = 250, squareRight = 750,
              squareTop = 500;
constexpr int firstCharacter = 0xF021, lastCharacter = 0xF0FF;  // 33 to 255 of a symbol font

/// Glyph 0 is empty, glyph 1 the square; both tables of outlines have one entry more than there are glyphs.
Table Outlines() {
    Table table;
    table.U16({1, squareLeft, 0, squareRight, squareTop, 3, 0});  // one contour, its box, last point, no code
    table.Text(std::string(4, '\1'));                             // four points on the outline
    table.U16({squareLeft, 0, squareRight - squareLeft, 0});      // x, each from the point before
    table.U16({0, squareTop, 0, -squareTop});                     // y
    return table.Pad();
}

/// One run of characters, all of them the square, and the run at 0xFFFF that every map ends with.
Table Characters() {
    constexpr int count = lastCharacter - firstCharacter + 1;
    Table table;
    table.U16({0, 1, 3, 0}).U32({12});                              // one map: Windows, symbols
    table.U16({4, 32 + 2 * count, 0, 4, 4, 1, 0});                  // format 4, its length, two runs
    table.U16({lastCharacter, 0xFFFF, 0, firstCharacter, 0xFFFF});  // their ends and starts
    table.U16({0, 1, 4, 0});  // The glyphs of the first are listed 4 bytes on; 0xFFFF + 1 is glyph 0.
    for (int i = 0; i < count; ++i)
        table.U16({1});
    return table;
}

Table Names(std::string_view family) {
    Table strings, records;
    int count = 0, offset = 0;
    const auto add = [&](int id, std::string_view text) {
        for (const char letter : text)
            strings.U16({letter});
        const int size = 2 * static_cast<int>(text.size());
        records.U16({3, 0, 0x409, id, size, offset});
        offset += size;
        ++count;
    };
    add(1, family);
    add(2, "Regular");
    add(4, family);
    add(6, family);
    Table table;
    return table.U16({0, count, 6 + 12 * count}).Append(records).Append(strings);
}

Table Metrics() {
    Table table;
    table.U16({1, unitsPerEm, 400, 5, 0});  // version, average width, weight, width class, embedding
    table.U16({600, 600, 0, 100, 600, 600, 0, 400, 50, 300, 0});  // sub- and superscripts, strike-out, class
    table.U16({0, 0, 0, 0, 0}).U32({0, 0, 0, 0}).Text("TEST");    // panose, Unicode ranges, vendor
    table.U16({64, firstCharacter, lastCharacter, ascent, -descent, 0, ascent, descent});
    table.U32({0x80000000U, 0});  // code pages: symbols alone
    return table;
}

}  // namespace

Bytes SymbolFont(std::string_view family) {
    const Table outlines = Outlines();
    const auto outlineSize = static_cast<std::uint32_t>(outlines.Data().size());
    std::map<std::string, Table> tables;  // in the order of their names, as the file must have them
    tables["OS/2"] = Metrics();
    tables["cmap"] = Characters();
    tables["glyf"] = outlines;
    tables["head"]
        .U32({0x00010000, 0x00010000, 0, 0x5F0F3CF5})
        .U16({3, unitsPerEm})
        .U32({0, 0, 0, 0})
        .U16({squareLeft, 0, squareRight, squareTop, 0, 8, 2, 1, 0});
    tables["hhea"]
        .U32({0x00010000})
        .U16({ascent, -descent, 0, unitsPerEm, squareLeft, squareLeft, squareRight, 1, 0, 0, 0, 0, 0, 0, 0,
              2});
    tables["hmtx"].U16({unitsPerEm, 0, unitsPerEm, squareLeft});
    tables["loca"].U32({0, 0, outlineSize});
    tables["maxp"].U32({0x00010000}).U16({2, 4, 1, 0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0});
    tables["name"] = Names(family);
    tables["post"].U32({0x00030000, 0, 0, 0, 0, 0, 0, 0});

    const auto count = static_cast<int>(tables.size());
    Table directory, content;
    directory.U32({0x00010000}).U16({count, 128, 3, count * 16 - 128});
    auto offset = static_cast<std::uint32_t>(12 + 16 * count);
    for (auto& [tag, table] : tables) {
        const auto size = static_cast<std::uint32_t>(table.Data().size());
        directory.Text(tag).U32({0, offset, size});  // Readers pass the checksum over.
        content.Append(table.Pad());
        offset += static_cast<std::uint32_t>(table.Data().size());
    }
    return directory.Append(content).Data();
}

}  // namespace coinlet::test
