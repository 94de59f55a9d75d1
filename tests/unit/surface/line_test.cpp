// Lines of one pixel's width and wider, solid and dotted.

#include "support/block_fonts.h"
#include "support/picture_grid.h"
#include "surface/surface.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <utility>
#include <vector>

namespace coinlet {
namespace {

using test::Grid;
using test::GridOf;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

class LineTest : public testing::Test {
protected:
    Surface Blank(int width, int height) { return {fonts_, width, height}; }

    test::BlockFonts fonts_;
    std::mt19937 random_{7};
};

int CountBlack(const Surface& surface) {
    return static_cast<int>(std::ranges::count(surface.Pixels().Pixels(), ToPixel(black)));
}

// --- One pixel wide ------------------------------------------------------------------------------------

TEST_F(LineTest, TheLastPointIsNotPlotted) {
    Surface surface = Blank(6, 5);
    surface.Line(1, 1, 4, 1);
    surface.Line(0, 4, 0, 2, RGB(255, 0, 0));
    surface.Line(2, 2, 4, 4, RGB(0, 0, 255));
    EXPECT_EQ(GridOf(surface), Grid({"......", ".###..", "..B...", "R..B..", "R....."}));
}

TEST_F(LineTest, EqualPointsLeaveNothingButTheCursor) {
    Surface surface = Blank(3, 3);
    surface.Line(1, 1, 1, 1);
    surface.Line(0.6, 1, 1.4, 1);  // both round to (1, 1)
    EXPECT_EQ(CountBlack(surface), 0);
    EXPECT_FLOAT_EQ(surface.CurrentX, 1.4F);
    EXPECT_EQ(surface.CurrentY, 1);
}

TEST_F(LineTest, CoordinatesRoundHalvesToTheEvenNeighbour) {
    Surface surface = Blank(5, 2);
    surface.Line(0.5, 0.5, 2.5, 0.5);                    // (0, 0) to (2, 0)
    surface.Line(1.5, 1.49, 3.5, 0.51, RGB(255, 0, 0));  // (2, 1) to (4, 1)
    EXPECT_EQ(GridOf(surface), Grid({"##...", "..RR."}));
}

TEST_F(LineTest, StepsLieNearestToTheLineAndHalvesGoUpOrLeft) {
    Surface surface = Blank(5, 3);
    surface.Line(0, 0, 5, 2);  // rows 0, 0.4, 0.8, 1.2, 1.6
    EXPECT_EQ(GridOf(surface), Grid({"##...", "..##.", "....#"}));
    Surface half = Blank(4, 3);
    half.Line(0, 0, 4, 2);  // rows 0, 0.5, 1, 1.5
    EXPECT_EQ(GridOf(half), Grid({"##..", "..##", "...."}));
    Surface falling = Blank(4, 3);
    falling.Line(0, 2, 4, 0);  // rows 2, 1.5, 1, 0.5
    EXPECT_EQ(GridOf(falling), Grid({"...#", ".##.", "#..."}));
}

TEST_F(LineTest, ALineIsTheSameFromEitherEnd) {
    std::uniform_int_distribution<int> place(0, 39);
    for (int i = 0; i < 2000; ++i) {
        const int x1 = place(random_), y1 = place(random_), x2 = place(random_), y2 = place(random_);
        Surface there = Blank(40, 40), back = Blank(40, 40);
        there.Line(x1, y1, x2, y2);
        there.PSet(x2, y2);
        back.Line(x2, y2, x1, y1);
        back.PSet(x1, y1);
        ASSERT_EQ(there.Image(), back.Image()) << x1 << ' ' << y1 << ' ' << x2 << ' ' << y2;
    }
}

TEST_F(LineTest, ALineHasOnePixelAStepOfItsLongerSide) {
    std::uniform_int_distribution<int> place(0, 39);
    for (int i = 0; i < 500; ++i) {
        const int x1 = place(random_), y1 = place(random_), x2 = place(random_), y2 = place(random_);
        Surface surface = Blank(40, 40);
        surface.Line(x1, y1, x2, y2);
        ASSERT_EQ(CountBlack(surface), std::max(std::abs(x2 - x1), std::abs(y2 - y1)));
    }
}

/// Draws the same on a large surface and, moved, on a small one; where they overlap they must agree.
template <class Draw>
void ExpectClippingMovesNothing(const FontEngine& fonts, const Draw& draw) {
    constexpr int large = 240, small = 30, offset = 100;
    Surface whole(fonts, large, large), part(fonts, small, small);
    draw(whole, 0);
    draw(part, -offset);
    for (int y = 0; y < small; ++y) {
        for (int x = 0; x < small; ++x) {
            ASSERT_EQ(part.Point(x, y), whole.Point(x + offset, y + offset)) << x << ' ' << y;
        }
    }
}

TEST_F(LineTest, ClippingMovesNoPixel) {
    std::uniform_int_distribution<int> place(0, 239), pen(1, 6), style(0, 1);
    for (int i = 0; i < 3000; ++i) {
        const int x1 = place(random_), y1 = place(random_), x2 = place(random_), y2 = place(random_);
        const int width = i % 2 == 0 ? 1 : pen(random_);
        const int dots = style(random_) * dottedLine;
        ExpectClippingMovesNothing(fonts_, [&](Surface& surface, int shift) {
            surface.DrawWidth = width;
            surface.DrawStyle = dots;
            surface.Line(x1 + shift, y1 + shift, x2 + shift, y2 + shift);
        });
        ASSERT_FALSE(HasFatalFailure());
    }
}

TEST_F(LineTest, ALongLineKeepsItsPixelsExactly) {
    // y = floor((2 i rise + length - 1) / (2 length)), the nearest row with halves upward, far from the
    // start.
    const long long length = 4000000, rise = 2999999, startX = -2000000, startY = -1500000;
    Surface surface = Blank(300, 300);
    surface.Line(startX, startY, startX + length, startY + rise);
    Surface expected = Blank(300, 300);
    for (long long x = 0; x < 300; ++x) {
        const long long i = x - startX;
        const long long row = startY + (2 * i * rise + length - 1) / (2 * length);
        expected.PSet(static_cast<double>(x), static_cast<double>(row));
    }
    EXPECT_EQ(surface.Image(), expected.Image());
}

TEST_F(LineTest, ALineKeepsItsPixelsOverTheWidestSurface) {
    // A length and a rise without a common divisor, near the limits of what is drawn exactly.
    const long long length = 4194301, rise = 64007, startX = -2000003, startY = -30510;
    Surface surface = Blank(maximumSide, 1024);
    surface.Line(startX, startY, startX + length, startY + rise);
    for (int x = 0; x < maximumSide; ++x) {
        const long long i = x - startX, row = startY + (2 * i * rise + length - 1) / (2 * length);
        ASSERT_EQ(surface.Point(x, static_cast<double>(row)), black) << x;
    }
    EXPECT_EQ(CountBlack(surface), maximumSide);
}

TEST_F(LineTest, HugeCoordinatesKeepTheDirection) {
    Surface diagonal = Blank(20, 20);
    diagonal.Line(0, 0, 20, 20);
    for (const double far : {1e7, 1e9, 1e30, infinity}) {
        Surface surface = Blank(20, 20);
        surface.Line(-far, -far, far, far);
        EXPECT_EQ(surface.Image(), diagonal.Image()) << far;
        Surface level = Blank(20, 20), expected = Blank(20, 20);
        level.Line(5, 7, far, 7);
        expected.Line(5, 7, 20, 7);
        EXPECT_EQ(level.Image(), expected.Image()) << far;
        Surface beside = Blank(20, 20);
        beside.Line(-far, far, far, far);
        beside.Line(far, far, far, far);
        EXPECT_EQ(CountBlack(beside), 0) << far;
    }
}

TEST_F(LineTest, NotANumberDrawsNothingAndLeavesTheCursor) {
    Surface surface = Blank(8, 8);
    surface.FillStyle = solidFill;
    surface.PSet(7, 7, white);
    for (const int pen : {1, 4}) {
        surface.DrawWidth = pen;
        for (const Box box : {Box::None, Box::Outline, Box::Filled}) {
            surface.Line(notANumber, 1, 5, 5, black, box);
            surface.Line(1, notANumber, 5, 5, black, box);
            surface.Line(1, 1, notANumber, 5, black, box);
            surface.Line(1, 1, 5, notANumber, black, box);
        }
        surface.PSet(notANumber, 1);
        surface.PSet(1, notANumber);
    }
    EXPECT_EQ(CountBlack(surface), 0);
    EXPECT_EQ(surface.CurrentX, 5);
    EXPECT_EQ(surface.CurrentY, 5);
}

TEST_F(LineTest, LineToStartsAtTheCursor) {
    Surface surface = Blank(5, 3);
    surface.PSet(0, 2, white);
    surface.LineTo(3, 2);
    surface.LineTo(3, 0, RGB(255, 0, 0));
    EXPECT_EQ(GridOf(surface), Grid({".....", "...R.", "###R."}));
    EXPECT_EQ(surface.CurrentX, 3);
    EXPECT_EQ(surface.CurrentY, 0);
}

// --- Dots ----------------------------------------------------------------------------------------------

TEST_F(LineTest, DotsAreThreeOnThreeOffFromTheFirstPoint) {
    Surface surface = Blank(12, 3);
    surface.DrawStyle = dottedLine;
    surface.Line(0, 0, 11, 0);
    surface.Line(11, 1, 0, 1);
    surface.Line(-2, 2, 12, 2);
    EXPECT_EQ(GridOf(surface), Grid({"###...###...", "...###...###", "#...###...##"}));
}

/// The pixels of a thin line, from the first point on: of each step along the longer side the one that is
/// nearest to the line, of two equally near ones the upper or left one. In whole numbers.
std::vector<std::pair<long long, long long>> PixelsOfLine(long long x1, long long y1, long long x2,
                                                          long long y2) {
    const long long length = std::max(std::abs(x2 - x1), std::abs(y2 - y1));
    const auto at = [length](long long from, long long to, long long step) {
        // The whole number from ideal - 1/2 on; the ideal place is a fraction of twice the length.
        const long long ideal = 2 * (from * length + (to - from) * step);
        long long place = from - length - 1;
        while (2 * length * place < ideal - length)
            ++place;
        return place;
    };
    std::vector<std::pair<long long, long long>> pixels;
    for (long long i = 0; i < length; ++i)
        pixels.emplace_back(at(x1, x2, i), at(y1, y2, i));
    return pixels;
}

TEST_F(LineTest, DotsCountTheStepsOfTheLineInAnyDirection) {
    std::uniform_int_distribution<int> place(-15, 44);
    for (int i = 0; i < 1500; ++i) {
        const int x1 = place(random_), y1 = place(random_), x2 = place(random_), y2 = place(random_);
        Surface dotted = Blank(30, 30), inverted = Blank(30, 30), expected = Blank(30, 30);
        dotted.DrawStyle = inverted.DrawStyle = dottedLine;
        inverted.DrawMode = invertPen;
        dotted.Line(x1, y1, x2, y2, RGB(255, 0, 0));
        inverted.Line(x1, y1, x2, y2);
        int dot = 0;
        for (const auto& [x, y] : PixelsOfLine(x1, y1, x2, y2)) {
            if (dot++ % 6 < 3) expected.PSet(static_cast<double>(x), static_cast<double>(y), RGB(255, 0, 0));
        }
        ASSERT_EQ(dotted.Image(), expected.Image()) << x1 << ' ' << y1 << ' ' << x2 << ' ' << y2;
        for (int y = 0; y < 30; ++y) {
            for (int x = 0; x < 30; ++x)
                ASSERT_EQ(inverted.Point(x, y) == black, expected.Point(x, y) != white);
        }
        inverted.Line(x1, y1, x2, y2);
        ASSERT_EQ(CountBlack(inverted), 0);
    }
}

TEST_F(LineTest, EveryDottedLineBeginsItsDotsAnew) {
    Surface surface = Blank(10, 2);
    surface.DrawStyle = dottedLine;
    surface.Line(0, 0, 2, 0);
    surface.LineTo(10, 0, RGB(255, 0, 0));
    surface.DrawStyle = solidLine;
    surface.Line(0, 1, 10, 1);
    EXPECT_EQ(GridOf(surface), Grid({"##RRR...RR", "##########"}));
}

TEST_F(LineTest, OnlyTheDottedStyleHasGaps) {
    for (const int style : {-1, 1, 3, 4, 5, 6}) {
        Surface surface = Blank(20, 20), solid = Blank(20, 20);
        surface.DrawStyle = style;
        surface.Line(1, 2, 18, 11);
        solid.Line(1, 2, 18, 11);
        EXPECT_EQ(surface.Image(), solid.Image()) << style;
    }
}

TEST_F(LineTest, WidePensIgnoreDots) {
    Surface dotted = Blank(20, 20), solid = Blank(20, 20);
    dotted.DrawStyle = dottedLine;
    dotted.DrawWidth = solid.DrawWidth = 2;
    for (Surface* surface : {&dotted, &solid}) {
        surface->Line(3, 3, 15, 9);
        surface->Line(3, 12, 15, 17, RGB(255, 0, 0), Box::Outline);
    }
    EXPECT_EQ(dotted.Image(), solid.Image());
}

// --- Wide ----------------------------------------------------------------------------------------------

TEST_F(LineTest, WidePointsAreRoundDots) {
    Surface two = Blank(4, 4), three = Blank(5, 5), four = Blank(6, 6), five = Blank(7, 7);
    two.DrawWidth = 2;
    two.PSet(2, 2);
    EXPECT_EQ(GridOf(two), Grid({"....", ".##.", ".##.", "...."}));
    three.DrawWidth = 3;
    three.PSet(2, 2);
    EXPECT_EQ(GridOf(three), Grid({".....", ".###.", ".###.", ".###.", "....."}));
    four.DrawWidth = 4;
    four.Line(3, 3, 3, 3);
    EXPECT_EQ(GridOf(four), Grid({"......", "..##..", ".####.", ".####.", "..##..", "......"}));
    five.DrawWidth = 5;
    five.Line(3, 3, 3, 3);
    EXPECT_EQ(GridOf(five),
              Grid({".......", "..###..", ".#####.", ".#####.", ".#####.", "..###..", "......."}));
}

TEST_F(LineTest, APenBelowOneCountsAsOne) {
    for (const int pen : {0, -3}) {
        Surface surface = Blank(3, 1);
        surface.DrawWidth = pen;
        surface.PSet(1, 0);
        EXPECT_EQ(GridOf(surface), Grid({".#."}));
    }
}

/// The rule itself, pixel by pixel: the centre is within half the pen's width of the line, whose points lie
/// half a pixel up and left for even widths. In whole numbers, all lengths doubled.
bool LiesOnWideLine(long long x, long long y, long long x1, long long y1, long long x2, long long y2,
                    long long width) {
    const long long shift = width % 2 == 0 ? 1 : 0;
    const long long px = 2 * x - (2 * x1 - shift), py = 2 * y - (2 * y1 - shift);
    const long long dx = 2 * (x2 - x1), dy = 2 * (y2 - y1);
    const long long length = dx * dx + dy * dy, dot = px * dx + py * dy;
    if (dot <= 0) return px * px + py * py <= width * width;
    if (dot >= length) return (px - dx) * (px - dx) + (py - dy) * (py - dy) <= width * width;
    const long long cross = px * dy - py * dx;
    return cross * cross <= width * width * length;
}

TEST_F(LineTest, AWideLineIsAllPixelsWithinHalfItsWidth) {
    std::uniform_int_distribution<int> place(-10, 49), pen(2, 21);
    for (int i = 0; i < 1500; ++i) {
        const int x1 = place(random_), y1 = place(random_), x2 = place(random_), y2 = place(random_);
        const int width = pen(random_);
        Surface surface = Blank(40, 40);
        surface.DrawWidth = width;
        surface.Line(x1, y1, x2, y2);
        for (int y = 0; y < 40; ++y) {
            for (int x = 0; x < 40; ++x) {
                const bool expected = LiesOnWideLine(x, y, x1, y1, x2, y2, width);
                ASSERT_EQ(surface.Point(x, y) == black, expected)
                    << x << ' ' << y << " on " << x1 << ' ' << y1 << ' ' << x2 << ' ' << y2 << ", " << width;
            }
        }
    }
}

TEST_F(LineTest, HugePensAndFarWideLinesAreClipped) {
    Surface surface = Blank(10, 10);
    surface.DrawWidth = std::numeric_limits<int>::max();
    surface.Line(0, 0, 5, 5);
    EXPECT_EQ(CountBlack(surface), 100);
    Surface level = Blank(10, 10), expected = Blank(10, 10);
    level.DrawWidth = expected.DrawWidth = 4;
    level.Line(-1e30, 5, infinity, 5);
    expected.Line(-100, 5, 100, 5);
    EXPECT_EQ(level.Image(), expected.Image());
}

// --- Inverting -----------------------------------------------------------------------------------------

TEST_F(LineTest, DrawnTwiceInvertedALineUndoesItself) {
    std::uniform_int_distribution<int> place(-5, 44), pen(1, 9), channel(0, 255);
    Surface surface = Blank(40, 40);
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 40; ++x) {
            surface.PSet(x, y, RGB(channel(random_), channel(random_), channel(random_)));
        }
    }
    const Image before = surface.Image();
    surface.DrawMode = invertPen;
    for (int i = 0; i < 500; ++i) {
        const int x1 = place(random_), y1 = place(random_), x2 = place(random_), y2 = place(random_);
        surface.DrawWidth = pen(random_);
        surface.Line(x1, y1, x2, y2);
        surface.Line(x1, y1, x2, y2);
        ASSERT_EQ(surface.Image(), before);
    }
}

TEST_F(LineTest, InvertingTakesTheComplementOfEachPixelOnce) {
    Surface surface = Blank(30, 30);
    surface.DrawMode = invertPen;
    surface.DrawWidth = 5;
    surface.Line(5, 5, 20, 14, RGB(255, 0, 0));  // the colour is ignored
    Surface copied = Blank(30, 30);
    copied.DrawWidth = 5;
    copied.Line(5, 5, 20, 14);
    EXPECT_EQ(surface.Image(), copied.Image());  // of white the complement is black
    for (const Pixel pixel : surface.Pixels().Pixels())
        EXPECT_EQ(pixel & spareByte, spareByte);
}

}  // namespace
}  // namespace coinlet
