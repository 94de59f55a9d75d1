// The figures of polygons by their formulas, the drawing against a slow rule, and the edge that can be
// missing.

#include "designers/polygon_figure.h"

#include "support/block_fonts.h"
#include "support/picture_grid.h"
#include "surface/surface.h"

#include <array>
#include <climits>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>
#include <utility>
#include <vector>

namespace coinlet {
namespace {

using std::numbers::pi;

TEST(PolygonFigures, OfKnownPolygons) {
    const PolygonFigures triangle = FiguresOf(3, 0.5);
    EXPECT_EQ(triangle.cornerAngle, 120);
    EXPECT_NEAR(triangle.sideLength, std::sqrt(3) / 2, 1e-12);
    EXPECT_NEAR(triangle.perimeter, 1.5 * std::sqrt(3), 1e-12);
    EXPECT_NEAR(triangle.circumference, pi, 1e-12);
    EXPECT_NEAR(triangle.arcLength, pi / 3, 1e-12);
    const PolygonFigures square = FiguresOf(4, 2);
    EXPECT_EQ(square.cornerAngle, 90);
    EXPECT_NEAR(square.sideLength, 2 * std::numbers::sqrt2, 1e-12);
    EXPECT_NEAR(square.arcLength, pi, 1e-12);
    const PolygonFigures hexagon = FiguresOf(6, 3);
    EXPECT_NEAR(hexagon.sideLength, 3, 1e-12);
    EXPECT_NEAR(hexagon.perimeter, 18, 1e-12);
}

TEST(PolygonFigures, ArcsMakeTheCircleAndSidesThePerimeter) {
    for (int sides = fewestSides; sides <= mostSides; ++sides) {
        for (const double radius : {0.05, 0.5, 12.5, 50.0, -1.0}) {
            const PolygonFigures figures = FiguresOf(sides, radius);
            const double tolerance = 1e-11 * std::abs(radius);
            EXPECT_NEAR(figures.arcLength * sides, figures.circumference, tolerance) << sides;
            EXPECT_NEAR(figures.circumference, 2 * pi * radius, tolerance) << sides;
            // The chord by half of its angle.
            EXPECT_NEAR(figures.sideLength, 2 * radius * std::sin(pi / sides), tolerance) << sides;
            EXPECT_NEAR(figures.perimeter, figures.sideLength * sides, tolerance) << sides;
        }
    }
}

TEST(PolygonFigures, OfNoCircleAreNone) {
    const PolygonFigures none = FiguresOf(10, 0);
    EXPECT_EQ(none.cornerAngle, 36);
    for (const double figure : {none.arcLength, none.circumference, none.sideLength, none.perimeter})
        EXPECT_EQ(figure, 0);
}

TEST(PolygonTexts, DegreesHaveTwoDecimalsAndTheSign) {
    EXPECT_EQ(DegreesWithDecimals(120), "120.00°");
    EXPECT_EQ(DegreesWithDecimals(360.0 / 7), "51.43°");
    EXPECT_EQ(DegreesWithDecimals(1), "1.00°");
    EXPECT_EQ(DegreesWithDecimals(360.0 / 359), "1.00°");
    EXPECT_EQ(DegreesWithDecimals(360.0 / 350), "1.03°");
    EXPECT_EQ(DegreesWithDecimals(1.125), "1.13°");  // a half goes up, also to odd digits
    EXPECT_EQ(DegreesWithDecimals(5.625), "5.63°");
    EXPECT_EQ(DegreesWithDecimals(1.875), "1.88°");
    EXPECT_EQ(DegreesWithDecimals(59.999), "60.00°");
    EXPECT_EQ(DegreesWithDecimals(0), "0.00°");
}

TEST(PolygonTexts, WholeDegreesHaveTheSignAlone) {
    EXPECT_EQ(WholeDegrees(0), "0°");
    EXPECT_EQ(WholeDegrees(359), "359°");
}

class PolygonFigureDrawing : public testing::Test {
protected:
    Image Drawn(const PolygonSweep& sweep, double radius, int width = 400, int height = 400,
                int penWidth = 1) const {
        Surface surface(fonts_, width, height);
        surface.DrawWidth = penWidth;
        DrawPolygonFigure(surface, sweep, radius);
        return surface.Image();
    }
    /// The rule itself, in pixels: a line to each corner, from the corner before and from the centre. The
    /// first `corners` corners of an exact polygon are drawn.
    Image Expected(const PolygonSweep& sweep, int corners, int width, int height, int penWidth) const {
        Surface surface(fonts_, width, height);
        surface.DrawWidth = penWidth;
        const double centreX = width / 2.0, centreY = height / 2.0;
        double lastX = centreX, lastY = centreY;
        for (int i = 0; i < corners; ++i) {
            const double angle = (sweep.rotation + 360.0 * i / sweep.sides) * pi / 180;
            // Places nearer to a half than the rule is exact are taken for it.
            const auto place = [](double value) { return std::round(value * 4096) / 4096; };
            const double x = place(centreX + centreX * std::cos(angle));
            const double y = place(centreY - centreY * std::sin(angle));
            surface.PSet(x, y);
            surface.Line(lastX, lastY, x, y);
            surface.Line(centreX, centreY, x, y);
            lastX = x;
            lastY = y;
        }
        surface.PSet(centreX, centreY);
        return surface.Image();
    }
    static bool IsBlackNear(const Image& picture, double x, double y) {
        for (int row = -1; row <= 1; ++row) {
            for (int column = -1; column <= 1; ++column) {
                const int px = static_cast<int>(x) + column, py = static_cast<int>(y) + row;
                if (picture.Shared()->Contains(px, py) && picture.Shared()->Row(py)[px] == ToPixel(black))
                    return true;
            }
        }
        return false;
    }
    /// Whether the edge from the last corner but one of a whole turn to the last one is there.
    bool Closes(int sides, int rotation) const {
        const Image picture = Drawn({sides, rotation, wholeTurn}, 0.5);
        const double middle = (rotation + 360.0 - 180.0 / sides) * pi / 180, height = std::cos(pi / sides);
        return IsBlackNear(picture, 200 + 200 * height * std::cos(middle),
                           200 - 200 * height * std::sin(middle));
    }

