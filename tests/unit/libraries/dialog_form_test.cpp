// What scenarios can't see of the import of pictures: the date of a file, its size, and memory.
#include "libraries/dialog_form.h"

#include "support/world.h"

#include <utime.h>

#include <ctime>
#include <functional>
#include <gtest/gtest.h>
#include <string>

namespace coinlet::test {
namespace {

class DialogFormTest : public testing::Test, protected World {
protected:
    fs::path InPictures(const std::string& name) const { return folder / "Pictures" / name; }
    void AddPicture(const std::string& name, int width, int height) const {
        const auto error = SavePicture(Image(Bitmap(width, height, ToPixel(black))), InPictures(name));
        ASSERT_FALSE(error) << error.message();
    }
    /// Opens the dialog, has its folder listed and the user do that, and closes it if he hasn't.
    void Open(const std::function<void(DialogForm&)>& doing) {
        DialogForm dialog(context);
        platform.doings.push_back([&] {
            dialog.Dir1.UserActivates();
            doing(dialog);
            dialog.Unload();
        });
        platform.ShowModal(dialog);
    }
};

TEST_F(DialogFormTest, TellsSizeDateAndLengthOfAFile) {
    AddPicture("a.bmp", 21, 10);  // 54 bytes of head, 10 rows of 64 bytes: 694
    AddPicture("b.bmp", 1, 1);    // 58 bytes
    AddPicture("c.bmp", 700, 500);
    std::tm moment{};
    moment.tm_year = 2024 - 1900;
    moment.tm_mon = 2;
    moment.tm_mday = 5;
    moment.tm_hour = 7;
    moment.tm_min = 8;
    moment.tm_sec = 9;
    moment.tm_isdst = -1;
    const std::time_t changed = std::mktime(&moment);
    const utimbuf times{changed, changed};
    for (const char* name : {"a.bmp", "b.bmp", "c.bmp"})
        ASSERT_EQ(utime(InPictures(name).c_str(), &times), 0);
    Open([&](DialogForm& dialog) {
        dialog.List1.UserPicks(0);
        EXPECT_EQ(dialog.Label4.Caption, "File..... : " + InPictures("a.bmp").string());
        EXPECT_EQ(dialog.Label5.Caption,
                  "Size... : 21 x 10 Pixels  /  Date : 05-03-2024 7:08:09  /  Bytes : 694");
        dialog.List1.UserPicks(1);
        EXPECT_EQ(dialog.Label5.Caption,
                  "Size... : 1 x 1 Pixels  /  Date : 05-03-2024 7:08:09  /  Bytes : 058");
        dialog.List1.UserPicks(2);
        EXPECT_EQ(dialog.Label5.Caption,
                  "Size... : 700 x 500 Pixels  /  Date : 05-03-2024 7:08:09  /  Bytes : 1,050,054");
    });
}

TEST_F(DialogFormTest, APictureAtTwiceItsSizeHasNoPixelsOfItsOwn) {
    AddPicture("large.bmp", 1000, 700);
    Open([&](DialogForm& dialog) {
        dialog.List1.UserPicks(0);
        // The same pixels, loaded once.
        EXPECT_EQ(dialog.BackPic.Image().Shared(), dialog.Orgineel.Image().Shared());
        dialog.SizePic[8].Click();
        EXPECT_EQ(dialog.BackPic.Width(), 2000 * 15);
        EXPECT_EQ(dialog.BackPic.ScaleHeight(), 1400 * 15);
        EXPECT_EQ(dialog.BackPic.surface.PixelWidth(), 0);
        EXPECT_EQ(dialog.HScroll1.Max(), 2000 * 15 - 9555);
        dialog.HScroll1.SetValue(dialog.HScroll1.Max());
        EXPECT_EQ(dialog.Pic.surface.Point(9540, 0), black);
    });
}

}  // namespace
}  // namespace coinlet::test
