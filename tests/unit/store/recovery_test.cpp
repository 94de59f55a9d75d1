// Work that isn't stored outlives the program: when a snapshot is written, when it goes, how it comes back.

#include "store/recovery.h"

#include "core/language.h"
#include "store/save_form.h"
#include "support/world.h"
#include "surface/codecs.h"

#include <unistd.h>

#include <csignal>
#include <gtest/gtest.h>
#include <memory>
#include <sys/wait.h>

namespace coinlet {
namespace {

class RecoveryTest : public ::testing::Test {
protected:
    RecoveryTest() {
        fs::create_directories(world.folder / "app/Data");
        world.folder.Write("app/Data/English.txt", "420 Recovered\r\n421 It is back:\r\n");
        LoadLanguage(world.context, "English");
        world.session.StoredDesign = RevisionOf(world.main);
    }

    void Draw() { world.main.Pic.surface.Line(10, 10, 200, 10, black); }
    void PassSeconds(int seconds) {
        for (int i = 0; i < seconds; ++i)
            world.main.RecoveryTimer.Tick();
    }
    /// The picture of the one snapshot there is; empty if there is none.
    Image Snapshot() const {
        if (!fs::exists(folder)) return {};
        for (const std::string& name : ListFiles(folder, "*.pat"))
            return DecodeBmp(ReadFile(folder / name).value_or(Bytes())).value_or(Image());
        return {};
    }
    bool HasSnapshot() const { return !Snapshot().Empty(); }
    /// A program that ends without its user and leaves its snapshot.
    void Lose() {
        recovery->KeepForNextStart();
        recovery.reset();
    }
    void StartAgain() {
        recovery = std::make_unique<Recovery>(world.context, folder);
        recovery->PutBackLostWork();
    }
    void Save(const char* mode) {
        world.session.SaveMode = mode;
        SaveForm dialog(world.context);
        world.platform.doings.push_back([&] {
            dialog.Text1.SetText("tag");
            dialog.SaveKnop.PointerClicked();
            if (dialog.Loaded()) dialog.Unload();
        });
        world.platform.ShowModal(dialog);
    }
    std::vector<std::string> Designs() const { return ListFiles(world.folder / "app/Ontwerpen", "*"); }

