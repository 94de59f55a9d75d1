// A picture on another number of pixels than its own: means by area.
#include "surface/fine_picture.h"

#include "support/block_fonts.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace coinlet {
namespace {

constexpr Colour mask = RGB(0, 255, 0);

/// Grey pixels, row by row.
Image Grey(int width, const std::vector<int>& levels) {
    Bitmap picture(width, static_cast<int>(levels.size()) / width);
    for (std::size_t i = 0; i < levels.size(); ++i)
        picture.Pixels()[i] = ToPixel(RGB(levels[i], levels[i], levels[i]));
    return Image(std::move(picture));
}

struct FinePicture : testing::Test {
    int LevelAt(int x, int y) const { return Red(target.Point(x, y)); }

    test::BlockFonts fonts;
    Surface target{fonts, 8, 6};
};

TEST_F(FinePicture, OfTheSameSizeIsCopied) {
    PaintFinely(target, {1, 2, 4, 4}, Grey(3, {10, 20, 30, 40, 50, 60}), {0, 0, 3, 2}, {});
    for (int x = 0; x < 3; ++x) {
        EXPECT_EQ(LevelAt(1 + x, 2), 10 + 10 * x);
        EXPECT_EQ(LevelAt(1 + x, 3), 40 + 10 * x);
    }
    EXPECT_EQ(LevelAt(0, 2), 255);
    EXPECT_EQ(LevelAt(4, 3), 255);
    EXPECT_EQ(LevelAt(1, 1), 255);
    EXPECT_EQ(LevelAt(1, 4), 255);
}

TEST_F(FinePicture, EnlargedByAWholeNumberShowsBlocks) {
    PaintFinely(target, {0, 0, 6, 3}, Grey(2, {10, 200}), {0, 0, 2, 1}, {});
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 6; ++x)
            EXPECT_EQ(LevelAt(x, y), x < 3 ? 10 : 200);
}

TEST_F(FinePicture, MadeSmallerTakesMeans) {
    PaintFinely(target, {0, 0, 2, 1}, Grey(4, {10, 20, 101, 101, 30, 40, 100, 100}), {0, 0, 4, 2}, {});
    EXPECT_EQ(LevelAt(0, 0), 25);
    EXPECT_EQ(LevelAt(1, 0), 101) << "100.5, rounded up";
}

// Three source pixels on two: the middle one is shared.
TEST_F(FinePicture, WeighsByArea) {
    PaintFinely(target, {0, 0, 2, 1}, Grey(3, {30, 60, 120}), {0, 0, 3, 1}, {});
    EXPECT_EQ(LevelAt(0, 0), 40);   // (2 * 30 + 60) / 3
    EXPECT_EQ(LevelAt(1, 0), 100);  // (60 + 2 * 120) / 3
    // Two on three: the middle target pixel has half of each.
    PaintFinely(target, {0, 1, 3, 2}, Grey(2, {30, 60}), {0, 0, 2, 1}, {});
    EXPECT_EQ(LevelAt(0, 1), 30);
    EXPECT_EQ(LevelAt(1, 1), 45);
    EXPECT_EQ(LevelAt(2, 1), 60);
}

TEST_F(FinePicture, ShowsWhatLiesBelowWhereItIsMasked) {
    Bitmap picture(4, 1);
    for (int x = 0; x < 4; ++x)
        picture.Row(0)[x] = ToPixel(x == 3 ? RGB(0, 0, 0) : mask);
    target.SetBackColor(RGB(200, 100, 50));
    PaintFinely(target, {0, 0, 2, 1}, Image(std::move(picture)), {0, 0, 4, 1}, mask);
    EXPECT_EQ(target.Point(0, 0), RGB(200, 100, 50));
    EXPECT_EQ(target.Point(1, 0), RGB(100, 50, 25));
}

TEST_F(FinePicture, WithoutAMaskItsColourIsAColour) {
    Bitmap picture(1, 1, ToPixel(mask));
    PaintFinely(target, {0, 0, 1, 1}, Image(std::move(picture)), {0, 0, 1, 1}, {});
    EXPECT_EQ(target.Point(0, 0), mask);
}

TEST_F(FinePicture, WhatTheSourceLacksLeavesTheTarget) {
    PaintFinely(target, {0, 0, 4, 1}, Grey(1, {10}), {-1, 0, 3, 1}, {});
    EXPECT_EQ(LevelAt(0, 0), 255);
    EXPECT_EQ(LevelAt(1, 0), 10);
    EXPECT_EQ(LevelAt(2, 0), 255);
}

TEST_F(FinePicture, OutsideTheSurfaceIsPassedOver) {
    PaintFinely(target, {-2, -1, 10, 7}, Grey(1, {10}), {0, 0, 1, 1}, {});
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 8; ++x)
            EXPECT_EQ(LevelAt(x, y), 10);
}

TEST_F(FinePicture, NothingOnNothingDoesNothing) {
    const auto before = target.Revision();
    PaintFinely(target, {0, 0, 0, 5}, Grey(1, {10}), {0, 0, 1, 1}, {});
    PaintFinely(target, {0, 0, 5, 5}, Grey(1, {10}), {0, 0, 1, 0}, {});
    PaintFinely(target, {0, 0, 5, 5}, Image(), {0, 0, 1, 1}, {});
    PaintFinely(target, {20, 20, 25, 25}, Grey(1, {10}), {0, 0, 1, 1}, {});
    EXPECT_EQ(target.Revision(), before);
}

// The picture is one pixel of the thousands that the rectangle has: far less than a level of what lies below.
TEST_F(FinePicture, PassesOverWhatAVastRectangleHasOutsideThePicture) {
    for (const PixelRect& from : {PixelRect{-30000, -30000, 30000, 30000}, {0, 0, 65535, 65535}}) {
        PaintFinely(target, {0, 0, 8, 6}, Grey(1, {0}), from, {});
        for (int y = 0; y < 6; ++y)
            for (int x = 0; x < 8; ++x)
                EXPECT_EQ(LevelAt(x, y), 255);
    }
}

TEST_F(FinePicture, DrawsNothingWithRectanglesLargerThanPictures) {
    constexpr int least = std::numeric_limits<int>::min(), most = std::numeric_limits<int>::max();
    const Image black = Grey(2, {0, 0, 0, 0});
    for (const PixelRect& vast : {PixelRect{least, least, most, most}, {0, 0, 65536, 2}, {0, 0, 2, 65536}}) {
        PaintFinely(target, {0, 0, 8, 6}, black, vast, {});
        PaintFinely(target, vast, black, {0, 0, 2, 2}, {});
        EXPECT_EQ(LevelAt(0, 0), 255);
    }
}

}  // namespace
}  // namespace coinlet
