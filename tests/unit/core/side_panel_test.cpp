// The side panel, by the pixels of its rows, its metal and its back.
#include "core/side_panel.h"

#include "support/block_fonts.h"
#include "support/test_platform.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <utility>

namespace coinlet {
namespace {

constexpr Colour empty = RGB(195, 195, 195), green = RGB(0, 160, 0), beige = RGB(220, 220, 190);

class SidePanelTest : public testing::Test {
protected:
    SidePanelTest() { panel.SetBackColor(beige); }

    /// All pixels of the box are of the colour; right and bottom belong to it.
    void ExpectBox(int left, int top, int right, int bottom, Colour colour) const {
        for (int y = top; y <= bottom; ++y) {
            for (int x = left; x <= right; ++x)
                ASSERT_EQ(panel.Point(x, y), colour) << x << ", " << y;
        }
    }
    bool HasInk(int left, int top, int right, int bottom, Colour colour) const {
        for (int y = top; y <= bottom; ++y) {
            for (int x = left; x <= right; ++x)
                if (panel.Point(x, y) == colour) return true;
        }
        return false;
    }

    test::BlockFonts fonts;
    Surface panel{fonts, 178, 500};
};

TEST_F(SidePanelTest, HasTenRowsOfASwatchAndAText) {
    DrawEmptyRows(panel, rowTextAfterNew);
    const int tops[10] = {60, 85, 110, 135, 160, 185, 210, 235, 260, 285};
    for (const int top : tops) {
        ExpectBox(20, top, 40, top, black);
        ExpectBox(20, top + 20, 40, top + 20, black);
        ExpectBox(20, top, 20, top + 20, black);
        ExpectBox(40, top, 40, top + 20, black);
        ExpectBox(22, top + 2, 38, top + 18, empty);
        ExpectBox(21, top + 1, 39, top + 1, beige);
        EXPECT_TRUE(HasInk(45, top + 4, 80, top + 12, RGB(90, 90, 90)));
        ExpectBox(41, top, 44, top + 24, beige);
        ExpectBox(0, top + 21, 177, top + 24, beige);
    }
    ExpectBox(0, 0, 177, 59, beige);
    ExpectBox(0, 306, 177, 499, beige);
}

TEST_F(SidePanelTest, ASwatchIsHitWithinItsFrameOnly) {
    EXPECT_EQ(SwatchAt(22, 62), 0);
    EXPECT_EQ(SwatchAt(38, 78), 0);
    EXPECT_EQ(SwatchAt(30, 295), 9);
    EXPECT_EQ(SwatchAt(30, 120), 2);
    for (const auto& [x, y] :
         {std::pair{21, 70}, {39, 70}, {30, 61}, {30, 79}, {30, 82}, {60, 70}, {30, 320}})
        EXPECT_FALSE(SwatchAt(static_cast<float>(x), static_cast<float>(y))) << x << ", " << y;
}

TEST_F(SidePanelTest, ASwatchIsFilledInAWhiteFrame) {
    DrawEmptyRows(panel, rowTextAtStart);
    FillSwatch(panel, 1, 30, 95, green);
    ExpectBox(22, 87, 38, 103, green);
    ExpectBox(21, 86, 39, 86, white);
    ExpectBox(39, 86, 39, 104, white);
    ExpectBox(20, 85, 40, 85, black);
    ExpectBox(22, 62, 38, 78, empty);
    ExpectBox(22, 112, 38, 128, empty);
}

TEST_F(SidePanelTest, FillingPaintsOverWhateverPenStoodThere) {
    DrawEmptyRows(panel, rowTextAtStart);
    panel.DrawMode = invertPen;
    FillSwatch(panel, 0, 30, 70, green);
    ExpectBox(21, 61, 39, 61, white);
    panel.DrawMode = invertPen;
    ClearRow(panel, 0);
    ExpectBox(22, 62, 38, 78, empty);
    EXPECT_EQ(panel.FillStyle, transparentFill);
}

TEST_F(SidePanelTest, ANameTakesThePlaceOfTheOneBefore) {
    DrawEmptyRows(panel, rowTextAfterNew);
    PrintRowName(panel, 3, "PMS 485");
    ExpectBox(44, 135, 44, 155, white);
    EXPECT_FALSE(HasInk(44, 135, 177, 155, RGB(90, 90, 90)));
    EXPECT_TRUE(HasInk(45, 139, 177, 149, RGB(50, 50, 50)));
    PrintRowName(panel, 3, "");
    ExpectBox(44, 135, 177, 155, white);
    ExpectBox(43, 135, 43, 155, beige);
    ExpectBox(44, 156, 177, 159, beige);
    EXPECT_TRUE(HasInk(45, 160, 80, 176, RGB(90, 90, 90)));
}

// Its cell begins 45 pixels from the left and 4 below the top of the row, in letters of 8 points.
TEST_F(SidePanelTest, ANameStandsInItsExactPlace) {
    Surface expected(fonts, 178, 500);
    for (Surface* each : {&panel, &expected}) {
        each->SetBackColor(beige);
        DrawEmptyRows(*each, rowTextAfterNew);
        // Whatever was printed last leaves its font and its cursor.
        PrintMetal(*each, "Shiny Gold");
    }
    PrintRowName(panel, 3, "RGB 1,2,3");
    expected.Line(44, 135, 180, 155, white, Box::Filled);
    expected.CurrentX = 45;
    expected.CurrentY = 139;
    expected.FontSize = 8;
    expected.ForeColor = RGB(50, 50, 50);
    expected.Print("RGB 1,2,3");
    EXPECT_EQ(panel.Image(), expected.Image());
}

TEST_F(SidePanelTest, AClearedRowIsGrayAgainAndItsFieldBlank) {
    DrawEmptyRows(panel, rowTextAtStart);
    FillSwatch(panel, 9, 30, 295, green);
    PrintRowName(panel, 9, "RGB 0,160,0");
    ClearRow(panel, 9);
    ExpectBox(22, 287, 38, 303, empty);
    ExpectBox(21, 286, 39, 286, white);
    ExpectBox(20, 285, 40, 285, black);
    ExpectBox(70, 285, 177, 305, white);
    // The first letters stay.
    EXPECT_TRUE(HasInk(45, 289, 69, 299, RGB(50, 50, 50)));
}

TEST_F(SidePanelTest, TheMetalStandsAboveTheRows) {
    DrawEmptyRows(panel, rowTextAfterNew);
    PrintMetal(panel, "Shiny Gold");
    EXPECT_TRUE(HasInk(19, 20, 177, 32, black));
    PrintMetal(panel, "");
    ExpectBox(0, 15, 177, 45, white);
    ExpectBox(0, 14, 177, 14, beige);
    ExpectBox(0, 46, 177, 59, beige);
}

TEST_F(SidePanelTest, TheMetalIsWipedIfThereIsOne) {
    for (const auto& [x, y] : {std::pair{0, 15}, {177, 15}, {0, 45}, {177, 45}, {90, 30}}) {
        panel.SetBackColor(white);
        panel.PSet(x, y, RGB(255, 255, 254));
        WipeMetal(panel);
        ExpectBox(0, 0, 177, 499, white);
        const auto revision = panel.Revision();
        WipeMetal(panel);
        EXPECT_EQ(panel.Revision(), revision);
    }
    panel.SetBackColor(beige);
    WipeMetal(panel);
    ExpectBox(0, 15, 177, 45, white);
    ExpectBox(0, 14, 177, 14, beige);
    ExpectBox(0, 46, 177, 59, beige);
}

TEST_F(SidePanelTest, TheBackStandsBelowThem) {
    Surface back(fonts, 200, 150);
    back.SetBackColor(green);
    PaintBack(panel, back.Image());
    ExpectBox(14, 340, 163, 489, green);
    ExpectBox(13, 339, 13, 490, beige);
    ExpectBox(14, 339, 164, 339, beige);
    ExpectBox(164, 340, 164, 490, beige);
    ExpectBox(14, 490, 163, 490, beige);
}

TEST_F(SidePanelTest, ItsHeaderIsPrintedOnTheStripAboveIt) {
    test::TestServices services;
    Form form(services.ForForms(), "Sample");
    PictureBox strip(form, "Strip");
    strip.Move(0, 0, 178 * 15, 20 * 15);
    Surface expected(services.fonts, 178, 20);
    PrintSidePanelHeader(strip);
    expected.FontSize = 8;
    expected.CurrentX = 4;
    expected.CurrentY = 3;
    expected.Print("Material, PMS Colors and Back");
    EXPECT_EQ(strip.Image(), expected.Image());
    // Nobody fills its letters.
    ASSERT_EQ(strip.LinesToRead().size(), 1U);
}

}  // namespace
}  // namespace coinlet
