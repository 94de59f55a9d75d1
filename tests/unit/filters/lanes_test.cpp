// The lanes of a register against plain ones, on every kind of value.

#include "filters/lanes.h"

#include <array>
#include <gtest/gtest.h>
#include <random>

namespace coinlet {
namespace {

using Values = std::array<std::uint16_t, std::size_t{2} * pixelBytes>;

template <class SomeLanes>
SomeLanes Loaded(const Values& values) {
    return SomeLanes::Load(values.data(), values.data() + pixelBytes);
}

template <class SomeLanes, class Operation>
Values Result(const Values& a, const Values& b, Operation operation) {
    Values result{};
    operation(Loaded<SomeLanes>(a), Loaded<SomeLanes>(b)).Store(result.data(), result.data() + pixelBytes);
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
    const Values a{0, 5, 300, 65'535, 7, 8, 9, 60'000}, b{0, 7, 299, 65'534, 7, 9, 8, 1};
    const auto add = [](auto x, auto y) { return x + y; };
    const auto less = [](auto x, auto y) { return Less(x, y); };
    EXPECT_EQ(Both(a, {1, 2, 3, 0, 4, 5, 6, 5'535}, add), (Values{1, 7, 303, 65'535, 11, 13, 15, 65'535}));
    EXPECT_EQ(Both(a, b, less), (Values{0, 0, 1, 1, 0, 0, 1, 59'999}));
}

TEST(Lanes, DivideByHalvingAndByTheUpperHalfOfProducts) {
    const Values a{0, 9, 1'275, 65'535, 1, 8, 16, 32'768};
    EXPECT_EQ(Both(a, a, [](auto x, auto) { return Halved(x, 0); }), a);
    EXPECT_EQ(Both(a, a, [](auto x, auto) { return Halved(x, 3); }),
              (Values{0, 1, 159, 8'191, 0, 1, 2, 4'096}));
    EXPECT_EQ(Both(a, {1, 0x8000, 0x8000, 0xFFFF, 0xFFFF, 0x2000, 0x1000, 2},
                   [](auto x, auto y) { return HighProduct(x, y); }),
              (Values{0, 4, 637, 65'534, 0, 1, 1, 1}));
}

TEST(Lanes, GiveTheLowerOne) {
    const auto lower = [](auto x, auto y) { return Lower(x, y); };
    EXPECT_EQ(Both({0, 255, 256, 32'767, 3, 4, 5, 6}, {255, 255, 255, 255, 5, 4, 3, 2}, lower),
              (Values{0, 255, 255, 255, 3, 4, 3, 2}));
    EXPECT_EQ(Both({1, 2, 3, 4, 5, 6, 7, 8}, {}, [](auto x, auto) { return decltype(x)::All(258); }),
              (Values{258, 258, 258, 258, 258, 258, 258, 258}));
}

TEST(Lanes, PutPixelsOfTwoTogether) {
    const Values a{1, 2, 3, 4, 5, 6, 7, 8}, b{11, 12, 13, 14, 15, 16, 17, 18};
    EXPECT_EQ(Both(a, b, [](auto x, auto y) { return Firsts(x, y); }), (Values{1, 2, 3, 4, 11, 12, 13, 14}));
    EXPECT_EQ(Both(a, b, [](auto x, auto y) { return SecondAndFirst(x, y); }),
              (Values{5, 6, 7, 8, 11, 12, 13, 14}));
}

template <class SomeLanes>
void LoadAndStoreOnePixel() {
    const Values from{1, 2, 3, 4, 5, 6, 7, 8};
    const SomeLanes lanes = SomeLanes::Load(from.data() + 2);
    Values whole{}, one{};
    lanes.Store(whole.data(), whole.data() + pixelBytes);
    EXPECT_EQ(whole, (Values{3, 4, 5, 6, 0, 0, 0, 0}));
    one.fill(9);
    lanes.Store(one.data() + 1);
    EXPECT_EQ(one, (Values{9, 3, 4, 5, 6, 9, 9, 9}));
}

TEST(Lanes, LoadAndStoreOnePixelAlone) {
    LoadAndStoreOnePixel<Lanes>();
    LoadAndStoreOnePixel<PlainLanes>();
}

TEST(Lanes, StoreThePixelsApart) {
    const Values from{1, 2, 3, 4, 5, 6, 7, 8};
    Values swapped{};
    Loaded<Lanes>(from).Store(swapped.data() + pixelBytes, swapped.data());
    EXPECT_EQ(swapped, (Values{5, 6, 7, 8, 1, 2, 3, 4}));
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
        Both(a, b, [](auto x, auto y) { return Firsts(x, y); });
        Both(a, b, [](auto x, auto y) { return SecondAndFirst(x, y); });
        Both(a, b, [](auto x, auto y) { return HighProduct(x, y); });
        Both(a, b, [i](auto x, auto) { return Halved(x, i % 16); });
    }
}

}  // namespace
}  // namespace coinlet