    test::World world;
    fs::path folder = world.folder / "state";
    std::unique_ptr<Recovery> recovery = std::make_unique<Recovery>(world.context, folder);
};

TEST_F(RecoveryTest, UnchangedDesignNeedsNoSnapshot) {
    PassSeconds(20);
    recovery->StrokeFinished();
    EXPECT_FALSE(HasSnapshot());
    EXPECT_FALSE(fs::exists(folder));
}

TEST_F(RecoveryTest, PauseOfASecondWritesOne) {
    Draw();
    PassSeconds(1);
    EXPECT_FALSE(HasSnapshot());
    PassSeconds(1);
    ASSERT_TRUE(HasSnapshot());
    // As a save composes it: the canvas, a rule beside it, the panel.
    EXPECT_EQ(Snapshot().Width(), 700);
    EXPECT_EQ(Snapshot().Height(), 500);
    EXPECT_EQ(Snapshot().At(100, 10), black);
    EXPECT_EQ(Snapshot().At(500, 100), RGB(190, 190, 190));
}

TEST_F(RecoveryTest, WhoNeverPausesGetsOneWithAStrokeTenSecondsLater) {
    for (int second = 1; second < 10; ++second) {
        Draw();
        PassSeconds(1);
        recovery->StrokeFinished();
        EXPECT_FALSE(HasSnapshot()) << second;
    }
    Draw();
    PassSeconds(1);
    recovery->StrokeFinished();
    EXPECT_TRUE(HasSnapshot());
}

TEST_F(RecoveryTest, SidePanelAndInfoTextAreWorkToo) {
    world.main.InfoPic.surface.Line(0, 0, 100, 0, RGB(1, 2, 3));
    PassSeconds(2);
    EXPECT_EQ(Snapshot().At(560, 0), RGB(1, 2, 3));
    world.session.StoredDesign = RevisionOf(world.main);
    PassSeconds(1);
    EXPECT_FALSE(HasSnapshot());
    world.SetRows({"a note"});
    PassSeconds(2);
    EXPECT_TRUE(HasSnapshot());
    EXPECT_EQ(ListFiles(folder, "*.txt").size(), 1U);
}

TEST_F(RecoveryTest, StoredDesignNeedsNoneAnyMore) {
    Draw();
    PassSeconds(2);
    ASSERT_TRUE(HasSnapshot());
    Save("BMP");
    PassSeconds(1);
    EXPECT_FALSE(HasSnapshot());
    EXPECT_EQ(Designs(), std::vector<std::string>{"tag.pat"});
}

TEST_F(RecoveryTest, SaveThatFailsOrAnExportDoesNotEndIt) {
    Draw();
    PassSeconds(2);
    fs::remove(world.folder / "app/Ontwerpen");
    for (const char* mode : {"BMP", "JPG"}) {
        Save(mode);
        PassSeconds(2);
        EXPECT_TRUE(HasSnapshot()) << mode;
    }
}

TEST_F(RecoveryTest, SnapshotGoesWithItsProgramUnlessItIsKept) {
    Draw();
    for (const bool isKept : {false, true}) {
        PassSeconds(2);
        ASSERT_TRUE(HasSnapshot());
        if (isKept) recovery->KeepForNextStart();
        recovery.reset();
        EXPECT_EQ(HasSnapshot(), isKept);
        StartAgain();
        EXPECT_EQ(Designs().size(), isKept ? 1U : 0U);
    }
}

TEST_F(RecoveryTest, NothingIsKeptOfAStoredDesign) {
    Draw();
    PassSeconds(2);
    ASSERT_TRUE(HasSnapshot());
    Save("BMP");
    // Before the program has looked again.
    Lose();
    EXPECT_FALSE(HasSnapshot());
}

TEST_F(RecoveryTest, LostWorkIsADesignOfItsOwnAtTheNextStart) {
    Draw();
    world.SetRows({"a note"});
    Lose();
    StartAgain();
    const auto designs = Designs();
    ASSERT_EQ(designs.size(), 2U);
    EXPECT_TRUE(MatchesPattern(designs[0], "Recovered 20*-*-* *.*.pat")) << designs[0];
    const auto stored = DecodeBmp(ReadFile(world.folder / "app/Ontwerpen" / designs[0]).value());
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->At(100, 10), black);
    EXPECT_EQ(world.Stored(designs[1]),
              "Ivo Kestrell Software 2014\r\n--------------------------\r\na note\r\n");
    const std::string name = designs[0].substr(0, designs[0].size() - 4);
    EXPECT_EQ(world.main.InfoLabel.Caption, "It is back: " + name);
    EXPECT_FALSE(HasSnapshot());
    // Once only.
    StartAgain();
    EXPECT_EQ(Designs().size(), 2U);
}

TEST_F(RecoveryTest, NameThatIsTakenGetsANumber) {
    for (int i = 0; i < 3; ++i) {
        Draw();
        Lose();
        recovery = std::make_unique<Recovery>(world.context, folder);
    }
    // All three within the same minute or two.
    StartAgain();
    const auto designs = Designs();
    ASSERT_EQ(designs.size(), 3U);
    EXPECT_TRUE(std::ranges::any_of(designs, [](const auto& name) { return name.ends_with(" (2).pat"); }));
}

TEST_F(RecoveryTest, StoreThatCantBeWrittenLeavesTheSnapshot) {
    Draw();
    Lose();
    fs::remove(world.folder / "app/Ontwerpen");
    world.main.InfoLabel.Caption = "as it was";
    StartAgain();
    EXPECT_TRUE(HasSnapshot());
    EXPECT_EQ(world.main.InfoLabel.Caption, "as it was");
    fs::create_directories(world.folder / "app/Ontwerpen");
    StartAgain();
    EXPECT_EQ(Designs().size(), 1U);
}

TEST_F(RecoveryTest, BrokenSnapshotIsDropped) {
    fs::create_directories(folder);
    world.folder.Write("state/design-abc.lock", "");
    world.folder.Write("state/design-abc.pat", "half a");
    StartAgain();
    EXPECT_TRUE(Designs().empty());
    EXPECT_TRUE(fs::is_empty(folder));
}

TEST_F(RecoveryTest, HalfWrittenSnapshotOfAKilledProgramGoes) {
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        class Dying final : public FileCalls {
        public:
            int Open(const char* path, int flags, unsigned mode) override {
                return SystemFileCalls().Open(path, flags, mode);
            }
            long Write(int, const void*, std::size_t) override { return ::raise(SIGKILL); }
            int Flush(int) override { return 0; }
            int Close(int file) override { return SystemFileCalls().Close(file); }
            int Rename(const char*, const char*) override { return 0; }
            int Unlink(const char*) override { return 0; }
            int FlushFolder(const char*) override { return 0; }
        } dying;
        fs::create_directories(folder);
        static_cast<void>(ReplaceFile(folder / "design-abc.pat", AsBytes("half"), dying));
        ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));
    ASSERT_FALSE(fs::is_empty(folder));
    StartAgain();
    EXPECT_TRUE(fs::is_empty(folder));
}

TEST_F(RecoveryTest, WithoutAFolderNothingIsKept) {
    Recovery none(world.context, {});
    Draw();
    none.KeepForNextStart();
    none.PutBackLostWork();
    EXPECT_TRUE(Designs().empty());
}

}  // namespace
}  // namespace coinlet
