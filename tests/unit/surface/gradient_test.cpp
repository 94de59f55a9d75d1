// Gradients: their steps by the formula, their areas by hand.

#include "support/block_fonts.h"
#include "support/picture_grid.h"
#include "surface/device.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace coinlet {
namespace {

using test::Grid;
using test::GridOf;

const test::BlockFonts fonts;

TRIVERTEX Vertex(int x, int y, int red, int green, int blue) {
    return {x,
            y,
            static_cast<std::uint16_t>(red * 256),
            static_cast<std::uint16_t>(green * 256),
            static_cast<std::uint16_t>(blue * 256),
            0};
}

bool Fill(Surface& surface, const TRIVERTEX& a, const TRIVERTEX& b, int mode) {
    const std::vector<TRIVERTEX> vertices = {a, b};
    const std::vector<GRADIENT_RECT> mesh = {{0, 1}};
    return GradientFill(surface.hDC(), vertices, mesh, mode);
}

TEST(GradientFill, RowsByTheFormula) {
    Surface surface(fonts, 2, 4);
    // Red 0, 200 * 1/4, 2/4, 3/4; blue 100, less 40 * 256 / 4 = 10 a row.
    EXPECT_TRUE(Fill(surface, Vertex(0, 0, 0, 7, 100), Vertex(2, 4, 200, 7, 60), GRADIENT_FILL_RECT_V));
    for (int x = 0; x < 2; ++x) {
        EXPECT_EQ(GetPixel(surface.hDC(), x, 0), RGB(0, 7, 100));
        EXPECT_EQ(GetPixel(surface.hDC(), x, 1), RGB(50, 7, 90));
        EXPECT_EQ(GetPixel(surface.hDC(), x, 2), RGB(100, 7, 80));
        EXPECT_EQ(GetPixel(surface.hDC(), x, 3), RGB(150, 7, 70));
    }
}

TEST(GradientFill, DropsTheLowByte) {
    // From 0 to 10 in 3 rows: 2560 / 3 = 853 is 3 and a bit, 5120 / 3 = 1706 is 6 and a bit.
    Surface surface(fonts, 1, 3);
    Fill(surface, Vertex(0, 0, 0, 0, 0), Vertex(1, 3, 10, 0, 0), GRADIENT_FILL_RECT_V);
    EXPECT_EQ(GetPixel(surface.hDC(), 0, 0), RGB(0, 0, 0));
    EXPECT_EQ(GetPixel(surface.hDC(), 0, 1), RGB(3, 0, 0));
    EXPECT_EQ(GetPixel(surface.hDC(), 0, 2), RGB(6, 0, 0));
    // All of the 16 bits count: half way from 0x00FF to 0x0101 the upper byte is 1.
    const std::vector<TRIVERTEX> fine = {{0, 0, 0x00FF, 0, 0, 0}, {1, 2, 0x0101, 0, 0, 0}};
    const std::vector<GRADIENT_RECT> mesh = {{0, 1}};
    GradientFill(surface.hDC(), fine, mesh, GRADIENT_FILL_RECT_V);
    EXPECT_EQ(GetPixel(surface.hDC(), 0, 0), RGB(0, 0, 0));
    EXPECT_EQ(GetPixel(surface.hDC(), 0, 1), RGB(1, 0, 0));
}

TEST(GradientFill, ColumnsAlike) {
    Surface surface(fonts, 4, 2);
    Fill(surface, Vertex(0, 0, 0, 0, 0), Vertex(4, 2, 0, 200, 0), GRADIENT_FILL_RECT_H);
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 4; ++x) {
            EXPECT_EQ(GetPixel(surface.hDC(), x, y), RGB(0, 50 * x, 0));
        }
    }
}

TEST(GradientFill, ChannelsAbove127AreNoNegatives) {
    Surface surface(fonts, 1, 1);
    Fill(surface, Vertex(0, 0, 255, 128, 200), Vertex(1, 1, 255, 128, 200), GRADIENT_FILL_RECT_V);
    EXPECT_EQ(GetPixel(surface.hDC(), 0, 0), RGB(255, 128, 200));
}

TEST(GradientFill, LeavesOutItsRightAndBottomEdges) {
    Surface surface(fonts, 5, 4);
    Fill(surface, Vertex(1, 1, 0, 0, 0), Vertex(4, 3, 0, 0, 0), GRADIENT_FILL_RECT_V);
    EXPECT_EQ(GridOf(surface), (Grid{".....",  //
                                     ".###.",  //
                                     ".###.",  //
                                     "....."}));
}

TEST(GradientFill, WithTheXTheWrongWayRoundItIsTheSameArea) {
    for (const int mode : {GRADIENT_FILL_RECT_H, GRADIENT_FILL_RECT_V}) {
        Surface surface(fonts, 5, 3);
        Fill(surface, Vertex(4, 0, 0, 0, 0), Vertex(3, 2, 0, 0, 0), mode);
        EXPECT_EQ(GridOf(surface), (Grid{"...#.", "...#.", "....."}));
    }
}

