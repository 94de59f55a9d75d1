// The figures of the shapes menu: small ones against pictures drawn by hand, all of them against their lines
// written out one by one.

#include "tools/shape_tools.h"

#include "support/block_fonts.h"
#include "support/picture_grid.h"
#include "surface/device.h"

#include <algorithm>
#include <deque>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>

namespace coinlet {
namespace {

using test::Grid;
using test::GridOf;

class ShapeToolsTest : public testing::Test {
protected:
    Surface Blank(int width, int height) { return {fonts_, width, height}; }
    /// A figure in a drag whose band is as large as it is on the screen.
    const Surface& Drawn(int code, float left, float top, float right, float bottom, int side,
                         ShapeMeasures measures = {}) {
        Surface& surface = drawn_.emplace_back(fonts_, side, side);
        DrawShape(surface, code, {left, top, right, bottom, right - left + 1, bottom - top + 1}, measures);
        return surface;
    }

    test::BlockFonts fonts_;
    std::deque<Surface> drawn_;
};

TEST_F(ShapeToolsTest, RectangleIncludesBothCorners) {
    EXPECT_EQ(GridOf(Drawn(21, 1, 1, 4, 3, 6)),
              Grid({"......", ".####.", ".#..#.", ".####.", "......", "......"}));
}

TEST_F(ShapeToolsTest, TriangleHasItsTipAtTheTop) {
    // Half the width is 4: each side goes one row down a column.
    EXPECT_EQ(GridOf(Drawn(24, 0, 0, 8, 4, 9)),
              Grid({"....#....", "...#.#...", "..#...#..", ".#.....#.", "#########", ".........", ".........",
                    ".........", "........."}));
}

TEST_F(ShapeToolsTest, SquareStandsOnItsCorner) {
    EXPECT_EQ(GridOf(Drawn(25, 0, 0, 6, 6, 7)),
              Grid({"...#...", "..#.#..", ".#...#.", "#.....#", ".#...#.", "..#.#..", "...#..."}));
}

TEST_F(ShapeToolsTest, ADragOfOnePixelGivesTheRectangleOfTwoByTwo) {
    EXPECT_EQ(GridOf(Drawn(21, 1, 1, 2, 2, 4)), Grid({"....", ".##.", ".##.", "...."}));
}

TEST_F(ShapeToolsTest, ADragOfOnePixelKeepsHalvesAndRoundsThemOnDrawing) {
    // The tip at 1 + 0.5 goes to the even column 2, so: (1, 2) to (2, 1) to (2, 2) to (1, 2).
    EXPECT_EQ(GridOf(Drawn(24, 1, 1, 2, 2, 4)), Grid({"....", "..#.", ".##.", "...."}));
    // With the anchor at 2 the tip goes to column 2: (2, 3) to (2, 2) to (3, 3) to (2, 3).
    EXPECT_EQ(GridOf(Drawn(24, 2, 2, 3, 3, 5)), Grid({".....", ".....", "..#..", "..##.", "....."}));
}

TEST_F(ShapeToolsTest, ADragThatDoesNotLeadRightAndDownDrawsNothing) {
    const Grid blank({".......", ".......", ".......", ".......", ".......", ".......", "......."});
    for (int code = 21; code <= 36; ++code) {
        EXPECT_EQ(GridOf(Drawn(code, 3, 3, 3, 6, 7)), blank) << code;
        EXPECT_EQ(GridOf(Drawn(code, 3, 3, 6, 3, 7)), blank) << code;
        EXPECT_EQ(GridOf(Drawn(code, 3, 3, 1, 1, 7)), blank) << code;
    }
    for (const int code : {20, 37})
        EXPECT_EQ(GridOf(Drawn(code, 1, 1, 5, 5, 7)), blank) << code;
}

TEST_F(ShapeToolsTest, AWideEllipseSpansItsBox) {
    const Surface& wide = Drawn(23, 10, 20, 50, 30, 64);
    // Centre (30, 25), 20 to the sides and 5 up and down.
    EXPECT_EQ(wide.Point(10, 25), black);
    EXPECT_EQ(wide.Point(50, 25), black);
    EXPECT_EQ(wide.Point(30, 20), black);
    EXPECT_EQ(wide.Point(30, 30), black);
    EXPECT_EQ(wide.Point(9, 25), white);
    EXPECT_EQ(wide.Point(30, 19), white);
    EXPECT_EQ(wide.Point(30, 25), white);
}

TEST_F(ShapeToolsTest, AHighEllipseSpansItsBox) {
    const Surface& high = Drawn(23, 20, 10, 30, 50, 64);
    EXPECT_EQ(high.Point(20, 30), black);
    EXPECT_EQ(high.Point(30, 30), black);
    EXPECT_EQ(high.Point(25, 10), black);
    EXPECT_EQ(high.Point(25, 50), black);
    EXPECT_EQ(high.Point(25, 9), white);
    EXPECT_EQ(high.Point(19, 30), white);
}

TEST_F(ShapeToolsTest, QuatroFillsEachQuarter) {
    const Surface& quatro = Drawn(30, 0, 0, 40, 80, 90);
    // Centres at (10 or 30, 20 or 60), 10 to the sides and 20 up and down.
    for (const int x : {10, 30}) {
        for (const int y : {20, 60}) {
            EXPECT_EQ(quatro.Point(x - 10, y), black) << x << "," << y;
            EXPECT_EQ(quatro.Point(x + 10, y), black) << x << "," << y;
            EXPECT_EQ(quatro.Point(x, y - 20), black) << x << "," << y;
            EXPECT_EQ(quatro.Point(x, y + 20), black) << x << "," << y;
            EXPECT_EQ(quatro.Point(x, y), white) << x << "," << y;
        }
    }
}

TEST_F(ShapeToolsTest, AnEllipseIsAsLargeAsItsBoxOfEvenSize) {
    // Centre (2.5, 2.5), 1.5 each way: the columns and rows 1 to 4.
    EXPECT_EQ(GridOf(Drawn(23, 1, 1, 4, 4, 6)),
              Grid({"......", "..##..", ".#..#.", ".#..#.", "..##..", "......"}));
    EXPECT_EQ(GridOf(Drawn(23, 1, 1, 2, 2, 4)), Grid({"....", ".##.", ".##.", "...."}));
}

/// The figures are coloured by filling them, so what is outside mustn't be one region with what is inside.
TEST_F(ShapeToolsTest, ClosedFiguresKeepAFillIn) {
    constexpr int margin = 8, largest = 60;
    for (const int code : {21, 22, 23, 24, 25, 26, 27, 28, 29, 32, 35, 36}) {
        for (int size = 0; size < 2 * (largest - 12); ++size) {
            const int width = 12 + size / 2, height = code % 2 == 0 ? width + size % 2 : largest - size / 4;
            const auto left = static_cast<float>(margin + size % 2);
            Surface surface = Blank(largest + 2 * margin, largest + 2 * margin);
            DrawShape(surface, code,
                      {left, margin, left + static_cast<float>(width), static_cast<float>(margin + height),
                       static_cast<float>(width + 1), static_cast<float>(height + 1)},
                      {.cornerSize = 10});
            surface.FillColor = RGB(255, 0, 0);
            ExtFloodFill(surface.hDC(), 0, 0, white, FLOODFILLSURFACE);
            // Two fifths down every figure is open in the middle.
            EXPECT_EQ(surface.Point(static_cast<double>(left) + width / 2.0, margin + height * 0.4), white)
                << "code " << code << ", " << width << " by " << height;
        }
    }
}

TEST_F(ShapeToolsTest, RasterHasALineEachStep) {
    EXPECT_EQ(GridOf(Drawn(31, 0, 0, 6, 6, 8, {.rasterStep = 3})),
              Grid({"#######.", "#..#..#.", "#..#..#.", "#######.", "#..#..#.", "#..#..#.", "######..",
                    "........"}));
}

TEST_F(ShapeToolsTest, ARasterStepBeyondTheBoxLeavesOneLineEachWay) {
    EXPECT_EQ(GridOf(Drawn(31, 1, 1, 5, 4, 6, {.rasterStep = 10})),
              Grid({"......", ".####.", ".#....", ".#....", "......", "......"}));
}

TEST_F(ShapeToolsTest, ARasterFarOutsideShowsItsLinesOnTheCanvas) {
    const float most = std::numeric_limits<float>::max();
    const Surface& raster = Drawn(31, -50, -50, most, most, 8, {.rasterStep = 4});
    // Lines at -50 + 4n: 2 and 6.
    EXPECT_EQ(GridOf(raster), Grid({"..#...#.", "..#...#.", "########", "..#...#.", "..#...#.", "..#...#.",
                                    "########", "..#...#."}));
    Drawn(31, -most, -most, most, most, 8, {.rasterStep = 5});
    EXPECT_EQ(GridOf(Drawn(31, 0, 0, 3, 3, 4, {.rasterStep = 0})), Grid({"....", "....", "....", "...."}));
}

TEST_F(ShapeToolsTest, TheRoundedRectangleIsBlackWhateverTheForeColor) {
    Surface surface = Blank(41, 31);
    surface.ForeColor = RGB(255, 0, 0);
    DrawShape(surface, 22, {0, 0, 40, 30, 41, 31}, {.cornerSize = 20});
    EXPECT_EQ(surface.ForeColor, RGB(255, 0, 0));
    // The edges lie at 39 and 29, the corners are rounded off.
    EXPECT_EQ(surface.Point(20, 0), black);
    EXPECT_EQ(surface.Point(0, 15), black);
    EXPECT_EQ(surface.Point(39, 15), black);
    EXPECT_EQ(surface.Point(20, 29), black);
    EXPECT_EQ(surface.Point(40, 15), white);
    EXPECT_EQ(surface.Point(20, 30), white);
    EXPECT_EQ(surface.Point(0, 0), white);
    EXPECT_EQ(surface.Point(20, 15), white);
}

TEST_F(ShapeToolsTest, FiguresOfTheBandReachOnePixelPastTheRelease) {
    // A drag of 15 has a band of 16: the tips lie at 8 in the middle, at 0 and at 16.
    const Surface& star = Drawn(32, 0, 0, 15, 15, 20);
    EXPECT_EQ(star.Point(16, 8), black);
    EXPECT_EQ(star.Point(8, 16), black);
    EXPECT_EQ(star.Point(0, 8), black);
    EXPECT_EQ(star.Point(8, 0), black);
    EXPECT_EQ(star.Point(17, 8), white);
    EXPECT_EQ(star.Point(8, 17), white);
    // The same drag measured by itself ends at the release.
    EXPECT_EQ(Drawn(25, 0, 0, 15, 15, 20).Point(16, 8), white);
}

/// Draws a figure by its lines, each written out with the halves, quarters and eighths that it is made of.
class LineByLine {
public:
    LineByLine(Surface& surface, const ShapeBox& box)
        : surface_(surface), x0(box.left), y0(box.top), X(box.right), Y(box.bottom) {
        hx = (X - x0) / 2, hy = (Y - y0) / 2, qx = (X - x0) / 4, qy = (Y - y0) / 4;
        W = X - x0 + 1, H = Y - y0 + 1;
        A = W / 2, E = W / 8, P = H / 2, Q = H / 8;
    }

