// Saving and exporting: what is written, what is asked, and what stays as it was when writing fails.
#include "store/save_form.h"

#include "support/failing_step.h"
#include "support/world.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>

namespace coinlet {
namespace {

using test::World;

constexpr Colour inCanvas = RGB(200, 30, 40), inPanel = RGB(20, 130, 40);

/// A world with a spot on the canvas and one on the side panel.
class DesignWorld : public World {
public:
    DesignWorld() {
        main.Pic.surface.PSet(7, 9, inCanvas);
        main.InfoPic.surface.PSet(3, 5, inPanel);
        session.DesignChanged = true;
        session.DesignName = "earlier";
    }

    /// Opens the dialog and lets the user do that in it.
    void Open(const char* mode, const std::function<void(SaveForm&)>& doing) {
        session.SaveMode = mode;
        SaveForm dialog(context);
        platform.doings.push_back([&] {
            doing(dialog);
            left = !dialog.Loaded();
            if (!left) dialog.Unload();
        });
        platform.ShowModal(dialog);
    }
    void Save(const char* mode, const std::string& name) {
        Open(mode, [&](SaveForm& dialog) {
            dialog.Text1.SetText(name);
            dialog.SaveKnop.PointerClicked();
        });
    }

    /// The dialog had closed by itself.
    bool left = false;

