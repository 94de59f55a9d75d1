// The pictures that the program carries: there, of the right size, and usable by the buttons that show them.
#include "core/stock_pictures.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace coinlet {
namespace {

constexpr int side = 14;
constexpr Colour mask = RGB(0, 255, 0);
enum Frame : std::uint8_t { normal, disabled, pressed };

/// The pixels of one frame, row by row.
std::vector<Colour> FrameOf(const Image& strip, Frame frame) {
    std::vector<Colour> pixels;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            pixels.push_back(strip.At(frame * side + x, y));
    }
    return pixels;
}

bool IsGrey(Colour colour) {
    return Red(colour) == Green(colour) && Green(colour) == Blue(colour);
}

class ToolIcons : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(All, ToolIcons, testing::Range(0, 16));

TEST_P(ToolIcons, HaveThreeFramesOf14By14) {
    const Image strip = ToolIconStrip(GetParam());
    EXPECT_EQ(strip.Width(), 3 * side);
    EXPECT_EQ(strip.Height(), side);
}

TEST_P(ToolIcons, LeaveRoomAroundTheSameDrawingInEveryFrame) {
    const Image strip = ToolIconStrip(GetParam());
    const auto outline = FrameOf(strip, normal);
    // Something of the button shows through, and not all of it.
    const auto around = std::count(outline.begin(), outline.end(), mask);
    EXPECT_GT(around, 0);
    EXPECT_LT(around, side * side * 3 / 4);
    for (const Frame frame : {disabled, pressed}) {
        const auto pixels = FrameOf(strip, frame);
        for (std::size_t i = 0; i < pixels.size(); ++i)
            EXPECT_EQ(pixels[i] == mask, outline[i] == mask) << "frame " << frame << ", pixel " << i;
    }
}

TEST_P(ToolIcons, HaveADarkOutlineAndTheAccentColour) {
    const auto pixels = FrameOf(ToolIconStrip(GetParam()), normal);
    const auto isOutline = [](Colour c) { return Red(c) < 80 && Green(c) < 80 && Blue(c) < 100; };
    const auto isAccent = [](Colour c) { return Red(c) > 200 && Green(c) > 170 && Blue(c) < 80; };
    EXPECT_GE(std::count_if(pixels.begin(), pixels.end(), isOutline), 14);
    EXPECT_GE(std::count_if(pixels.begin(), pixels.end(), isAccent), 4);
}

TEST_P(ToolIcons, AreGreyAndPaleWhenDisabled) {
    for (const Colour colour : FrameOf(ToolIconStrip(GetParam()), disabled)) {
        if (colour == mask) continue;
        EXPECT_TRUE(IsGrey(colour)) << colour;
        EXPECT_GE(Red(colour), 131) << "darker than the caption of a disabled button";
    }
}

TEST_P(ToolIcons, LookDifferentInEveryFrame) {
    const Image strip = ToolIconStrip(GetParam());
    EXPECT_NE(FrameOf(strip, normal), FrameOf(strip, disabled));
    EXPECT_NE(FrameOf(strip, normal), FrameOf(strip, pressed));
}

TEST_P(ToolIcons, AreLikeNoOther) {
    for (int other = 0; other < GetParam(); ++other)
        EXPECT_FALSE(ToolIconStrip(other) == ToolIconStrip(GetParam())) << other;
}

TEST(ToolIconStrip, IsMaskedInTheCornersOfRoundDrawings) {
    constexpr int holes = 14, about = 15;
    for (const int tool : {holes, about}) {
        const Image strip = ToolIconStrip(tool);
        for (const int x : {0, 13, 14, 27, 28, 41}) {
            for (const int y : {0, 13})
                EXPECT_EQ(strip.At(x, y), mask) << tool << ": " << x << ", " << y;
        }
    }
}

TEST(ToolIconStrip, ShowsTheButtonThroughTheHoleOfHoles) {
    constexpr int holes = 14;
    const Image strip = ToolIconStrip(holes);
    EXPECT_EQ(strip.At(6, 4), mask);
    EXPECT_EQ(strip.At(7, 5), mask);
    EXPECT_NE(strip.At(7, 10), mask);
}

TEST(ToolIconStrip, IsEmptyForNoTool) {
    for (const int none : {-1, 16, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_TRUE(ToolIconStrip(none).Empty()) << none;
}

TEST(StartPicture, IsADrawingOnWhite) {
    const Image picture = StartPicture();
    ASSERT_EQ(picture.Width(), 175);
    ASSERT_EQ(picture.Height(), 175);
    for (const int x : {0, 174}) {
        for (const int y : {0, 174})
            EXPECT_EQ(picture.At(x, y), white);
    }
    // The sun, about the middle, has the default fill colour or nearly so.
    constexpr Colour accent = RGB(255, 252, 13);
    const auto isNear = [](int a, int b) { return std::abs(a - b) <= 10; };
    bool sun = false;
    for (int y = 80; y < 120; ++y) {
        for (int x = 70; x < 110; ++x) {
            const Colour c = picture.At(x, y);
            sun = sun || (isNear(Red(c), Red(accent)) && isNear(Green(c), Green(accent)) &&
                          isNear(Blue(c), Blue(accent)));
        }
    }
    EXPECT_TRUE(sun);
}

}  // namespace
}  // namespace coinlet
