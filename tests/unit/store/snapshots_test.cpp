// What a run that was killed leaves behind, and who may take it.

#include "store/snapshots.h"

#include "support/temporary_folder.h"

#include <fcntl.h>
#include <unistd.h>

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <sys/wait.h>
#include <vector>

namespace coinlet {
namespace {

DesignFiles Design(std::string_view picture, std::optional<std::string_view> infoText = {}) {
    const auto bytes = [](std::string_view text) {
        return Bytes(AsBytes(text).begin(), AsBytes(text).end());
    };
    DesignFiles files{.picture = bytes(picture), .infoText = {}};
    if (infoText) files.infoText = bytes(*infoText);
    return files;
}

std::string Text(const Bytes& bytes) {
    return {bytes.begin(), bytes.end()};
}

class SnapshotsTest : public ::testing::Test {
protected:
    /// The snapshots of dead programs, "picture|info text"; each is taken if `isTaken`.
    std::vector<std::string> Lost(bool isTaken = true) const {
        std::vector<std::string> found;
        TakeLostSnapshots(folder, [&](const DesignFiles& design, std::int64_t) {
            found.push_back(Text(design.picture) + "|" + (design.infoText ? Text(*design.infoText) : "none"));
            return isTaken;
        });
        return found;
    }
    /// Another program, which does this and is then killed.
    void KilledAfter(const std::function<void(OwnSnapshot&)>& doing) const {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            OwnSnapshot snapshot(folder);
            doing(snapshot);
            ::raise(SIGKILL);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status));
    }
    std::ptrdiff_t FilesInFolder() const {
        return fs::exists(folder) ? std::distance(fs::directory_iterator(folder), {}) : 0;
    }

    test::TemporaryFolder root;
    fs::path folder = root / "state/coinlet-designer";
};

TEST_F(SnapshotsTest, NothingIsMadeWithoutNeed) {
    { const OwnSnapshot snapshot(folder); }
    EXPECT_FALSE(fs::exists(root / "state"));
    EXPECT_TRUE(Lost().empty());
}

TEST_F(SnapshotsTest, LastOneOfAKilledProgramIsFoundOnce) {
    KilledAfter([](OwnSnapshot& snapshot) {
        snapshot.Write(Design("first", "with a text"));
        snapshot.Write(Design("second"));
    });
    EXPECT_EQ(Lost(), std::vector<std::string>{"second|none"});
    EXPECT_TRUE(Lost().empty());
    EXPECT_EQ(FilesInFolder(), 0);
}

TEST_F(SnapshotsTest, InfoTextComesWithIt) {
    KilledAfter([](OwnSnapshot& snapshot) { snapshot.Write(Design("picture", "text")); });
    EXPECT_EQ(Lost(), std::vector<std::string>{"picture|text"});
}

TEST_F(SnapshotsTest, OneThatCouldNotBeTakenWaits) {
    KilledAfter([](OwnSnapshot& snapshot) { snapshot.Write(Design("picture")); });
    EXPECT_EQ(Lost(false).size(), 1U);
    EXPECT_EQ(Lost(true).size(), 1U);
}

TEST_F(SnapshotsTest, RunningProgramKeepsItsOwn) {
    OwnSnapshot snapshot(folder);
    ASSERT_TRUE(snapshot.Write(Design("alive")));
    KilledAfter([](OwnSnapshot& other) { other.Write(Design("dead")); });
    EXPECT_EQ(Lost(), std::vector<std::string>{"dead|none"});
    EXPECT_EQ(FilesInFolder(), 2);  // the lock and the picture of the living one
}

TEST_F(SnapshotsTest, ProgramThatIsLeftTakesItsOwnAway) {
    {
        OwnSnapshot snapshot(folder);
        ASSERT_TRUE(snapshot.Write(Design("picture", "text")));
    }
    EXPECT_EQ(FilesInFolder(), 0);
}

TEST_F(SnapshotsTest, RemovedOneCanBeWrittenAnew) {
    OwnSnapshot snapshot(folder);
    ASSERT_TRUE(snapshot.Write(Design("picture", "text")));
    snapshot.Remove();
    EXPECT_EQ(FilesInFolder(), 0);
    ASSERT_TRUE(snapshot.Write(Design("again")));
    EXPECT_EQ(FilesInFolder(), 2);
}

TEST_F(SnapshotsTest, KeptOneOutlivesAQuietEnd) {
    {
        OwnSnapshot snapshot(folder);
        ASSERT_TRUE(snapshot.Write(Design("picture")));
        snapshot.Keep();
    }
    EXPECT_EQ(Lost(), std::vector<std::string>{"picture|none"});
}

TEST_F(SnapshotsTest, ProgramKilledBeforeItsFirstPictureLeavesNothingToTake) {
    fs::create_directories(folder);
    root.Write("state/coinlet-designer/design-abc.lock", "");
    root.Write("state/coinlet-designer/design-abc.txt", "text");
    EXPECT_TRUE(Lost().empty());
    EXPECT_EQ(FilesInFolder(), 0);
}

TEST_F(SnapshotsTest, OneThatCantBeReadWaits) {
    for (const char* file : {"design-abc.pat", "design-abc.txt"}) {
        fs::create_directories(folder);
        for (const char* name : {"design-abc.lock", "design-abc.pat", "design-abc.txt"})
            root.Write(fs::path("state/coinlet-designer") / name, "what the user drew");
        // Nobody may read it, the superuser neither: more than the program takes of any file.
        fs::resize_file(folder / file, std::uintmax_t{1} << 40);
        EXPECT_TRUE(Lost().empty()) << file;
        EXPECT_EQ(FilesInFolder(), 3) << file;
        fs::resize_file(folder / file, 4);
        EXPECT_EQ(Lost().size(), 1U) << file;
        EXPECT_EQ(FilesInFolder(), 0) << file;
    }
}

TEST_F(SnapshotsTest, FolderThatCantBeMadeIsNoFault) {
    root.Write("state", "a file");
    OwnSnapshot snapshot(folder);
    EXPECT_FALSE(snapshot.Write(Design("picture")));
    EXPECT_TRUE(Lost().empty());
}

}  // namespace
}  // namespace coinlet
