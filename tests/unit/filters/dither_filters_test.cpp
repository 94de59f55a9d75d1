// Filters that leave black and white, and those that throw dice, by figures worked out by hand.

#include "filtered.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

namespace coinlet {
namespace {

using test::Filtered;
using test::Flat;
using test::Picture;

constexpr int defuse = 4, threshold = 18, sharpDither = 19, orderedDither = 20, floydDither = 21,
              burkesDither = 22, stuckiDither = 23, addNoise = 29;

/// A black and white picture as text: '#' black, '.' white, '?' anything else.
std::vector<std::string> Drawn(const Picture& picture) {
    std::vector<std::string> rows;
    for (int y = 1; y <= picture.H; ++y) {
        std::string row;
        for (int x = 1; x <= picture.W; ++x) {
            const int blue = picture(1, x, y);
            const bool gray = blue == picture(2, x, y) && blue == picture(3, x, y);
            row += gray && blue == 0 ? '#' : gray && blue == 255 ? '.' : '?';
        }
        rows.push_back(row);
    }
    return rows;
}
using Rows = std::vector<std::string>;

TEST(Threshold, AsksForAllThreeChannels) {
    Picture picture(4, 1);
    for (int x = 1; x <= 4; ++x)
        picture(1, x, 1) = picture(2, x, 1) = picture(3, x, 1) = 9;
    picture(1, 2, 1) = 30;
    picture(2, 3, 1) = 20;
    picture(3, 4, 1) = 10;
    EXPECT_EQ(Drawn(Filtered(threshold, 0x1E140A, picture)), (Rows{"#..."}));
}

TEST(StuckiDither, OfAFlatPictureStartsWhiteAndScattersBlack) {
    // The mean is 100, so the first pixel is white with an error of -155, of which 8 / 42 go on: -29. Of that
    // two thirds count: 100 - 19 is below the mean.
    EXPECT_EQ(Drawn(Filtered(stuckiDither, 15, Flat(2, 1, 100, 100, 100))), (Rows{".#"}));
}

TEST(StuckiDither, CountsWhatArrivesByItsDamping) {
    // Pixels 100, 100, 98 have the mean 99. The first is white: -155. The second gets -29 and the third
    // -155 * 4 / 42 = -14. With 50: 100 - 5 is black with an error of 95, of which 18 go on; 98 + 0 is black.
    Picture picture = Flat(3, 1, 100, 100, 100);
    for (int c = 1; c <= 3; ++c)
        picture(c, 3, 1) = 98;
    EXPECT_EQ(Drawn(Filtered(stuckiDither, 50, picture)), (Rows{".##"}));
    // With 5 everything counts twice: 100 - 58 = 42 is black, 8 go on; 98 + 2 * (8 - 14) = 86 is black.
    EXPECT_EQ(Drawn(Filtered(stuckiDither, 5, picture)), (Rows{".##"}));
    // With -5 it counts the other way: 158 is white with an error of -97, -18 go on; 98 + 64 is white.
    EXPECT_EQ(Drawn(Filtered(stuckiDither, -5, picture)), (Rows{"..."}));
}

TEST(Halftones, OfWhiteAndOfBlackAreWhite) {
    for (const int number : {sharpDither, floydDither, burkesDither, stuckiDither}) {
        EXPECT_EQ(Drawn(Filtered(number, 15, Flat(3, 2, 255, 255, 255))), (Rows{"...", "..."})) << number;
        EXPECT_EQ(Drawn(Filtered(number, 15, Flat(1, 1, 0, 0, 0))), (Rows{"."})) << number;
    }
    EXPECT_EQ(Drawn(Filtered(orderedDither, 0, Flat(4, 1, 255, 255, 255))), (Rows{"...."}));
}

TEST(ErrorDiffusion, WithADampingOfNothingLeavesThePicture) {
    for (const int number : {floydDither, burkesDither, stuckiDither})
        EXPECT_EQ(Filtered(number, 0, Flat(3, 2, 10, 20, 30)), Flat(3, 2, 10, 20, 30)) << number;
}

TEST(ErrorDiffusion, TellsWhenItsTableAndTheMeanStand) {
    const auto percents = [](int number) {
        test::NotedPace pace;
        RandomGenerator random;
        Filtered(number, 15, Flat(1, 4, 9, 9, 9), random, pace);
        return pace.percents;
    };
    EXPECT_EQ(percents(floydDither), (std::vector{2, 10, 32, 55, 77, 100}));  // 10 + 90 y / 4
    EXPECT_EQ(percents(burkesDither), (std::vector{3, 10, 32, 55, 77, 100}));
    EXPECT_EQ(percents(stuckiDither), (std::vector{3, 10, 32, 55, 77, 100}));
    EXPECT_EQ(percents(sharpDither), (std::vector{5, 28, 52, 76, 100}));  // 5 + 95 y / 4
}

TEST(SharpDither, CarriesOverTheEndOfARow) {
    // 100 at a mean of 100: white, carry -155 / 4 = -38; 62: black, carry 15; 115: white, -35; 65: black.
    EXPECT_EQ(Drawn(Filtered(sharpDither, 0, Flat(2, 2, 100, 100, 100))), (Rows{".#", ".#"}));
}

TEST(OrderedDither, HasAScreenOfFourByFour) {
    // Level 1 is white only where the limit is 1, level 15 black only where it is 16.
    EXPECT_EQ(Drawn(Filtered(orderedDither, 0, Flat(5, 5, 0, 0, 0))),
              (Rows{".###.", "#####", "#####", "#####", ".###."}));
    EXPECT_EQ(Drawn(Filtered(orderedDither, 0, Flat(4, 4, 239, 239, 239))),
              (Rows{"...#", "....", "....", "...."}));
    // Level 8 is white where the limit is at most 8: 1 9 3 11 run down the first column.
    EXPECT_EQ(Drawn(Filtered(orderedDither, 0, Flat(4, 4, 112, 112, 112))),
              (Rows{".#.#", "#.#.", ".#.#", "#.#."}));
}

TEST(Defuse, OnlyMovesColoursThatAreThere) {
    Picture picture(9, 7);
    for (int y = 1; y <= 7; ++y) {
        for (int x = 1; x <= 9; ++x) {
            picture(1, x, y) = x;
            picture(2, x, y) = y;
            picture(3, x, y) = 100;
        }
    }
    const Picture found = Filtered(defuse, 6, picture);
    EXPECT_NE(found, picture);
    for (int y = 1; y <= 7; ++y) {
        for (int x = 1; x <= 9; ++x) {
            EXPECT_TRUE(picture.Contains(found(1, x, y), found(2, x, y)));
            EXPECT_EQ(found(3, x, y), 100);
        }
    }
    EXPECT_EQ(Filtered(defuse, 0, picture), picture);
}

TEST(AddNoise, KeepsTheRangeAndItsStrength) {
    const Picture dark = Filtered(addNoise, 50, Flat(30, 30, 0, 100, 255));
    int lowest = 255, highest = 0;
    for (int y = 1; y <= 30; ++y) {
        for (int x = 1; x <= 30; ++x) {
            EXPECT_LE(dark(1, x, y), 51);
            EXPECT_GE(dark(3, x, y), 205);
            lowest = std::min(lowest, dark(2, x, y));
            highest = std::max(highest, dark(2, x, y));
        }
    }
    // 900 throws of -50 to 51 come near both ends.
    EXPECT_GE(lowest, 50);
    EXPECT_LE(lowest, 55);
    EXPECT_LE(highest, 151);
    EXPECT_GE(highest, 145);
}

}  // namespace
}  // namespace coinlet
