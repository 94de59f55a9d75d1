// A file is replaced whole or not at all, whatever fails on the way.
#include "base/files.h"
#include "support/temporary_folder.h"

#include <fcntl.h>
#include <grp.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <vector>

namespace coinlet {
namespace {

using test::TemporaryFolder;

std::error_code Replace(const fs::path& path, std::string_view text, FileCalls& calls = SystemFileCalls()) {
    return ReplaceFile(path, AsBytes(text), calls);
}

unsigned Mode(const fs::path& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : ~0U;
}

/// Runs `body` with this umask.
template <class Body>
void WithUmask(mode_t mask, const Body& body) {
    const mode_t before = ::umask(mask);
    body();
    ::umask(before);
}

/// Runs `body` in a process of its own, so that limits and users can be changed; its result is the process's.
int InAnotherProcess(const std::function<int()>& body) {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(body());
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// The system's calls, of which each can be told to fail with an errno.
class FailingCalls : public FileCalls {
public:
    int openError = 0, writeError = 0, flushError = 0, closeError = 0, renameError = 0, unlinkError = 0;
    std::size_t bytesUntilWriteFails = 0;
    std::size_t longestWrite = SIZE_MAX;
    int interruptions = 0;  ///< Calls of Write and Flush that a signal cuts off before any work is done.
    std::vector<int> flagsOfOpen;
    std::vector<std::string> namesOfOpen;

    int Open(const char* path, int flags, unsigned mode) override {
        flagsOfOpen.push_back(flags);
        namesOfOpen.push_back(fs::path(path).filename());
        return openError != 0 ? Fail(openError) : real_.Open(path, flags, mode);
    }
    long Write(int file, const void* data, std::size_t size) override {
        if (Interrupted()) return Fail(EINTR);
        if (writeError != 0) {
            if (bytesUntilWriteFails == 0) return Fail(writeError);
            size = std::min(size, bytesUntilWriteFails);
            bytesUntilWriteFails -= size;
        }
        return real_.Write(file, data, std::min(size, longestWrite));
    }
    int Flush(int file) override {
        if (Interrupted()) return Fail(EINTR);
        return flushError != 0 ? Fail(flushError) : real_.Flush(file);
    }
    int Close(int file) override {
        ++closes;
        const int result = real_.Close(file);
        return closeError != 0 ? Fail(closeError) : result;
    }
    int Rename(const char* from, const char* to) override {
        return renameError != 0 ? Fail(renameError) : real_.Rename(from, to);
    }
    int Unlink(const char* path) override {
        ++unlinks;
        const bool fails = unlinkError != 0 && unlinks <= failingUnlinks;
        return fails ? Fail(unlinkError) : real_.Unlink(path);
    }
    int FlushFolder(const char* path) override {
        flushedFolders.emplace_back(path);
        fileWhenFolderIsFlushed = watched.empty() ? std::string() : ReadAll(watched);
        return folderError != 0 ? Fail(folderError) : real_.FlushFolder(path);
    }

    int failingUnlinks = INT_MAX;  ///< So many of the first ones.
    int closes = 0, unlinks = 0;
    int folderError = 0;
    fs::path watched;  ///< A file whose content is looked at when the folder is flushed.
    std::string fileWhenFolderIsFlushed;
    std::vector<std::string> flushedFolders;

private:
    static int Fail(int error) {
        errno = error;
        return -1;
    }
    static std::string ReadAll(const fs::path& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    bool Interrupted() { return interruptions > 0 && interruptions-- > 0; }

    FileCalls& real_ = SystemFileCalls();
};

TEST(ReplaceFile, MakesANewFileUnderTheUmask) {
    const TemporaryFolder folder;
    WithUmask(022, [&] { EXPECT_FALSE(Replace(folder / "file", "content")); });
    EXPECT_EQ(folder.Read("file"), "content");
    EXPECT_EQ(Mode(folder / "file"), 0644U);
    WithUmask(0, [&] { EXPECT_FALSE(Replace(folder / "open", "")); });
    EXPECT_EQ(folder.Read("open"), "");
    EXPECT_EQ(Mode(folder / "open"), 0666U);
    EXPECT_EQ(folder.Count(), 2);
}

TEST(ReplaceFile, KeepsTheModeOfAnExistingFile) {
    const TemporaryFolder folder;
    const auto path = folder.Write("file", "a longer old content");
    for (const unsigned mode : {0600U, 0664U, 0777U, 0640U}) {
        ASSERT_EQ(::chmod(path.c_str(), mode), 0);
        WithUmask(077, [&] { EXPECT_FALSE(Replace(path, "new")); });
        EXPECT_EQ(folder.Read("file"), "new");
        EXPECT_EQ(Mode(path), mode);
    }
    EXPECT_EQ(folder.Count(), 1);
}

TEST(ReplaceFile, LeavesTheOldFileToWhoHasItOpen) {
    const TemporaryFolder folder;
    std::ifstream reader(folder.Write("file", "old"), std::ios::binary);
    EXPECT_FALSE(Replace(folder / "file", "new content"));
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(reader), {}), "old");
}

TEST(ReplaceFile, WritesThroughLinks) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "far");
    folder.Write("far/file", "old");
    fs::create_symlink("far/file", folder / "near");        // relative to the link's own folder
    fs::create_symlink(folder / "near", folder / "first");  // a chain
    EXPECT_FALSE(Replace(folder / "first", "new"));
    EXPECT_EQ(folder.Read("far/file"), "new");
    EXPECT_TRUE(fs::is_symlink(folder / "first"));
    EXPECT_TRUE(fs::is_symlink(folder / "near"));
    EXPECT_EQ(folder.Count(), 3);
}

