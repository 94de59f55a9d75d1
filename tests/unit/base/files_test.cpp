// Reading and deleting files, and the names that may lead to one.
#include "base/files.h"

#include "base/file_reading.h"
#include "support/temporary_folder.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace coinlet {
namespace {

using test::TemporaryFolder;

std::string Text(const std::optional<Bytes>& bytes) {
    return bytes ? std::string(bytes->begin(), bytes->end()) : "(nothing)";
}

TEST(ReadFile, GivesEveryByte) {
    const TemporaryFolder folder;
    std::string all;
    for (int i = 0; i < 70000; ++i)
        all += static_cast<char>(i * 7);
    EXPECT_EQ(Text(ReadFile(folder.Write("all", all))), all);
    EXPECT_EQ(Text(ReadFile(folder.Write("empty", ""))), "");
}

TEST(ReadFile, FollowsLinks) {
    const TemporaryFolder folder;
    fs::create_symlink(folder.Write("file", "content"), folder / "link");
    EXPECT_EQ(Text(ReadFile(folder / "link")), "content");
}

TEST(ReadFile, HasALimitThatCountsAsInside) {
    const TemporaryFolder folder;
    const auto path = folder.Write("file", "12345");
    EXPECT_EQ(Text(ReadFile(path, 5)), "12345");
    EXPECT_EQ(Text(ReadFile(path, 4)), "(nothing)");
    EXPECT_EQ(Text(ReadFile(folder.Write("empty", ""), 0)), "");
}

TEST(ReadFile, ReadsToTheEndWhateverSizeIsClaimed) {
    const fs::path claimsToBeEmpty = "/proc/self/status";
    if (!fs::exists(claimsToBeEmpty)) GTEST_SKIP() << "no /proc here";
    const std::string text = Text(ReadFile(claimsToBeEmpty));
    EXPECT_EQ(text.substr(0, 5), "Name:");
    EXPECT_EQ(Text(ReadFile(claimsToBeEmpty, 10)), "(nothing)");
}

// A desktop may start the program without its three usual files; then the first that is opened is number 0.
TEST(ReadFile, ClosesWhatItOpenedWhateverItsNumber) {
    const TemporaryFolder folder;
    const auto path = folder.Write("file", "content");
    const int kept = ::dup(STDIN_FILENO);
    ::close(STDIN_FILENO);
    const std::string text = Text(ReadFile(path));
    const bool closed = ::fcntl(STDIN_FILENO, F_GETFD) == -1;
    if (kept != -1) {
        ::dup2(kept, STDIN_FILENO);
        ::close(kept);
    }
    EXPECT_EQ(text, "content");
    EXPECT_TRUE(closed);
}

TEST(ReadFile, GivesNothingWhereReadingFails) {
    const fs::path unreadable = "/proc/self/mem";  // nothing lies at address 0
    if (!fs::exists(unreadable)) GTEST_SKIP() << "no /proc here";
    EXPECT_EQ(Text(ReadFile(unreadable)), "(nothing)");
}

TEST(ReadFile, GivesNothingForWhatIsNoRegularFile) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "folder");
    fs::create_symlink(folder / "gone", folder / "broken");
    fs::create_symlink("circle", folder / "circle");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    for (const char* name : {"folder", "broken", "circle", "pipe", "missing", "missing/file", ""})
        EXPECT_EQ(Text(ReadFile(folder / name)), "(nothing)") << name;
    EXPECT_EQ(Text(ReadFile("/dev/null")), "(nothing)");
    EXPECT_EQ(Text(ReadFile({})), "(nothing)");
}

TEST(ReadFile, AZeroByteLeadsToNoOtherFile) {
    const TemporaryFolder folder;
    folder.Write("file", "content");
    EXPECT_EQ(Text(ReadFile(folder / std::string("file\0.txt", 9))), "(nothing)");
}

std::string StartOf(const fs::path& path, std::size_t most, const ReadCall& read = ReadBySystem) {
    const auto start = ReadStart(path, most, read);
    return start ? Text(start->bytes) + (start->isWhole ? "" : "...") : "(nothing)";
}

TEST(ReadStart, GivesAsManyBytesAsAreWanted) {
    const TemporaryFolder folder;
    const auto path = folder.Write("file", "12345");
    EXPECT_EQ(StartOf(path, 0), "...");
    EXPECT_EQ(StartOf(path, 3), "123...");
    EXPECT_EQ(StartOf(path, 5), "12345");
    EXPECT_EQ(StartOf(path, 1000), "12345");
    EXPECT_EQ(StartOf(folder.Write("empty", ""), 0), "");
    fs::resize_file(path, std::uintmax_t{1} << 40);
    EXPECT_EQ(StartOf(path, 5), "12345...");
}