TEST(GradientFill, EachVertexKeepsItsColour) {
    // The lower vertex given first: its colour is still the bottom one.
    Surface surface(fonts, 2, 2);
    Fill(surface, Vertex(0, 2, 200, 0, 0), Vertex(2, 0, 0, 0, 0), GRADIENT_FILL_RECT_V);
    EXPECT_EQ(GetPixel(surface.hDC(), 0, 0), RGB(0, 0, 0));
    EXPECT_EQ(GetPixel(surface.hDC(), 0, 1), RGB(100, 0, 0));
    Fill(surface, Vertex(2, 0, 200, 0, 0), Vertex(0, 2, 0, 0, 0), GRADIENT_FILL_RECT_H);
    EXPECT_EQ(GetPixel(surface.hDC(), 0, 0), RGB(0, 0, 0));
    EXPECT_EQ(GetPixel(surface.hDC(), 1, 0), RGB(100, 0, 0));
    // A vertical one with its x exchanged keeps its colours from top to bottom.
    Fill(surface, Vertex(2, 0, 0, 0, 0), Vertex(0, 2, 200, 0, 0), GRADIENT_FILL_RECT_V);
    EXPECT_EQ(GetPixel(surface.hDC(), 0, 0), RGB(0, 0, 0));
    EXPECT_EQ(GetPixel(surface.hDC(), 0, 1), RGB(100, 0, 0));
}

TEST(GradientFill, CutAtTheEdgesItsStepsStayInPlace) {
    Surface surface(fonts, 3, 2);
    Fill(surface, Vertex(-5, -2, 0, 0, 0), Vertex(50, 6, 0, 0, 160), GRADIENT_FILL_RECT_V);
    EXPECT_EQ(GetPixel(surface.hDC(), 0, 0), RGB(0, 0, 40));  // row 2 of 8
    EXPECT_EQ(GetPixel(surface.hDC(), 2, 1), RGB(0, 0, 60));
}

TEST(GradientFill, OfTheWholeNumberRangeIsExact) {
    constexpr int low = std::numeric_limits<int>::min(), high = std::numeric_limits<int>::max();
    Surface surface(fonts, 2, 2);
    // Rows 2^31 and 2^31 + 1 of 2^32 - 1: 0xFF00 times that over this is 0x7F80.00.., upper byte 0x7F.
    EXPECT_TRUE(
        Fill(surface, Vertex(low, low, 0, 0, 0), Vertex(high, high, 255, 0, 0), GRADIENT_FILL_RECT_V));
    EXPECT_EQ(GetPixel(surface.hDC(), 0, 0), RGB(127, 0, 0));
    EXPECT_TRUE(
        Fill(surface, Vertex(low, low, 255, 0, 0), Vertex(high, high, 255, 0, 0), GRADIENT_FILL_RECT_H));
    EXPECT_EQ(GetPixel(surface.hDC(), 1, 1), RGB(255, 0, 0));
}

TEST(GradientFill, EmptyRectanglesDrawNothing) {
    Surface surface(fonts, 4, 4);
    const auto revision = surface.Revision();
    for (const int mode : {GRADIENT_FILL_RECT_H, GRADIENT_FILL_RECT_V}) {
        EXPECT_TRUE(Fill(surface, Vertex(1, 1, 0, 0, 0), Vertex(1, 3, 0, 0, 0), mode));
        EXPECT_TRUE(Fill(surface, Vertex(1, 1, 0, 0, 0), Vertex(3, 1, 0, 0, 0), mode));
        EXPECT_TRUE(Fill(surface, Vertex(4, 0, 0, 0, 0), Vertex(9, 4, 0, 0, 0), mode));
    }
    EXPECT_EQ(surface.Revision(), revision);
}

TEST(GradientFill, FillsEachRectangleOfTheMesh) {
    Surface surface(fonts, 4, 2);
    const std::vector<TRIVERTEX> vertices = {Vertex(0, 0, 255, 0, 0), Vertex(1, 2, 255, 0, 0),
                                             Vertex(2, 0, 0, 0, 255), Vertex(4, 1, 0, 0, 255)};
    const std::vector<GRADIENT_RECT> mesh = {{0, 1}, {2, 3}};
    EXPECT_TRUE(GradientFill(surface.hDC(), vertices, mesh, GRADIENT_FILL_RECT_V));
    EXPECT_EQ(GridOf(surface), (Grid{"R.BB", "R..."}));
}

TEST(GradientFill, AnIndexOutsideOrAnotherModeDrawsNothing) {
    Surface surface(fonts, 2, 2);
    const std::vector<TRIVERTEX> vertices = {Vertex(0, 0, 0, 0, 0), Vertex(2, 2, 0, 0, 0)};
    const std::vector<GRADIENT_RECT> outside = {{0, 1}, {0, 2}}, good = {{0, 1}};
    const auto revision = surface.Revision();
    EXPECT_FALSE(GradientFill(surface.hDC(), vertices, outside, GRADIENT_FILL_RECT_V));
    EXPECT_FALSE(GradientFill(surface.hDC(), vertices, good, 2));
    EXPECT_FALSE(GradientFill(surface.hDC(), {}, good, GRADIENT_FILL_RECT_V));
    EXPECT_TRUE(GradientFill(surface.hDC(), vertices, {}, GRADIENT_FILL_RECT_V));
    EXPECT_EQ(surface.Revision(), revision);
}

}  // namespace
}  // namespace coinlet
