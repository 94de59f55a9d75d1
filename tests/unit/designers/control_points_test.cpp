// The list of control points, with the free entry behind it.

#include "designers/control_points.h"

#include <gtest/gtest.h>
#include <limits>

namespace coinlet {
namespace {

TEST(ControlPoints, AreFoundWithinTwoPixels) {
    ControlPoints points;
    EXPECT_EQ(points.AddControlPoint(100, 200), std::nullopt);
    for (int dx = -4; dx <= 4; ++dx) {
        for (int dy = -4; dy <= 4; ++dy) {
            const bool near = dx >= -2 && dx <= 2 && dy >= -2 && dy <= 2;
            EXPECT_EQ(points.FindControlPoint(100 + dx, 200 + dy), near ? 0 : -1) << dx << ", " << dy;
        }
    }
}

TEST(ControlPoints, TheLowestIndexWins) {
    ControlPoints points;
    points.AddControlPoint(50, 50);
    points.AddControlPoint(100, 100);
    points.AddControlPoint(101, 101);
    EXPECT_EQ(points.FindControlPoint(101, 101), 1);
    EXPECT_EQ(points.FindControlPoint(103, 103), 2);
}

TEST(ControlPoints, TheFreeEntryIsAHit) {
    ControlPoints points;
    EXPECT_EQ(points.FindControlPoint(2, 2), 0);
    EXPECT_EQ(points.FindControlPoint(3, 0), -1);
    points.AddControlPoint(100, 100);
    EXPECT_EQ(points.FindControlPoint(0, 0), 1);
    points.AddControlPoint(200, 200);
    points.Clear();
    EXPECT_EQ(points.PointCount(), 0);
    // Entry 0 is the free one now, and has what stood there; entry 1 is beyond.
    EXPECT_EQ(points.FindControlPoint(100, 100), 0);
    EXPECT_EQ(points.FindControlPoint(200, 200), -1);
    points.MoveControlPoint(0, 300, 300);
    EXPECT_EQ(points.PointCount(), 0);
    EXPECT_EQ(points.FindControlPoint(301, 299), 0);
}

TEST(ControlPoints, AHundredAndOneAreAll) {
    ControlPoints points;
    for (int i = 0; i < 101; ++i)
        EXPECT_EQ(points.AddControlPoint(10 + 4 * i, 20), std::nullopt);
    EXPECT_EQ(points.PointCount(), 101);
    EXPECT_EQ(points.AddControlPoint(7, 300), 9);
    EXPECT_EQ(points.PointCount(), 101);
    EXPECT_EQ(points.FindControlPoint(7, 300), -1);
    EXPECT_EQ(points.FindControlPoint(0, 0), -1);  // no entry is free
    EXPECT_EQ(points.FindControlPoint(410, 20), 100);
    points.MoveControlPoint(100, 5, 6);
    EXPECT_EQ(points.PointX().back(), 5);
    EXPECT_EQ(points.PointY().back(), 6);
}

TEST(ControlPoints, HaveSixteenBits) {
    ControlPoints points;
    EXPECT_EQ(points.AddControlPoint(-32768, 32767), std::nullopt);
    for (const double beyond : {32768.0, -32769.0, 1e30, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(points.AddControlPoint(beyond, 0), 6);
        EXPECT_EQ(points.AddControlPoint(0, beyond), 6);
        points.MoveControlPoint(0, beyond, 0);
        points.MoveControlPoint(0, 0, beyond);
        EXPECT_EQ(points.FindControlPoint(beyond, 0), -1);
    }
    EXPECT_EQ(points.PointCount(), 1);
    EXPECT_EQ(points.PointX()[0], -32768);
    EXPECT_EQ(points.PointY()[0], 32767);
}

}  // namespace
}  // namespace coinlet
