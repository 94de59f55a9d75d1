// Rounding, and numbers as text without regard to the desktop's locale.

#include "base/numbers.h"

#include <gtest/gtest.h>
#include <limits>

namespace coinlet {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr int most = std::numeric_limits<int>::max(), least = std::numeric_limits<int>::min();

TEST(Numbers, HalvesRoundToTheEvenNeighbour) {
    EXPECT_EQ(RoundHalfEven(0.5), 0);
    EXPECT_EQ(RoundHalfEven(1.5), 2);
    EXPECT_EQ(RoundHalfEven(2.5), 2);
    EXPECT_EQ(RoundHalfEven(-0.5), 0);
    EXPECT_EQ(RoundHalfEven(-1.5), -2);
    EXPECT_EQ(RoundHalfEven(-2.5), -2);
    EXPECT_EQ(RoundHalfEven(2.500001), 3);
    EXPECT_EQ(RoundHalfEven(2.499999), 2);
    EXPECT_EQ(RoundHalfEven(-7), -7);
}

TEST(Numbers, RoundingHasAnAnswerForEveryDouble) {
    for (const auto round : {RoundHalfEven, Truncate}) {
        EXPECT_EQ(round(notANumber), 0);
        EXPECT_EQ(round(infinity), most);
        EXPECT_EQ(round(-infinity), least);
        EXPECT_EQ(round(1e30), most);
        EXPECT_EQ(round(-1e30), least);
        EXPECT_EQ(round(most), most);
        EXPECT_EQ(round(least), least);
    }
    EXPECT_EQ(RoundHalfEven(most - 0.5), most - 1);  // the even neighbour
    EXPECT_EQ(RoundHalfEven(most + 0.25), most);
}

TEST(Numbers, SinglesEndWhereTheirRangeDoes) {
    constexpr float mostSingle = std::numeric_limits<float>::max();
    EXPECT_EQ(Single(0.1), 0.1F);
    EXPECT_EQ(Single(149.49999999999997), 149.5F);
    EXPECT_EQ(Single(1e300), mostSingle);
    EXPECT_EQ(Single(-1e300), -mostSingle);
    EXPECT_EQ(Single(infinity), mostSingle);
    EXPECT_EQ(Single(-infinity), -mostSingle);
}

TEST(Numbers, TruncationCutsTowardsZero) {
    EXPECT_EQ(Truncate(2.9), 2);
    EXPECT_EQ(Truncate(-2.9), -2);
    EXPECT_EQ(Truncate(-0.9), 0);
}

TEST(Numbers, ValReadsTheNumberInFront) {
    EXPECT_EQ(Val("12 px"), 12);
    EXPECT_EQ(Val("  -3.5e1x"), -35);
    EXPECT_EQ(Val("+4"), 4);
    EXPECT_EQ(Val(".5"), 0.5);
    EXPECT_EQ(Val("7."), 7);
    EXPECT_EQ(Val("1,5"), 1);  // a decimal comma is no decimal sign here
    EXPECT_EQ(Val("0x10"), 0);
    EXPECT_EQ(Val("12e"), 12);
}

TEST(Numbers, ValOfWhatIsNoNumberIsZero) {
    for (const char* text : {"", " ", "abc", "-", "+-5", "--5", "- 5", ".", "e5", "inf", "-nan", "1e999"}) {
        EXPECT_EQ(Val(text), 0) << text;
    }
}

TEST(Numbers, ParsingWantsTheWholeText) {
    double value = 42;
    EXPECT_TRUE(ParseNumber("  -2.25 ", &value));
    EXPECT_EQ(value, -2.25);
    for (const char* text : {"", " ", "2 px", "1 2", "inf", "nan", "+-1", "1e999"}) {
        EXPECT_FALSE(ParseNumber(text, &value)) << text;
    }
    EXPECT_EQ(value, -2.25);
}

TEST(Numbers, NumbersAreShownInPlainNotation) {
    EXPECT_EQ(FormatNumber(0), "0");
    EXPECT_EQ(FormatNumber(-0.0), "0");
    EXPECT_EQ(FormatNumber(100000), "100000");
    EXPECT_EQ(FormatNumber(0.1F), "0.1");
    EXPECT_EQ(FormatNumber(1.0 / 3), "0.3333333");
    EXPECT_EQ(FormatNumber(-2.0 / 3), "-0.6666667");
    EXPECT_EQ(FormatNumber(12.5), "12.5");
    EXPECT_EQ(FormatNumber(1234567), "1234567");
    EXPECT_EQ(FormatNumber(12345678), "12345680");
    EXPECT_EQ(FormatNumber(0.00012), "0.00012");
    EXPECT_EQ(FormatNumber(9999999.9), "10000000");
    EXPECT_EQ(FormatNumber(1e21), "1000000000000000000000");
    EXPECT_EQ(FormatNumber(notANumber), "0");
    EXPECT_EQ(FormatNumber(-infinity), "0");
}

}  // namespace
}  // namespace coinlet
