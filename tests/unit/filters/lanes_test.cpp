// The lanes of a register against plain ones, on every kind of value.

#include "filters/lanes.h"

#include <array>
#include <gtest/gtest.h>
#include <random>

namespace coinlet {
namespace {

using Values = std::array<std::uint16_t, pixelBytes>;

template <class SomeLanes, class Operation>
Values Result(const Values& a, const Values& b, Operation operation) {
    Values result{};
    operation(SomeLanes::Load(a.data()), SomeLanes::Load(b.data())).Store(result.data());
    return result;
}

/// The result in the lanes of this build, after it has been found the same in plain ones.
template <class Operation>
Values Both(const Values& a, const Values& b, Operation operation) {
    const Values plain = Result<PlainLanes>(a, b, operation);
    EXPECT_EQ(plain, Result<Lanes>(a, b, operation));
    return plain;
}

TEST(Lanes, AddAndTakeAwayDownToNothing) {
    const Values a{0, 5, 300, 65'535}, b{0, 7, 299, 65'534};
    const auto add = [](auto x, auto y) { return x + y; };
    const auto less = [](auto x, auto y) { return Less(x, y); };
    EXPECT_EQ(Both(a, {1, 2, 3, 0}, add), (Values{1, 7, 303, 65'535}));
    EXPECT_EQ(Both(a, b, less), (Values{0, 0, 1, 1}));
}

TEST(Lanes, DivideByHalvingAndByTheUpperHalfOfProducts) {
    const Values a{0, 9, 1'275, 65'535};
    EXPECT_EQ(Both(a, a, [](auto x, auto) { return Halved(x, 0); }), a);
    EXPECT_EQ(Both(a, a, [](auto x, auto) { return Halved(x, 3); }), (Values{0, 1, 159, 8'191}));
    EXPECT_EQ(Both(a, {1, 0x8000, 0x8000, 0xFFFF}, [](auto x, auto y) { return HighProduct(x, y); }),
              (Values{0, 4, 637, 65'534}));
}

TEST(Lanes, GiveTheLowerOne) {
    const auto lower = [](auto x, auto y) { return Lower(x, y); };
    EXPECT_EQ(Both({0, 255, 256, 32'767}, {255, 255, 255, 255}, lower), (Values{0, 255, 255, 255}));
    EXPECT_EQ(Both({1, 2, 3, 4}, {0, 0, 0, 0}, [](auto x, auto) { return decltype(x)::All(258); }),
              (Values{258, 258, 258, 258}));
}

TEST(Lanes, AreTheSameInARegisterAsPlain) {
    std::mt19937 random(3);
    for (int i = 0; i < 20'000; ++i) {
        Values a{}, b{}, smallA{}, smallB{};
        for (std::size_t k = 0; k < a.size(); ++k) {
            a[k] = static_cast<std::uint16_t>(random());
            b[k] = static_cast<std::uint16_t>(random());
            smallA[k] = a[k] & 0x7FFF;
            smallB[k] = b[k] & 0x7FFF;
        }
        Both(smallA, smallB, [](auto x, auto y) { return x + y; });
        Both(smallA, smallB, [](auto x, auto y) { return Lower(x, y); });
        Both(a, b, [](auto x, auto y) { return Less(x, y); });
        Both(a, b, [](auto x, auto y) { return HighProduct(x, y); });
        Both(a, b, [i](auto x, auto) { return Halved(x, i % 16); });
    }
}

}  // namespace
}  // namespace coinlet
