// The program's random numbers.

#include "base/random.h"

#include <array>
#include <gtest/gtest.h>

namespace coinlet {
namespace {

TEST(RandomGenerator, StaysBelowOneAndIsEven) {
    constexpr int count = 160000, parts = 16;
    std::array<int, parts> found{};
    RandomGenerator random;
    for (int i = 0; i < count; ++i) {
        const double value = random.Next();
        ASSERT_GE(value, 0);
        ASSERT_LT(value, 1);
        ++found[static_cast<std::size_t>(value * parts)];
    }
    // 10,000 in each part, give or take five times the deviation of 97.
    for (const int inPart : found)
        EXPECT_NEAR(inPart, count / parts, 485);
}

TEST(RandomGenerator, NeighboursAreIndependent) {
    constexpr int count = 160000;
    int bothHigh = 0;
    RandomGenerator random;
    for (int i = 0; i < count; ++i) {
        const bool first = random.Next() >= 0.5, second = random.Next() >= 0.5;
        if (first && second) ++bothHigh;
    }
    EXPECT_NEAR(bothHigh, count / 4, 866);  // Five times the deviation of 173.
}

TEST(RandomGenerator, StartsAtTheSamePlaceAndMovesOn) {
    RandomGenerator one, other;
    double last = -1;
    for (int i = 0; i < 100; ++i) {
        const double value = one.Next();
        EXPECT_EQ(value, other.Next());
        EXPECT_NE(value, last);
        last = value;
    }
}

}  // namespace
}  // namespace coinlet
