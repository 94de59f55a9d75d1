// Every filter against its rule worked out slowly, on pictures of many sizes and kinds.

#include "filtered.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

namespace coinlet {
namespace {

using test::Picture;

struct Size {
    int width, height;
};
constexpr std::array<Size, 16> sizes{{{1, 1},
                                      {1, 2},
                                      {2, 1},
                                      {2, 2},
                                      {3, 1},
                                      {1, 5},
                                      {3, 3},
                                      {4, 3},
                                      {3, 4},
                                      {5, 5},
                                      {4, 5},
                                      {6, 5},
                                      {5, 7},
                                      {8, 9},
                                      {17, 12},
                                      {40, 31}}};

constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
/// Usual ones, those that make a divisor 0, colours, and what nobody would hand in.
constexpr std::array<std::int32_t, 29> parameters{
    0,  1,  2,  3,   4,   5,   6,    7,    10,  15,   50,       64,       100,   140, 250,
    -1, -4, -8, -10, -50, -99, -100, -101, -24, 1000, 0x804020, 0xFFFFFF, least, most};

enum class Kind { Noise, Extremes, Soft, FlatColour, White, Black };

Picture Painted(Kind kind, Size size, std::mt19937& random) {
    Picture picture(size.width, size.height);
    const auto dice = [&random](int below) {
        return static_cast<int>(random() % static_cast<unsigned>(below));
    };
    const std::array<int, 3> flat{dice(256), dice(256), dice(256)};
    for (int y = 1; y <= size.height; ++y) {
        for (int x = 1; x <= size.width; ++x) {
            for (int c = 1; c <= 3; ++c) {
                const auto value = [&] {
                    switch (kind) {
                        case Kind::Noise:
                            return dice(256);
                        case Kind::Extremes:
                            return 255 * dice(2);
                        case Kind::Soft:
                            return (x * 5 * c + y * 3 + dice(8)) % 256;
                        case Kind::FlatColour:
                            return flat[static_cast<std::size_t>(c - 1)];
                        case Kind::White:
                            return 255;
                        default:
                            return 0;
                    }
                };
                picture(c, x, y) = value();
            }
        }
    }
    return picture;
}

/// The first channel that differs, in words.
std::string Difference(const Picture& expected, const Picture& found) {
    for (int y = 1; y <= expected.H; ++y) {
        for (int x = 1; x <= expected.W; ++x) {
            for (int c = 1; c <= 3; ++c) {
                if (expected(c, x, y) != found(c, x, y)) {
                    return "channel " + std::to_string(c) + " at " + std::to_string(x) + " " +
                           std::to_string(y) + ": expected " + std::to_string(expected(c, x, y)) +
                           ", found " + std::to_string(found(c, x, y));
                }
            }
        }
    }
    return {};
}

class EveryFilter : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(Numbers, EveryFilter, testing::Range(1, 32),
                         [](const auto& test) { return std::string(FindFilter(test.param)->name); });

TEST_P(EveryFilter, KeepsItsRuleOnEveryPicture) {
    std::mt19937 random(static_cast<unsigned>(GetParam()));
    for (const Size size : sizes) {
        for (const Kind kind :
             {Kind::Noise, Kind::Extremes, Kind::Soft, Kind::FlatColour, Kind::White, Kind::Black}) {
            for (const std::int32_t parameter : parameters) {
                const Picture picture = Painted(kind, size, random);
                RandomGenerator dice, sameDice;
                test::NotedPace pace;
                const Picture expected = test::SlowFilter(GetParam(), parameter, picture, dice);
                const Picture found = test::Filtered(GetParam(), parameter, picture, sameDice, pace);
                ASSERT_EQ(Difference(expected, found), "")
                    << size.width << " by " << size.height << ", kind " << static_cast<int>(kind)
                    << ", parameter " << parameter;
                ASSERT_EQ(dice.Next(), sameDice.Next()) << "as many dice";
            }
        }
    }
}

TEST_P(EveryFilter, TakesAPictureOfNoPixels) {
    for (const Size size : {Size{0, 0}, Size{0, 4}, Size{4, 0}})
        EXPECT_EQ(test::Filtered(GetParam(), 3, Picture(size.width, size.height)).H, size.height);
}

TEST_P(EveryFilter, TellsItsProgressUpwardAndTheRowsWithTheHeightLessOne) {
    constexpr int height = 40;
    test::NotedPace pace;
    RandomGenerator random;
    std::mt19937 paint(7);
    test::Filtered(GetParam(), 10, Painted(Kind::Noise, {9, height}, paint), random, pace);
    ASSERT_FALSE(pace.percents.empty());
    EXPECT_TRUE(std::ranges::is_sorted(pace.percents));
    EXPECT_GE(pace.percents.front(), 0);
    EXPECT_LE(pace.percents.back(), 100);
    ASSERT_FALSE(pace.rows.empty());
    for (const auto& [row, last] : pace.rows)
        EXPECT_EQ(last, height - 1);
    // No filter leaves more than two rows at the bottom.
    EXPECT_GE(pace.rows.back().first, height - 2);
}

TEST(FilterNumbers, RunFrom1To31) {
    for (int number = 1; number <= 31; ++number) {
        ASSERT_NE(FindFilter(number), nullptr) << number;
        EXPECT_EQ(static_cast<int>(FindFilter(number)->number), number);
    }
    for (const int number : {0, 32, -1, 1000})
        EXPECT_EQ(FindFilter(number), nullptr) << number;
}

}  // namespace
}  // namespace coinlet
