// Drags with Shift: squares, and lines by multiples of 15 degrees.

#include "tools/kept_proportions.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace coinlet {
namespace {

void ExpectPlace(GesturePoint found, float x, float y) {
    EXPECT_EQ(found.x, x);
    EXPECT_EQ(found.y, y);
}

TEST(KeptProportions, TheLongerSideOfASquareRules) {
    ExpectPlace(CornerOfSquare({10, 20}, {40, 25}), 40, 50);
    ExpectPlace(CornerOfSquare({10, 20}, {15, 60}), 50, 60);
    ExpectPlace(CornerOfSquare({10, 20}, {40, 50}), 40, 50);
}

TEST(KeptProportions, ASquareGoesWhereThePointerWent) {
    ExpectPlace(CornerOfSquare({100, 100}, {70, 110}), 70, 130);
    ExpectPlace(CornerOfSquare({100, 100}, {110, 60}), 140, 60);
    ExpectPlace(CornerOfSquare({100, 100}, {60, 90}), 60, 60);
    ExpectPlace(CornerOfSquare({100, 100}, {130, 100}), 130, 130);
    ExpectPlace(CornerOfSquare({100, 100}, {100, 70}), 130, 70);
    ExpectPlace(CornerOfSquare({100, 100}, {100, 100}), 100, 100);
}

TEST(KeptProportions, ALineGoesToTheNextMultipleOf15Degrees) {
    ExpectPlace(NextOnRay({10, 10}, {60, 12}), 60, 10);
    ExpectPlace(NextOnRay({0, 0}, {50, 48}), 49, 49);
    // 11.3 degrees: on the ray of 15 the point next to it lies 101.8 away.
    ExpectPlace(NextOnRay({0, 0}, {100, 20}), 98, 26);
    // 59.0 degrees.
    ExpectPlace(NextOnRay({0, 0}, {30, 50}), 29, 50);
    ExpectPlace(NextOnRay({300, 300}, {298, 240}), 300, 240);
    ExpectPlace(NextOnRay({300, 300}, {240, 301}), 240, 300);
    ExpectPlace(NextOnRay({5, 6}, {5, 6}), 5, 6);
}

TEST(KeptProportions, EveryLineIsOnARayAndNoPointOfItIsNearer) {
    constexpr int reach = 40;
    for (int x = -reach; x <= reach; x += 8) {
        for (int y = -reach; y <= reach; y += 8) {
            const GesturePoint found = NextOnRay({0, 0}, {static_cast<float>(x), static_cast<float>(y)});
            double nearest = 1e9, nearestX = 0, nearestY = 0;
            for (int ray = 0; ray < 24; ++ray) {
                const double angle = ray * std::numbers::pi / 12;
                for (double length = 0; length < 2 * reach; length += 0.05) {
                    const double px = length * std::cos(angle), py = length * std::sin(angle);
                    const double away = std::hypot(px - x, py - y);
                    if (away >= nearest) continue;
                    nearest = away, nearestX = px, nearestY = py;
                }
            }
            // The program's place is whole.
            EXPECT_NEAR(found.x, nearestX, 0.56) << x << ", " << y;
            EXPECT_NEAR(found.y, nearestY, 0.56) << x << ", " << y;
        }
    }
}

}  // namespace
}  // namespace coinlet