    void Draw(int code) {
        switch (code) {
            case 24:
                return Lines({x0, Y, x0 + hx, y0, X, Y, x0, Y});
            case 25:
                return Lines({x0, y0 + hy, x0 + hx, y0, X, y0 + hy, x0 + hx, Y, x0, y0 + hy});
            case 26:
                return Lines({x0, y0 + qy, x0 + hx, y0, X, y0 + qy, x0 + 3 * qx, Y, x0 + qx, Y, x0, y0 + qy});
            case 27:
                return Lines({x0, y0 + qy, x0 + hx, y0, X, y0 + qy, X, y0 + 3 * qy, x0 + hx, Y, x0,
                              y0 + 3 * qy, x0, y0 + qy});
            case 28:
                Half(x0 + hx / 2, y0 + hy / 2, 2);
                Half(X - hx / 2, y0 + hy / 2, 2);
                return Lines({X, y0 + qy, x0 + hx, Y, x0, y0 + qy});
            case 29:
                Half(x0 + hx, y0 + hy, 1);
                return Lines({X, y0 + hy, x0 + hx, Y, x0, y0 + hy});
            case 32:
                return OpenStar();
            case 33:
                OpenStar();
                Lines({x0, y0 + P, x0 + W, y0 + P});
                Lines({x0 + A, y0, x0 + A, y0 + H});
                Lines({x0 + A + E, y0 + P - Q, x0 + 3 * E, y0 + P + Q});
                return Lines({x0 + 3 * E, y0 + 3 * Q, x0 + A + E, y0 + P + Q});
            case 34:
                surface_.Line(x0 + E, y0 + Q, x0 + W - E, y0 + H - Q, black, Box::Outline);
                return Lines({x0, y0 + P, x0 + A, y0, x0 + W, y0 + P, x0 + A, y0 + H, x0, y0 + P});
            case 35:
                Lines({x0, y0 + H / 4, x0 + W, y0 + H / 4, x0 + A, y0 + H, x0, y0 + H / 4});
                return Lines({x0, y0 + 3 * H / 4, x0 + W, y0 + 3 * H / 4, x0 + A, y0, x0, y0 + 3 * H / 4});
            default:
                return Lines(
                    {x0 + A, y0, x0 + W, y0 + H, x0, y0 + H / 4, x0 + W, y0 + H / 4, x0, y0 + H, x0 + A, y0});
        }
    }

private:
    void Lines(const std::vector<double>& xy) {
        for (std::size_t i = 3; i < xy.size(); i += 2)
            surface_.Line(xy[i - 3], xy[i - 2], xy[i - 1], xy[i], black);
    }
    void OpenStar() {
        Lines({x0 + A, y0, x0 + A + E, y0 + P - Q, x0 + W, y0 + P, x0 + A + E, y0 + P + Q, x0 + A, y0 + H,
               x0 + 3 * E, y0 + P + Q, x0, y0 + P, x0 + 3 * E, y0 + 3 * Q, x0 + A, y0});
    }
    void Half(double x, double y, double divisor) {
        const double radius = std::max(hx, hy) / divisor;
        // The quotient of singles, which decides on which side of a half a semi-axis is rounded.
        const float aspect = static_cast<float>(hy) / static_cast<float>(hx);
        surface_.Circle(x, y, radius, black, ArcAngles{0, 3.14}, aspect);
    }

