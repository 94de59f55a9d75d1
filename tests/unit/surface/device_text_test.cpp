// Device text: laid out in rectangles, turned, smooth. In the font of blocks a letter at 4 points is 1 pixel
// wide and 3 high in a cell of 2 by 4.

#include "support/block_fonts.h"
#include "support/picture_grid.h"
#include "surface/device.h"

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

// The first pixel row of each line of cells tells where its letters are.
Grid FirstRows(const Surface& surface, int cellHeight = 4) {
    const Grid whole = GridOf(surface);
    std::vector<std::string> rows;
    for (std::size_t y = 0; y < whole.Rows().size(); y += static_cast<std::size_t>(cellHeight))
        rows.push_back(whole.Rows()[y]);
    return Grid(rows);
}

// --- DrawTextA -----------------------------------------------------------------------------------------

TEST(DrawText, StandsAtTheTopLeftOfItsRectangle) {
    Sheet sheet(7, 6);
    sheet.ForeColor = RGB(0, 0, 255);
    RECT box = {1, 1, 7, 6};
    EXPECT_EQ(DrawTextA(sheet.hDC(), "ab", box, 0), 4);
    EXPECT_EQ(GridOf(sheet), (Grid{".......",  //
                                   ".B.B...",  //
                                   ".B.B...",  //
                                   ".B.B...",  //
                                   ".......",  //
                                   "......."}));
    EXPECT_EQ(box, (RECT{1, 1, 7, 6}));
}

TEST(DrawText, IsCutByItsRectangle) {
    Sheet sheet(8, 5);
    RECT box = {1, 1, 4, 3};
    DrawTextA(sheet.hDC(), "abcd", box, 0);
    EXPECT_EQ(GridOf(sheet), (Grid{"........",  //
                                   ".#.#....",  //
                                   ".#.#....",  //
                                   "........",  //
                                   "........"}));
}

TEST(DrawText, BreaksLinesAtCarriageReturnAndLineFeed) {
    Sheet sheet(6, 12);
    RECT box = {0, 0, 6, 12};
    EXPECT_EQ(DrawTextA(sheet.hDC(), "a\r\n\r\nbc", box, 0), 12);
    EXPECT_EQ(FirstRows(sheet), (Grid{"#.....", "......", "#.#..."}));
}

TEST(DrawText, WithoutWordBreakRunsOutOfTheRectangle) {
    Sheet sheet(6, 4);
    RECT box = {0, 0, 6, 4};
    EXPECT_EQ(DrawTextA(sheet.hDC(), "ab cd", box, 0), 4);
    EXPECT_EQ(FirstRows(sheet), (Grid{"#.#..."}));
}

TEST(DrawText, BreaksAtTheLastBlankThatFits) {
    // Five cells a line: "a b" and then "cd" would need six.
    Sheet sheet(10, 8);
    RECT box = {0, 0, 10, 8};
    EXPECT_EQ(DrawTextA(sheet.hDC(), "a b cd", box, DT_WORDBREAK), 8);
    EXPECT_EQ(FirstRows(sheet), (Grid{"#...#.....", "#.#......."}));
}

TEST(DrawText, AWordThatJustFitsStays) {
    Sheet sheet(10, 8);
    RECT box = {0, 0, 10, 8};
    EXPECT_EQ(DrawTextA(sheet.hDC(), "ab cd", box, DT_WORDBREAK), 4);
    EXPECT_EQ(FirstRows(sheet), (Grid{"#.#...#.#.", ".........."}));
}

TEST(DrawText, DropsTheBlanksAtABreak) {
    Sheet sheet(6, 8);
    RECT box = {0, 0, 6, 8};
    EXPECT_EQ(DrawTextA(sheet.hDC(), "ab    cd", box, DT_WORDBREAK), 8);
    EXPECT_EQ(FirstRows(sheet), (Grid{"#.#...", "#.#..."}));
}

