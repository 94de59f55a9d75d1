// Rows that no collection has, files that are none, and the layout.
#include "libraries/back_form.h"

#include "support/world.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <sys/stat.h>

namespace coinlet::test {
namespace {

constexpr Colour back = RGB(10, 200, 30);

class BackFormTest : public testing::Test, protected World {
protected:
    BackFormTest() { fs::create_directories(folder / "app/Data"); }

    fs::path InData(const std::string& name) const { return folder / "app/Data" / name; }
    void AddPicture(const std::string& name, int width, int height) const {
        const auto error = SavePicture(Image(Bitmap(width, height, ToPixel(back))), InData(name));
        ASSERT_FALSE(error) << error.message();
    }
    /// Opens the dialog, has the user do that, and closes it if he hasn't.
    void Open(const std::function<void(BackForm&)>& doing) {
        BackForm dialog(context);
        platform.doings.push_back([&] {
            doing(dialog);
            dialog.Unload();
        });
        platform.ShowModal(dialog);
    }
    static void Press(BackForm& dialog, float x, float y) { dialog.Pic.PointerPressed(1, 0, x, y); }
};

TEST_F(BackFormTest, ShowsNothingInRowsThatThereAreNone) {
    AddPicture("Back-1.bak", 600, 300);
    folder.Write("app/Data/Back-1.txt", "one\r\ntwo");
    Open([&](BackForm& dialog) {
        for (const int row : {2, std::numeric_limits<int>::max(), -1, std::numeric_limits<int>::min()}) {
            dialog.HScroll1.SetRange(0, 1);
            dialog.HScroll1.SetValue(1);
            EXPECT_EQ(dialog.Pic.surface.Point(599, 149), back);
            dialog.HScroll1.SetRange(std::min(row, 0), std::max(row, 1));
            dialog.HScroll1.SetValue(row);
            EXPECT_EQ(dialog.Pic.surface.Point(0, 0), white);
            EXPECT_EQ(dialog.Pic.surface.Point(599, 149), white);
            Press(dialog, 75, 75);
            EXPECT_EQ(session.BackName, "");
        }
    });
}

TEST_F(BackFormTest, TakesPicturesOfAnySize) {
    folder.Write("app/Data/Back-1.txt", "one");
    struct Sizes {
        int width, height, lastRow;
    };
    // The last row is the nearest whole number to height / 150 - 1, a half going to the even one.
    for (const Sizes& picture : {Sizes{1, 1, -1}, Sizes{600, 75, 0}, Sizes{600, 74, -1}, Sizes{700, 225, 0},
                                 Sizes{600, 226, 1}, Sizes{600, 525, 2}, Sizes{600, 526, 3}}) {
        AddPicture("Back-1.bak", picture.width, picture.height);
        Open([&](BackForm& dialog) {
            EXPECT_EQ(dialog.HScroll1.Max(), picture.lastRow) << picture.height;
            EXPECT_EQ(dialog.HScroll1.Value(), 0);
            EXPECT_EQ(dialog.Pic.surface.PixelWidth(), 600);
            EXPECT_EQ(dialog.Pic.surface.PixelHeight(), 150);
            EXPECT_EQ(dialog.Pic.surface.Point(0, 0), back);
            Press(dialog, 75, 75);
            EXPECT_EQ(session.BackName, "one");
        });
    }
}

TEST_F(BackFormTest, NeverWaitsForAPipe) {
    ASSERT_EQ(::mkfifo(InData("Back-1.bak").c_str(), 0600), 0);
    ASSERT_EQ(::mkfifo(InData("Back-2.txt").c_str(), 0600), 0);
    AddPicture("Back-2.bak", 600, 150);
    Open([&](BackForm& dialog) {
        EXPECT_TRUE(dialog.BackPic.surface.Image().Empty());
        dialog.Option1[2].SetValue(true);
        EXPECT_EQ(dialog.Pic.surface.Point(599, 149), back);
        EXPECT_EQ(dialog.List1.ListCount(), 0);
    });
}

TEST_F(BackFormTest, ReadsNamesInTheFilesCodePage) {
    AddPicture("Back-1.bak", 600, 150);
    folder.Write("app/Data/Back-1.txt", "caf\xE9\n\n  \nEuro \x80");
    Open([&](BackForm& dialog) {
        EXPECT_EQ(dialog.Label5.Caption, "Name : café");
        Press(dialog, 225, 75);
        EXPECT_EQ(session.BackName, "Euro €");
    });
}

}  // namespace
}  // namespace coinlet::test