TEST(ReplaceFile, MakesTheFileThatABrokenLinkLeadsTo) {
    const TemporaryFolder folder;
    fs::create_symlink("new file", folder / "link");
    EXPECT_FALSE(Replace(folder / "link", "content"));
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(folder.Read("new file"), "content");
}

TEST(ReplaceFile, RefusesLinksThatLeadNowhere) {
    const TemporaryFolder folder;
    fs::create_symlink("missing/file", folder / "link");
    EXPECT_EQ(Replace(folder / "link", "content"), std::errc::no_such_file_or_directory);
    fs::create_symlink("circle", folder / "circle");
    EXPECT_EQ(Replace(folder / "circle", "content"), std::errc::too_many_symbolic_link_levels);
    EXPECT_EQ(folder.Count(), 2);
}

TEST(ReplaceFile, RefusesWhatIsNoFile) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "folder");
    fs::create_symlink("folder", folder / "link");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(Replace(folder / "folder", ""), std::errc::is_a_directory);
    EXPECT_EQ(Replace(folder / "folder/", ""), std::errc::is_a_directory);
    EXPECT_EQ(Replace(folder / "new/", ""), std::errc::is_a_directory);
    EXPECT_EQ(Replace(folder / "link", ""), std::errc::is_a_directory);
    EXPECT_EQ(Replace(folder / "pipe", ""), std::errc::invalid_argument);
    EXPECT_EQ(Replace("/dev/null", ""), std::errc::invalid_argument);
    EXPECT_EQ(Replace(folder / "missing/file", ""), std::errc::no_such_file_or_directory);
    EXPECT_EQ(Replace(folder / std::string("a\0b", 3), ""), std::errc::invalid_argument);
    EXPECT_EQ(Replace({}, ""), std::errc::invalid_argument);
    EXPECT_EQ(folder.Count(), 3);
}

TEST(ReplaceFile, TakesNamesAsLongAsTheFileSystemAllows) {
    const TemporaryFolder folder;
    const std::string name(255, 'n');
    EXPECT_FALSE(Replace(folder / name, "first"));
    EXPECT_FALSE(Replace(folder / name, "second"));
    EXPECT_EQ(folder.Read(name), "second");
    EXPECT_EQ(Replace(folder / std::string(256, 'n'), ""), std::errc::filename_too_long);
    EXPECT_EQ(folder.Count(), 1);
}