    Surface& surface_;
    double x0, y0, X, Y, hx = 0, hy = 0, qx = 0, qy = 0, W = 0, H = 0, A = 0, E = 0, P = 0, Q = 0;
};

TEST_F(ShapeToolsTest, FiguresAreMadeOfTheirLines) {
    std::mt19937 random(11);
    const auto within = [&](unsigned lowest, unsigned count) {
        return static_cast<float>(lowest + random() % count);
    };
    for (const int code : {24, 25, 26, 27, 28, 29, 32, 33, 34, 35, 36}) {
        for (int trial = 0; trial < 40; ++trial) {
            const float left = within(0, 40), top = within(0, 40);
            const float width = within(1, 90), height = within(1, 90);
            const ShapeBox box{left, top, left + width, top + height, width + 1, height + 1};
            Surface drawn = Blank(100, 100), expected = Blank(100, 100);
            drawn.DrawWidth = expected.DrawWidth = 1 + trial % 3;
            DrawShape(drawn, code, box, {});
            LineByLine(expected, box).Draw(code);
            ASSERT_EQ(drawn.Pixels().Pixels().size(), expected.Pixels().Pixels().size());
            EXPECT_TRUE(std::ranges::equal(drawn.Pixels().Pixels(), expected.Pixels().Pixels()))
                << "code " << code << " from " << left << "," << top << " by " << width << "," << height;
        }
    }
}

}  // namespace
}  // namespace coinlet
