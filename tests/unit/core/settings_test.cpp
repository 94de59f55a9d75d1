// The settings file: what it holds, and that a failed writing leaves the old one.
#include "core/settings.h"

#include "support/failing_step.h"
#include "support/temporary_folder.h"

#include <unistd.h>

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>

namespace coinlet {
namespace {

using test::TemporaryFolder;

constexpr const char* file = "Coinlet.ini";
constexpr const char* inDutch =
    "Ivo Kestrell Software \xAE 2014\r\n----------------------------\r\nNederlands\r\n";

/// True if a process of its own, changed by `prepare`, could not write the setting.
bool FailsAfter(bool (*prepare)(), const TemporaryFolder& folder) {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(prepare() && WriteLanguageSetting(folder.Path(), "English") ? 0 : 1);
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

TEST(LanguageSetting, IsTheThirdLine) {
    const TemporaryFolder folder;
    EXPECT_FALSE(WriteLanguageSetting(folder.Path(), "Nederlands"));
    EXPECT_EQ(folder.Read(file), inDutch);
    EXPECT_EQ(ReadLanguageSetting(folder.Path()), "Nederlands");
}

class LanguageSettingFails : public testing::TestWithParam<test::Step> {};
INSTANTIATE_TEST_SUITE_P(AtEachStep, LanguageSettingFails,
                         testing::Values(test::Step::Open, test::Step::Write, test::Step::Flush,
                                         test::Step::Close, test::Step::Rename));

TEST_P(LanguageSettingFails, AndTheOldOneStays) {
    const TemporaryFolder folder;
    folder.Write(file, inDutch);
    test::FailingStep calls(GetParam());
    EXPECT_TRUE(WriteLanguageSetting(folder.Path(), "English", calls));
    EXPECT_EQ(folder.Read(file), inDutch);
    EXPECT_EQ(folder.Count(), 1);
}

TEST_P(LanguageSettingFails, AndWhereNoneWasThereIsNone) {
    const TemporaryFolder folder;
    test::FailingStep calls(GetParam());
    EXPECT_TRUE(WriteLanguageSetting(folder.Path(), "English", calls));
    EXPECT_EQ(folder.Count(), 0);
}

TEST(LanguageSetting, StaysIfTheDiskIsFull) {
    const TemporaryFolder folder;
    folder.Write(file, inDutch);
    EXPECT_TRUE(FailsAfter(
        [] {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{20, 20};  // bytes a file
            return ::setrlimit(RLIMIT_FSIZE, &limit) == 0;
        },
        folder));
    EXPECT_EQ(folder.Read(file), inDutch);
    EXPECT_EQ(folder.Count(), 1);
}

TEST(LanguageSetting, StaysInAFolderThatCannotBeWritten) {
    const TemporaryFolder folder;
    folder.Write(file, inDutch);
    fs::permissions(folder.Path(), fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read |
                                       fs::perms::others_exec);
    EXPECT_TRUE(FailsAfter(
        [] {
            constexpr uid_t nobody = 65534;
            return ::geteuid() != 0 || ::setuid(nobody) == 0;
        },
        folder));
    fs::permissions(folder.Path(), fs::perms::owner_all);
    EXPECT_EQ(folder.Read(file), inDutch);
    EXPECT_EQ(folder.Count(), 1);
}

}  // namespace
}  // namespace coinlet
