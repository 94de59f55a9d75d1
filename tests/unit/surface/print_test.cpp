// Text at the graphics cursor, in a font of blocks: at 4 points a letter is 1 pixel wide and 3 high in a cell
// of 2 by 4.

#include "support/block_fonts.h"
#include "support/picture_grid.h"
#include "surface/surface.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace coinlet {
namespace {

using test::Grid;
using test::GridOf;

const test::BlockFonts fonts;

struct Sheet : Surface {
    Sheet(int width, int height) : Surface(fonts, width, height) { FontSize = 4; }
};

TEST(Print, StartsAtTheCursorAndMovesDownALine) {
    Sheet sheet(7, 6);
    sheet.CurrentX = 1;
    sheet.CurrentY = 1;
    sheet.ForeColor = RGB(255, 0, 0);
    sheet.Print("a b");
    EXPECT_EQ(GridOf(sheet), (Grid{".......",  //
                                   ".R...R.",  //
                                   ".R...R.",  //
                                   ".R...R.",  //
                                   ".......",  //
                                   "......."}));
    EXPECT_EQ(sheet.CurrentX, 0);
    EXPECT_EQ(sheet.CurrentY, 5);
}

TEST(Print, LeavesTheBackgroundBetweenTheLetters) {
    Sheet sheet(4, 4);
    test::DrawGrid(sheet, {"GBGB", "BGBG", "GBGB", "BGBG"});
    sheet.Print("ab");
    EXPECT_EQ(GridOf(sheet), (Grid{"#B#B",  //
                                   "#G#G",  //
                                   "#B#B",  //
                                   "BGBG"}));
}

TEST(Print, BreaksLinesAtCarriageReturnAndLineFeed) {
    Sheet sheet(5, 12);
    sheet.CurrentX = 2;
    sheet.Print("a\r\nbc\r\nd");
    EXPECT_EQ(GridOf(sheet), (Grid{"..#..", "..#..", "..#..", ".....",  //
                                   "#.#..", "#.#..", "#.#..", ".....",  //
                                   "#....", "#....", "#....", "....."}));
    EXPECT_EQ(sheet.CurrentX, 0);
    EXPECT_EQ(sheet.CurrentY, 12);
}

TEST(Print, ABreakAtTheEndIsALineMore) {
    Sheet sheet(4, 4);
    sheet.Print("a\r\n");
    EXPECT_EQ(sheet.CurrentY, 8);
    sheet.Print("");
    EXPECT_EQ(sheet.CurrentY, 12);
}

// Most of such a text lies outside of any surface; what doesn't is drawn, wherever in the text it is.
TEST(Print, ShowsAnyPartOfAVeryLongLine) {
    std::string line;
    for (int i = 0; i < 20000; ++i)
        line += i % 3 == 0 ? "é" : i % 3 == 1 ? "a" : " ";
    for (const int first : {0, 1, 2047, 4096, 9999, 17000, 19990}) {
        Sheet sheet(12, 5);
        sheet.CurrentX = static_cast<float>(-2 * first + 1);
        sheet.Print(line);
        for (int x = 0; x < 12; ++x) {
            // A letter is one column of its two, and each third one is a blank.
            const int column = x - 1 + 2 * first;
            const int letter = column / 2;
            const bool inked = column >= 0 && column % 2 == 0 && letter < 20000 && letter % 3 != 2;
            EXPECT_EQ(sheet.Point(x, 0), inked ? black : white) << first << " " << x;
            EXPECT_EQ(sheet.Point(x, 3), white) << first << " " << x;
        }
    }
}

TEST(PrintOn, LeavesTheCursorBehindAVeryLongLine) {
    Sheet sheet(4, 4);
    sheet.PrintOn(std::string(30000, 'x'));
    EXPECT_EQ(sheet.CurrentX, 60000);
    EXPECT_EQ(sheet.CurrentY, 0);
}

TEST(PrintOn, LeavesTheCursorBehindTheText) {
    Sheet sheet(9, 4);
    sheet.PrintOn("a");
    EXPECT_EQ(sheet.CurrentX, 2);
    EXPECT_EQ(sheet.CurrentY, 0);
    sheet.PrintOn(" ");
    sheet.PrintOn("");
    sheet.PrintOn("b");
    EXPECT_EQ(GridOf(sheet), (Grid{"#...#....", "#...#....", "#...#....", "........."}));
    EXPECT_EQ(sheet.CurrentX, 6);
    sheet.PrintOn("x\r\nyz");
    EXPECT_EQ(sheet.CurrentX, 4);
    EXPECT_EQ(sheet.CurrentY, 4);
}

TEST(Print, RoundsTheCursorHalfToEven) {
    Sheet sheet(6, 4);
    sheet.CurrentX = 0.5F;
    sheet.PrintOn("a");  // at 0; the cursor is at 2.5 then
    EXPECT_EQ(sheet.CurrentX, 2.5F);
    sheet.PrintOn("b");  // at 2, then 4.5
    sheet.PrintOn("c");  // at 4
    EXPECT_EQ(GridOf(sheet), (Grid{"#.#.#.", "#.#.#.", "#.#.#.", "......"}));
}

TEST(Print, IsCutAtEveryEdge) {
    Sheet sheet(3, 3);
    sheet.CurrentX = -2;
    sheet.CurrentY = -1;
    sheet.Print("abcd");
    EXPECT_EQ(GridOf(sheet), (Grid{"#.#", "#.#", "..."}));
    sheet.CurrentX = 2;
    sheet.CurrentY = 2;
    sheet.Print("abcd");
    EXPECT_EQ(GridOf(sheet), (Grid{"#.#", "#.#", "..#"}));
}

TEST(Print, FarAwayOrNowhereDrawsNothing) {
    constexpr float infinity = std::numeric_limits<float>::infinity();
    Sheet sheet(3, 3);
    const auto revision = sheet.Revision();
    for (const float far : {1e30F, -1e30F, infinity, -infinity, std::numeric_limits<float>::quiet_NaN()}) {
        sheet.CurrentX = far;
        sheet.CurrentY = 0;
        sheet.Print("abc");
        EXPECT_EQ(sheet.CurrentX, 0);
        sheet.CurrentY = far;
        sheet.Print("abc");
    }
    EXPECT_EQ(sheet.Revision(), revision);
}

TEST(Print, InTwips) {
    Sheet sheet(7, 6);
    sheet.SetScaleMode(twipScale);
    sheet.CurrentX = 15;
    sheet.CurrentY = 15;
    sheet.PrintOn("a");
    EXPECT_EQ(sheet.CurrentX, 45);
    sheet.Print("b");
    EXPECT_EQ(GridOf(sheet), (Grid{".......",  //
                                   ".#.#...",  //
                                   ".#.#...",  //
                                   ".#.#...",  //
                                   ".......",  //
                                   "......."}));
    EXPECT_EQ(sheet.CurrentX, 0);
    EXPECT_EQ(sheet.CurrentY, 75);
    EXPECT_EQ(sheet.TextWidth("abc"), 90);
    EXPECT_EQ(sheet.TextHeight("abc"), 60);
}

TEST(Print, InAScaleThatGrowsUpwardMovesDownThePage) {
    Sheet sheet(6, 10);
    sheet.Scale(0, 100, 60, 0);  // ten units a pixel
    sheet.CurrentX = 10;
    sheet.CurrentY = 90;
    sheet.PrintOn("a");
    EXPECT_EQ(sheet.CurrentX, 30);
    sheet.Print("b");
    EXPECT_EQ(sheet.CurrentX, 0);
    EXPECT_EQ(sheet.CurrentY, 50);
    sheet.Print("c");
    EXPECT_EQ(GridOf(sheet), (Grid{"......",  //
                                   ".#.#..",  //
                                   ".#.#..",  //
                                   ".#.#..",  //
                                   "......",  //
                                   "#.....",  //
                                   "#.....",  //
                                   "#.....",  //
                                   "......",  //
                                   "......"}));
    // Sizes are sizes, whichever way the scale runs.
    EXPECT_EQ(sheet.TextWidth("ab"), 40);
    EXPECT_EQ(sheet.TextHeight("ab"), 40);
}

TEST(TextSize, OfOneLineSeveralAndNone) {
    Sheet sheet(1, 1);
    EXPECT_EQ(sheet.TextWidth("abc"), 6);
    EXPECT_EQ(sheet.TextHeight("abc"), 4);
    EXPECT_EQ(sheet.TextWidth("a\r\nbcd\r\n"), 6);
    EXPECT_EQ(sheet.TextHeight("a\r\nbcd\r\n"), 12);
    EXPECT_EQ(sheet.TextWidth(""), 0);
    EXPECT_EQ(sheet.TextHeight(""), 4);
    sheet.FontSize = 10;
    EXPECT_EQ(sheet.TextWidth("é€"), 10);
    EXPECT_EQ(sheet.TextHeight("é€"), 10);
}

TEST(Print, LeavesSnapshotsAlone) {
    Sheet sheet(2, 4);
    const Image before = sheet.Image();
    sheet.ForgetChanges();
    sheet.Print("a");
    EXPECT_EQ(before.At(0, 0), white);
    EXPECT_EQ(sheet.Changed(), (PixelRect{0, 0, 2, 4}));
}

}  // namespace
}  // namespace coinlet
