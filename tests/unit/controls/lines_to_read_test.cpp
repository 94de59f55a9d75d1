// Lines on a picture that are there to be read alone.

#include "controls/picture_box.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

struct LinesToRead : testing::Test {
    LinesToRead() {
        pic.Move(0, 0, 100 * 15, 50 * 15);
        pic.surface.SetBackColor(RGB(10, 20, 30));
    }
    void PrintAt(float x, float y, const char* line) {
        pic.surface.CurrentX = x;
        pic.surface.CurrentY = y;
        pic.PrintToRead(line);
    }

    test::TestServices services;
    Form form{services.ForForms(), "Sample"};
    PictureBox pic{form, "Pic"};
};

TEST_F(LinesToRead, ArePixelsLikeOthersAndKnownBesides) {
    EXPECT_TRUE(pic.LinesToRead().empty());
    pic.surface.ForeColor = RGB(255, 255, 0);
    PrintAt(4, 3, "first");
    pic.surface.FontSize = 12;
    pic.surface.FontBold = true;
    pic.surface.ForeColor = white;
    PrintAt(6.5, 20, "second");

    Surface expected(services.fonts, 100, 50);
    expected.SetBackColor(RGB(10, 20, 30));
    expected.ForeColor = RGB(255, 255, 0);
    expected.CurrentX = 4;
    expected.CurrentY = 3;
    expected.Print("first");
    expected.FontSize = 12;
    expected.FontBold = true;
    expected.ForeColor = white;
    expected.CurrentX = 6.5;
    expected.CurrentY = 20;
    expected.Print("second");
    EXPECT_EQ(pic.Image(), expected.Image());
    EXPECT_EQ(pic.surface.CurrentY, expected.CurrentY);

    const auto& lines = pic.LinesToRead();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].text, "first");
    EXPECT_EQ(lines[0].x, 4);
    EXPECT_EQ(lines[0].y, 3);
    EXPECT_EQ(lines[0].colour, RGB(255, 255, 0));
    EXPECT_FALSE(lines[0].font.FontBold);
    EXPECT_EQ(lines[1].text, "second");
    EXPECT_EQ(lines[1].x, 6);  // A half goes to the even neighbour.
    EXPECT_EQ(lines[1].y, 20);
    EXPECT_EQ(lines[1].colour, white);
    EXPECT_EQ(lines[1].font.FontSize, 12);
    EXPECT_TRUE(lines[1].font.FontBold);
}

TEST_F(LinesToRead, StandAtPixelsWhateverThePictureIsMeasuredIn) {
    pic.surface.SetScaleMode(twipScale);
    PrintAt(480, 255, "line");
    ASSERT_EQ(pic.LinesToRead().size(), 1U);
    EXPECT_EQ(pic.LinesToRead()[0].x, 32);
    EXPECT_EQ(pic.LinesToRead()[0].y, 17);
}

TEST_F(LinesToRead, AreNoneWhereMoreIsDrawn) {
    PrintAt(0, 0, "line");
    pic.surface.PSet(50, 40, black);
    EXPECT_TRUE(pic.LinesToRead().empty());
    PrintAt(0, 20, "another");
    EXPECT_TRUE(pic.LinesToRead().empty());
    // Wiped, the picture begins anew.
    pic.surface.Cls();
    EXPECT_TRUE(pic.LinesToRead().empty());
    PrintAt(0, 20, "third");
    ASSERT_EQ(pic.LinesToRead().size(), 1U);
    EXPECT_EQ(pic.LinesToRead()[0].text, "third");
    pic.surface.SetBackColor(white);
    EXPECT_TRUE(pic.LinesToRead().empty());
}

}  // namespace
}  // namespace coinlet
