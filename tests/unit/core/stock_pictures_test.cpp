// The pictures that the program carries: there, of the right size, and usable by the buttons that show them.
#include "core/stock_pictures.h"

#include "core/materials.h"
#include "support/block_fonts.h"
#include "surface/fine_picture.h"
#include "surface/surface.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <set>
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

/// Scaled down to the strip's own size on the grey that the strip is blended with, it is the strip: the same
/// drawing, up to what a few points of a curve more or less make of an edge.
TEST_P(ToolIcons, FineOnesShowTheSameDrawing) {
    const Image strip = ToolIconStrip(GetParam()), fine = FineToolIconStrip(GetParam());
    ASSERT_EQ(fine.Width(), 6 * strip.Width());
    ASSERT_EQ(fine.Height(), 6 * strip.Height());
    const test::BlockFonts fonts;
    constexpr int bodies[] = {228, 244, -1};  // The pressed body has no one colour that both were laid on.
    for (const Frame frame : {normal, disabled}) {
        const Colour body = RGB(bodies[frame], bodies[frame], bodies[frame]);
        Surface small(fonts, side, side);
        small.SetBackColor(body);
        PaintFinely(small, {0, 0, side, side}, fine, {frame * 6 * side, 0, (frame + 1) * 6 * side, 6 * side},
                    mask);
        int far = 0;
        double sum = 0;
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                const Colour wanted = strip.At(frame * side + x, y), found = small.Point(x, y);
                const int off = std::abs(Green(wanted == mask ? body : wanted) - Green(found));
                sum += off;
                far += off > 60 ? 1 : 0;
            }
        }
        EXPECT_LE(sum / (side * side), 8) << "frame " << frame;
        EXPECT_LE(far, 6) << "frame " << frame;
    }
}

TEST(FineToolIconStrip, IsEmptyForNoTool) {
    for (const int none : {-1, 16, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_TRUE(FineToolIconStrip(none).Empty()) << none;
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

TEST(PrintPreviews, ShowTwoDifferentSheets) {
    for (const Image& preview : {AllDesignsPicture(), AllClipartsPicture()}) {
        ASSERT_EQ(preview.Width(), 140);
        ASSERT_EQ(preview.Height(), 140);
        EXPECT_GT(Green(preview.At(60, 9)), 245) << "the head of the sheet";
        EXPECT_EQ(preview.At(2, 2), RGB(220, 220, 190)) << "the dialog's own colour around it";
    }
    EXPECT_FALSE(AllDesignsPicture() == AllClipartsPicture());
}

bool IsDark(Colour c) {
    return Red(c) < 110 && Green(c) < 110 && Blue(c) < 110;
}

/// Metal is never so light that it could be taken for the white around it.
bool IsMetal(Colour c) {
    return Red(c) < 235 || Green(c) < 235 || Blue(c) < 235;
}

class Metals : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(All, Metals, testing::Range(0, 4));

/// How many pixels between a pixel and the middle of its cell, where the hole tool aims.
double FromTheMiddle(int x, int y) {
    constexpr double middle = 49.5;  // the disc reaches as far to the left as to the right
    return std::hypot(x - middle, y - middle);
}

void ExpectARingOfMetal(const Image& rings, int metal) {
    ASSERT_EQ(rings.Width(), 400);
    ASSERT_EQ(rings.Height(), 100);
    const int left = materials[static_cast<std::size_t>(metal)].holeColumn;
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 100; ++x) {
            const double distance = FromTheMiddle(x, y);
            const Colour colour = rings.At(left + x, y);
            if (distance < 26 || distance > 45) {
                EXPECT_EQ(colour, white) << x << ", " << y;
            } else if (distance > 30 && distance < 43) {
                EXPECT_TRUE(IsMetal(colour)) << x << ", " << y;
            } else {
                EXPECT_TRUE(colour == white || IsMetal(colour)) << x << ", " << y;
            }
        }
    }
    for (const int edge : {6, 93})
        EXPECT_TRUE(IsDark(rings.At(left + edge, 50))) << "the outline that bounds it from the design";
}

TEST_P(Metals, HaveAHoleRingThatFitsTheClearedDisc) {
    ExpectARingOfMetal(HoleRings(), GetParam());
}

TEST_P(Metals, HaveAHoleRingForBordersInFewTones) {
    ExpectARingOfMetal(BorderHoleRings(), GetParam());
    const int left = materials[static_cast<std::size_t>(GetParam())].holeColumn;
    std::set<Colour> tones;
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 100; ++x)
            tones.insert(BorderHoleRings().At(left + x, y));
    }
    EXPECT_GE(tones.size(), 4U) << "white, an outline, a body and a gleam";
    EXPECT_LE(tones.size(), 8U);
}

