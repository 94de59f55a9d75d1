// Directions as the drawing of arcs takes them.

#include "designers/atan3.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace coinlet {
namespace {

using std::numbers::pi;

TEST(ATan3, GoesCounterClockwiseOnTheScreenFromTheRight) {
    EXPECT_FLOAT_EQ(ATan3(10, 0), static_cast<float>(2 * pi));
    EXPECT_FLOAT_EQ(ATan3(0, -10), static_cast<float>(pi / 2));
    EXPECT_FLOAT_EQ(ATan3(-10, 0), static_cast<float>(pi));
    EXPECT_FLOAT_EQ(ATan3(0, 10), static_cast<float>(1.5 * pi));
    EXPECT_FLOAT_EQ(ATan3(7, -7), static_cast<float>(0.25 * pi));
    EXPECT_FLOAT_EQ(ATan3(-7, -7), static_cast<float>(0.75 * pi));
    EXPECT_FLOAT_EQ(ATan3(-7, 7), static_cast<float>(1.25 * pi));
    EXPECT_FLOAT_EQ(ATan3(7, 7), static_cast<float>(1.75 * pi));
}

TEST(ATan3, TheCentreIsAFullTurn) {
    EXPECT_FLOAT_EQ(ATan3(0, 0), static_cast<float>(2 * pi));
    EXPECT_FLOAT_EQ(ATan3(0, -0.0), static_cast<float>(2 * pi));
}

// Every place on and far around a canvas: the angle leads back to the place, and is above 0.
TEST(ATan3, LeadsToThePlaceThatItWasAskedOf) {
    for (int dx = -1000; dx <= 1000; dx += 37) {
        for (int dy = -1000; dy <= 1000; dy += 41) {
            const double angle = ATan3(dx, dy), radius = std::hypot(dx, dy);
            EXPECT_GT(angle, 0);
            EXPECT_LE(angle, 6.2831855);
            EXPECT_NEAR(std::cos(angle) * radius, dx, 1e-3) << dx << ", " << dy;
            EXPECT_NEAR(-std::sin(angle) * radius, dy, 1e-3) << dx << ", " << dy;
        }
    }
    EXPECT_GT(ATan3(5000, -1), 0);
}

}  // namespace
}  // namespace coinlet