    test::BlockFonts fonts_;
};

TEST_F(PolygonFigureDrawing, IsAllCornersWithTheirEdgesAndSpokes) {
    struct Case {
        PolygonSweep sweep;
        int corners;  ///< The first one counts again at the end of the turn.
    };
    for (const Case& each :
         {Case{{3, 0, wholeTurn}, 4}, Case{{4, 0, wholeTurn}, 5}, Case{{4, 45, wholeTurn}, 5},
          Case{{5, 10, wholeTurn}, 6}, Case{{6, 0, wholeTurn}, 7}, Case{{8, 300, wholeTurn}, 9},
          Case{{10, 0, halfTurn}, 6}, Case{{12, 90, halfTurn}, 7},
          // Half a turn that no corner falls on.
          Case{{3, 0, halfTurn}, 2}, Case{{5, 30, halfTurn}, 3}}) {
        for (const int penWidth : {1, 4, 9}) {
            const auto& [sweep, corners] = each;
            EXPECT_EQ(Drawn(sweep, 0.5, 400, 400, penWidth), Expected(sweep, corners, 400, 400, penWidth))
                << sweep.sides << ' ' << sweep.rotation << ' ' << penWidth;
            EXPECT_EQ(Drawn(sweep, 0.5, 220, 110, penWidth), Expected(sweep, corners, 220, 110, penWidth))
                << sweep.sides << ' ' << sweep.rotation << ' ' << penWidth;
        }
    }
}

TEST_F(PolygonFigureDrawing, LooksTheSameWhateverTheRadius) {
    for (const int sides : {3, 7, 10, 64}) {
        const PolygonSweep sweep{sides, 20, wholeTurn};
        const Image usual = Drawn(sweep, 0.5);
        for (const double radius : {0.25, 1.0, 32.0, 1e30})
            EXPECT_EQ(Drawn(sweep, radius), usual) << sides << ' ' << radius;
    }
}

TEST_F(PolygonFigureDrawing, TheFirstCornerIsStraightToTheRightAndTheCornersGoUp) {
    const Image quarter = Drawn({4, 0, wholeTurn}, 0.5);
    EXPECT_TRUE(IsBlackNear(quarter, 398, 200));
    const Image turned = Drawn({3, 90, wholeTurn}, 0.5);
    EXPECT_TRUE(IsBlackNear(turned, 200, 1));
    EXPECT_FALSE(IsBlackNear(turned, 200, 398));
    const Image half = Drawn({10, 0, halfTurn}, 0.5);  // upper half
    EXPECT_TRUE(IsBlackNear(half, 200, 10));           // the edge from 72 to 108 degrees
    for (int y = 202; y < 400; ++y) {
        for (int x = 1; x < 399; ++x)
            ASSERT_EQ(half.Shared()->Row(y)[x], ToPixel(white)) << x << ' ' << y;
    }
}

// Of which polygons the sum of steps ends beyond the turn was worked out with the single-precision numbers of
// another language.
TEST_F(PolygonFigureDrawing, TheClosingEdgeIsMissingWhereTheSumOfSinglesEndsBeyondTheTurn) {
    for (const int sides : {13, 17, 22, 26, 27, 28, 31, 37, 38, 39})
        EXPECT_FALSE(Closes(sides, 0)) << sides;
    for (const int sides : {3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 14, 15, 16, 18, 19, 20, 21, 23, 24, 25, 29, 30})
        EXPECT_TRUE(Closes(sides, 0)) << sides;
    for (const int sides : {7, 11, 13, 14, 19, 21, 22, 25})
        EXPECT_FALSE(Closes(sides, 359)) << sides;
    for (const int sides : {3, 4, 5, 6, 8, 9, 10, 12, 15, 16, 17, 18, 20, 23, 24})
        EXPECT_TRUE(Closes(sides, 359)) << sides;
}

TEST_F(PolygonFigureDrawing, TheLastSpokeOfAHalfTurnIsMissingWhereTheSumEndsBeyondIt) {
    const auto hasLastSpoke = [&](int sides) {
        return IsBlackNear(Drawn({sides, 0, halfTurn}, 0.5), 60, 200);
    };
    for (const int sides : {26, 34})
        EXPECT_FALSE(hasLastSpoke(sides)) << sides;
    for (const int sides : {4, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 28, 30, 32, 36})
        EXPECT_TRUE(hasLastSpoke(sides)) << sides;
}

TEST_F(PolygonFigureDrawing, OfTheMostSidesLooksLikeAFilledDisc) {
    const Image disc = Drawn({mostSides, 0, wholeTurn}, 0.5);
    int inside = 0, filled = 0;
    for (int y = 0; y < 400; ++y) {
        for (int x = 0; x < 400; ++x) {
            const double distance = std::hypot(x - 200, y - 200);
            const bool isBlack = disc.Shared()->Row(y)[x] == ToPixel(black);
            ASSERT_FALSE(isBlack && distance > 201) << x << ' ' << y;
            // Spokes less than a pixel apart, also along a row where they run aslant.
            ASSERT_TRUE(isBlack || distance >= 40) << x << ' ' << y;
            if (distance >= 200) continue;
            ++inside;
            filled += isBlack ? 1 : 0;
        }
    }
    // Farther out the spokes part by up to 3.5 pixels, of which each takes about one.
    EXPECT_GT(filled, inside / 3);
}

TEST_F(PolygonFigureDrawing, WipesBeforeItDraws) {
    Surface surface(fonts_, 40, 40);
    surface.Line(0, 0, 39, 39, RGB(255, 0, 0), Box::Filled);
    DrawPolygonFigure(surface, {4, 0, wholeTurn}, 0.5);
    EXPECT_EQ(surface.Image(), Drawn({4, 0, wholeTurn}, 0.5, 40, 40));
    EXPECT_EQ(surface.ScaleWidth(), 1);
    EXPECT_EQ(surface.ScaleHeight(), -1);
}

TEST_F(PolygonFigureDrawing, OfNoCircleIsNothing) {
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double radius : {0.0, -0.0, infinity, -infinity, 1.7e308, std::nan("")}) {
        Surface surface(fonts_, 40, 40);
        surface.Line(0, 0, 39, 39, RGB(255, 0, 0), Box::Filled);
        DrawPolygonFigure(surface, {10, 0, wholeTurn}, radius);
        EXPECT_EQ(surface.Image(), Surface(fonts_, 40, 40).Image()) << radius;
        EXPECT_EQ(surface.ScaleWidth(), 40);
    }
}

TEST_F(PolygonFigureDrawing, TakesRadiiAndTurnsOfAnySize) {
    for (const double radius : {-0.5, 1e-320, 1e-30, 1e38, 8e307}) {
        for (const int rotation : {-32768, -360, 0, 359, 32767}) {
            for (const int sides : {fewestSides, 7, mostSides})
                EXPECT_FALSE(Drawn({sides, rotation, wholeTurn}, radius, 40, 40).Empty());
        }
    }
    EXPECT_TRUE(Drawn({10, 0, wholeTurn}, 0.5, 0, 0).Empty());
    EXPECT_EQ(Drawn({7, INT_MAX, wholeTurn}, 1, 40, 40), Drawn({7, 32767, wholeTurn}, 1, 40, 40));
    EXPECT_EQ(Drawn({7, INT_MIN, halfTurn}, 1, 40, 40), Drawn({7, -32768, halfTurn}, 1, 40, 40));
}

}  // namespace
}  // namespace coinlet
