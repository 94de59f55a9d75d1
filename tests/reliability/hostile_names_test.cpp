// Names that lead elsewhere, mean something to a shell, or are no names at all: whatever is typed, or stands
// in a file, nothing is read or written outside the folder that it is for.

#include "core/language.h"
#include "store/save_form.h"
#include "support/world.h"

#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace coinlet::test {
namespace {

using namespace std::string_literals;

const std::vector<std::string>& HostileNames() {
    static const std::vector<std::string> names{
        "../secret",
        "..\\secret",
        "..\\../secret",
        "../../secret",
        "..\\..\\secret",
        "../Data/English",
        "..\\Data\\English",
        "./secret",
        ".\\secret",
        "/secret",
        "\\secret",
        "//secret",
        "\\\\server\\share\\secret",
        "C:\\secret",
        "C:secret",
        "/etc/passwd",
        "/dev/null",
        "/proc/self/mem",
        "folder/secret",
        "folder\\secret",
        "secret/",
        "secret\\",
        "/",
        "\\",
        ".",
        "..",
        "...",
        " ",
        "~",
        "~/secret",
        "$HOME",
        "$(touch secret)",
        "`touch secret`",
        "; touch secret",
        "| touch secret",
        "-rf",
        "--help",
        "*",
        "?",
        "%s%n%x",
        "CON",
        "a\nb",
        "a\rb",
        "a\x01\x1B[2J",
        "a\0b"s,
        "\xFF\xFE",
        "\xC3",
        "\xE2\x80\xAEgpj.secret",
        std::string(255, 'x'),
        std::string(5000, 'x'),
        std::string(2000, '/'),
        std::string("../") + std::string(2000, 'x'),
    };
    return names;
}

/// Every file and folder beneath `folder` but what lies in one of the `free` ones, with its bytes.
std::map<fs::path, std::string> AllBut(const TemporaryFolder& folder, const std::set<fs::path>& free) {
    std::map<fs::path, std::string> found;
    for (auto entry = fs::recursive_directory_iterator(folder.Path()); entry != fs::end(entry); ++entry) {
        const fs::path name = fs::relative(entry->path(), folder.Path());
        if (free.contains(name)) entry.disable_recursion_pending();
        found[name] = entry->is_regular_file() ? folder.Read(name) : "";
    }
    return found;
}

class Names : public testing::Test {
protected:
    Names() {
        for (const char* name : {"app/Data", "app/Ontwerpen/folder", "Pictures/folder", "folder"})
            fs::create_directories(world_.folder / name);
        for (const char* name :
             {"secret.txt", "secret.pat", "secret.jpg", "app/secret.txt", "app/secret.pat"})
            world_.folder.Write(name, "001 Secret\r\n");
        world_.folder.Write("app/Data/English.txt", "001 Ready\r\n");
    }
    void Save(const char* mode, const std::string& name) {
        world_.session.SaveMode = mode;
        world_.platform.answers.assign(1, Answer::Yes);
        SaveForm dialog(world_.context);
        world_.platform.doings.emplace_back([&] {
            dialog.Text1.SetText(name);
            dialog.SaveKnop.PointerClicked();
            if (dialog.Loaded()) dialog.Unload();
        });
        world_.platform.ShowModal(dialog);
    }

    World world_;
};

TEST_F(Names, AreManyAndAllDiffer) {
    EXPECT_GE(HostileNames().size(), 43U);
    EXPECT_EQ(std::set<std::string>(HostileNames().begin(), HostileNames().end()).size(),
              HostileNames().size());
}

TEST_F(Names, OfDesignsAndExportsStayInTheirFolders) {
    const std::set<fs::path> free{"app/Ontwerpen", "Pictures"};
    const auto before = AllBut(world_.folder, free);
    world_.SetRows({"a note"});
    for (const char* const mode : {"BMP", "JPG"}) {
        for (const std::string& name : HostileNames()) {
            SCOPED_TRACE(mode + (" " + name.substr(0, 40)));
            Save(mode, name);
            EXPECT_EQ(AllBut(world_.folder, free), before);
            EXPECT_TRUE(fs::is_empty(world_.folder / "app/Ontwerpen/folder"));
            EXPECT_TRUE(fs::is_empty(world_.folder / "Pictures/folder"));
        }
    }
    // Those that are names all the same were taken.
    EXPECT_TRUE(fs::exists(world_.folder / "app/Ontwerpen/$(touch secret).pat"));
    EXPECT_TRUE(fs::exists(world_.folder / "Pictures/-rf.jpg"));
}

TEST_F(Names, OfLanguagesFindNothingElsewhere) {
    for (const std::string& name : HostileNames()) {
        LoadLanguage(world_.context, "English");
        LoadLanguage(world_.context, name);
        EXPECT_NE(LookupInfoText(world_.context, "001"), "Secret") << name.substr(0, 40);
    }
    // A name of that folder is found.
    fs::copy(world_.folder / "secret.txt", world_.folder / "app/Data/secret.txt");
    LoadLanguage(world_.context, "secret");
    EXPECT_EQ(LookupInfoText(world_.context, "001"), "Secret");
}

}  // namespace
}  // namespace coinlet::test