TEST(ReplaceFile, KeepsTheOldFileWhateverFails) {
    struct Case {
        const char* step;
        int FailingCalls::*error;
        int value;
    };
    for (const auto& [step, error, value] :
         {Case{"open", &FailingCalls::openError, EACCES}, Case{"write", &FailingCalls::writeError, ENOSPC},
          Case{"flush", &FailingCalls::flushError, EIO}, Case{"close", &FailingCalls::closeError, EDQUOT},
          Case{"rename", &FailingCalls::renameError, EXDEV}}) {
        const TemporaryFolder folder;
        const auto path = folder.Write("file", "old content");
        FailingCalls calls;
        calls.*error = value;
        EXPECT_EQ(Replace(path, "new content", calls), std::error_code(value, std::generic_category()))
            << step;
        EXPECT_EQ(folder.Read("file"), "old content") << step;
        EXPECT_EQ(folder.Count(), 1) << step;
        EXPECT_EQ(calls.closes, value == EACCES ? 0 : 1) << step;

        EXPECT_TRUE(Replace(folder / "new", "new content", calls)) << step;
        EXPECT_EQ(folder.Count(), 1) << step;
    }
}

TEST(ReplaceFile, KeepsTheOldFileWhenTheDiskIsFullHalfway) {
    const TemporaryFolder folder;
    const auto path = folder.Write("file", "old content");
    FailingCalls calls;
    calls.writeError = ENOSPC;
    calls.bytesUntilWriteFails = 4;
    EXPECT_EQ(Replace(path, "new content", calls), std::errc::no_space_on_device);
    EXPECT_EQ(folder.Read("file"), "old content");
    EXPECT_EQ(folder.Count(), 1);
}

TEST(ReplaceFile, KeepsTheOldFileWhenNoByteIsTaken) {
    const TemporaryFolder folder;
    const auto path = folder.Write("file", "old content");
    FailingCalls calls;
    calls.longestWrite = 0;
    EXPECT_EQ(Replace(path, "new content", calls), std::errc::io_error);
    EXPECT_EQ(folder.Read("file"), "old content");
    EXPECT_EQ(folder.Count(), 1);
}

TEST(ReplaceFile, KeepsTheOldFileWhenCleaningUpFailsToo) {
    const TemporaryFolder folder;
    const auto path = folder.Write("file", "old content");
    FailingCalls calls;
    calls.renameError = EIO;
    calls.unlinkError = EIO;
    EXPECT_EQ(Replace(path, "new content", calls), std::errc::io_error);
    EXPECT_EQ(folder.Read("file"), "old content");
}

TEST(ReplaceFile, LeavesNothingBehindWhenOnlyTheThirdCleaningUpWorks) {
    const TemporaryFolder folder;
    const auto path = folder.Write("file", "old content");
    FailingCalls calls;
    calls.renameError = EIO;
    calls.unlinkError = EINTR;
    calls.failingUnlinks = 2;
    EXPECT_EQ(Replace(path, "new content", calls), std::errc::io_error);
    EXPECT_EQ(calls.unlinks, 3);
    EXPECT_EQ(folder.Count(), 1);
}

TEST(ReplaceFile, WritesOnAfterShortWritesAndSignals) {
    const TemporaryFolder folder;
    FailingCalls calls;
    calls.longestWrite = 3;
    calls.interruptions = 2;
    EXPECT_FALSE(Replace(folder / "file", "twelve bytes", calls));
    EXPECT_EQ(folder.Read("file"), "twelve bytes");
    calls.interruptions = 100;
    EXPECT_FALSE(Replace(folder / "empty", "", calls));  // The interruptions all fall on the flush.
    EXPECT_EQ(folder.Read("empty"), "");
}

TEST(ReplaceFile, NeverOpensAFileThatIsThere) {
    const TemporaryFolder folder;
    FailingCalls calls;
    ASSERT_FALSE(Replace(folder / "file", "one", calls));
    ASSERT_FALSE(Replace(folder / "file", "two", calls));
    ASSERT_EQ(calls.flagsOfOpen.size(), 2U);
    for (const int flags : calls.flagsOfOpen) {
        EXPECT_EQ(flags & (O_CREAT | O_EXCL | O_NOFOLLOW), O_CREAT | O_EXCL | O_NOFOLLOW);
        EXPECT_EQ(flags & O_TRUNC, 0);
    }
    for (const auto& name : calls.namesOfOpen) {
        EXPECT_NE(name, "file");
        EXPECT_LT(name.size(), 32U);
    }
    EXPECT_NE(calls.namesOfOpen[0], calls.namesOfOpen[1]);
}