TEST(DrawText, AWordTooWideStandsAloneAndUnbroken) {
    Sheet sheet(6, 12);
    RECT box = {0, 0, 6, 12};
    EXPECT_EQ(DrawTextA(sheet.hDC(), "a wxyz b", box, DT_WORDBREAK), 12);
    EXPECT_EQ(FirstRows(sheet), (Grid{"#.....", "#.#.#.", "#....."}));
}

TEST(DrawText, CentresEachLine) {
    // Of 9 pixels "a" takes 2 and leaves 3 at its left, "bcd" takes 6 and leaves 1.
    Sheet sheet(9, 8);
    RECT box = {0, 0, 9, 8};
    DrawTextA(sheet.hDC(), "a\r\nbcd", box, DT_CENTER);
    EXPECT_EQ(FirstRows(sheet), (Grid{"...#.....", ".#.#.#..."}));
}

TEST(DrawText, CentresAfterBreaking) {
    Sheet sheet(8, 8);
    RECT box = {0, 0, 8, 8};
    DrawTextA(sheet.hDC(), "abc d", box, DT_CENTER | DT_WORDBREAK);
    EXPECT_EQ(FirstRows(sheet), (Grid{".#.#.#..", "...#...."}));
}

TEST(DrawText, ALineTooWideIsCentredToo) {
    // 10 pixels in 4: three reach out at either side, so the letters are at -3, -1, 1, 3, 5.
    Sheet sheet(6, 4);
    RECT box = {1, 0, 5, 4};
    DrawTextA(sheet.hDC(), "abcde", box, DT_CENTER);
    EXPECT_EQ(FirstRows(sheet), (Grid{"..#.#."}));
}

TEST(DrawText, CalculatingDrawsNothingAndMovesTwoEdges) {
    Sheet sheet(30, 30);
    const auto revision = sheet.Revision();
    RECT box = {3, 5, 13, 9};
    EXPECT_EQ(DrawTextA(sheet.hDC(), "ab cde f", box, DT_CENTER | DT_WORDBREAK | DT_CALCRECT), 8);
    EXPECT_EQ(box, (RECT{3, 5, 13, 13}));  // "ab" (4 pixels) and "cde f" (10)
    box = {3, 5, 9, 5};
    EXPECT_EQ(DrawTextA(sheet.hDC(), "a wxyz", box, DT_WORDBREAK | DT_CALCRECT), 8);
    EXPECT_EQ(box, (RECT{3, 5, 11, 13}));  // the word is wider than the rectangle was
    box = {3, 5, 4, 6};
    EXPECT_EQ(DrawTextA(sheet.hDC(), "ab cd", box, DT_CALCRECT), 4);
    EXPECT_EQ(box, (RECT{3, 5, 13, 9}));
    EXPECT_EQ(sheet.Revision(), revision);
}

TEST(DrawText, AnEmptyTextIsALineWithoutLetters) {
    Sheet sheet(4, 4);
    const auto revision = sheet.Revision();
    for (const unsigned flags : {0U, DT_CENTER, DT_WORDBREAK, DT_CENTER | DT_WORDBREAK}) {
        RECT box = {0, 0, 4, 4};
        EXPECT_EQ(DrawTextA(sheet.hDC(), "", box, flags), 4);
        EXPECT_EQ(DrawTextA(sheet.hDC(), "", box, flags | DT_CALCRECT), 4);
        EXPECT_EQ(box, (RECT{0, 0, 0, 4}));
    }
    EXPECT_EQ(sheet.Revision(), revision);
}

TEST(DrawText, BlanksAloneEnd) {
    Sheet sheet(4, 4);
    RECT box = {0, 0, 4, 4};
    EXPECT_EQ(DrawTextA(sheet.hDC(), std::string(100, ' '), box, DT_WORDBREAK), 4);
    EXPECT_EQ(DrawTextA(sheet.hDC(), " a ", box, DT_WORDBREAK), 4);
    EXPECT_EQ(FirstRows(sheet), (Grid{"..#."}));
}