TEST(ReadStart, GivesNothingForWhatIsNoRegularFile) {
    const TemporaryFolder folder;
    fs::create_symlink("gone", folder / "broken");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    for (const char* name : {"", "broken", "pipe", "missing"})
        EXPECT_EQ(StartOf(folder / name, 9), "(nothing)") << name;
}

TEST(ReadStart, KeepsWhatWasReadBeforeAnError) {
    const TemporaryFolder folder;
    // A disk that gives three bytes at once, and after the second time an error.
    int reads = 0;
    const auto disk = [&](int file, void* data, std::size_t size) -> long {
        if (++reads < 3) return ReadBySystem(file, data, std::min<std::size_t>(size, 3));
        errno = EIO;
        return -1;
    };
    EXPECT_EQ(StartOf(folder.Write("file", "12345678"), 100, disk), "123456...");
}

TEST(ReadStart, GoesOnAfterASignal) {
    const TemporaryFolder folder;
    int reads = 0;
    const auto disk = [&](int file, void* data, std::size_t size) -> long {
        if (reads++ % 2 == 1) return ReadBySystem(file, data, std::min<std::size_t>(size, 1));
        errno = EINTR;
        return -1;
    };
    EXPECT_EQ(StartOf(folder.Write("file", "12345"), 100, disk), "12345");
}

TEST(IsMissing, IsTrueOnlyWhereCertainlyNothingStands) {
    const TemporaryFolder folder;
    folder.Write("file", "");
    fs::create_symlink("gone", folder / "broken");
    fs::create_symlink("circle", folder / "circle");
    for (const char* name : {"", "file", "broken", "circle", "circle/file"})
        EXPECT_FALSE(IsMissing(folder / name)) << name;
    EXPECT_FALSE(IsMissing(folder / std::string(300, 'n')));  // nobody can tell
    for (const fs::path& path : {folder / "missing", folder / "missing/file", folder / "file/file",
                                 folder / std::string("file\0", 5), fs::path()})
        EXPECT_TRUE(IsMissing(path)) << path;
}

TEST(FileExists, SaysYesToRegularFilesAlone) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "folder");
    fs::create_symlink(folder / "gone", folder / "broken");
    fs::create_symlink(folder.Write("file", ""), folder / "link");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_TRUE(FileExists(folder / "file"));
    EXPECT_TRUE(FileExists(folder / "link"));
    for (const char* name : {"folder", "broken", "pipe", "missing", "file/file"})
        EXPECT_FALSE(FileExists(folder / name)) << name;
    EXPECT_FALSE(FileExists(folder / std::string("file\0", 5)));
    EXPECT_FALSE(FileExists(folder / std::string(300, 'x')));
}

TEST(DeleteFile, DeletesAFile) {
    const TemporaryFolder folder;
    EXPECT_FALSE(DeleteFile(folder.Write("file", "content")));
    EXPECT_EQ(folder.Count(), 0);
}

TEST(DeleteFile, DeletesALinkButNotWhatItLeadsTo) {
    const TemporaryFolder folder;
    fs::create_symlink(folder.Write("file", "content"), folder / "link");
    EXPECT_FALSE(DeleteFile(folder / "link"));
    EXPECT_EQ(folder.Count(), 1);
    EXPECT_EQ(folder.Read("file"), "content");
    fs::create_symlink("gone", folder / "broken");
    EXPECT_FALSE(DeleteFile(folder / "broken"));
    EXPECT_EQ(folder.Count(), 1);
}

TEST(DeleteFile, RefusesAllElse) {
    const TemporaryFolder folder;
    folder.Write("file", "content");
    fs::create_directory(folder / "folder");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(DeleteFile(folder / "folder"), std::errc::is_a_directory);
    EXPECT_EQ(DeleteFile(folder / "pipe"), std::errc::invalid_argument);
    EXPECT_EQ(DeleteFile(folder / "missing"), std::errc::no_such_file_or_directory);
    EXPECT_EQ(DeleteFile(folder / std::string("file\0x", 6)), std::errc::invalid_argument);
    EXPECT_EQ(DeleteFile({}), std::errc::invalid_argument);
    EXPECT_EQ(folder.Count(), 3);
}

TEST(IsFileName, TakesPlainNames) {
    for (const char* name : {"a", "My tag.pat", "...", ".hidden", "\xE9", "t\xC3\xA9"})
        EXPECT_TRUE(IsFileName(name)) << name;
}

TEST(IsFileName, RefusesWhatLeadsElsewhere) {
    for (const char* name : {"", ".", "..", "/", "a/b", "../a", "a/", "\\", "a\\b", "..\\a", "a\\"})
        EXPECT_FALSE(IsFileName(name)) << name;
    EXPECT_FALSE(IsFileName(std::string_view("a\0b", 3)));
    EXPECT_FALSE(IsFileName(std::string_view("\0", 1)));
}

}  // namespace
}  // namespace coinlet