TEST(ReplaceFile, FlushesTheFolderOnceTheNewFileStands) {
    const TemporaryFolder folder;
    const auto path = folder.Write("file", "old");
    FailingCalls calls;
    calls.watched = path;
    EXPECT_FALSE(Replace(path, "new", calls));
    EXPECT_EQ(calls.flushedFolders, std::vector<std::string>{folder.Path()});
    EXPECT_EQ(calls.fileWhenFolderIsFlushed, "new");
    // Of a link it is the folder of the file that it leads to.
    fs::create_directory(folder / "far");
    fs::create_symlink("far/file", folder / "link");
    EXPECT_FALSE(Replace(folder / "link", "new", calls));
    EXPECT_EQ(calls.flushedFolders.back(), folder / "far");
}

TEST(ReplaceFile, FlushesNoFolderAfterAFailure) {
    const TemporaryFolder folder;
    FailingCalls calls;
    calls.renameError = EIO;
    EXPECT_TRUE(Replace(folder / "file", "new", calls));
    EXPECT_TRUE(calls.flushedFolders.empty());
}

TEST(ReplaceFile, IsDoneAlsoIfTheFolderCannotBeFlushed) {
    const TemporaryFolder folder;
    const auto path = folder.Write("file", "old");
    FailingCalls calls;
    calls.folderError = EIO;
    EXPECT_FALSE(Replace(path, "new", calls));
    EXPECT_EQ(folder.Read("file"), "new");
    EXPECT_EQ(folder.Count(), 1);
}

TEST(ReplaceFile, TheSystemFlushesFoldersAndNothingElse) {
    const TemporaryFolder folder;
    EXPECT_EQ(SystemFileCalls().FlushFolder(folder.Path().c_str()), 0);
    EXPECT_EQ(SystemFileCalls().FlushFolder(folder.Write("file", "").c_str()), -1);
    EXPECT_EQ(SystemFileCalls().FlushFolder((folder / "missing").c_str()), -1);
}

TEST(ReplaceFile, ReplacesLinksThemselvesIfAsked) {
    const TemporaryFolder folder;
    folder.Write("far", "far content");
    fs::create_symlink("far", folder / "link");
    fs::create_symlink("missing/file", folder / "broken");
    fs::create_symlink("circle", folder / "circle");
    for (const char* const name : {"link", "broken", "circle", "none"}) {
        EXPECT_FALSE(ReplaceFile(folder / name, AsBytes("new"), SystemFileCalls(), Links::Replaced)) << name;
        EXPECT_FALSE(fs::is_symlink(folder / name)) << name;
        EXPECT_EQ(folder.Read(name), "new") << name;
    }
    EXPECT_EQ(folder.Read("far"), "far content");
    fs::create_directory(folder / "folder");
    EXPECT_EQ(ReplaceFile(folder / "folder", {}, SystemFileCalls(), Links::Replaced),
              std::errc::is_a_directory);
    EXPECT_EQ(folder.Count(), 6);
}

/// The number of a process that has ended.
pid_t EndedProcess() {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(0);
    ::waitpid(child, nullptr, 0);
    return child;
}

TEST(RemoveStrays, DeletesWhatEndedProcessesLeft) {
    const TemporaryFolder folder;
    const std::string ended = std::to_string(EndedProcess());
    folder.Write(".~" + ended + "-0.tmp", "");
    folder.Write(".~" + ended + "-4000000000.tmp", "half of a pict");
    folder.Write(".~2147483647-1.tmp", "");  // a number that no process has
    RemoveStrays(folder.Path());
    EXPECT_EQ(folder.Count(), 0);
}

