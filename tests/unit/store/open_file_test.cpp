// What may stand in the folder of designs beside designs: nothing of it hangs or breaks the dialog.
#include "store/open_file.h"

#include "support/world.h"

#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace coinlet::test {
namespace {

constexpr Colour red = RGB(200, 30, 40);

class OpenFileTest : public testing::Test, protected World {
protected:
    fs::path InStore(const std::string& name) const { return folder / "app/Ontwerpen" / name; }

    void StoreDesign(const std::string& name, Colour colour = red) {
        const auto error = SavePicture(Image(Bitmap(700, 500, ToPixel(colour))), InStore(name));
        ASSERT_FALSE(error) << error.message();
    }
    void MakePipe(const std::string& name) { ASSERT_EQ(::mkfifo(InStore(name).c_str(), 0600), 0); }

    /// Opens the dialog, has the user do that, and closes it if he hasn't.
    void Open(const std::function<void(OpenFile&)>& doing) {
        OpenFile dialog(context);
        platform.doings.push_back([&] {
            doing(dialog);
            dialog.Unload();
        });
        platform.ShowModal(dialog);
    }
    std::vector<std::string> Names() {
        std::vector<std::string> names;
        Open([&](const OpenFile& dialog) {
            for (int i = 0; i < dialog.List1.ListCount(); ++i)
                names.push_back(dialog.List1.List(i));
        });
        return names;
    }
};

TEST_F(OpenFileTest, ListsRegularFilesAndLinksToThem) {
    StoreDesign("a.pat");
    fs::create_symlink(InStore("a.pat"), InStore("link.pat"));
    fs::create_symlink(InStore("missing.pat"), InStore("dangling.pat"));
    fs::create_directory(InStore("folder.pat"));
    fs::create_directory_symlink(InStore("folder.pat"), InStore("other folder.pat"));
    MakePipe("pipe.pat");
    EXPECT_EQ(Names(), (std::vector<std::string>{"a", "link"}));
}

TEST_F(OpenFileTest, NeverWaitsForAPipe) {
    StoreDesign("a.pat");
    main.Pic.surface.PSet(1, 1, black);
    Open([&](OpenFile& dialog) {
        fs::remove(InStore("a.pat"));
        MakePipe("a.pat");
        dialog.List1.UserPicks(0);
        EXPECT_TRUE(dialog.BackPic.surface.Image().Empty());
        dialog.OkKnop.Click();
        EXPECT_FALSE(dialog.Loaded());
    });
    EXPECT_EQ(main.Pic.surface.Point(1, 1), black);
    EXPECT_EQ(main.Pic.surface.Point(0, 0), white);
    EXPECT_EQ(session.DesignName, "");
}

TEST_F(OpenFileTest, OpensNoFolder) {
    StoreDesign("a.pat");
    Open([&](OpenFile& dialog) {
        fs::remove(InStore("a.pat"));
        fs::create_directory(InStore("a.pat"));
        dialog.List1.UserPicks(0);
        dialog.OkKnop.Click();
        EXPECT_FALSE(dialog.Loaded());
    });
    EXPECT_EQ(session.DesignName, "");
    EXPECT_TRUE(fs::is_directory(InStore("a.pat")));
}

TEST_F(OpenFileTest, ReadsNoInfoTextFromAPipe) {
    StoreDesign("a.pat");
    MakePipe("a.txt");
    SetRows({"of the design before"});
    Open([](OpenFile& dialog) {
        dialog.List1.UserPicks(0);
        dialog.OkKnop.Click();
    });
    EXPECT_EQ(session.DesignName, "a");
    EXPECT_EQ(Rows(), std::vector<std::string>{});
}

TEST_F(OpenFileTest, OpensNamesThatAreNoText) {
    const std::string name = "caf\xE9 \x80\n.pat";
    StoreDesign(name + ".pat");
    ASSERT_EQ(Names(), std::vector<std::string>{name});
    Open([](OpenFile& dialog) {
        dialog.List1.UserPicks(0);
        EXPECT_EQ(dialog.Image1.surface.Point(0, 0), red);
        dialog.OkKnop.Click();
    });
    EXPECT_EQ(session.DesignName, name);
    EXPECT_EQ(session.DesignFile, InStore(name + ".pat").string());
    EXPECT_EQ(main.Pic.surface.Point(499, 499), red);
}

TEST_F(OpenFileTest, TellsNamesApartThatDifferInTheExtensionOnly) {
    StoreDesign("a.PAT", RGB(1, 2, 3));
    StoreDesign("a.pat", red);
    Open([&](OpenFile& dialog) {
        ASSERT_EQ(dialog.List1.ListCount(), 2);
        // Each row is a file of its own; capitals stand first.
        dialog.List1.UserPicks(0);
        EXPECT_EQ(dialog.BackPic.surface.Point(0, 0), RGB(1, 2, 3));
        dialog.List1.UserPicks(1);
        EXPECT_EQ(dialog.BackPic.surface.Point(0, 0), red);
        platform.answers.push_back(Answer::Yes);
        dialog.DelKnop.Click();
        EXPECT_FALSE(fs::exists(InStore("a.pat")));
        dialog.List1.UserPicks(0);
        EXPECT_EQ(dialog.BackPic.surface.Point(0, 0), RGB(1, 2, 3));
        EXPECT_TRUE(fs::exists(InStore("a.PAT")));
    });
}

TEST_F(OpenFileTest, DeletesLinksAndNotWhatTheyLeadTo) {
    const fs::path target = folder.Write("kept.bmp", "kept");
    fs::create_symlink(target, InStore("a.pat"));
    fs::create_symlink(target, InStore("a.txt"));
    Open([&](OpenFile& dialog) {
        dialog.List1.UserPicks(0);
        platform.answers.push_back(Answer::Yes);
        dialog.DelKnop.Click();
        EXPECT_EQ(dialog.List1.ListCount(), 0);
    });
    EXPECT_EQ(StoredFiles(), 0);
    EXPECT_EQ(folder.Read("kept.bmp"), "kept");
}

TEST_F(OpenFileTest, DeletesNoPipe) {
    StoreDesign("a.pat");
    MakePipe("a.txt");
    Open([&](OpenFile& dialog) {
        dialog.List1.UserPicks(0);
        platform.answers.push_back(Answer::Yes);
        dialog.DelKnop.Click();
    });
    EXPECT_FALSE(fs::exists(InStore("a.pat")));
    EXPECT_TRUE(fs::is_fifo(InStore("a.txt")));
}

TEST_F(OpenFileTest, AsksBeforeDeletingAndStandsOnNo) {
    StoreDesign("a.pat");
    Open([&](OpenFile& dialog) {
        dialog.List1.UserPicks(0);
        platform.answers.push_back(Answer::No);
        dialog.DelKnop.Click();
    });
    ASSERT_EQ(platform.messages.size(), 1U);
    const Message& question = platform.messages.front();
    EXPECT_EQ(question.prompt, "Wilt u het ontwerp 'a' verwijderen?");
    EXPECT_EQ(question.title, "Delete");
    EXPECT_EQ(question.buttons, MessageButtons::YesNo);
    EXPECT_EQ(question.standard, Answer::No);
    EXPECT_TRUE(fs::exists(InStore("a.pat")));
}

TEST_F(OpenFileTest, TakesPicturesOfAnySize) {
    // Narrower than what the preview leaves out, exactly as wide, and a single pixel.
    const std::vector<Image> pictures{Image(Bitmap(100, 80, ToPixel(red))),
                                      Image(Bitmap(178, 500, ToPixel(red))),
                                      Image(Bitmap(1, 1, ToPixel(red)))};
    main.InfoPic.surface.PSet(5, 5, RGB(9, 9, 9));
    for (const Image& picture : pictures) {
        ASSERT_FALSE(SavePicture(picture, InStore("a.pat")));
        main.Pic.surface.SetPicture({});
        Open([](OpenFile& dialog) {
            dialog.List1.UserPicks(0);
            dialog.OkKnop.Click();
        });
        EXPECT_EQ(main.Pic.surface.PixelWidth(), 500);
        EXPECT_EQ(main.Pic.surface.PixelHeight(), 500);
        EXPECT_EQ(main.Pic.surface.Point(0, 0), red);
        EXPECT_EQ(main.Pic.surface.Point(picture.Width(), 0), white);
        EXPECT_EQ(main.InfoPic.surface.Point(5, 5), RGB(9, 9, 9));
    }
}

}  // namespace
}  // namespace coinlet::test
