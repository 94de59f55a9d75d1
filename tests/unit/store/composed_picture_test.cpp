// The picture that a design is stored as, area by area.
#include "store/composed_picture.h"

#include "support/block_fonts.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

constexpr Colour ground = RGB(10, 20, 30), rule = RGB(190, 190, 190);

Image Pattern(int width, int height, std::uint32_t seed) {
    Bitmap bitmap(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            bitmap.Row(y)[x] = ToPixel(RGB(x % 251, y % 241, static_cast<int>(seed)));
    return Image(std::move(bitmap));
}

TEST(ComposePicture, PutsEveryAreaInItsPlace) {
    const test::BlockFonts fonts;
    const Image canvas = Pattern(500, 500, 1), panel = Pattern(178, 500, 2);
    Surface target(fonts, 700, 500);
    target.SetBackColor(ground);
    ComposePicture(canvas, panel, target);
    const Image picture = target.Image();
    const auto expected = [&](int x, int y) {
        if (x < 500) return canvas.At(x, y);
        if (x == 500 || y == 330) return rule;
        return x >= 510 && x < 688 ? panel.At(x - 510, y) : ground;
    };
    for (int y = 0; y < 500; ++y)
        for (int x = 0; x < 700; ++x)
            ASSERT_EQ(picture.At(x, y), expected(x, y)) << x << " " << y;
}

TEST(ComposePicture, DrawsOverTheCanvasAndThePanelWhereTheyAreTooLarge) {
    const test::BlockFonts fonts;
    const Image canvas = Pattern(700, 500, 1), panel = Pattern(190, 500, 2);
    Surface target(fonts, 700, 500);
    ComposePicture(canvas, panel, target);
    EXPECT_EQ(target.Point(500, 10), rule);
    EXPECT_EQ(target.Point(505, 10), canvas.At(505, 10));
    EXPECT_EQ(target.Point(510, 10), panel.At(0, 10));
    EXPECT_EQ(target.Point(699, 330), rule);
    EXPECT_EQ(target.Point(499, 330), canvas.At(499, 330));
}

TEST(TakeSidePanel, GivesThePanelThatWasComposed) {
    const test::BlockFonts fonts;
    const Image panel = Pattern(178, 500, 2);
    Surface design(fonts, 700, 500), taken(fonts, 178, 500);
    ComposePicture(Pattern(500, 500, 1), panel, design);
    TakeSidePanel(design.Image(), taken);
    for (int y = 0; y < 500; ++y)
        for (int x = 0; x < 178; ++x)
            ASSERT_EQ(taken.Point(x, y), y == 330 ? rule : panel.At(x, y)) << x << " " << y;
}

TEST(TakeSidePanel, StretchesThatOfALowerPictureAndLeavesWhatANarrowOneLacks) {
    const test::BlockFonts fonts;
    Surface taken(fonts, 178, 500);
    taken.SetBackColor(ground);
    const Image narrow = Pattern(600, 250, 1);
    TakeSidePanel(narrow, taken);
    EXPECT_EQ(taken.Point(0, 0), narrow.At(510, 0));
    EXPECT_EQ(taken.Point(89, 499), narrow.At(599, 249));
    EXPECT_EQ(taken.Point(90, 499), ground);
}

}  // namespace
}  // namespace coinlet
