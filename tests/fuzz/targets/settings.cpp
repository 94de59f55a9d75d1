// Settings: the language that is read is what the file says, stays itself when it is written again, and leads
// to no file but a table of languages.
#include "core/settings.h"

#include "core/language.h"
#include "fuzz/targets/targets.h"
#include "fuzz/text_world.h"

#include <memory>
#include <optional>

namespace coinlet::test {
namespace {

/// The third line up to a comma.
std::optional<std::string> Told(File file) {
    constexpr std::size_t languageLine = 2;
    const std::vector<std::string> lines = SlowLines(AsText(file));
    if (lines.size() <= languageLine) return {};
    const std::string& line = lines[languageLine];
    return std::string(line.begin(), std::ranges::find(line, ','));
}

class Settings {
public:
    Settings() {
        world_.folder.Write("app/Data/English.txt", "001 A table.\r\n");
        world_.folder.Write("app/secret.txt", "001 No table.\r\n");
    }

    Outcome Read(File file) {
        world_.Write("Coinlet.ini", file);
        const fs::path folder = world_.folder / "app";
        const auto language = ReadLanguageSetting(folder);
        const auto told = Told(file);
        if (language.has_value() != told.has_value()) return {true, "a language that the file hasn't got"};
        if (!language) return {};
        if (ToCodePage(*language) != *told) return {true, "another language than the file has"};
        if (WriteLanguageSetting(folder, *language)) return {true, "it can't be written"};
        if (ReadLanguageSetting(folder) != language)
            return {true, "written and read again, it is another one"};
        return {true, FaultOfLanguage(*language)};
    }

private:
    std::string FaultOfLanguage(const std::string& language) {
        LoadLanguage(world_.context, language);
        const int rows = world_.main.InfoList.ListCount();
        return rows == (language == "English" ? 1 : 0) ? "" : "another file than its table is read";
    }

    TextWorld world_;
};

}  // namespace

Reader SettingsReader() {
    constexpr std::size_t slow = 100;  // What is written is flushed to the disk, which takes its time.
    return {"language setting",
            {TextFile("Name\r\n----\r\nNederlands\r\n"), TextFile("a\nb\nEnglish,x\n"), TextFile("\r\r\r"),
             TextFile("a\r\nb\r\n../secret"), TextFile("a\r\nb\r\n..\\secret\r\nc")},
            [settings = std::make_shared<Settings>()](File file) { return settings->Read(file); },
            slow};
}

}  // namespace coinlet::test