    Image Load(const std::string& file) const { return Decode(folder.Read(file)); }
    /// An export, which has its quality in front.
    Image LoadExport(const std::string& name) const {
        const std::string bytes = folder.Read("Pictures/" + name);
        EXPECT_EQ(static_cast<unsigned char>(bytes.front()), 100);
        return Decode(bytes.substr(1));
    }

private:
    static Image Decode(std::string_view bytes) { return DecodeBmp(AsBytes(bytes)).value_or(Image()); }
};

TEST(SaveForm, StoresTheComposedPicture) {
    DesignWorld world;
    world.Save("BMP", "coin");
    EXPECT_TRUE(world.left);
    const Image stored = world.Load("app/Ontwerpen/coin.pat");
    EXPECT_EQ(stored.Width(), 700);
    EXPECT_EQ(stored.Height(), 500);
    EXPECT_EQ(stored.At(7, 9), inCanvas);
    EXPECT_EQ(stored.At(513, 5), inPanel);
    EXPECT_EQ(stored.At(500, 499), RGB(190, 190, 190));
    EXPECT_EQ(stored.At(699, 330), RGB(190, 190, 190));
    EXPECT_EQ(stored.At(505, 100), white);
    EXPECT_FALSE(world.session.DesignChanged);
    EXPECT_EQ(world.session.DesignName, "earlier");
    EXPECT_EQ(world.session.DesignFile, (world.folder / "app/Ontwerpen/coin.pat").string());
    EXPECT_EQ(world.StoredFiles(), 1);
}

TEST(SaveForm, BarLiesExactlyOnTheName) {
    DesignWorld world;
    world.Open("BMP", [](const SaveForm& dialog) {
        EXPECT_EQ(dialog.Bar.Left(), dialog.Text1.Left());
        EXPECT_EQ(dialog.Bar.Top(), dialog.Text1.Top());
        for (const auto& [width, height] : {std::pair{dialog.Bar.Width(), dialog.Bar.Height()},
                                            std::pair{dialog.Text1.Width(), dialog.Text1.Height()}}) {
            EXPECT_EQ(width, 299 * 15);
            EXPECT_EQ(height, 20 * 15);
        }
    });
}

TEST(SaveForm, StoresTheDesignAsItWasWhenTheDialogOpened) {
    DesignWorld world;
    world.Open("BMP", [&](SaveForm& dialog) {
        world.main.Pic.surface.PSet(7, 9, white);
        dialog.Text1.SetText("coin");
        dialog.SaveKnop.PointerClicked();
    });
    EXPECT_EQ(world.Load("app/Ontwerpen/coin.pat").At(7, 9), inCanvas);
    // The change isn't stored, and counts as such.
    EXPECT_TRUE(world.session.DesignChanged);
    EXPECT_NE(world.session.StoredDesign, RevisionOf(world.main));
}

TEST(SaveForm, WritesAnInfoTextOnlyIfThereAreRows) {
    DesignWorld world;
    world.Store("coin.txt", "older");
    world.Save("BMP", "coin");
    EXPECT_EQ(world.Stored("coin.txt"), "older");
    world.SetRows({"row"});
    world.Save("BMP", "other");
    EXPECT_TRUE(world.Stored("other.txt").ends_with("\r\nrow\r\n"));
}

TEST(SaveForm, StaysWhileThereIsNoName) {
    for (const char* mode : {"BMP", "JPG"}) {
        for (const char* name : {"", "   "}) {
            DesignWorld world;
            world.Save(mode, name);
            EXPECT_FALSE(world.left);
            EXPECT_TRUE(world.session.DesignChanged);
            EXPECT_EQ(world.session.DesignFile, "");
            EXPECT_EQ(world.StoredFiles(), 0);
            EXPECT_TRUE(world.platform.messages.empty());
        }
    }
}

TEST(SaveForm, TakesNamesAsTheyAreTyped) {
    DesignWorld world;
    const std::vector<std::string> names{"  leading", "trailing ",  "-rf", "\"a\" 'b'",
                                         "café",      "\U0001F600", ".",   std::string(251, 'n')};
    for (const std::string& name : names) {
        world.Save("BMP", name);
        EXPECT_EQ(world.Load("app/Ontwerpen/" + name + ".pat").Width(), 700) << name;
        world.Save("JPG", name);
        EXPECT_EQ(world.LoadExport(name + ".jpg").Width(), 500) << name;
    }
    EXPECT_EQ(world.StoredFiles(), std::ssize(names));
}

TEST(SaveForm, AsksWhereCaseAloneDiffers) {
    DesignWorld world;
    world.Store("Coin.pat", "other design");
    world.platform.answers = {Answer::No};
    world.Save("BMP", "coin");
    EXPECT_EQ(world.Stored("Coin.pat"), "other design");
    EXPECT_EQ(world.platform.messages.size(), 1U);
    EXPECT_EQ(world.StoredFiles(), 1);
}

TEST(SaveForm, ClosesWithoutAWordOnANameThatNoFileCanHave) {
    for (const char* mode : {"BMP", "JPG"}) {
        for (const std::string& name :
             {std::string("../coin"), std::string("a/b"), std::string("a\0b", 3), std::string(252, 'n')}) {
            DesignWorld world;
            world.SetRows({"row"});
            world.Save(mode, name);
            EXPECT_TRUE(world.left);
            EXPECT_FALSE(world.session.DesignChanged);
            EXPECT_TRUE(world.platform.messages.empty());
            EXPECT_EQ(world.StoredFiles(), 0);
            EXPECT_TRUE(fs::is_empty(world.folder / "Pictures"));
            EXPECT_EQ(std::distance(fs::directory_iterator(world.folder / "app"), {}), 1);
        }
    }
}

TEST(SaveForm, AsksBeforeItOverwrites) {
    DesignWorld world;
    world.main.InfoList.AddItem("070 Overwrite?");
    world.Store("coin.pat", "old");
    world.Store("coin.txt", "old text");
    world.SetRows({"row"});
    world.platform.answers = {Answer::No, Answer::Yes};
    world.Save("BMP", "coin");
    EXPECT_FALSE(world.left);
    EXPECT_EQ(world.Stored("coin.pat"), "old");
    EXPECT_EQ(world.Stored("coin.txt"), "old text");
    EXPECT_TRUE(world.session.DesignChanged);
    EXPECT_EQ(world.platform.waited, 0);
    ASSERT_EQ(world.platform.messages.size(), 1U);
    EXPECT_EQ(world.platform.messages[0].prompt, "Overwrite?");
    EXPECT_EQ(world.platform.messages[0].title, " Exist");
    EXPECT_EQ(world.platform.messages[0].buttons, MessageButtons::YesNo);
    EXPECT_EQ(world.platform.messages[0].standard, Answer::No);

    world.Save("BMP", "coin");
    EXPECT_TRUE(world.left);
    EXPECT_EQ(world.Load("app/Ontwerpen/coin.pat").Width(), 700);
    EXPECT_TRUE(world.Stored("coin.txt").ends_with("\r\nrow\r\n"));
}

TEST(SaveForm, ExportsTheCanvasOrAllOfIt) {
    DesignWorld world;
    world.Save("JPG", "bare");
    world.Open("JPG", [&](SaveForm& dialog) {
        dialog.Text1.SetText("all");
        dialog.Check1.SetValue(true);
        dialog.SaveKnop.PointerClicked();
    });
    EXPECT_EQ(world.LoadExport("bare.jpg"), world.main.Pic.surface.Image());
    EXPECT_EQ(world.LoadExport("all.jpg").Width(), 700);
    EXPECT_EQ(world.LoadExport("all.jpg").At(513, 5), inPanel);
    EXPECT_EQ(world.folder.Read("app/mydummy.bmp"), "(no file)");
    EXPECT_FALSE(world.session.DesignChanged);
    EXPECT_EQ(world.session.DesignFile, (world.folder / "Pictures/all.jpg").string());
    EXPECT_EQ(world.StoredFiles(), 0);
}

TEST(SaveForm, AsksBeforeAnExportOverwrites) {
    DesignWorld world;
    world.folder.Write("Pictures/coin.jpg", "old");
    world.platform.answers = {Answer::No, Answer::Yes};
    world.Save("JPG", "coin");
    EXPECT_FALSE(world.left);
    EXPECT_EQ(world.folder.Read("Pictures/coin.jpg"), "old");
    EXPECT_EQ(world.folder.Read("app/mydummy.bmp"), "(no file)");
    world.Save("JPG", "coin");
    EXPECT_TRUE(world.left);
    EXPECT_EQ(world.LoadExport("coin.jpg").Width(), 500);
}

TEST(SaveForm, TellsThatTheScratchFileCannotBeWritten) {
    DesignWorld world;
    fs::create_directory(world.folder / "app/mydummy.bmp");
    world.Save("JPG", "coin");
    EXPECT_FALSE(world.left);
    EXPECT_TRUE(world.session.DesignChanged);
    ASSERT_EQ(world.platform.messages.size(), 1U);
    EXPECT_EQ(world.platform.messages[0].prompt, "File save not as JPG!");
    EXPECT_EQ(world.platform.messages[0].title, "Coinlet Designer");
    EXPECT_EQ(world.platform.messages[0].buttons, MessageButtons::Ok);
    EXPECT_TRUE(fs::is_empty(world.folder / "Pictures"));
}

TEST(SaveForm, ClosesWithoutAWordIfAnExportFails) {
    DesignWorld world;
    world.folder.Write("Pictures/coin.jpg", "old");
    world.codecs.fails = true;
    world.platform.answers = {Answer::Yes};
    world.Save("JPG", "coin");
    EXPECT_TRUE(world.left);
    EXPECT_EQ(world.folder.Read("Pictures/coin.jpg"), "old");
    world.codecs.fails = false;
    fs::remove_all(world.folder / "Pictures");
    world.Save("JPG", "coin");
    EXPECT_TRUE(world.left);
    EXPECT_FALSE(fs::exists(world.folder / "Pictures"));
    EXPECT_EQ(world.folder.Read("app/mydummy.bmp"), "(no file)");
    EXPECT_FALSE(world.session.DesignChanged);
    EXPECT_EQ(world.platform.messages.size(), 1U);
}

TEST(SaveForm, ShowsThreeAndAHalfSecondsOfProgress) {
    DesignWorld world;
    std::vector<std::string> captions;
    world.Open("BMP", [&](SaveForm& dialog) {
        world.platform.whenServing = [&] {
            if (captions.empty()) {
                EXPECT_EQ(world.Stored("coin.pat").substr(0, 2), "BM");
                EXPECT_FALSE(dialog.Text1.Visible);
                EXPECT_TRUE(dialog.Bar.Visible);
                EXPECT_EQ(world.platform.Screen.MousePointer, hourglassPointer);
            }
            captions.push_back(dialog.Label1.Caption);
            const int filled = 2 * (static_cast<int>(captions.size()) - 1);
            if (filled >= 299) return;
            EXPECT_EQ(dialog.Bar.surface.Point(filled, 0), RGB(0, 240, 0));
            EXPECT_EQ(dialog.Bar.surface.Point(filled, 18), RGB(0, 240, 0));
            EXPECT_EQ(dialog.Bar.surface.Point(filled, 19), RGB(64, 0, 0));
            EXPECT_EQ(dialog.Bar.surface.Point(filled + 1, 0), filled < 298 ? RGB(64, 0, 0) : -1);
        };
        dialog.Text1.SetText("coin");
        dialog.SaveKnop.PointerClicked();
        world.platform.whenServing = {};
    });
    ASSERT_EQ(captions.size(), 152U);
    EXPECT_EQ(captions[0], "0%");
    EXPECT_EQ(captions[1], "1%");     // 2 / 3
    EXPECT_EQ(captions[2], "1%");     // 4 / 3
    EXPECT_EQ(captions[149], "99%");  // 298 / 3
    EXPECT_EQ(captions[150], "100%");
    EXPECT_EQ(captions[151], "100%");
    EXPECT_NEAR(world.platform.waited, 151 * 0.02 + 0.5, 1e-9);
    EXPECT_EQ(world.platform.Screen.MousePointer, toolPointer);
}

TEST(SaveForm, StandsASecondClickDuringTheProgress) {
    DesignWorld world;
    world.platform.answers = {Answer::Yes};
    world.Open("BMP", [&](SaveForm& dialog) {
        bool again = true;
        world.platform.whenServing = [&] {
            if (std::exchange(again, false)) dialog.SaveKnop.PointerClicked();
        };
        dialog.Text1.SetText("coin");
        dialog.SaveKnop.PointerClicked();
        world.platform.whenServing = {};
    });
    EXPECT_TRUE(world.left);
    EXPECT_EQ(world.platform.messages.size(), 1U);
    EXPECT_EQ(world.StoredFiles(), 1);
}

TEST(SaveForm, IsPressedByEnterAndEscape) {
    DesignWorld world;
    world.Open("BMP", [&](SaveForm& dialog) {
        EXPECT_TRUE(dialog.Text1.HasFocus());
        EXPECT_EQ(dialog.Text1.Text(), "earlier");
        dialog.KeyDown(dialog.Focus(), keyReturn, 0);
    });
    EXPECT_TRUE(world.left);
    EXPECT_EQ(world.Stored("earlier.pat").substr(0, 2), "BM");
    world.main.InfoLabel.Caption = "hint";
    world.main.InfoList.AddItem("001 ready");
    world.Open("BMP", [&](SaveForm& dialog) { dialog.KeyDown(dialog.Focus(), keyEscape, 0); });
    EXPECT_TRUE(world.left);
    EXPECT_EQ(world.main.InfoLabel.Caption, "ready");
    EXPECT_EQ(world.StoredFiles(), 1);
}

/// Runs `body` in a process of its own, whose limits and user can be changed; true if it gave true.
bool InAnotherProcess(const std::function<bool()>& body) {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(body() ? 0 : 1);
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void ExpectOldFiles(const DesignWorld& world) {
    EXPECT_EQ(world.Stored("coin.pat"), "old picture");
    EXPECT_EQ(world.Stored("coin.txt"), "old text");
    EXPECT_EQ(world.folder.Read("Pictures/coin.jpg"), "old export");
    EXPECT_EQ(world.StoredFiles(), 2);
    EXPECT_EQ(std::distance(fs::directory_iterator(world.folder / "Pictures"), {}), 1);
}

/// Over files that are there, in both modes; true if the dialog closed in the first.
bool OverwriteAll(DesignWorld& world) {
    world.SetRows({"row"});
    world.platform.answers = {Answer::Yes, Answer::Yes};
    world.Save("BMP", "coin");
    const bool left = world.left;
    world.Save("JPG", "coin");
    return left;
}

void StoreOldFiles(const DesignWorld& world) {
    world.Store("coin.pat", "old picture");
    world.Store("coin.txt", "old text");
    world.folder.Write("Pictures/coin.jpg", "old export");
}

TEST(SaveForm, KeepsTheOldFilesIfTheDiskIsFull) {
    DesignWorld world;
    StoreOldFiles(world);
    EXPECT_TRUE(InAnotherProcess([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{20, 20};  // bytes a file
        return ::setrlimit(RLIMIT_FSIZE, &limit) == 0 && OverwriteAll(world);
    }));
    ExpectOldFiles(world);
}

TEST(SaveForm, KeepsTheOldExportIfTheDiskIsFull) {
    DesignWorld world;
    StoreOldFiles(world);
    EXPECT_TRUE(InAnotherProcess([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        // The scratch bitmap of the canvas just fits; what is exported has its quality as one byte more.
        constexpr rlim_t bitmapBytes = 54 + 500 * 500 * 3;
        const rlimit limit{bitmapBytes, bitmapBytes};
        if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) return false;
        world.platform.answers = {Answer::Yes};
        world.Save("JPG", "coin");
        return world.left;
    }));
    ExpectOldFiles(world);
    EXPECT_EQ(world.folder.Read("app/mydummy.bmp"), "(no file)");
}

TEST(SaveForm, KeepsTheOldFilesInFoldersThatCannotBeWritten) {
    DesignWorld world;
    StoreOldFiles(world);
    constexpr auto readOnly = fs::perms::owner_read | fs::perms::owner_exec | fs::perms::group_read |
                              fs::perms::group_exec | fs::perms::others_read | fs::perms::others_exec;
    for (const char* folder : {"app/Ontwerpen", "Pictures"})
        fs::permissions(world.folder / folder, readOnly);
    fs::permissions(world.folder.Path(), readOnly);
    fs::permissions(world.folder / "app", fs::perms::all);  // The scratch file can be written.
    EXPECT_TRUE(InAnotherProcess([&] {
        constexpr uid_t nobody = 65534;
        if (::geteuid() == 0 && ::setuid(nobody) != 0) return false;
        return OverwriteAll(world) && world.left;
    }));
    fs::permissions(world.folder.Path(), fs::perms::owner_all);
    for (const char* folder : {"app/Ontwerpen", "Pictures"})
        fs::permissions(world.folder / folder, fs::perms::owner_all);
    ExpectOldFiles(world);
}

class PictureFails : public testing::TestWithParam<test::Step> {};
INSTANTIATE_TEST_SUITE_P(AtEachStep, PictureFails,
                         testing::Values(test::Step::Open, test::Step::Write, test::Step::Flush,
                                         test::Step::Close, test::Step::Rename));

TEST_P(PictureFails, AndLeavesTheOldOneOrNone) {
    DesignWorld world;
    world.Store("old.pat", "old picture");
    for (const char* name : {"old.pat", "new.pat"}) {
        test::FailingStep calls(GetParam());
        EXPECT_TRUE(
            SavePicture(world.main.Pic.surface.Image(), world.folder / "app/Ontwerpen" / name, calls));
    }
    EXPECT_EQ(world.Stored("old.pat"), "old picture");
    EXPECT_EQ(world.StoredFiles(), 1);
}

}  // namespace
}  // namespace coinlet
