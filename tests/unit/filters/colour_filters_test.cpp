// Colour filters by figures worked out by hand.

#include "filtered.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <vector>

namespace coinlet {
namespace {

using test::Filtered;
using test::Flat;
using test::Picture;

constexpr int negative = 2, grayscale = 12, brightness = 14, swapColours = 16, contrast = 17, stretch = 28,
              saturation = 30, gamma = 31;

/// What becomes of a picture of one pixel.
Picture Pixel(int blue, int green, int red) {
    return Flat(1, 1, blue, green, red);
}

TEST(Negative, TwiceGivesBackThePicture) {
    const Picture picture = Pixel(0, 100, 255);
    EXPECT_EQ(Filtered(negative, 0, picture), Pixel(255, 155, 0));
    EXPECT_EQ(Filtered(negative, 0, Filtered(negative, 0, picture)), picture);
}

TEST(Grayscale, WeighsAllChannelsTheSameAndCutsOff) {
    EXPECT_EQ(Filtered(grayscale, 0, Pixel(1, 1, 3)), Pixel(1, 1, 1));
    EXPECT_EQ(Filtered(grayscale, 0, Pixel(0, 0, 255)), Pixel(85, 85, 85));
}

TEST(Brightness, DarkMultipliesAndRounds) {
    // 0.96 -> 1, 12.48 -> 12, 244.8 -> 245
    EXPECT_EQ(Filtered(brightness, -4, Pixel(1, 13, 255)), Pixel(1, 12, 245));
    EXPECT_EQ(Filtered(brightness, -4, Pixel(0, 0, 0)), Pixel(0, 0, 0));
}

TEST(Brightness, LightStopsAtWhite) {
    // 104, 255.84
    EXPECT_EQ(Filtered(brightness, 4, Pixel(100, 246, 255)), Pixel(104, 255, 255));
}

TEST(Brightness, HalvesGoToTheEvenNeighbour) {
    // times 0.5: 0.5, 1.5, 2.5
    EXPECT_EQ(Filtered(brightness, -50, Pixel(1, 3, 5)), Pixel(0, 2, 2));
}

TEST(SwapColours, HasFiveOrders) {
    const Picture picture = Pixel(3, 2, 1);
    EXPECT_EQ(Filtered(swapColours, 1, picture), Pixel(2, 1, 3));
    EXPECT_EQ(Filtered(swapColours, 2, picture), Pixel(1, 3, 2));
    EXPECT_EQ(Filtered(swapColours, 3, picture), Pixel(2, 3, 1));
    EXPECT_EQ(Filtered(swapColours, 4, picture), Pixel(1, 2, 3));
    EXPECT_EQ(Filtered(swapColours, 5, picture), Pixel(3, 1, 2));
    EXPECT_EQ(Filtered(swapColours, 6, picture), picture);
    EXPECT_EQ(Filtered(swapColours, 0, picture), picture);
}

TEST(Contrast, LeavesAFlatGray) {
    EXPECT_EQ(Filtered(contrast, 10, Flat(4, 4, 90, 90, 90)), Flat(4, 4, 90, 90, 90));
}

TEST(Contrast, MovesChannelsAwayFromTheMean) {
    // The mean gray is (100 + 110 + 120) / 3 = 110: 100 -> 99, 110 stays, 120 -> 121.
    EXPECT_EQ(Filtered(contrast, 10, Pixel(100, 110, 120)), Pixel(99, 110, 121));
    EXPECT_EQ(Filtered(contrast, -10, Pixel(100, 110, 120)), Pixel(101, 110, 119));
}

TEST(Contrast, SharesWhatAChannelCantHold) {
    // The mean gray is 45. Doubled distances: 0 -> -45, 135 -> 225. Blue gives -22 to each of the others and
    // becomes 0, leaving green -67, which gives -33 to blue and red: blue -33, red 170. Next round blue gives
    // -16: green -16, red 154; green gives -8: blue -8, red 146. Blue gives -4: green -4, red 142; green -2:
    // blue -2, red 140. Blue -1: green -1, red 139; green, -1 / 2 = 0, becomes 0.
    EXPECT_EQ(Filtered(contrast, 100, Pixel(0, 0, 135)), Pixel(0, 0, 139));
}

TEST(Contrast, SpreadsByHalvesAsTheSlowRuleDoes) {
    const auto row = [](const std::vector<test::Trio>& colours) {
        Picture picture(static_cast<int>(colours.size()), 1);
        for (int x = 1; x <= picture.W; ++x) {
            const auto& [blue, green, red] = colours[static_cast<std::size_t>(x - 1)];
            picture(1, x, 1) = static_cast<int>(blue);
            picture(2, x, 1) = static_cast<int>(green);
            picture(3, x, 1) = static_cast<int>(red);
        }
        return picture;
    };
    // The mean gray is (154 + 96) / 2 = 125, and 1.4 (v - 125) + 125 makes 300 of 250, whose 45 beyond 255
    // are shared out as 22 and 22; 107 becomes 99.8, 96 becomes 84.4.
    EXPECT_EQ(Filtered(contrast, 40, row({{250, 107, 107}, {96, 96, 96}})),
              row({{255, 122, 122}, {84, 84, 84}}));
    // The same by a factor that is worked out in another way: (133 + 67) / 2 = 100, 2 v - 100.
    EXPECT_EQ(Filtered(contrast, 100, row({{200, 100, 100}, {67, 67, 67}})),
              row({{255, 122, 122}, {34, 34, 34}}));
    EXPECT_EQ(test::SlowSpread({300, 100, 100}), (test::Trio{255, 122, 122}));
    // With a mean of (16 + 235 + 124) / 3 = 125: -50, -8 and -22 become black, 258, 307 and 272 white.
    EXPECT_EQ(Filtered(contrast, 40, row({{0, 30, 20}, {220, 255, 230}, {124, 124, 124}})),
              row({{0, 0, 0}, {255, 255, 255}, {124, 124, 124}}));
    EXPECT_EQ(test::SlowSpread({-50, -8, -22}), (test::Trio{0, 0, 0}));
    EXPECT_EQ(test::SlowSpread({258, 307, 272}), (test::Trio{255, 255, 255}));
}

TEST(Contrast, TellsThatTheMeanIsTaken) {
    test::NotedPace pace;
    RandomGenerator random;
    Filtered(contrast, 10, Flat(2, 4, 1, 2, 3), random, pace);
    EXPECT_EQ(pace.percents, (std::vector{5, 28, 52, 76, 100}));  // 5 + 95 y / 4
}

TEST(Saturation, LeavesGrayAndMovesColours) {
    EXPECT_EQ(Filtered(saturation, 140, Pixel(70, 70, 70)), Pixel(70, 70, 70));
    // Gray 100: 90 -> 90 - 14, 100, 110 -> 110 + 14.
    EXPECT_EQ(Filtered(saturation, 140, Pixel(90, 100, 110)), Pixel(76, 100, 124));
    EXPECT_EQ(Filtered(saturation, 140, Pixel(0, 100, 200)), Pixel(0, 100, 255));
    EXPECT_EQ(Filtered(saturation, 0, Pixel(1, 20, 200)), Pixel(1, 20, 200));
}

TEST(Stretch, GoesByTheGreens) {
    Picture picture(2, 1);
    const auto paint = [&picture](int x, int blue, int green, int red) {
        picture(1, x, 1) = blue;
        picture(2, x, 1) = green;
        picture(3, x, 1) = red;
    };
    paint(1, 50, 100, 110);
    paint(2, 101, 151, 255);
    const Picture found = Filtered(stretch, 0, picture);
    // (v - 100) * 255 / 51 = 5 (v - 100), what is out of range clamped.
    paint(1, 0, 0, 50);
    paint(2, 5, 255, 255);
    EXPECT_EQ(found, picture);
}

TEST(Stretch, LeavesAPictureOfOneGreen) {
    EXPECT_EQ(Filtered(stretch, 0, Flat(3, 2, 10, 20, 30)), Flat(3, 2, 10, 20, 30));
}

TEST(Stretch, TellsItsProgressInTwoPasses) {
    test::NotedPace pace;
    RandomGenerator random;
    Picture picture = Flat(1, 2, 0, 0, 0);
    picture(2, 1, 2) = 9;
    Filtered(stretch, 0, picture, random, pace);
    EXPECT_EQ(pace.percents, (std::vector{5, 10, 10, 55, 100}));
}

TEST(Gamma, RaisesPartsOf255) {
    // 100 percent changes nothing; 200: the root, 64 / 255 -> 0.50098 * 255 = 127.75; 50: the square.
    EXPECT_EQ(Filtered(gamma, 100, Pixel(0, 64, 255)), Pixel(0, 64, 255));
    EXPECT_EQ(Filtered(gamma, 200, Pixel(0, 64, 255)), Pixel(0, 128, 255));
    EXPECT_EQ(Filtered(gamma, 50, Pixel(0, 51, 255)), Pixel(0, 10, 255));  // 255 / 25 = 10.2
}

TEST(Gamma, OfNothingLeavesThePicture) {
    EXPECT_EQ(Filtered(gamma, 0, Pixel(1, 2, 3)), Pixel(1, 2, 3));
}

}  // namespace
}  // namespace coinlet