TEST(RemoveStrays, LeavesRunningProcessesAndAllOtherNames) {
    const TemporaryFolder folder;
    const std::string ended = std::to_string(EndedProcess()), own = std::to_string(::getpid());
    int count = 0;
    for (const std::string& name :
         {".~" + own + "-0.tmp", std::string(".~1-0.tmp"), std::string(".~.tmp"), std::string(".~-.tmp"),
          std::string(".~0-1.tmp"), std::string(".~-1-1.tmp"), ".~" + ended + ".tmp", ".~" + ended + "-.tmp",
          ".~" + ended + "-1.tm", ".~" + ended + "-1.tmp~", ".~" + ended + "-1x.tmp",
          ".~x" + ended + "-1.tmp", ".~ " + ended + "-1.tmp", "~" + ended + "-1.tmp",
          ".~" + ended + "-99999999999.tmp", std::string(".~99999999999-1.tmp"), std::string(".tmp"),
          std::string(".~tmp"), std::string("a.pat")}) {
        folder.Write(name, "x");
        ++count;
    }
    fs::create_directory(folder / (".~" + ended + "-7.tmp"));
    RemoveStrays(folder.Path());
    EXPECT_EQ(folder.Count(), count + 1);
    RemoveStrays(folder / "missing");
    RemoveStrays(folder / "a.pat");
}

TEST(RemoveStrays, FindsWhatAKilledReplacingLeft) {
    const TemporaryFolder folder;
    folder.Write("file", "old content");
    InAnotherProcess([&] {
        FailingCalls calls;
        calls.renameError = EIO;
        calls.unlinkError = EIO;
        return Replace(folder / "file", "new content", calls) ? 0 : 1;
    });
    EXPECT_EQ(folder.Count(), 2);
    RemoveStrays(folder.Path());
    EXPECT_EQ(folder.Count(), 1);
    EXPECT_EQ(folder.Read("file"), "old content");
}

TEST(ReplaceFile, GivesUpWhenEveryTemporaryNameIsTaken) {
    const TemporaryFolder folder;
    const auto path = folder.Write("file", "old content");
    FailingCalls calls;
    calls.openError = EEXIST;
    EXPECT_EQ(Replace(path, "new content", calls), std::errc::file_exists);
    EXPECT_EQ(folder.Read("file"), "old content");
}

TEST(ReplaceFile, KeepsTheOldFileAtTheLimitOfFileSizes) {
    const TemporaryFolder folder;
    const auto path = folder.Write("file", "old content");
    const int result = InAnotherProcess([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{1000, 1000};
        if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) return 2;
        return Replace(path, std::string(5000, 'x')) == std::errc::file_too_large ? 0 : 1;
    });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(folder.Read("file"), "old content");
    EXPECT_EQ(folder.Count(), 1);
}

/// What a user without special rights gets for replacing `path`; 0 for success, else the errno.
int ReplaceAsOrdinaryUser(const fs::path& path) {
    return InAnotherProcess([&] {
        constexpr uid_t nobody = 65534;
        if (::geteuid() == 0 &&
            (::setgroups(0, nullptr) != 0 || ::setgid(nobody) != 0 || ::setuid(nobody) != 0))
            return 255;
        return Replace(path, "new content").value();
    });
}

TEST(ReplaceFile, KeepsTheFileOfAFolderThatCannotBeWrittenTo) {
    const TemporaryFolder folder;
    const auto path = folder.Write("file", "old content");
    ASSERT_EQ(::chmod(path.c_str(), 0666), 0);
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0555), 0);
    EXPECT_EQ(ReplaceAsOrdinaryUser(path), EACCES);
    EXPECT_EQ(folder.Read("file"), "old content");
    EXPECT_EQ(ReplaceAsOrdinaryUser(folder / "new"), EACCES);
    EXPECT_EQ(folder.Count(), 1);
}

TEST(ReplaceFile, HeedsTheWriteProtectionOfAFile) {
    const TemporaryFolder folder;
    const auto path = folder.Write("file", "old content");
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0777), 0);
    ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
    EXPECT_EQ(ReplaceAsOrdinaryUser(path), EACCES);
    EXPECT_EQ(folder.Read("file"), "old content");
    EXPECT_EQ(folder.Count(), 1);
    ASSERT_EQ(::chmod(path.c_str(), 0666), 0);
    EXPECT_EQ(ReplaceAsOrdinaryUser(path), 0);  // The folder alone was no obstacle.
    EXPECT_EQ(folder.Read("file"), "new content");
}

}  // namespace
}  // namespace coinlet
