// Boxes: outlined, filled, dotted, and with rounded corners.

#include "support/block_fonts.h"
#include "support/picture_grid.h"
#include "surface/device.h"
#include "surface/surface.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace coinlet {
namespace {

using test::Grid;
using test::GridOf;

constexpr double infinity = std::numeric_limits<double>::infinity();

class BoxTest : public testing::Test {
protected:
    Surface Blank(int width, int height) { return {fonts_, width, height}; }

    test::BlockFonts fonts_;
    std::mt19937 random_{11};
};

TEST_F(BoxTest, BothCornersAreIncludedInAnyOrder) {
    const Grid outline({"......", ".####.", ".#..#.", ".####.", "......"});
    const Grid solid({"......", ".####.", ".####.", ".####.", "......"});
    const double corners[][4] = {{1, 1, 4, 3}, {4, 3, 1, 1}, {1, 3, 4, 1}, {4, 1, 1, 3}};
    for (const auto& [x1, y1, x2, y2] : corners) {
        Surface surface = Blank(6, 5);
        surface.Line(x1, y1, x2, y2, black, Box::Outline);
        EXPECT_EQ(GridOf(surface), outline);
        surface.Line(x1, y1, x2, y2, black, Box::Filled);
        EXPECT_EQ(GridOf(surface), solid);
        EXPECT_EQ(surface.CurrentX, static_cast<float>(x2));
        EXPECT_EQ(surface.CurrentY, static_cast<float>(y2));
    }
}

TEST_F(BoxTest, ABoxMayBeALineOrAPoint) {
    for (const Box box : {Box::Outline, Box::Filled}) {
        Surface surface = Blank(4, 4);
        surface.Line(0, 0, 2, 0, black, box);
        surface.Line(0, 3, 0, 2, black, box);
        surface.Line(3, 2, 3, 2, black, box);
        EXPECT_EQ(GridOf(surface), Grid({"###.", "....", "#..#", "#..."}));
    }
}

TEST_F(BoxTest, ASolidFillTakesTheFillColour) {
    Surface surface = Blank(6, 5);
    surface.FillStyle = solidFill;
    surface.FillColor = RGB(255, 0, 0);
    surface.Line(1, 0, 4, 3, black, Box::Outline);
    EXPECT_EQ(GridOf(surface), Grid({".####.", ".#RR#.", ".#RR#.", ".####.", "......"}));
    surface.Line(1, 0, 4, 3, RGB(0, 0, 255), Box::Filled);
    EXPECT_EQ(GridOf(surface), Grid({".BBBB.", ".BBBB.", ".BBBB.", ".BBBB.", "......"}));
}

TEST_F(BoxTest, AFilledBoxIgnoresThePensWidthAndDots) {
    Surface surface = Blank(4, 3);
    surface.DrawWidth = 5;
    surface.DrawStyle = dottedLine;
    surface.Line(1, 1, 2, 1, black, Box::Filled);
    EXPECT_EQ(GridOf(surface), Grid({"....", ".##.", "...."}));
}

TEST_F(BoxTest, AWideOutlineHasRoundCornersOutsideAndSquareOnesInside) {
    Surface five = Blank(13, 13);
    five.DrawWidth = 5;
    five.FillStyle = solidFill;
    five.FillColor = RGB(255, 0, 0);
    five.Line(3, 3, 9, 9, black, Box::Outline);
    EXPECT_EQ(GridOf(five), Grid({
                                ".............",
                                "..#########..",
                                ".###########.",
                                ".###########.",
                                ".###########.",
                                ".###########.",
                                ".#####R#####.",
                                ".###########.",
                                ".###########.",
                                ".###########.",
                                ".###########.",
                                "..#########..",
                                ".............",
                            }));
    Surface two = Blank(8, 7);
    two.DrawWidth = 2;
    two.FillStyle = solidFill;
    two.FillColor = RGB(255, 0, 0);
    two.Line(2, 2, 6, 5, black, Box::Outline);
    EXPECT_EQ(GridOf(two),
              Grid({"........", ".######.", ".######.", ".##RR##.", ".######.", ".######.", "........"}));
}

/// What four wide lines around the box leave, each pixel inverted once or not at all.
TEST_F(BoxTest, AWideOutlineIsTheFourLinesTogether) {
    std::uniform_int_distribution<int> place(-5, 44), pen(2, 9);
    for (int i = 0; i < 300; ++i) {
        const int x1 = place(random_), y1 = place(random_), x2 = place(random_), y2 = place(random_);
        Surface box = Blank(40, 40), lines = Blank(40, 40);
        box.DrawWidth = lines.DrawWidth = pen(random_);
        box.DrawMode = invertPen;
        box.Line(x1, y1, x2, y2, black, Box::Outline);
        lines.Line(x1, y1, x2, y1);
        lines.Line(x2, y1, x2, y2);
        lines.Line(x2, y2, x1, y2);
        lines.Line(x1, y2, x1, y1);
        ASSERT_EQ(box.Image(), lines.Image()) << x1 << ' ' << y1 << ' ' << x2 << ' ' << y2;
    }
}

TEST_F(BoxTest, InvertedTwiceABoxUndoesItself) {
    std::uniform_int_distribution<int> place(-5, 44), pen(1, 7), coin(0, 1);
    Surface surface = Blank(40, 40);
    surface.Line(0, 0, 39, 39, RGB(200, 100, 50), Box::Filled);
    const Image before = surface.Image();
    surface.DrawMode = invertPen;
    for (int i = 0; i < 300; ++i) {
        const int x1 = place(random_), y1 = place(random_), x2 = place(random_), y2 = place(random_);
        surface.DrawWidth = pen(random_);
        surface.DrawStyle = coin(random_) * dottedLine;
        surface.FillStyle = coin(random_);
        const Box box = coin(random_) == 0 ? Box::Outline : Box::Filled;
        surface.Line(x1, y1, x2, y2, black, box);
        surface.Line(x1, y1, x2, y2, black, box);
        ASSERT_EQ(surface.Image(), before);
    }
}

TEST_F(BoxTest, InvertingAFilledOutlineInvertsTheWholeBox) {
    Surface outlined = Blank(20, 20), filled = Blank(20, 20);
    outlined.DrawMode = filled.DrawMode = invertPen;
    outlined.FillStyle = solidFill;
    outlined.Line(3, 4, 15, 12, black, Box::Outline);
    filled.Line(3, 4, 15, 12, black, Box::Filled);
    EXPECT_EQ(outlined.Image(), filled.Image());
}

TEST_F(BoxTest, DotsRunAlongTheOutlineFromTheFirstCorner) {
    Surface surface = Blank(7, 5);
    surface.DrawStyle = dottedLine;
    surface.Line(0, 0, 6, 4, black, Box::Outline);
    // Clockwise 20 pixels: on at 0-2, 6-8, 12-14, 18-19.
    EXPECT_EQ(GridOf(surface), Grid({"###...#", "#.....#", "#.....#", ".......", "..###.."}));
    Surface other = Blank(7, 5);
    other.DrawStyle = dottedLine;
    other.Line(6, 4, 0, 0, black, Box::Outline);
    EXPECT_EQ(GridOf(other), Grid({"..###..", ".......", "#.....#", "#.....#", "#...###"}));
    Surface flat = Blank(8, 1);
    flat.DrawStyle = dottedLine;
    flat.Line(6, 0, 0, 0, black, Box::Outline);
    EXPECT_EQ(GridOf(flat), Grid({"#...###."}));
}

TEST_F(BoxTest, HugeBoxesAreClipped) {
    Surface surface = Blank(5, 4);
    surface.FillStyle = solidFill;
    surface.FillColor = RGB(255, 0, 0);
    surface.Line(1, 2, infinity, 1e30, black, Box::Outline);
    EXPECT_EQ(GridOf(surface), Grid({".....", ".....", ".####", ".#RRR"}));
    surface.Line(-infinity, -1e9, 2, 0, RGB(0, 0, 255), Box::Filled);
    EXPECT_EQ(GridOf(surface), Grid({"BBB..", ".....", ".####", ".#RRR"}));
}

// --- Rounded corners -----------------------------------------------------------------------------------

TEST_F(BoxTest, ARoundRectLeavesOutItsRightAndBottomEdges) {
    Surface surface = Blank(9, 8);
    surface.FillStyle = solidFill;
    surface.FillColor = RGB(255, 0, 0);
    surface.ForeColor = RGB(0, 0, 255);
    RoundRect(surface.hDC(), 1, 1, 8, 7, 4, 4);
    // A circle of 4 pixels covers 2, 4, 4, 2 of its rows.
    EXPECT_EQ(GridOf(surface), Grid({".........", "..BBBBB..", ".BRRRRRB.", ".BRRRRRB.", ".BRRRRRB.",
                                     ".BRRRRRB.", "..BBBBB..", "........."}));
}

TEST_F(BoxTest, CornersOfNoSizeMakeASquareBox) {
    for (const auto& [w, h] : {std::pair{0, 0}, {0, 6}, {6, 0}, {1, 1}}) {
        Surface rounded = Blank(12, 12), box = Blank(12, 12);
        RoundRect(rounded.hDC(), 2, 3, 10, 11, w, h);
        box.Line(2, 3, 9, 10, black, Box::Outline);
        EXPECT_EQ(rounded.Image(), box.Image()) << w << ' ' << h;
    }
}

TEST_F(BoxTest, CornersAsLargeAsTheBoxMakeAnEllipse) {
    for (const int pen : {1, 2, 5}) {
        Surface rounded = Blank(60, 60), ellipse = Blank(60, 60);
        rounded.DrawWidth = ellipse.DrawWidth = pen;
        RoundRect(rounded.hDC(), 10, 20, 51, 41, 1000, 41);  // 41 by 21 pixels
        ellipse.Circle(30, 30, 20, black, {}, 0.5);
        EXPECT_EQ(rounded.Image(), ellipse.Image()) << pen;
    }
}

TEST_F(BoxTest, ExchangedCornersOfARoundRectCountTheSame) {
    Surface surface = Blank(40, 40), expected = Blank(40, 40);
    RoundRect(expected.hDC(), 5, 6, 30, 25, 10, 8);
    for (const auto& [x1, x2] : {std::pair{5, 30}, {30, 5}}) {
        for (const auto& [y1, y2] : {std::pair{6, 25}, {25, 6}}) {
            surface.Cls();
            RoundRect(surface.hDC(), x1, y1, x2, y2, -10, 8);
            EXPECT_EQ(surface.Image(), expected.Image());
        }
    }
}

TEST_F(BoxTest, ARoundRectDoesNotHeedTheDrawMode) {
    Surface surface = Blank(20, 20), expected = Blank(20, 20);
    surface.DrawMode = invertPen;
    for (Surface* each : {&surface, &expected}) {
        each->ForeColor = RGB(255, 0, 0);
        RoundRect(each->hDC(), 2, 2, 15, 15, 6, 6);
    }
    EXPECT_EQ(surface.Image(), expected.Image());
}

TEST_F(BoxTest, ARoundRectLooksTheSameFromAllSides) {
    std::uniform_int_distribution<int> size(1, 40), pen(1, 8);
    for (int i = 0; i < 500; ++i) {
        // Pens of even width lie half a pixel up and left, so the mirror does too.
        const int width = size(random_), height = size(random_), penWidth = pen(random_);
        const int shift = penWidth % 2 == 0 ? 1 : 0;
        Surface surface = Blank(60, 60);
        surface.DrawWidth = penWidth;
        RoundRect(surface.hDC(), 8, 8, 8 + width, 8 + height, size(random_), size(random_));
        const int mirrorX = 15 + width - shift, mirrorY = 15 + height - shift;
        for (int y = 0; y <= mirrorY; ++y) {
            for (int x = 0; x <= mirrorX; ++x) {
                ASSERT_EQ(surface.Point(x, y), surface.Point(mirrorX - x, y));
                ASSERT_EQ(surface.Point(x, y), surface.Point(x, mirrorY - y));
            }
        }
    }
}

TEST_F(BoxTest, ARoundRectKeepsOutAFloodOfItsInside) {
    std::uniform_int_distribution<int> size(1, 40), pen(1, 5), coin(0, 1);
    for (int i = 0; i < 300; ++i) {
        const int width = size(random_), height = size(random_), w = size(random_), h = size(random_);
        Surface outline = Blank(60, 60), filled = Blank(60, 60);
        outline.DrawWidth = filled.DrawWidth = pen(random_);
        filled.FillStyle = solidFill;
        filled.FillColor = RGB(255, 0, 0);
        for (Surface* each : {&outline, &filled})
            RoundRect(each->hDC(), 8, 8, 8 + width, 8 + height, w, h);
        // No red pixel touches a white one, and the outline is the same with and without the fill.
        for (int y = 0; y < 59; ++y) {
            for (int x = 0; x < 59; ++x) {
                const Colour here = filled.Point(x, y);
                ASSERT_EQ(here == black, outline.Point(x, y) == black);
                for (const Colour next : {filled.Point(x + 1, y), filled.Point(x, y + 1)}) {
                    ASSERT_FALSE((here == white) != (next == white) && here != black && next != black);
                }
            }
        }
    }
}

TEST_F(BoxTest, ARoundRectOfNoOrHugeSizeIsHarmless) {
    constexpr int most = std::numeric_limits<int>::max(), least = std::numeric_limits<int>::min();
    Surface surface = Blank(8, 8);
    RoundRect(surface.hDC(), 3, 3, 3, 6, 2, 2);
    RoundRect(surface.hDC(), 3, 3, 6, 3, 2, 2);
    EXPECT_EQ(surface.Image(), Blank(8, 8).Image());
    surface.FillStyle = solidFill;
    surface.FillColor = RGB(255, 0, 0);
    RoundRect(surface.hDC(), least, least, most, most, least, most);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(surface.Point(i, i), RGB(255, 0, 0));
    surface.DrawWidth = most;
    RoundRect(surface.hDC(), 2, 2, 6, 6, most, least);
    EXPECT_EQ(surface.Point(4, 4), black);
}

}  // namespace
}  // namespace coinlet