TEST(DrawText, InARectangleTheWrongWayRoundEachWordIsALine) {
    Sheet sheet(8, 8);
    const auto revision = sheet.Revision();
    RECT box = {6, 0, 2, 8};
    EXPECT_EQ(DrawTextA(sheet.hDC(), "a b", box, DT_WORDBREAK | DT_CENTER), 8);
    EXPECT_EQ(sheet.Revision(), revision);
}

TEST(DrawText, HugeRectanglesEnd) {
    constexpr int low = std::numeric_limits<int>::min(), high = std::numeric_limits<int>::max();
    Sheet sheet(8, 4);
    RECT box = {low, low, high, high};
    EXPECT_EQ(DrawTextA(sheet.hDC(), "a b", box, DT_WORDBREAK), 4);
    RECT corner = {high - 1, high - 1, high, high};
    EXPECT_EQ(DrawTextA(sheet.hDC(), "ab", corner, DT_CALCRECT), 4);
    EXPECT_EQ(corner, (RECT{high - 1, high - 1, high, high}));
    EXPECT_EQ(DrawTextA(sheet.hDC(), "ab", corner, DT_CENTER), 4);
    EXPECT_EQ(GridOf(sheet), (Grid{"........", "........", "........", "........"}));
}

// --- Colour and fonts ----------------------------------------------------------------------------------

TEST(SetTextColor, IsTheForeColor) {
    Sheet sheet(2, 4);
    EXPECT_EQ(SetTextColor(sheet.hDC(), RGB(255, 0, 0)), black);
    EXPECT_EQ(sheet.ForeColor, RGB(255, 0, 0));
    EXPECT_EQ(SetTextColor(sheet.hDC(), black), RGB(255, 0, 0));
}

LOGFONT Letters(int height) {
    LOGFONT font;
    font.lfHeight = height;
    font.lfFaceName = "Block";
    return font;
}

TEST(CreateFont, RefusesLongNamesAndNoHeight) {
    LOGFONT font = Letters(-8);
    EXPECT_NE(CreateFontIndirectA(font), nullptr);
    font.lfFaceName = std::string(32, 'x');
    EXPECT_NE(CreateFontIndirectA(font), nullptr);
    font.lfFaceName = std::string(33, 'x');
    EXPECT_EQ(CreateFontIndirectA(font), nullptr);
    // Characters count, not the bytes that they take.
    font.lfFaceName = "文泉驿微米黑文泉驿微米黑";
    EXPECT_NE(CreateFontIndirectA(font), nullptr);
    EXPECT_EQ(CreateFontIndirectA(Letters(0)), nullptr);
}

TEST(SelectObject, GivesBackTheFormerFont) {
    Sheet sheet(2, 2);
    const HFONT first = CreateFontIndirectA(Letters(-8)), second = CreateFontIndirectA(Letters(-16));
    EXPECT_EQ(SelectObject(sheet.hDC(), first), nullptr);
    EXPECT_EQ(SelectObject(sheet.hDC(), second), first);
    EXPECT_EQ(SelectObject(sheet.hDC(), nullptr), second);
}

TEST(SelectObject, HoldsTheFontUntilItIsTakenOut) {
    Sheet sheet(2, 2);
    HFONT font = CreateFontIndirectA(Letters(-8));
    const std::weak_ptr<const LOGFONT> watch = font;
    SelectObject(sheet.hDC(), font);
    font.reset();
    EXPECT_FALSE(watch.expired());
    SelectObject(sheet.hDC(), nullptr);
    EXPECT_TRUE(watch.expired());
}

TEST(SelectObject, ServesDrawText) {
    // 8 pixels are 6 points: cells of 3 by 6, letters of 2 by 5.
    Sheet sheet(7, 6);
    SelectObject(sheet.hDC(), CreateFontIndirectA(Letters(-8)));
    RECT box = {0, 0, 7, 6};
    EXPECT_EQ(DrawTextA(sheet.hDC(), "ab", box, 0), 6);
    EXPECT_EQ(GridOf(sheet), (Grid{"##.##..",  //
                                   "##.##..",  //
                                   "##.##..",  //
                                   "##.##..",  //
                                   "##.##..",  //
                                   "......."}));
}

