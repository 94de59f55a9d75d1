// Texts from outside that are damaged or hostile, alone and at the start of the program; and scripts. No
// reader crashes or hangs, and what is read is what such a text may hold.
#include "base/files.h"
#include "base/text.h"
#include "coinlet_program.h"
#include "core/main_form.h"
#include "fuzz/harness.h"
#include "fuzz/targets/targets.h"
#include "fuzz/texts.h"
#include "media/media_codecs.h"
#include "media/qt_font_engine.h"
#include "player/commands.h"
#include "player/failure.h"
#include "player/life.h"
#include "player/script.h"
#include "player/values.h"
#include "support/temporary_folder.h"

#include <QGuiApplication>

#include <algorithm>
#include <string_view>

namespace coinlet::test {
namespace {

namespace fs = std::filesystem;

// --- Application folder -----------------------------------------------------------------------------------

/// Nobody acts: the program starts, and that is all.
class NoUser : public player::ScriptReader {
public:
    void RunNextLine() override {}
    void ServeInterrupts() override {}
};

std::string FaultOfTable(const MainForm& main) {
    const ListBox& table = main.InfoList;
    for (int i = 0; i < table.ListCount(); ++i) {
        const std::string& line = table.List(i);
        if (TrimBlanks(line).empty()) return "an empty line in the language table";
        if (line.find_first_of("\r\n") != std::string::npos) return "a line end in the language table";
    }
    return "";
}

/// Starts programs in a folder of its own, where one file is damaged and the others are sound.
class Starter {
public:
    Starter() {
        fs::create_directories(folder_ / "Data");
        folder_.Write("Coinlet.ini", "a\r\nb\r\nEnglish\r\n");
    }

    Outcome StartWith(const fs::path& name, File file) {
        // Some disks are in no hurry with a new file, but wait for one that is written over.
        fs::remove(folder_ / name);
        folder_.Write(name, AsText(file));
        player::World world{player::Places(folder_.Path(), folder_.Path(), folder_.Path()), {}, {}, {}, {}};
        const player::Libraries libraries{fonts_, codecs_, MakeCoinlet};
        NoUser user;
        player::Life life(user, world, libraries);
        life.program->Start();
        const auto* const main = dynamic_cast<const MainForm*>(life.platform.FindForm("Main"));
        if (!main) return {true, "the program hasn't started"};
        return {true, FaultOfTable(*main)};
    }

private:
    TemporaryFolder folder_;
    QtFontEngine fonts_;
    MediaCodecs codecs_;
};

// --- Scripts ----------------------------------------------------------------------------------------------

/// All that is read of a line before something is done.
void ReadLine(const std::string& line) {
    const std::vector<player::Word> words = player::SplitWords(line);
    if (words.empty()) return;
    const player::Call call = player::ParseCall(words);
    static_cast<void>(player::NeedsOf(call));
    for (const player::Word& word : call.words) {
        static_cast<void>(player::BytesOf(word));
        const std::string text = player::TextOf(word);
        // A text is written as it is read.
        const std::string quoted = player::Quoted(text);
        if (player::TextOf({quoted.substr(1, quoted.size() - 2), true}) != text)
            throw std::logic_error("quoted, a text is another one: " + quoted);
    }
    if (!call.words.empty()) static_cast<void>(call.GetArguments().Address(0));
}

Outcome JudgeScript(File file) {
    const player::Script script = player::ParseScript("s.play", AsText(file));
    Outcome outcome{true, ""};
    for (const player::ScriptLine& line : script.lines) {
        try {
            ReadLine(line.text);
        } catch (const player::ScriptFailure& failure) {
            outcome.isRead = false;
            if (failure.reason.empty()) outcome.wrong = "it is refused without a reason";
        } catch (const std::logic_error& fault) {
            outcome.wrong = fault.what();
        }
    }
    return outcome;
}

const std::vector<Bytes> scripts{
    TextFile("# a comment\r\nset Main.Knop(5).Caption \"a \\\"b\\\" \\\\ \\r\\n\"\r\n"
             "press Main.Pic 1 -2.5 3e2\ninterrupt 1 try click Main.File\n"),
    TextFile("\xEF\xBB\xBFwrite-file b.txt x\\x41\\xfF\n\tpixel Clipboard 0 0 1,2,3 # why\n")};

}  // namespace
}  // namespace coinlet::test

int main(int argc, char** argv) {  // NOLINT(bugprone-exception-escape): a broken test bed may end it
    using namespace coinlet;
    using test::File;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication qt(argc, argv);
    const test::Reader settings = test::SettingsReader(), tables = test::LanguageTableReader(),
                       abouts = test::AboutTextReader();
    test::Starter settingStarter, tableStarter, aboutStarter;
    constexpr std::size_t slow = 50;  // A start of the program takes that much longer than reading a file.
    const std::vector<test::Reader> readers{
        settings,
        tables,
        abouts,
        test::PmsTableReader(),
        test::CollectionReader(),
        test::InfoTextReader(),
        test::BackNamesReader(),
        test::NumbersReader(),
        test::NamesReader(),
        {"script", test::scripts, test::JudgeScript},
        {"settings at the start", settings.files,
         [&](File file) { return settingStarter.StartWith("Coinlet.ini", file); }, slow},
        {"language table at the start", tables.files,
         [&](File file) { return tableStarter.StartWith("Data/English.txt", file); }, slow},
        {"text about the program at the start", abouts.files,
         [&](File file) { return aboutStarter.StartWith("Data/About.inf", file); }, slow}};
    constexpr std::size_t usualRounds = 15000;
    return test::Fuzz(readers, usualRounds, argc, argv);
}
