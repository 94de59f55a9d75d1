// Regular polygons: where a point comes to by a turn, and which lines are drawn.

#include "designers/regular_polygon.h"

#include "support/block_fonts.h"
#include "surface/surface.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>

namespace coinlet {
namespace {

using std::numbers::pi;

constexpr int side = 200;

class RegularPolygon : public testing::Test {
protected:
    Surface Blank() { return {fonts, side, side}; }
    /// The polygon by corners that were computed for themselves: the first one straight left of the centre,
    /// turned clockwise, and the others clockwise from there.
    Image ByCorners(double rotate, PlanePoint centre, double size, int sides) {
        Surface surface = Blank();
        const auto corner = [&](int i) {
            const double angle = rotate + 2 * pi * i / sides;  // clockwise from the left
            return std::pair{centre.x - std::cos(angle) * size, centre.y - std::sin(angle) * size};
        };
        for (int i = 0; i < sides; ++i) {
            const auto [x1, y1] = corner(i);
            const auto [x2, y2] = corner(i + 1);
            surface.Line(x1, y1, x2, y2, black);
        }
        return surface.Image();
    }
    Image Drawn(float rotate, PlanePoint centre, float size, int sides) {
        Surface surface = Blank();
        DrawPolygon(surface, rotate, 1, centre, size, sides, black);
        return surface.Image();
    }

