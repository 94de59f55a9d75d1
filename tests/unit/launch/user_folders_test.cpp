// Where a user's programs keep their files, as the environment tells.

#include "launch/user_folders.h"

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
}

}  // namespace
}  // namespace coinlet
