// Circles and ellipses: thin, wide and filled.

#include "support/block_fonts.h"
#include "support/picture_grid.h"
#include "surface/surface.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace coinlet {
namespace {

using test::Grid;
using test::GridOf;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

class EllipseTest : public testing::Test {
protected:
    Surface Blank(int width, int height) { return {fonts_, width, height}; }

    test::BlockFonts fonts_;
    std::mt19937 random_{13};
};

/// Draws an ellipse by its semi-axes.
void DrawEllipse(Surface& surface, int x, int y, int semiAxisX, int semiAxisY) {
    // A user scale stretched in one direction makes an ellipse of a circle: any semi-axes, without aspects.
    const double width = surface.PixelWidth(), height = surface.PixelHeight();
    const double unitX = semiAxisX > 0 ? semiAxisX : 0.001, unitY = semiAxisY > 0 ? semiAxisY : 0.001;
    surface.Scale(-x / unitX, -y / unitY, (width - x) / unitX, (height - y) / unitY);
    surface.Circle(0, 0, 1);
    surface.SetScaleMode(pixelScale);
}

TEST_F(EllipseTest, SmallCircles) {
    Surface surface = Blank(19, 7);
    surface.Circle(1, 3, 0);
    surface.Circle(4, 3, 1);
    surface.Circle(9, 3, 2);
    surface.Circle(15, 3, 3);
    EXPECT_EQ(GridOf(surface), Grid({
                                   "..............###..",
                                   "........###..#...#.",
                                   "...###.#...##.....#",
                                   ".#.#.#.#...##.....#",
                                   "...###.#...##.....#",
                                   "........###..#...#.",
                                   "..............###..",
                               }));
}

TEST_F(EllipseTest, TheAspectIsHeightByWidthAndTheRadiusTheLongerSemiAxis) {
    for (const auto& [aspect, semiAxisX, semiAxisY] : {std::tuple{1.0, 20, 20},
                                                       {0.5, 20, 10},
                                                       {2.0, 10, 20},
                                                       {0.26, 20, 5},
                                                       {1e-9, 20, 0},
                                                       {1e9, 0, 20}}) {
        Surface circle = Blank(60, 60), expected = Blank(60, 60);
        circle.Circle(30, 30, 20, black, {}, aspect);
        DrawEllipse(expected, 30, 30, semiAxisX, semiAxisY);
        EXPECT_EQ(circle.Image(), expected.Image()) << aspect;
    }
}

TEST_F(EllipseTest, EdgesRoundHalvesToTheEvenNeighbour) {
    Surface halves = Blank(40, 40), whole = Blank(40, 40);
    halves.Circle(20.5, 20, 10, black, {}, 0.55);  // from 10.5 to 30.5 and from 14.5 to 25.5
    whole.Circle(20, 20, 10, black, {}, 0.6);      // from 10 to 30 and from 14 to 26
    EXPECT_EQ(halves.Image(), whole.Image());
    EXPECT_EQ(halves.CurrentX, 20.5F);
    EXPECT_EQ(halves.CurrentY, 20);
}

TEST_F(EllipseTest, AnEllipseInABoxOfEvenSizeEndsAtItsEdges) {
    Surface surface = Blank(8, 6);
    surface.Circle(3.5, 2.5, 2.5, black, {}, 0.6);  // from 1 to 6 and from 1 to 4
    EXPECT_EQ(GridOf(surface),
              Grid({"........", "..####..", ".#....#.", ".#....#.", "..####..", "........"}));
    Surface smallest = Blank(4, 4);
    smallest.Circle(1.5, 1.5, 0.5);
    EXPECT_EQ(GridOf(smallest), Grid({"....", ".##.", ".##.", "...."}));
}

/// The rule: a disc is the pixels of the ellipse half a pixel larger each way, its outline those of them with
/// a neighbour outside. In whole numbers; the two sides are never equal, one being odd and one even.
bool InDisc(long long x, long long y, long long semiAxisX, long long semiAxisY) {
    const long long a = 2 * semiAxisX + 1, b = 2 * semiAxisY + 1;
    return 4 * x * x * b * b + 4 * y * y * a * a <= a * a * b * b;
}

bool OnOutline(int x, int y, int semiAxisX, int semiAxisY) {
    if (!InDisc(x, y, semiAxisX, semiAxisY)) return false;
    return !InDisc(x + 1, y, semiAxisX, semiAxisY) || !InDisc(x - 1, y, semiAxisX, semiAxisY) ||
           !InDisc(x, y + 1, semiAxisX, semiAxisY) || !InDisc(x, y - 1, semiAxisX, semiAxisY);
}

TEST_F(EllipseTest, ThinOutlinesAndFillsFollowTheRuleForAllSemiAxes) {
    constexpr int largest = 60, centre = 64;
    Surface surface = Blank(2 * centre + 1, 2 * centre + 1);
    surface.FillColor = RGB(255, 0, 0);
    for (int semiAxisX = 0; semiAxisX <= largest; ++semiAxisX) {
        for (int semiAxisY = 0; semiAxisY <= largest; ++semiAxisY) {
            surface.Cls();
            surface.FillStyle = (semiAxisX + semiAxisY) % 2 == 0 ? solidFill : transparentFill;
            const Colour inside = surface.FillStyle == solidFill ? surface.FillColor : white;
            DrawEllipse(surface, centre, centre, semiAxisX, semiAxisY);
            for (int y = -centre; y <= centre; ++y) {
                const Pixel* row = surface.Pixels().Row(centre + y) + centre;
                for (int x = -centre; x <= centre; ++x) {
                    const Colour expected = OnOutline(x, y, semiAxisX, semiAxisY) ? black
                                            : InDisc(x, y, semiAxisX, semiAxisY)  ? inside
                                                                                  : white;
                    ASSERT_EQ(row[x], ToPixel(expected))
                        << x << ' ' << y << " of " << semiAxisX << ' ' << semiAxisY;
                }
            }
        }
    }
}

/// The pixels of one colour that hang together with the first one found, also across corners.
int PiecesOf(const Surface& surface, Colour colour) {
    Bitmap left = surface.Pixels().Clone();
    int pieces = 0;
    for (int y = 0; y < left.Height(); ++y) {
        for (int x = 0; x < left.Width(); ++x) {
            if (left.Row(y)[x] != ToPixel(colour)) continue;
            ++pieces;
            std::vector<std::pair<int, int>> open{{x, y}};
            while (!open.empty()) {
                const auto [px, py] = open.back();
                open.pop_back();
                if (!left.Contains(px, py) || left.Row(py)[px] != ToPixel(colour)) continue;
                left.Row(py)[px] = ~ToPixel(colour);
                for (int i = 0; i < 9; ++i)
                    open.emplace_back(px - 1 + i % 3, py - 1 + i / 3);
            }
        }
    }
    return pieces;
}

TEST_F(EllipseTest, OutlinesHangTogetherAndAreSymmetric) {
    constexpr int side = 160;
    std::uniform_int_distribution<int> semiAxis(0, 60), pen(1, 9);
    for (int i = 0; i < 400; ++i) {
        const int semiAxisX = semiAxis(random_), semiAxisY = semiAxis(random_);
        Surface surface = Blank(side, side);
        surface.DrawWidth = pen(random_);
        const int mirror = surface.DrawWidth % 2 == 0 ? side - 1 : side;
        DrawEllipse(surface, side / 2, side / 2, semiAxisX, semiAxisY);
        ASSERT_EQ(PiecesOf(surface, black), 1) << semiAxisX << ' ' << semiAxisY << ' ' << surface.DrawWidth;
        for (int y = 1; y < side; ++y) {
            for (int x = 1; x < side; ++x) {
                ASSERT_EQ(surface.Point(x, y), surface.Point(mirror - x, y));
                ASSERT_EQ(surface.Point(x, y), surface.Point(x, mirror - y));
            }
        }
    }
}

TEST_F(EllipseTest, OutlineAndFillMeetAndEachPixelIsTouchedOnce) {
    std::uniform_int_distribution<int> semiAxis(0, 40), place(-10, 69), pen(1, 9);
    for (int i = 0; i < 600; ++i) {
        const int x = place(random_), y = place(random_);
        const int semiAxisX = semiAxis(random_), semiAxisY = semiAxis(random_);
        Surface outline = Blank(60, 60), both = Blank(60, 60), inverted = Blank(60, 60), disc = Blank(60, 60);
        outline.DrawWidth = both.DrawWidth = inverted.DrawWidth = disc.DrawWidth = pen(random_);
        both.FillStyle = inverted.FillStyle = disc.FillStyle = solidFill;
        both.FillColor = RGB(255, 0, 0);
        inverted.DrawMode = invertPen;
        for (Surface* each : {&outline, &both, &inverted, &disc}) {
            DrawEllipse(*each, x, y, semiAxisX, semiAxisY);
        }
        for (int py = 0; py < 60; ++py) {
            int changes = 0;
            for (int px = 0; px < 60; ++px) {
                ASSERT_EQ(outline.Point(px, py) == black, both.Point(px, py) == black);
                ASSERT_EQ(disc.Point(px, py) == black, both.Point(px, py) != white);
                if (px > 0) changes += disc.Point(px, py) != disc.Point(px - 1, py) ? 1 : 0;
            }
            ASSERT_LE(changes, 2);  // a row of a disc has no gap
        }
        ASSERT_EQ(inverted.Image(), disc.Image());  // of white the complement is black
    }
}

TEST_F(EllipseTest, ClippingMovesNoPixel) {
    std::uniform_int_distribution<int> semiAxis(0, 70), place(-30, 59), pen(1, 7), coin(0, 1);
    for (int i = 0; i < 600; ++i) {
        const int x = place(random_), y = place(random_), semiAxisX = semiAxis(random_);
        const int semiAxisY = coin(random_) == 0 ? semiAxisX : semiAxis(random_);
        Surface whole = Blank(300, 300), part = Blank(30, 30);
        whole.DrawWidth = part.DrawWidth = coin(random_) == 0 ? 1 : pen(random_);
        whole.FillStyle = part.FillStyle = coin(random_);
        whole.FillColor = part.FillColor = RGB(255, 0, 0);
        DrawEllipse(whole, x + 130, y + 130, semiAxisX, semiAxisY);
        DrawEllipse(part, x, y, semiAxisX, semiAxisY);
        for (int py = 0; py < 30; ++py) {
            for (int px = 0; px < 30; ++px) {
                ASSERT_EQ(part.Point(px, py), whole.Point(px + 130, py + 130))
                    << semiAxisX << ' ' << semiAxisY << ' ' << whole.DrawWidth;
            }
        }
    }
}

// --- Wide ----------------------------------------------------------------------------------------------

TEST_F(EllipseTest, AWideCircleIsTheRingHalfThePenToEitherSide) {
    for (int width = 2; width <= 9; ++width) {
        for (int radius = 0; radius <= 30; ++radius) {
            Surface surface = Blank(81, 81);
            surface.DrawWidth = width;
            surface.Circle(40, 40, radius);
            // Doubled distances from the pen's centre, which even widths have half a pixel up and left.
            const int shift = width % 2 == 0 ? 1 : 0;
            const int outer = 2 * radius + width, inner = std::max(2 * radius - width, 0);
            for (int y = 0; y < 81; ++y) {
                for (int x = 0; x < 81; ++x) {
                    const int dx = 2 * (x - 40) + shift, dy = 2 * (y - 40) + shift;
                    const int distance = dx * dx + dy * dy;
                    const bool expected = distance <= outer * outer && distance >= inner * inner;
                    ASSERT_EQ(surface.Point(x, y) == black, expected)
                        << x << ' ' << y << " of " << radius << ", " << width;
                }
            }
        }
    }
}

TEST_F(EllipseTest, ConcentricCirclesLeaveNoGap) {
    Surface disc = Blank(100, 100);
    disc.SetBackColor(black);
    disc.DrawWidth = 2;
    for (int radius = 1; radius <= 43; ++radius)
        disc.Circle(50, 50, radius, white);
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 100; ++x) {
            const int dx = 2 * (x - 50) + 1, dy = 2 * (y - 50) + 1;
            ASSERT_EQ(disc.Point(x, y) == white, dx * dx + dy * dy <= 88 * 88) << x << ' ' << y;
        }
    }

    Surface canvas = Blank(500, 500);
    canvas.SetBackColor(black);
    canvas.DrawWidth = 3;
    for (int radius = 240; radius <= 355; ++radius)
        canvas.Circle(250, 250, radius, white);
    for (int y = 0; y < 500; ++y) {
        for (int x = 0; x < 500; ++x) {
            const int distance = 4 * ((x - 250) * (x - 250) + (y - 250) * (y - 250));
            ASSERT_EQ(canvas.Point(x, y) == white, distance >= 477 * 477) << x << ' ' << y;
        }
    }
}

