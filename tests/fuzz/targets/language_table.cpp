// Tables of languages: the texts that are looked up are those that the file holds.
#include "core/language.h"
#include "fuzz/targets/targets.h"
#include "fuzz/text_world.h"

#include <memory>

namespace coinlet::test {
namespace {

constexpr std::size_t keyLength = 3;

/// What the first row with that key holds behind it and one character more, in the code page: there, a
/// character is a byte.
std::string Told(const std::vector<std::string>& rows, const std::string& key) {
    const auto row =
        std::ranges::find_if(rows, [&](const std::string& candidate) { return candidate.starts_with(key); });
    return row == rows.end() || row->size() <= keyLength ? "" : row->substr(keyLength + 1);
}

class Table {
public:
    Outcome Read(File file) {
        world_.Write("Data/English.txt", file);
        LoadLanguage(world_.context, "English");
        ShowLanguageInTitle(world_.context);
        const std::vector<std::string> rows = SlowRows(AsText(file));
        std::string wrong = FaultOfRows(world_.main.InfoList, rows);
        if (wrong.empty()) wrong = FaultOfText(rows, "001");
        constexpr std::size_t most = 4;  // Looking up goes through the whole table.
        for (std::size_t i = 0; i < std::min(most, rows.size()) && wrong.empty(); ++i) {
            const std::string key = rows[i].substr(0, keyLength);
            const bool isAscii = std::ranges::all_of(key, [](char c) { return c > 0; });
            if (key.size() == keyLength && isAscii) wrong = FaultOfText(rows, key);
        }
        return {!rows.empty(), wrong};
    }

private:
    std::string FaultOfText(const std::vector<std::string>& rows, const std::string& key) {
        const std::string text = InfoText(world_.context, key);
        if (ToCodePage(text) != Told(rows, key)) return "another text than the file has";
        if (LookupInfoText(world_.context, key) != text) return "looked up, it is another text";
        ShowHint(world_.context, key);
        return std::string(world_.main.InfoLabel.Caption) == text ? "" : "another hint than the text";
    }

    TextWorld world_;
};

}  // namespace

Reader LanguageTableReader() {
    return {"language table",
            {TextFile("001 Choose a tool.\r\n004 The tools\xE9 are back.\r\n\r\n999\r\n"),
             TextFile("001\n  \n0077\x80\x81\xFF\n")},
            [table = std::make_shared<Table>()](File file) { return table->Read(file); }};
}

}  // namespace coinlet::test
