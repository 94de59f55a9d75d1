// Arcs: which part of an ellipse's outline they are.

#include "support/block_fonts.h"
#include "support/picture_grid.h"
#include "surface/surface.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <random>
#include <vector>

namespace coinlet {
namespace {

using std::numbers::pi;
using test::Grid;
using test::GridOf;

class ArcTest : public testing::Test {
protected:
    Surface Blank(int width, int height) { return {fonts_, width, height}; }
    Image Drawn(double radius, std::optional<ArcAngles> arc, double aspect = 1) {
        Surface surface = Blank(41, 41);
        surface.Circle(20, 20, radius, black, arc, aspect);
        return surface.Image();
    }

    test::BlockFonts fonts_;
};

TEST_F(ArcTest, RunsCounterClockwiseFromThePositiveXAxis) {
    Surface upper = Blank(7, 7), right = Blank(7, 7), quarter = Blank(7, 7);
    upper.Circle(3, 3, 3, black, ArcAngles{0, pi});
    EXPECT_EQ(GridOf(upper),
              Grid({"..###..", ".#...#.", "#.....#", "#.....#", ".......", ".......", "......."}));
    right.Circle(3, 3, 3, black, ArcAngles{1.5 * pi, 0.5 * pi});  // through 0
    EXPECT_EQ(GridOf(right),
              Grid({"...##..", ".....#.", "......#", "......#", "......#", ".....#.", "...##.."}));
    quarter.Circle(3, 3, 3, black, ArcAngles{pi, 1.5 * pi});
    EXPECT_EQ(GridOf(quarter),
              Grid({".......", ".......", ".......", "#......", "#......", ".#.....", "..##..."}));
}

TEST_F(ArcTest, AnEndOfZeroIsAFullTurn) {
    EXPECT_EQ(Drawn(15, ArcAngles{0, 0}), Drawn(15, {}));
    EXPECT_EQ(Drawn(15, ArcAngles{pi, 0}), Drawn(15, ArcAngles{pi, 2 * pi}));
    EXPECT_EQ(Drawn(15, ArcAngles{0, 2 * pi}), Drawn(15, {}));
}

TEST_F(ArcTest, EqualAnglesAreTheWholeEllipse) {
    for (const double angle : {0.0, 1.0, -2.5, 3.14, 2 * pi, 100.0}) {
        EXPECT_EQ(Drawn(15, ArcAngles{angle, angle}, 0.6), Drawn(15, {}, 0.6)) << angle;
    }
}

TEST_F(ArcTest, AnglesCountModuloAFullTurn) {
    EXPECT_EQ(Drawn(15, ArcAngles{-1, 1}), Drawn(15, ArcAngles{2 * pi - 1, 1}));
    EXPECT_EQ(Drawn(15, ArcAngles{1 + 4 * pi, 2 - 6 * pi}), Drawn(15, ArcAngles{1, 2}));
}

/// How far (x, y) is from the ray that leaves the origin in that direction.
double DistanceFromRay(double x, double y, double direction) {
    const double along = x * std::cos(direction) + y * std::sin(direction);
    return along > 0 ? std::abs(y * std::cos(direction) - x * std::sin(direction)) : std::hypot(x, y);
}

/// Every pixel of the outline belongs to the arc if its angle, as seen from the centre, lies between the two,
/// or if an end of the arc falls on it.
TEST_F(ArcTest, IsThePartOfTheOutlineBetweenItsAngles) {
    std::mt19937 random(17);
    std::uniform_int_distribution<int> radius(0, 30), pen(1, 6);
    std::uniform_real_distribution<double> angle(0, 2 * pi), aspect(0.2, 3);
    for (int i = 0; i < 400; ++i) {
        const ArcAngles arc{angle(random), angle(random)};
        Surface part = Blank(81, 81), whole = Blank(81, 81);
        part.DrawWidth = whole.DrawWidth = pen(random);
        part.FillStyle = solidFill;  // not for arcs
        const int r = radius(random);
        const double a = aspect(random);
        part.Circle(40, 40, r, black, arc, a);
        whole.Circle(40, 40, r, black, {}, a);
        for (int y = 0; y < 81; ++y) {
            for (int x = 0; x < 81; ++x) {
                double direction = std::atan2(40 - y, x - 40);
                if (direction < 0) direction += 2 * pi;
                const bool between = arc.start <= arc.end ? direction >= arc.start && direction <= arc.end
                                                          : direction >= arc.start || direction <= arc.end;
                const double nearest = std::min(DistanceFromRay(x - 40, 40 - y, arc.start),
                                                DistanceFromRay(x - 40, 40 - y, arc.end));
                ASSERT_EQ(part.Point(x, y) == black,
                          (between || nearest <= 0.5) && whole.Point(x, y) == black)
                    << x << ' ' << y << " in " << arc.start << ' ' << arc.end;
            }
        }
    }
}

TEST_F(ArcTest, TwoHalvesMakeTheWhole) {
    for (const int pen : {1, 2, 5}) {
        Surface halves = Blank(41, 41), whole = Blank(41, 41);
        halves.DrawWidth = whole.DrawWidth = pen;
        halves.Circle(20, 20, 15, black, ArcAngles{0, pi}, 0.8);
        halves.Circle(20, 20, 15, black, ArcAngles{pi, 0}, 0.8);
        whole.Circle(20, 20, 15, black, {}, 0.8);
        EXPECT_EQ(halves.Image(), whole.Image()) << pen;
    }
}

// Inverted, an arc is the pixels that the copy pen draws, each inverted once; a second time undoes it. With
// every pen, starts after ends, ends on the axes, centres outside and radii from none to far beyond.
TEST_F(ArcTest, InvertedTwiceAnArcUndoesItself) {
    const std::vector<double> angles{0, 0.5 * pi, pi, 1.5 * pi, 2 * pi, 6.2831855, 0.3, 4};
    const struct {
        double x, y, radius;
    } circles[] = {{30, 30, 20}, {30, 30, 0}, {30, 30, 1}, {-9, 75, 60}, {30, 5030, 5000}, {-4970, 30, 5000}};
    Surface surface = Blank(61, 61);
    surface.Line(5, 5, 25, 30, RGB(200, 100, 50), Box::Filled);
    const Image before = surface.Image();
    for (int pen = 1; pen <= 10; ++pen) {
        for (const auto& circle : circles) {
            for (const double start : angles) {
                for (const double end : angles) {
                    const ArcAngles arc{start, end};
                    Surface drawn = Blank(61, 61);
                    surface.DrawWidth = drawn.DrawWidth = pen;
                    drawn.Circle(circle.x, circle.y, circle.radius, black, arc);
                    surface.DrawMode = invertPen;
                    surface.Circle(circle.x, circle.y, circle.radius, black, arc);
                    for (int y = 0; y < 61; ++y) {
                        for (int x = 0; x < 61; ++x) {
                            const Pixel was = before.Shared()->Row(y)[x];
                            const Pixel is = drawn.Point(x, y) == black ? was ^ ~spareByte : was;
                            ASSERT_EQ(surface.Pixels().Row(y)[x], is) << x << ", " << y << " pen " << pen;
                        }
                    }
                    surface.Circle(circle.x, circle.y, circle.radius, black, arc);
                    ASSERT_EQ(surface.Image(), before) << pen << ": " << start << " to " << end;
                }
            }
        }
    }
}

}  // namespace
}  // namespace coinlet
