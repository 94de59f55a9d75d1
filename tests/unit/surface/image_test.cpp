// Bitmaps and the immutable pictures made of them.

#include "surface/image.h"

#include "support/picture_grid.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

using test::Grid;
using test::GridOf;
using test::PictureOf;

TEST(Bitmap, ARefusedSizeGivesTheEmptyBitmap) {
    for (const auto& [width, height] : {std::pair{-1, 5}, {5, -1}, {maximumSide + 1, 1}, {16384, 16384}}) {
        const Bitmap bitmap(width, height);
        EXPECT_EQ(bitmap.Width(), 0);
        EXPECT_EQ(bitmap.Height(), 0);
        EXPECT_TRUE(bitmap.Pixels().empty());
    }
}

TEST(Bitmap, ACloneHasPixelsOfItsOwn) {
    Bitmap bitmap(2, 1, ToPixel(white));
    const Bitmap copy = bitmap.Clone();
    bitmap.Row(0)[1] = ToPixel(black);
    EXPECT_EQ(GridOf(Image(copy.Clone())), Grid({".."}));
    EXPECT_EQ(GridOf(Image(std::move(bitmap))), Grid({".#"}));
}

TEST(Image, TheEmptyPictureHasNoPixels) {
    const Image none;
    EXPECT_TRUE(none.Empty());
    EXPECT_EQ(none.Width(), 0);
    EXPECT_EQ(none.At(0, 0), -1);
    EXPECT_TRUE(Image(Bitmap(5, 0)).Empty());
}

TEST(Image, AtGivesTheColourOrMinusOneOutside) {
    const Image picture = PictureOf({"R.", "B#"});
    EXPECT_EQ(picture.At(0, 0), RGB(255, 0, 0));
    EXPECT_EQ(picture.At(0, 1), RGB(0, 0, 255));
    for (const auto& [x, y] : {std::pair{-1, 0}, {2, 0}, {0, -1}, {0, 2}})
        EXPECT_EQ(picture.At(x, y), -1);
}

TEST(Image, PicturesAreEqualBySizeAndColours) {
    EXPECT_EQ(PictureOf({"R.", "B#"}), PictureOf({"R.", "B#"}));
    EXPECT_NE(PictureOf({"R.", "B#"}), PictureOf({"R.", "##"}));
    EXPECT_NE(PictureOf({".."}), PictureOf({".", "."}));
    EXPECT_NE(PictureOf({"."}), Image());
    EXPECT_EQ(Image(), Image(Bitmap()));
}

}  // namespace
}  // namespace coinlet
