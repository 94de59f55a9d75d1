// Text from the panel to the canvas, in a font of blocks: at 8 points a letter is 3 pixels wide and 7 high in
// a cell of 4 by 8.

#include "tools/text_tool.h"

#include "support/world.h"
#include "surface/device.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <initializer_list>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace coinlet {
namespace {

constexpr int letterWidth = 3, letterHeight = 7, cellWidth = 4, cellHeight = 8;

class TextToolTest : public testing::Test, protected test::World {
protected:
    TextToolTest() {
        main.Combo2.SetText("Block");
        main.Combo3.SetText("8");
        main.Text1.SetText("ab");
    }
    /// One letter over what was there before, as a table of the pixels that aren't paper.
    using Picture = std::map<std::pair<int, int>, Colour>;
    static void Stamp(Picture& picture, int left, int top, Colour colour) {
        for (int y = 0; y < letterHeight; ++y) {
            for (int x = 0; x < letterWidth; ++x)
                picture[{left + x, top + y}] = colour;
        }
    }
    static void ExpectPicture(const Surface& surface, const Picture& expected) {
        for (int y = 0; y < surface.PixelHeight(); ++y) {
            for (int x = 0; x < surface.PixelWidth(); ++x) {
                const auto found = expected.find({x, y});
                ASSERT_EQ(surface.Point(x, y), found == expected.end() ? white : found->second)
                    << x << ", " << y;
            }
        }
    }
    Image Canvas() { return main.Pic.surface.Image(); }