    test::BlockFonts fonts;
};

TEST_F(RegularPolygon, PointsTurnClockwiseOnTheScreen) {
    const TurnedPoint up = RPoint(static_cast<float>(pi / 2), {100, 100}, {40, 100}, 1);
    EXPECT_NEAR(up.place.x, 100, 1e-4);
    EXPECT_NEAR(up.place.y, 40, 1e-4);
    EXPECT_EQ(up.radius, 60);
    const TurnedPoint right = RPoint(static_cast<float>(pi / 2), {100, 100}, {100, 30}, 1);
    // The slope of an upright line isn't quite a quarter turn: it lacks 1 / 301.6.
    EXPECT_NEAR(right.place.x, 170, 1e-2);
    EXPECT_NEAR(right.place.y, 100 - 70 / 301.593, 1e-2);
    const TurnedPoint left = RPoint(static_cast<float>(pi / 2), {100, 100}, {100, 170}, 1);
    EXPECT_NEAR(left.place.x, 30, 1e-2);
}

TEST_F(RegularPolygon, PointsBesideTheCentreTurnAsOthersDo) {
    const TurnedPoint down = RPoint(static_cast<float>(pi / 2), {7, 5}, {8, 5}, 1);
    EXPECT_NEAR(down.place.x, 7, 1e-4);
    EXPECT_NEAR(down.place.y, 6, 1e-4);
    EXPECT_EQ(down.radius, 1);
}

TEST_F(RegularPolygon, PointsOnTheCentreStay) {
    const TurnedPoint stays = RPoint(1, {12, 34}, {12, 34}, 2);
    EXPECT_EQ(stays.place, (PlanePoint{12, 34}));
    EXPECT_EQ(stays.radius, 0);
}

TEST_F(RegularPolygon, PointsTurnOnEllipses) {
    // Twice as high as wide: 60 left is as far as 120 up.
    const TurnedPoint high = RPoint(static_cast<float>(pi / 2), {0, 0}, {-60, 0}, 2);
    EXPECT_NEAR(high.place.x, 0, 1e-4);
    EXPECT_NEAR(high.place.y, -120, 1e-4);
    EXPECT_EQ(high.radius, 120);
    const TurnedPoint wide = RPoint(static_cast<float>(pi / 2), {0, 0}, {-60, 0}, 0.5F);
    EXPECT_NEAR(wide.place.y, -30, 1e-4);
    EXPECT_EQ(wide.radius, 60);
    const TurnedPoint back = RPoint(static_cast<float>(pi / 2), {0, 0}, {0, -30}, 0.5F);
    EXPECT_NEAR(back.place.x, 60, 1e-2);
}

TEST_F(RegularPolygon, CornersBeginLeftAndGoClockwise) {
    // Turned by a little, so that no corner falls between two pixels.
    for (const int sides : {3, 4, 5, 6, 7, 8, 12, 19, 20}) {
        for (const double rotate : {0.01, 0.3, 1.57, 3.99}) {
            EXPECT_EQ(Drawn(static_cast<float>(rotate), {100, 98}, 60, sides),
                      ByCorners(rotate, {100, 98}, 60, sides))
                << sides << ", " << rotate;
        }
    }
}

TEST_F(RegularPolygon, TrianglePointsLeftUnlessItIsTurned) {
    Surface surface = Blank();
    DrawPolygon(surface, 0, 1, {100, 100}, 60, 3, black);
    // The corners: (40, 100), (130, 100 - 51.96), (130, 151.96).
    EXPECT_EQ(surface.Point(40, 100), black);
    EXPECT_EQ(surface.Point(130, 48), black);
    EXPECT_EQ(surface.Point(130, 152), black);
    EXPECT_EQ(surface.Point(130, 100), black);
    EXPECT_EQ(surface.Point(160, 100), white);
    Surface turned = Blank();
    DrawPolygon(turned, 1.57F, 1, {100, 100}, 60, 3, black);  // a quarter turn clockwise: it points upward
    EXPECT_EQ(turned.Point(100, 40), black);
    EXPECT_EQ(turned.Point(48, 130), black);
    EXPECT_EQ(turned.Point(40, 100), white);
}

TEST_F(RegularPolygon, HasItsOwnColour) {
    Surface surface = Blank();
    surface.ForeColor = RGB(1, 2, 3);
    DrawPolygon(surface, 0, 1, {100, 100}, 60, 4, RGB(200, 100, 0));
    EXPECT_EQ(surface.Point(40, 100), RGB(200, 100, 0));
}

TEST_F(RegularPolygon, WithoutSidesThereIsNothing) {
    const Image blank = Blank().Image();
    for (const int sides : {0, -1, -32768, std::numeric_limits<int>::min()})
        EXPECT_EQ(Drawn(0, {100, 100}, 60, sides), blank) << sides;
}

TEST_F(RegularPolygon, OneSideIsAPointAndTwoAreALine) {
    Surface dot = Blank();
    dot.DrawWidth = 3;
    DrawPolygon(dot, 0, 1, {100, 100}, 60, 1, black);
    EXPECT_EQ(dot.Point(40, 100), black);
    EXPECT_EQ(dot.Point(43, 100), white);
    Surface line = Blank();
    DrawPolygon(line, 0, 1, {100, 100}, 60, 2, black);
    for (int x = 40; x <= 160; ++x)
        EXPECT_EQ(line.Point(x, 100), black) << x;
    EXPECT_EQ(line.Point(39, 100), white);
    EXPECT_EQ(line.Point(161, 100), white);
}

TEST_F(RegularPolygon, ManySidesAreACircle) {
    Surface surface = Blank();
    DrawPolygon(surface, 0, 1, {100, 100}, 60, std::numeric_limits<int>::max(), black);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            if (surface.Point(x, y) != black) continue;
            EXPECT_NEAR(std::hypot(x - 100, y - 100), 60, 1) << x << ", " << y;
        }
    }
    for (const double angle : {0.0, 0.7, 2.0, 4.4}) {
        const double x = std::round(100 + 60 * std::cos(angle)), y = std::round(100 + 60 * std::sin(angle));
        EXPECT_EQ(surface.Point(x, y), black) << angle;
    }
}

// Of so many corners some pixels of the circle show how many there are.
TEST_F(RegularPolygon, HasAtMost32767Sides) {
    constexpr float size = 99.9F;
    constexpr int most = 32767;
    const Image full = Drawn(0, {100, 100}, size, most);
    for (const int sides : {most + 1, 40000, std::numeric_limits<int>::max()})
        EXPECT_EQ(Drawn(0, {100, 100}, size, sides), full) << sides;
    EXPECT_NE(Drawn(0, {100, 100}, size, most - 1), full);
}

TEST_F(RegularPolygon, MonstrousFiguresAreNoHarm) {
    for (const float number : {1e30F, -1e30F, 3e38F, -3e38F, 1e-30F, 40000.0F}) {
        EXPECT_EQ(Drawn(0, {100, 100}, number, 0), Blank().Image());
        Drawn(0, {100, 100}, number, 5);
        Drawn(number, {100, 100}, 60, 5);
        Drawn(0, {number, number}, 60, 5);
    }
    EXPECT_EQ(Drawn(0, {100, 100}, -60, 6), Drawn(static_cast<float>(pi), {100, 100}, 60, 6));
}

}  // namespace
}  // namespace coinlet