// --- What draws nothing, and what is far out -----------------------------------------------------------

TEST_F(EllipseTest, NegativeRadiiOddAspectsAndNotANumberDrawNothing) {
    Surface surface = Blank(20, 20);
    surface.FillStyle = solidFill;
    for (const int pen : {1, 4}) {
        surface.DrawWidth = pen;
        surface.Circle(10, 10, -1);
        surface.Circle(10, 10, -infinity);
        surface.Circle(10, 10, notANumber);
        surface.Circle(notANumber, 10, 5);
        surface.Circle(10, notANumber, 5);
        for (const double aspect : {0.0, -1.0, notANumber, -infinity}) {
            surface.Circle(10, 10, 5, black, {}, aspect);
        }
        for (const double angle : {notANumber, infinity, -infinity}) {
            surface.Circle(10, 10, 5, black, ArcAngles{0, angle});
            surface.Circle(10, 10, 5, black, ArcAngles{angle, 1});
        }
    }
    EXPECT_EQ(surface.Image(), Blank(20, 20).Image());
    surface.Circle(3, 4, -1);
    EXPECT_EQ(surface.CurrentX, 3);
    EXPECT_EQ(surface.CurrentY, 4);
}

TEST_F(EllipseTest, HugeCirclesAreClipped) {
    for (const double radius : {1e5, 1e8}) {
        Surface surface = Blank(7, 5), expected = Blank(7, 5);
        surface.Circle(3 - radius, 2, radius);  // touches (3, 2) with what looks like an upright line
        expected.Line(3, 0, 3, 5);
        EXPECT_EQ(surface.Image(), expected.Image()) << radius;
    }
    for (const double radius : {1e9, 1e30, infinity}) {
        Surface surface = Blank(7, 5), expected = Blank(7, 5);
        surface.Circle(3, 2, radius);
        surface.Circle(radius, radius, 5);
        EXPECT_EQ(surface.Image(), expected.Image()) << radius;
        surface.FillStyle = solidFill;
        surface.Circle(3, 2, radius);
        expected.Line(0, 0, 6, 4, black, Box::Filled);
        EXPECT_EQ(surface.Image(), expected.Image()) << radius;
    }
    Surface surface = Blank(7, 5);
    surface.DrawWidth = std::numeric_limits<int>::max();
    surface.Circle(3, 2, 1);
    EXPECT_EQ(surface.Point(0, 0), black);
}

}  // namespace
}  // namespace coinlet
