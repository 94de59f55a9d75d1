// Where a user's programs keep their files, as the environment tells.

#include "launch/user_folders.h"

#include "support/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <string>

namespace coinlet {
namespace {

Environment Of(std::map<std::string, std::string> variables) {
    return [variables = std::move(variables)](const char* name) {
        const auto found = variables.find(name);
        return found == variables.end() ? nullptr : found->second.c_str();
    };
}

TEST(UserFolders, AreBeneathTheHomeFolder) {
    const auto environment = Of({{"HOME", "/home/ann"}});
    EXPECT_EQ(UserDataFolder(environment), "/home/ann/.local/share");
    EXPECT_EQ(UserStateFolder(environment), "/home/ann/.local/state");
}

TEST(UserFolders, AreWhereTheUserWantsThem) {
    const auto environment =
        Of({{"HOME", "/home/ann"}, {"XDG_DATA_HOME", "/big/data"}, {"XDG_STATE_HOME", "/big/state"}});
    EXPECT_EQ(UserDataFolder(environment), "/big/data");
    EXPECT_EQ(UserStateFolder(environment), "/big/state");
}

TEST(UserFolders, VariableThatIsEmptyOrRelativeIsNotSet) {
    const auto environment = Of({{"HOME", "/home/ann"}, {"XDG_DATA_HOME", ""}, {"XDG_STATE_HOME", "state"}});
    EXPECT_EQ(UserDataFolder(environment), "/home/ann/.local/share");
    EXPECT_EQ(UserStateFolder(environment), "/home/ann/.local/state");
}

TEST(UserFolders, WithoutAHomeThereAreNone) {
    EXPECT_EQ(UserDataFolder(Of({})), "");
    EXPECT_EQ(UserStateFolder(Of({{"HOME", "relative"}})), "");
    EXPECT_EQ(RecoveryFolder(""), "");
    EXPECT_EQ(RecoveryFolder("/home/ann/.local/state"), "/home/ann/.local/state/coinlet-designer");
}

class PictureFolder : public testing::Test {
protected:
    PictureFolder() { std::filesystem::create_directory(home); }
    bool IsMade(std::map<std::string, std::string> variables = {}) const {
        variables.emplace("HOME", home.string());
        MakePictureFolder(Of(variables));
        return std::filesystem::is_directory(home / "Pictures");
    }
    void WriteUserDirs(const std::string& folder, const std::string& text) const {
        std::filesystem::create_directories(home / folder);
        ASSERT_EQ(test_.Write("home/" + folder + "/user-dirs.dirs", text), home / folder / "user-dirs.dirs");
    }

    test::TemporaryFolder test_;
    const std::filesystem::path home = test_ / "home";
};

TEST_F(PictureFolder, IsMadeWhereThereIsNone) {
    EXPECT_TRUE(IsMade());
    EXPECT_TRUE(IsMade());
}

TEST_F(PictureFolder, IsMadeWhereTheDesktopNamesOthersOnly) {
    WriteUserDirs(".config",
                  "XDG_MUSIC_DIR=\"$HOME/Muziek\"\n# XDG_PICTURES_DIR=\"$HOME/Beelden\"\n"
                  "XDG_PICTURES_DIR=\"\"\n");
    EXPECT_TRUE(IsMade());
}

TEST_F(PictureFolder, ListOfMoreThanAMebibyteIsNone) {
    const std::string named = "XDG_PICTURES_DIR=\"$HOME/Afbeeldingen\"\n";
    const std::string filled = named + "#" + std::string((1U << 20) - named.size() - 1, '-');
    WriteUserDirs(".config", filled);
    EXPECT_FALSE(IsMade());
    WriteUserDirs(".config", filled + "-");
    EXPECT_TRUE(IsMade());
}

TEST_F(PictureFolder, IsNotMadeWhereTheDesktopNamesOne) {
    WriteUserDirs(".config", "XDG_MUSIC_DIR=\"$HOME/Muziek\"\n  XDG_PICTURES_DIR=\"$HOME/Afbeeldingen\"\n");
    EXPECT_FALSE(IsMade());
    EXPECT_FALSE(std::filesystem::exists(home / "Afbeeldingen"));
    EXPECT_TRUE(IsMade({{"XDG_CONFIG_HOME", (test_ / "elsewhere").string()}}));
}

TEST_F(PictureFolder, IsNamedWhereTheSettingsAre) {
    WriteUserDirs("settings", "XDG_PICTURES_DIR=$HOME/Afbeeldingen");
    EXPECT_FALSE(IsMade({{"XDG_CONFIG_HOME", (home / "settings").string()}}));
    EXPECT_TRUE(IsMade());
}

TEST_F(PictureFolder, CanNotAlwaysBeMade) {
    MakePictureFolder(Of({}));
    MakePictureFolder(Of({{"HOME", (test_ / "gone").string()}}));
    EXPECT_FALSE(std::filesystem::exists(test_ / "gone"));
    test_.Write("home/Pictures", "in the way");
    EXPECT_FALSE(IsMade());
    EXPECT_EQ(test_.Read("home/Pictures"), "in the way");
}

}  // namespace
}  // namespace coinlet
