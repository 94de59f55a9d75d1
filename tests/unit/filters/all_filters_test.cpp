// Every filter against its rule worked out slowly, on pictures of many sizes and kinds, built for every kind
// of vector units that the processor has.

#include "filtered.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <tuple>
#include <utility>

namespace coinlet {
namespace {

using test::Picture;

struct Size {
    int width, height;
};
constexpr std::array<Size, 18> sizes{{{1, 1},
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
                                      {40, 31},
                                      {131, 7},
                                      {200, 6}}};

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

const char* NameOf(VectorUnits units) {
    switch (units) {
        case VectorUnits::Common:
            return "Common";
        case VectorUnits::Avx2:
            return "Avx2";
        case VectorUnits::Avx512:
            return "Avx512";
    }
    return "";
}

/// Runs a filter by its rule and by the product, on the same picture and dice, and holds them together.
void HoldTogether(int number, std::int32_t parameter, const Picture& picture, VectorUnits units,
                  std::uint64_t diceBefore = 0) {
    RandomGenerator dice, sameDice;
    dice.Skip(diceBefore);
    sameDice.Skip(diceBefore);
    test::NotedPace pace;
    const Picture expected = test::SlowFilter(number, parameter, picture, dice);
    const Picture found = test::Filtered(number, parameter, picture, sameDice, pace, units);
    ASSERT_EQ(Difference(expected, found), "")
        << picture.W << " by " << picture.H << ", parameter " << parameter;
    ASSERT_EQ(dice.Next(), sameDice.Next()) << "as many dice";
}

class EveryUnit : public testing::TestWithParam<VectorUnits> {
protected:
    void SetUp() override {
        if (!ProcessorHas(GetParam())) GTEST_SKIP() << "this processor has no " << NameOf(GetParam());
    }
};
INSTANTIATE_TEST_SUITE_P(Units, EveryUnit, testing::ValuesIn(allVectorUnits),
                         [](const auto& test) { return std::string(NameOf(test.param)); });

TEST(VectorUnits, OfTheCommonKindAreThere) {
    EXPECT_TRUE(ProcessorHas(VectorUnits::Common));
    EXPECT_TRUE(ProcessorHas(WidestVectorUnits()));
}

TEST_P(EveryUnit, DoesTheWorkOnce) {
    int times = 0;
    WithVectorUnits(GetParam(), [&times] { ++times; });
    EXPECT_EQ(times, 1);
}

TEST_P(EveryUnit, KeepsTheRuleOfSharpenAndEdgeForEveryDivisor) {
    std::mt19937 random(11);
    for (std::int32_t parameter = -30; parameter <= 45; ++parameter) {
        for (const Kind kind : {Kind::Noise, Kind::Extremes, Kind::Soft}) {
            const Picture picture = Painted(kind, {41, 12}, random);
            for (const int number : {1, 6})
                HoldTogether(number, parameter, picture, GetParam());
        }
    }
}

TEST_P(EveryUnit, KeepsTheRuleOfFiltersInPlaceForEverySizeOfBands) {
    constexpr int mostColumns = 26, mostRows = 16;
    std::mt19937 random(17);
    for (int width = 1; width <= mostColumns; ++width) {
        for (int height = 1; height <= mostRows; ++height) {
            const Picture picture = Painted(Kind::Noise, {width, height}, random);
            for (const auto& [number, parameter] :
                 {std::pair{1, 10}, std::pair{1, 11}, std::pair{3, 0}, std::pair{5, 0}, std::pair{6, 1}})
                HoldTogether(number, parameter, picture, GetParam());
        }
    }
}

TEST_P(EveryUnit, KeepsTheRuleOfContrastAtEveryEndOfARow) {
    std::mt19937 random(18);
    for (int width = 60; width <= 200; ++width) {
        for (const Kind kind : {Kind::Noise, Kind::Extremes, Kind::Soft, Kind::White}) {
            for (const std::int32_t percent : {10, -10, 40})
                HoldTogether(17, percent, Painted(kind, {width, 3}, random), GetParam());
        }
    }
}

TEST_P(EveryUnit, KeepsTheRuleOfColoursForEveryPercentage) {
    std::mt19937 random(12);
    for (std::int32_t percent = -70; percent <= 220; ++percent) {
        for (const Kind kind : {Kind::Noise, Kind::Extremes, Kind::Soft}) {
            const Picture picture = Painted(kind, {40, 12}, random);
            for (const int number : {14, 17, 30})
                HoldTogether(number, percent, picture, GetParam());
        }
    }
}

TEST_P(EveryUnit, StretchesEveryRange) {
    std::mt19937 random(13);
    for (int range = 1; range <= 255; ++range) {
        Picture picture = Painted(Kind::Noise, {35, 3}, random);
        const int lowest =
            256 - range > 1 ? static_cast<int>(random() % static_cast<unsigned>(256 - range)) : 0;
        for (int y = 1; y <= 3; ++y) {
            for (int x = 1; x <= 35; ++x)
                picture(2, x, y) = lowest + picture(2, x, y) % (range + 1);
        }
        HoldTogether(28, 0, picture, GetParam());
    }
}

TEST_P(EveryUnit, ThrowsDiceOfEveryRange) {
    std::mt19937 random(14);
    const Picture picture = Painted(Kind::Soft, {203, 40}, random);
    for (const std::int32_t strength : {1, 2, 13, 50, 51, 127, 500, 4000, 15'999, 16'000, 16'001, 70'000}) {
        HoldTogether(29, strength, picture, GetParam(), random() % 1'000'000);
        for (const std::int32_t reach : {2 * strength, 2 * strength + 1, -strength})
            HoldTogether(4, reach, picture, GetParam(), random() % 1'000'000);
    }
}

TEST_P(EveryUnit, RoundsDiceByAllTheirBits) {
    // The upper 32 bits of these numbers alone would be rounded to the other side.
    constexpr std::uint64_t noiseNumber = 3'769'074, scatterNumber = 4'893'836;
    const auto isClose = [](std::uint64_t number, std::int32_t range) {
        RandomGenerator random;
        random.Skip(number - 1);
        const double all = random.Next(), upper = std::floor(all * 0x1p32) * 0x1p-32;
        return std::nearbyint(all * range) != std::nearbyint(upper * range);
    };
    ASSERT_TRUE(isClose(noiseNumber, 255));
    ASSERT_TRUE(isClose(scatterNumber, 1000));
    HoldTogether(29, 127, test::Flat(5, 1, 128, 128, 128), GetParam(), noiseNumber - 5);
    std::mt19937 random(15);
    HoldTogether(4, 1000, Painted(Kind::Noise, {200, 1}, random), GetParam(), scatterNumber - 1);
}

TEST_P(EveryUnit, PixelizesByBlocksLargerThanPictures) {
    std::mt19937 random(16);
    for (const std::int32_t side : {9, 64, 2047, 2048, 2049, 2100, 3000})
        HoldTogether(15, side, Painted(Kind::Noise, {2100, 3}, random), GetParam());
}

class EveryFilter : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(Numbers, EveryFilter, testing::Range(1, 32),
                         [](const auto& test) { return std::string(FindFilter(test.param)->name); });

class EveryFilterInEveryUnit : public testing::TestWithParam<std::tuple<int, VectorUnits>> {
protected:
    void SetUp() override {
        const VectorUnits units = std::get<1>(GetParam());
        if (!ProcessorHas(units)) GTEST_SKIP() << "this processor has no " << NameOf(units);
    }
};
INSTANTIATE_TEST_SUITE_P(Numbers, EveryFilterInEveryUnit,
                         testing::Combine(testing::Range(1, 32), testing::ValuesIn(allVectorUnits)),
                         [](const auto& test) {
                             return std::string(FindFilter(std::get<0>(test.param))->name) +
                                    NameOf(std::get<1>(test.param));
                         });

TEST_P(EveryFilterInEveryUnit, KeepsItsRuleOnEveryPicture) {
    const auto [number, units] = GetParam();
    std::mt19937 random(static_cast<unsigned>(number));
    for (const Size size : sizes) {
        for (const Kind kind :
             {Kind::Noise, Kind::Extremes, Kind::Soft, Kind::FlatColour, Kind::White, Kind::Black}) {
            for (const std::int32_t parameter : parameters)
                HoldTogether(number, parameter, Painted(kind, size, random), units);
            if (HasFatalFailure()) FAIL() << "kind " << static_cast<int>(kind);
        }
    }
}

TEST_P(EveryFilterInEveryUnit, TellsTheSameProgress) {
    const auto [number, units] = GetParam();
    std::mt19937 paint(8);
    const Picture picture = Painted(Kind::Soft, {70, 21}, paint);
    RandomGenerator random, sameRandom;
    test::NotedPace common, pace;
    test::Filtered(number, 10, picture, random, common, VectorUnits::Common);
    test::Filtered(number, 10, picture, sameRandom, pace, units);
    EXPECT_EQ(common.percents, pace.percents);
    EXPECT_EQ(common.rows, pace.rows);
}

TEST_P(EveryFilter, TakesAPictureOfNoPixels) {
    for (const Size size : {Size{0, 0}, Size{0, 4}, Size{4, 0}})
        EXPECT_EQ(test::Filtered(GetParam(), 3, Picture(size.width, size.height)).H, size.height);
}

/// What a filter tells of its progress on a picture of that height, by what it walks.
test::NotedPace ToldOf(int number, int height) {
    test::NotedPace told;
    /// Rows from 1 on, both included, which take the progress from one percentage to another.
    const auto walk = [&told, height](int first, int last, int from = 0, int to = 100) {
        for (int row = first; row <= last; ++row) {
            told.Reached(from + row * (to - from) / height);
            told.RowShown(row, height - 1);
        }
    };
    switch (number) {
        case 1:   // Sharpen
        case 3:   // Blur
        case 5:   // Smooth
        case 6:   // Edge
        case 7:   // Contour
        case 9:   // GradientBack
        case 11:  // GradientForward
        case 13:  // Relief
        case 25:  // Dilate
        case 26:  // Erode
        case 27:  // Connection
            walk(2, height - 1);
            break;
        case 8:   // DiagonalBack
        case 10:  // DiagonalForward
            walk(1, height - 1);
            break;
        case 24:  // Aquarel
            walk(3, height - 2);
            break;
        case 17:  // Contrast
        case 19:  // SharpDither
            told.Reached(5);
            walk(1, height, 5);
            break;
        case 21:  // FloydDither
        case 22:  // BurkesDither
        case 23:  // StuckiDither
            told.Reached(number == 21 ? 2 : 3);
            told.Reached(10);
            walk(1, height, 10);
            break;
        case 28:  // Stretch
            walk(1, height, 0, 10);
            told.Reached(10);
            walk(1, height, 10);
            break;
        default:
            walk(1, height);
    }
    return told;
}

TEST_P(EveryFilter, TellsEveryRowThatItWalks) {
    std::mt19937 paint(7);
    for (const int height : {1, 2, 3, 4, 5, 6, 7, 8, 9, 13, 40, 41}) {
        const test::NotedPace expected = ToldOf(GetParam(), height);
        // Great parameters take other ways to the same walk.
        for (const std::int32_t parameter : {10, 1000, 100'000}) {
            test::NotedPace pace;
            RandomGenerator random;
            test::Filtered(GetParam(), parameter, Painted(Kind::Noise, {9, height}, paint), random, pace);
            EXPECT_EQ(pace.rows, expected.rows) << height << ", parameter " << parameter;
            EXPECT_EQ(pace.percents, expected.percents) << height << ", parameter " << parameter;
        }
    }
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
