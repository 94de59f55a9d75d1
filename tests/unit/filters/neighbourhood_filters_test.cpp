// Convolutions, edge finders and blocks by figures worked out by hand.

#include "filtered.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace coinlet {
namespace {

using test::Filtered;
using test::Flat;
using test::NotedPace;
using test::Picture;

constexpr int sharpen = 1, negative = 2, blur = 3, smooth = 5, edge = 6, contour = 7, diagonalBack = 8,
              gradientBack = 9, diagonalForward = 10, gradientForward = 11, relief = 13, pixelize = 15,
              aquarel = 24, dilate = 25, erode = 26, connection = 27;
constexpr int white = 0xFFFFFF;

/// A gray picture from its rows.
Picture Gray(const std::vector<std::vector<int>>& rows) {
    Picture picture(static_cast<int>(rows.front().size()), static_cast<int>(rows.size()));
    for (int y = 1; y <= picture.H; ++y) {
        for (int x = 1; x <= picture.W; ++x) {
            for (int c = 1; c <= 3; ++c)
                picture(c, x, y) = rows[static_cast<std::size_t>(y - 1)][static_cast<std::size_t>(x - 1)];
        }
    }
    return picture;
}

class FlatPictures : public testing::TestWithParam<std::pair<int, int>> {};
INSTANTIATE_TEST_SUITE_P(Filters, FlatPictures,
                         testing::Values(std::pair{sharpen, 10}, std::pair{blur, 0}, std::pair{smooth, 0},
                                         std::pair{edge, 1}, std::pair{pixelize, 3}, std::pair{erode, 0},
                                         std::pair{dilate, 0}, std::pair{aquarel, 0}));

TEST_P(FlatPictures, StayTheSame) {
    const auto [number, parameter] = GetParam();
    const Picture flat = Flat(7, 8, 0, 111, 255);
    EXPECT_EQ(Filtered(number, parameter, flat), flat);
}

TEST(Connection, TurnsAFlatPictureBlackButForTheBorder) {
    EXPECT_EQ(Filtered(connection, 0, Gray({{9, 9, 9, 9}, {9, 9, 9, 9}, {9, 9, 9, 9}})),
              Gray({{9, 9, 9, 9}, {9, 0, 0, 9}, {9, 9, 9, 9}}));
}

TEST(Relief, HalvesAFlatPictureAndAdds50) {
    // 31 / 2 = 15, cut off
    EXPECT_EQ(Filtered(relief, 0, Gray({{31, 31, 31}, {31, 31, 31}, {31, 31, 31}})),
              Gray({{31, 31, 31}, {31, 65, 31}, {31, 31, 31}}));
}

TEST(Relief, CutsOffTowardsZero) {
    // E = 2 * 0 + 0 + 0 - 0 - 0 - 2 * 8 = -16; (1 - 16) / 2 = -7; -7 + 50
    EXPECT_EQ(Filtered(relief, 0, Gray({{0, 0, 0}, {0, 1, 0}, {0, 0, 8}})),
              Gray({{0, 0, 0}, {0, 43, 0}, {0, 0, 8}}));
}

TEST(Sharpen, WeighsTheCentre34AndTheRing2Over18) {
    // (34 * 100 - 2 * 8 * 90) / 18 = 1960 / 18 = 108.9
    EXPECT_EQ(Filtered(sharpen, 10, Gray({{90, 90, 90}, {90, 100, 90}, {90, 90, 90}})),
              Gray({{90, 90, 90}, {90, 108, 90}, {90, 90, 90}}));
}

TEST(Edge, WeighsTheCentre10AndTheRing1Over2) {
    // (10 * 100 - 8 * 95 - 1) / 2 = 119.5
    EXPECT_EQ(Filtered(edge, 1, Gray({{95, 95, 95}, {95, 100, 95}, {95, 95, 96}})),
              Gray({{95, 95, 95}, {95, 119, 95}, {95, 95, 96}}));
}

TEST(DivisorsOfZero, LeaveThePicture) {
    const Picture picture = Gray({{1, 2, 3}, {4, 200, 6}, {7, 8, 9}});
    EXPECT_EQ(Filtered(sharpen, -8, picture), picture);
    EXPECT_EQ(Filtered(edge, -1, picture), picture);
    EXPECT_EQ(Filtered(pixelize, 0, picture), picture);
    EXPECT_EQ(Filtered(pixelize, -3, picture), picture);
}

TEST(Blur, LeavesTheCentreOutAndRunsOnToTheLowerRight) {
    // The bright one is the first to be written, and becomes 0 before anybody has read it.
    EXPECT_EQ(Filtered(blur, 0, Gray({{0, 0, 0, 0}, {0, 80, 0, 0}, {0, 0, 0, 0}, {0, 0, 0, 0}})),
              Gray({{0, 0, 0, 0}, {0, 0, 0, 0}, {0, 0, 0, 0}, {0, 0, 0, 0}}));
    // Above left of the bright pixel comes first: 10. Right of that: (10 + 80) / 8 = 11; below the first:
    // (10 + 11 + 80) / 8 = 12; the bright one itself: (10 + 11 + 12) / 8 = 4.
    EXPECT_EQ(Filtered(blur, 0, Gray({{0, 0, 0, 0}, {0, 0, 0, 0}, {0, 0, 80, 0}, {0, 0, 0, 0}})),
              Gray({{0, 0, 0, 0}, {0, 10, 11, 0}, {0, 12, 4, 0}, {0, 0, 0, 0}}));
}

TEST(Smooth, CountsTheCrossInPlace) {
    // (100 + 4) / 5 = 20, then (20 + 0) / 5 = 4
    EXPECT_EQ(Filtered(smooth, 0, Gray({{9, 4, 0, 9}, {0, 100, 0, 0}, {9, 0, 0, 9}})),
              Gray({{9, 4, 0, 9}, {0, 20, 4, 0}, {9, 0, 0, 9}}));
}

TEST(Contour, DrawsDarkLinesOnWhite) {
    // 8 * 100 - 8 * 110 + 255 = 175; 8 * 120 - 8 * 110 + 255 is above 255.
    EXPECT_EQ(Filtered(contour, white, Gray({{110, 110, 110}, {110, 100, 110}, {110, 110, 110}})),
              Gray({{110, 110, 110}, {110, 175, 110}, {110, 110, 110}}));
    EXPECT_EQ(Filtered(contour, white, Gray({{110, 110, 110}, {110, 120, 110}, {110, 110, 110}})),
              Gray({{110, 110, 110}, {110, 255, 110}, {110, 110, 110}}));
}

TEST(Contour, AddsTheChannelsOfItsColour) {
    Picture expected = Flat(3, 3, 5, 5, 5);
    expected(1, 2, 2) = 0x30;
    expected(2, 2, 2) = 0x20;
    expected(3, 2, 2) = 0x10;
    EXPECT_EQ(Filtered(contour, 0x302010, Flat(3, 3, 5, 5, 5)), expected);
}

TEST(Diagonals, ChangeTheFirstRowAndColumnButNotTheLast) {
    const Picture picture = Gray({{10, 20}, {30, 50}});
    EXPECT_EQ(Filtered(diagonalBack, 0, picture), Gray({{40, 20}, {30, 50}}));
    EXPECT_EQ(Filtered(diagonalForward, 0, picture), Gray({{40, 20}, {30, 50}}));
    // On a ground of 100 the two differ by their sign.
    EXPECT_EQ(Filtered(diagonalBack, 0x646464, picture), Gray({{60, 20}, {30, 50}}));
    EXPECT_EQ(Filtered(diagonalForward, 0x646464, picture), Gray({{140, 20}, {30, 50}}));
}

TEST(Gradients, TakeLeftFromRightOverThreeRows) {
    const Picture picture = Gray({{1, 0, 10}, {2, 0, 20}, {3, 0, 30}});
    EXPECT_EQ(Filtered(gradientForward, 0, picture), Gray({{1, 0, 10}, {2, 54, 20}, {3, 0, 30}}));
    EXPECT_EQ(Filtered(gradientBack, 0, picture), picture);  // -54 is clamped to 0
    EXPECT_EQ(Filtered(gradientBack, 0x646464, picture), Gray({{1, 0, 10}, {2, 46, 20}, {3, 0, 30}}));
}

TEST(Pixelize, OfOneGivesBackThePicture) {
    const Picture picture = Gray({{1, 2, 3}, {4, 5, 6}});
    EXPECT_EQ(Filtered(pixelize, 1, picture), picture);
}

TEST(Pixelize, AveragesWhatLiesInThePicture) {
    // Blocks of 3: the second holds 2 columns of 2 rows. (1 + 2 + 3 + 7 + 8 + 9) / 6 = 5;
    // (4 + 6 + 10 + 13) / 4 = 8.25
    EXPECT_EQ(Filtered(pixelize, 3, Gray({{1, 2, 3, 4, 6}, {7, 8, 9, 10, 13}})),
              Gray({{5, 5, 5, 8, 8}, {5, 5, 5, 8, 8}}));
}

TEST(Pixelize, TakesBlocksLargerThanThePicture) {
    EXPECT_EQ(Filtered(pixelize, 0x7FFFFFFF, Gray({{1, 2}, {3, 7}})), Gray({{3, 3}, {3, 3}}));
}

TEST(Extremes, TakeEachChannelByItself) {
    Picture picture = Flat(3, 3, 100, 100, 100);
    picture(1, 1, 1) = 7;
    picture(2, 3, 3) = 200;
    Picture eroded = picture, dilated = picture, connected = picture;
    eroded(1, 2, 2) = 7;
    dilated(2, 2, 2) = 200;
    connected(1, 2, 2) = 93;
    connected(2, 2, 2) = connected(3, 2, 2) = 0;
    EXPECT_EQ(Filtered(erode, 0, picture), eroded);
    EXPECT_EQ(Filtered(dilate, 0, picture), dilated);
    EXPECT_EQ(Filtered(connection, 0, picture), connected);
}

TEST(Aquarel, TakesTheCalmestBlockAndOfEqualsTheFirst) {
    // The block at the lower right is flat, the others hold the step.
    EXPECT_EQ(Filtered(aquarel, 0,
                       Gray({{90, 0, 90, 0, 90},
                             {0, 90, 0, 90, 0},
                             {90, 0, 50, 50, 50},
                             {0, 90, 50, 50, 50},
                             {90, 0, 50, 50, 50}}))(1, 3, 3),
              50);
    // Of nine values three of 255 have a mean of 85, six one of 170, and both have a spread of 3 * 170 + 6 *
    // 85 = 1020. The upper left block holds three, the others six; and the other way round.
    constexpr int W = 255;
    const Picture threeFirst =
        Gray({{W, 0, W, W, W}, {0, 0, 0, W, 0}, {W, 0, 0, W, W}, {W, W, W, W, W}, {W, 0, W, 0, 0}});
    EXPECT_EQ(Filtered(aquarel, 0, threeFirst)(1, 3, 3), 85);
    EXPECT_EQ(Filtered(aquarel, 0, Filtered(negative, 0, threeFirst))(1, 3, 3), 170);
    // Upper left and lower right hold four, whose spread is 4 * 142 + 5 * 113 = 1133; the upper right block
    // holds three and the lower left one, which is looked at after it, six.
    const Picture threeSecond =
        Gray({{W, 0, W, W, 0}, {0, 0, 0, 0, 0}, {W, W, 0, W, 0}, {W, W, W, W, 0}, {0, 0, W, 0, 0}});
    EXPECT_EQ(Filtered(aquarel, 0, threeSecond)(1, 3, 3), 85);
}

TEST(Aquarel, WalksTheRowsOfNarrowPicturesToo) {
    for (const int width : {0, 1, 2, 3, 4, 5}) {
        const Picture picture = Flat(width, 7, 10, 20, 30);
        RandomGenerator random;
        NotedPace pace;
        EXPECT_EQ(Filtered(aquarel, 0, picture, random, pace), picture);
        // Rows 3 to 5 of seven, in the percentage y * 100 / H.
        EXPECT_EQ(pace.percents, (std::vector<int>{42, 57, 71})) << width;
        EXPECT_EQ(pace.rows, (std::vector<std::pair<int, int>>{{3, 6}, {4, 6}, {5, 6}})) << width;
    }
    RandomGenerator random;
    NotedPace pace;
    Filtered(aquarel, 0, Flat(7, 4, 10, 20, 30), random, pace);
    EXPECT_TRUE(pace.rows.empty());
}

TEST(Aquarel, LeavesABorderOfTwo) {
    const Picture picture = Gray({{1, 2, 3, 4, 5}, {6, 7, 8, 9, 1}, {2, 3, 4, 5, 6}, {7, 8, 9, 1, 2}});
    EXPECT_EQ(Filtered(aquarel, 0, picture), picture);
}

}  // namespace
}  // namespace coinlet