    TextTool tool{context};
};

TEST_F(TextToolTest, PlainTextIsBlack) {
    Surface sheet(fonts, 30, 30);
    sheet.ForeColor = RGB(1, 2, 3);
    ASSERT_TRUE(DrawStyledText(sheet, 5, 6, "a", StyleOnPanel(main)));
    Picture expected;
    Stamp(expected, 5, 6, black);
    ExpectPicture(sheet, expected);
    EXPECT_EQ(sheet.ForeColor, black);
    EXPECT_EQ(sheet.FontName, "Block");
    EXPECT_EQ(sheet.FontSize, 8);
}

TEST_F(TextToolTest, ShadowGrowsLighterAwayFromTheLetters) {
    main.SchaduwCheck.SetValue(true);
    Surface sheet(fonts, 30, 30);
    ASSERT_TRUE(DrawStyledText(sheet, 5, 6, "a", StyleOnPanel(main)));
    Picture expected;
    const int grays[] = {186, 192, 198, 204, 210, 216, 222, 228};
    for (int i = 8; i >= 1; --i)
        Stamp(expected, 5 + i, 6 + i, RGB(grays[i - 1], grays[i - 1], grays[i - 1]));
    Stamp(expected, 5, 6, black);
    ExpectPicture(sheet, expected);
}

TEST_F(TextToolTest, OpenLettersAreWhiteInABlackOutline) {
    main.OpenCheck.SetValue(true);
    Surface sheet(fonts, 30, 30);
    ASSERT_TRUE(DrawStyledText(sheet, 5, 6, "a", StyleOnPanel(main)));
    Picture expected;
    // All places at a distance of two, counted along the axes.
    for (int dy = -2; dy <= 2; ++dy) {
        for (int dx = -2; dx <= 2; ++dx) {
            if (std::abs(dx) + std::abs(dy) == 2) Stamp(expected, 5 + dx, 6 + dy, black);
        }
    }
    Stamp(expected, 5, 6, white);
    ExpectPicture(sheet, expected);
    EXPECT_EQ(sheet.ForeColor, white);
}

TEST_F(TextToolTest, OpenLettersHaveTheShadowBelowTheirOutline) {
    main.OpenCheck.SetValue(true);
    main.SchaduwCheck.SetValue(true);
    Surface sheet(fonts, 30, 30);
    ASSERT_TRUE(DrawStyledText(sheet, 5, 6, "a", StyleOnPanel(main)));
    EXPECT_EQ(sheet.Point(5, 6), white);
    EXPECT_EQ(sheet.Point(4, 6), black);
    EXPECT_EQ(sheet.Point(5 + 8 + 2, 6 + 8 + 6), RGB(228, 228, 228));
}

TEST_F(TextToolTest, FractionsOfAPlaceAreRoundedAtTheMomentOfDrawing) {
    Surface sheet(fonts, 30, 30);
    ASSERT_TRUE(DrawStyledText(sheet, 4.5F, 6, "a", StyleOnPanel(main)));
    Picture expected;
    Stamp(expected, 4, 6, black);
    ExpectPicture(sheet, expected);
}

TEST_F(TextToolTest, StylesFollowTheTicks) {
    Surface sheet(fonts, 30, 30);
    for (int ticks = 0; ticks < 8; ++ticks) {
        main.BoldCheck.SetValue((ticks & 1) != 0);
        main.ItalicCheck.SetValue((ticks & 2) != 0);
        main.UnderlineCheck.SetValue((ticks & 4) != 0);
        ASSERT_TRUE(DrawStyledText(sheet, 0, 0, "a", StyleOnPanel(main)));
        main.PlaatsKnop.Click();
        for (const FontProperties* font :
             std::initializer_list<const FontProperties*>{&sheet, &main.TextLabel, &main.VertPic.surface}) {
            EXPECT_EQ(font->FontBold, (ticks & 1) != 0);
            EXPECT_EQ(font->FontItalic, (ticks & 2) != 0);
            EXPECT_EQ(font->FontUnderline, (ticks & 4) != 0);
            EXPECT_EQ(font->FontName, "Block");
            EXPECT_EQ(font->FontSize, 8);
        }
    }
}

TEST_F(TextToolTest, ASizeThatIsNoNumberPrintsNothing) {
    Surface sheet(fonts, 30, 30);
    for (const char* size : {"", "big", "12 pt", "1e300", "12,5"}) {
        main.Combo3.SetText(size);
        EXPECT_FALSE(DrawStyledText(sheet, 5, 6, "a", StyleOnPanel(main))) << size;
    }
    ExpectPicture(sheet, {});
}

TEST_F(TextToolTest, AnOddSizeIsNoHarm) {
    Surface sheet(fonts, 30, 30);
    for (const char* size : {"0", "-20", " 8 ", "8.5", "1e-30"}) {
        main.Combo3.SetText(size);
        EXPECT_TRUE(DrawStyledText(sheet, 5, 6, "a", StyleOnPanel(main))) << size;
    }
}

TEST_F(TextToolTest, WithoutATextTheUserIsStopped) {
    main.Text1.SetText("  ");
    main.PlaatsKnop.Click();
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(platform.messages.front().prompt, "There is no text...");
    EXPECT_EQ(platform.messages.front().title, "Error");
    EXPECT_EQ(platform.messages.front().icon, MessageIcon::Stop);
    EXPECT_FALSE(session.TextPlacing);
}

TEST_F(TextToolTest, TheTextStandsUpAndLeftOfThePointerByTheSizeOfTheLabel) {
    main.PlaatsKnop.Click();
    EXPECT_EQ(main.TextLabel.Caption, "ab ");
    EXPECT_TRUE(main.TextLabel.Visible);
    EXPECT_TRUE(session.TextPlacing);
    // The label has room for the blank as well, and so the letters stand one cell further to the left.
    EXPECT_EQ(main.TextLabel.Width(), 3 * cellWidth);
    EXPECT_EQ(main.TextLabel.Height(), cellHeight);
    tool.Place({100, 50});
    Picture expected;
    const int left = 100 - 3 * cellWidth - 5, top = 50 - cellHeight - 5;
    Stamp(expected, left, top, black);
    Stamp(expected, left + cellWidth, top, black);
    ExpectPicture(main.Pic.surface, expected);
    EXPECT_FALSE(main.TextLabel.Visible);
    EXPECT_FALSE(session.TextPlacing);
    EXPECT_TRUE(session.DesignChanged);
}

TEST_F(TextToolTest, VerticalTextRunsUpwardFromThePointerToItsLeft) {
    main.VertCheck.SetValue(true);
    main.PlaatsKnop.Click();
    EXPECT_EQ(main.VertPic.Width(), 3 * cellWidth * 15);
    EXPECT_EQ(main.VertPic.Height(), cellHeight * 15);
    tool.Place({100, 50});
    Picture expected;
    for (int letter = 0; letter < 2; ++letter) {
        for (int along = 0; along < letterWidth; ++along) {
            for (int down = 0; down < letterHeight; ++down)
                expected[{100 - cellHeight + down, 50 - letter * cellWidth - along}] = black;
        }
    }
    ExpectPicture(main.Pic.surface, expected);
}

TEST_F(TextToolTest, VerticalTextKnowsNoOutlineAndNoShadow) {
    main.VertCheck.SetValue(true);
    main.PlaatsKnop.Click();
    tool.Place({100, 50});
    const Image plain = Canvas();
    main.Pic.surface.SetPicture({});
    main.OpenCheck.SetValue(true);
    main.SchaduwCheck.SetValue(true);
    main.PlaatsKnop.Click();
    tool.Place({100, 50});
    for (int y = 0; y < canvasSide; ++y) {
        for (int x = 0; x < canvasSide; ++x)
            ASSERT_EQ(main.Pic.surface.Point(x, y), ToColour(plain.Row(y)[x])) << x << ", " << y;
    }
}

TEST_F(TextToolTest, TurningDropsWhatHasAChannelAtItsFull) {
    main.VertCheck.SetValue(true);
    main.PlaatsKnop.Click();
    main.VertPic.SetWidth(4 * 15);
    main.VertPic.SetHeight(2 * 15);
    const Colour colours[] = {RGB(255, 0, 0), RGB(0, 255, 0),     RGB(0, 0, 255),    RGB(254, 254, 254),
                              white,          RGB(255, 255, 254), RGB(10, 200, 254), black};
    for (int i = 0; i < 8; ++i)
        SetPixel(main.VertPic.surface.hDC(), i % 4, i / 4, colours[i]);
    tool.Place({100, 50});
    Picture expected;
    expected[{98, 47}] = RGB(254, 254, 254);
    expected[{99, 48}] = RGB(10, 200, 254);
    expected[{99, 47}] = black;
    ExpectPicture(main.Pic.surface, expected);
}

TEST_F(TextToolTest, ATextThatNoPictureHoldsIsTurnedAllTheSame) {
    main.VertCheck.SetValue(true);
    main.Text1.SetText(std::string(20000, 'a'));
    main.PlaatsKnop.Click();
    EXPECT_EQ(main.VertPic.Width(), maximumSide * 15);
    EXPECT_EQ(main.VertPic.Height(), cellHeight * 15);
    tool.Place({100, 499});
    for (int y = 0; y < canvasSide; ++y)
        EXPECT_EQ(main.Pic.surface.Point(95, y), (499 - y) % cellWidth < letterWidth ? black : white) << y;
    // A line as high as no picture can be: nothing is turned, whatever was turned before.
    main.Combo3.SetText("20000");
    main.PlaatsKnop.Click();
    tool.Place({250, 499});
    EXPECT_EQ(main.VertPic.Height(), 0);
    EXPECT_EQ(main.Pic.surface.Point(249, 499), white);
}

TEST_F(TextToolTest, TheLetterSampleFollowsTheFontHoweverItIsChosen) {
    main.Combo2.AddItem("Arial");
    main.Combo2.SetListIndex(0);
    EXPECT_EQ(main.FontLabel.FontName, "Arial");
    EXPECT_EQ(main.FontLabel.FontSize, 14);
    EXPECT_EQ(main.FontLabel.Caption, "Example");
    main.Combo2.SetText("Arials");
    EXPECT_EQ(main.FontLabel.FontName, "Arials");
}

}  // namespace
}  // namespace coinlet