// --- TextOutA ------------------------------------------------------------------------------------------

TEST(TextOut, WritesInTheSurfacesOwnFont) {
    Sheet sheet(5, 4);
    sheet.CurrentX = 7;
    TextOutA(sheet.hDC(), 1, 1, "ab");
    EXPECT_EQ(GridOf(sheet), (Grid{".....",  //
                                   ".#.#.",  //
                                   ".#.#.",  //
                                   ".#.#."}));
    EXPECT_EQ(sheet.CurrentX, 7);
}

TEST(TextOut, TurnsAboutTheTopLeftCornerOfTheCell) {
    // At 6 points a letter is 2 by 5 in a cell of 3 by 6; x marks the point (4, 4) below.
    LOGFONT font = Letters(-8);
    const auto turned = [&](int tenthsOfADegree) {
        Sheet sheet(9, 9);
        font.lfEscapement = tenthsOfADegree;
        SelectObject(sheet.hDC(), CreateFontIndirectA(font));
        TextOutA(sheet.hDC(), 4, 4, "a");
        return GridOf(sheet);
    };
    // Counter-clockwise: the text runs upward, its feet to the right.
    EXPECT_EQ(turned(900), (Grid{".........",  //
                                 ".........",  //
                                 "....#####",  //
                                 "....#####",  //
                                 ".........",  // the point's row
                                 ".........",  //
                                 ".........",  //
                                 ".........",  //
                                 "........."}));
    EXPECT_EQ(turned(1800), (Grid{"..##.....",  //
                                  "..##.....",  //
                                  "..##.....",  //
                                  "..##.....",  //
                                  ".........",  //
                                  ".........",  //
                                  ".........",  //
                                  ".........",  //
                                  "........."}));
    const Grid clockwise = {".........",  //
                            ".........",  //
                            ".........",  //
                            ".........",  //
                            "####.....",  //
                            "####.....",  //
                            ".........",  //
                            ".........",  //
                            "........."};
    EXPECT_EQ(turned(2700), clockwise);
    EXPECT_EQ(turned(-900), clockwise);
}

// Tells what it was asked for, and draws four pixels of different coverage where edges are to be smooth.
class Witness : public test::BlockFonts {
public:
    TextMask Render(const FontSpec& font, std::string_view, Edges edges, double angle) const override {
        asked = font;
        askedAngle = angle;
        if (edges == Edges::Smooth) return {-1, 0, 4, 1, {0, 128, 255, 64}};
        return {0, 0, 1, 1, {255}};
    }
    mutable FontSpec asked;
    mutable double askedAngle = 0;
};

TEST(TextOut, AsksForTheFontOfTheRecord) {
    const Witness witness;
    Surface surface(witness, 4, 1);
    LOGFONT font;
    font.lfHeight = -20;
    font.lfWeight = 700;
    font.lfItalic = 1;
    font.lfUnderline = 1;
    font.lfEscapement = -123;
    font.lfFaceName = "Garamond";
    SelectObject(surface.hDC(), CreateFontIndirectA(font));
    TextOutA(surface.hDC(), 0, 0, "a");
    EXPECT_EQ(witness.asked, (FontSpec{"Garamond", 15, true, true, true, false}));
    EXPECT_DOUBLE_EQ(witness.askedAngle, -12.3);
    // No font selected: the surface's own, level.
    surface.FontName = "Plain";
    surface.FontSize = 9;
    SelectObject(surface.hDC(), nullptr);
    TextOutA(surface.hDC(), 0, 0, "a");
    EXPECT_EQ(witness.asked, (FontSpec{"Plain", 9, false, false, false, false}));
    EXPECT_EQ(witness.askedAngle, 0);
}