/// The hole tool wipes a disc and stamps the ring onto it by AND. What is wiped beside the ring would stay
/// white in a coloured design.
TEST_P(Metals, HaveAHoleRingWithNothingWipedBesideIt) {
    const test::BlockFonts fonts;
    constexpr int cell = 100;
    Surface design(fonts, cell, cell);
    design.SetBackColor(RGB(255, 252, 13));
    constexpr int pen = 2, discRadius = 43;
    constexpr double middle = cell / 2.0;
    design.DrawWidth = pen;
    for (int radius = 1; radius <= discRadius; ++radius)
        design.Circle(middle, middle, radius, white);
    const Image rings = HoleRings();
    const int left = materials[static_cast<std::size_t>(GetParam())].holeColumn;
    int covered = 0;
    for (int y = 0; y < cell; ++y) {
        for (int x = 0; x < cell; ++x) {
            const bool isWiped = design.Point(x, y) == white, isMetal = rings.At(left + x, y) != white;
            covered += isWiped && isMetal ? 1 : 0;
            const bool isOutside = FromTheMiddle(x, y) > 30;
            if (isOutside) {
                EXPECT_TRUE(!isWiped || isMetal) << "white beside the ring: " << x << ", " << y;
            }
            // The metal that shows over the design has to lie close to the disc.
            if (!isWiped) {
                EXPECT_TRUE(!isMetal || FromTheMiddle(x, y) < 45)
                    << "metal over the design: " << x << ", " << y;
            }
        }
    }
    EXPECT_GT(covered, 2000);
}

TEST_P(Metals, HaveABlankTagOnWhite) {
    const Image tag = BlankTag(GetParam());
    ASSERT_EQ(tag.Width(), 100);
    ASSERT_EQ(tag.Height(), 100);
    for (const int x : {0, 99}) {
        for (const int y : {0, 99})
            EXPECT_EQ(tag.At(x, y), white);
    }
    for (int x = 10; x <= 90; ++x)
        EXPECT_TRUE(IsMetal(tag.At(x, 50))) << x;
}

/// Red before green before blue in copper and gold, and gold is the greener; the others are grey.
TEST(BlankTag, HasTheHueOfItsMetal) {
    constexpr int nickel = 0, copper = 1, silver = 2, gold = 3;
    const auto middle = [](int metal) { return BlankTag(metal).At(65, 50); };
    for (const int warm : {copper, gold}) {
        EXPECT_GT(Red(middle(warm)), Green(middle(warm)) + 30);
        EXPECT_GT(Green(middle(warm)), Blue(middle(warm)) + 30);
    }
    EXPECT_GT(Green(middle(gold)), Green(middle(copper)) + 30);
    for (const int grey : {nickel, silver})
        EXPECT_LT(std::abs(Red(middle(grey)) - Blue(middle(grey))), 30);
    EXPECT_GT(Red(middle(silver)), Red(middle(nickel)) + 50);
}

TEST(BlankTag, IsEmptyForNoMetal) {
    for (const int none : {-1, 4, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_TRUE(BlankTag(none).Empty()) << none;
}

}  // namespace
}  // namespace coinlet