TEST(TextOut, SmoothEdgesAreBlendedWithWhatLiesBelow) {
    const Witness witness;
    Surface surface(witness, 4, 1);
    for (int x = 0; x < 4; ++x)
        SetPixel(surface.hDC(), x, 0, RGB(10, 20, 30));
    LOGFONT font = Letters(-8);
    font.lfQuality = 4;
    SelectObject(surface.hDC(), CreateFontIndirectA(font));
    surface.ForeColor = RGB(200, 0, 100);
    TextOutA(surface.hDC(), 1, 0, "a");
    EXPECT_EQ(GetPixel(surface.hDC(), 0, 0), RGB(10, 20, 30));
    // (10 * 127 + 200 * 128) / 255 = 105.4, 20 * 127 / 255 = 9.96, (30 * 127 + 100 * 128) / 255 = 65.1
    EXPECT_EQ(GetPixel(surface.hDC(), 1, 0), RGB(105, 10, 65));
    EXPECT_EQ(GetPixel(surface.hDC(), 2, 0), RGB(200, 0, 100));
    // (10 * 191 + 200 * 64) / 255 = 57.7, 20 * 191 / 255 = 14.98, (30 * 191 + 100 * 64) / 255 = 47.6
    EXPECT_EQ(GetPixel(surface.hDC(), 3, 0), RGB(58, 15, 48));
    for (const Pixel pixel : surface.Pixels().Pixels())
        EXPECT_EQ(pixel & spareByte, spareByte);
}

TEST(TextOut, AnyOtherQualityIsCrisp) {
    const Witness witness;
    Surface surface(witness, 4, 1);
    LOGFONT font = Letters(-8);
    font.lfQuality = 3;
    SelectObject(surface.hDC(), CreateFontIndirectA(font));
    TextOutA(surface.hDC(), 1, 0, "a");
    EXPECT_EQ(GridOf(surface), (Grid{".#.."}));
}

TEST(TextOut, OutsideDrawsNothing) {
    constexpr int low = std::numeric_limits<int>::min(), high = std::numeric_limits<int>::max();
    Sheet sheet(3, 3);
    const auto revision = sheet.Revision();
    for (const int far : {low, high, -100, 100}) {
        TextOutA(sheet.hDC(), far, 0, "abc");
        TextOutA(sheet.hDC(), 0, far, "abc");
    }
    TextOutA(sheet.hDC(), 0, 0, "");
    EXPECT_EQ(sheet.Revision(), revision);
}

// --- Facts ---------------------------------------------------------------------------------------------

TEST(GetDeviceCaps, TellsTheDotsPerInch) {
    Sheet sheet(1, 1);
    EXPECT_EQ(GetDeviceCaps(sheet.hDC(), LOGPIXELSY), 96);
    EXPECT_EQ(GetDeviceCaps(sheet.hDC(), 0), 0);
}

TEST(MulDiv, RoundsToTheNearestHalvesAwayFromZero) {
    constexpr int low = std::numeric_limits<int>::min(), high = std::numeric_limits<int>::max();
    EXPECT_EQ(MulDiv(10, 96, 72), 13);  // 13.33
    EXPECT_EQ(MulDiv(7, 1, 2), 4);      // 3.5
    EXPECT_EQ(MulDiv(-7, 1, 2), -4);    // -3.5
    EXPECT_EQ(MulDiv(7, 1, -2), -4);
    EXPECT_EQ(MulDiv(-7, -1, 2), 4);
    EXPECT_EQ(MulDiv(5, 1, 3), 2);    // 1.67
    EXPECT_EQ(MulDiv(-4, 1, 3), -1);  // -1.33
    EXPECT_EQ(MulDiv(0, 5, 3), 0);
    EXPECT_EQ(MulDiv(high, high, high), high);
    EXPECT_EQ(MulDiv(low, 1, 1), low);
    EXPECT_EQ(MulDiv(1, 1, 0), -1);
    EXPECT_EQ(MulDiv(high, 2, 1), -1);
    EXPECT_EQ(MulDiv(low, 1, -1), -1);
    EXPECT_EQ(MulDiv(low, low, 1), -1);
}

}  // namespace
}  // namespace coinlet
