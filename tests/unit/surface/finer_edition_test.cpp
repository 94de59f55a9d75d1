// Pictures that have an edition for finer screens.
#include "surface/finer_edition.h"

#include "support/block_fonts.h"
#include "surface/surface.h"

#include <gtest/gtest.h>
#include <memory>

namespace coinlet {
namespace {

Image Plain(int side, Colour colour) {
    return Image(Bitmap(side, side, ToPixel(colour)));
}

Image RedOne() {
    return Plain(6, RGB(250, 0, 0));
}

TEST(FinerEdition, BelongsToThePictureAndItsCopies) {
    const Image picture = Plain(3, black);
    HasFinerEdition(picture, RedOne);
    EXPECT_EQ(FinerEditionOf(picture), RedOne());
    EXPECT_EQ(FinerEditionOf(Image(picture)), RedOne());
    EXPECT_TRUE(FinerEditionOf(Plain(3, black)).Empty());
    HasFinerEdition({}, RedOne);
    EXPECT_TRUE(FinerEditionOf({}).Empty());
}

TEST(FinerEdition, TheLastOneCounts) {
    const Image picture = Plain(3, black);
    HasFinerEdition(picture, RedOne);
    HasFinerEdition(picture, [] { return Plain(9, white); });
    EXPECT_EQ(FinerEditionOf(picture), Plain(9, white));
}

TEST(FinerEdition, IsForgottenWhenNoCopyIsLeft) {
    auto held = std::make_shared<int>(0);
    const std::weak_ptr<int> seen = held;
    Image copy;
    {
        const Image picture = Plain(3, black);
        HasFinerEdition(picture, [held] { return RedOne(); });
        copy = picture;
    }
    held.reset();
    const Image other = Plain(3, black);
    HasFinerEdition(other, RedOne);
    EXPECT_FALSE(seen.expired());
    EXPECT_EQ(FinerEditionOf(copy), RedOne());
    copy = {};
    HasFinerEdition(other, RedOne);
    EXPECT_TRUE(seen.expired());
}

// A surface that alone has the pixels of a picture left draws into them: another picture in the same place.
TEST(FinerEdition, IsNotThatOfWhatASurfaceMakesOfThePicture) {
    const test::BlockFonts fonts;
    for (const bool isWiped : {true, false}) {
        Surface surface(fonts, 3, 3);
        surface.AutoSize = true;
        {
            const Image picture = Plain(3, black);
            HasFinerEdition(picture, RedOne);
            surface.SetPicture(picture);
        }
        EXPECT_EQ(FinerEditionOf(surface.Image()), RedOne());
        if (isWiped) {
            surface.SetPicture({});
        } else {
            surface.PSet(1, 1, white);
        }
        EXPECT_EQ(surface.Image().At(1, 1), white);
        EXPECT_TRUE(FinerEditionOf(surface.Image()).Empty()) << isWiped;
    }
}

TEST(FinerEdition, OfAnotherShapeIsNone) {
    for (const Image& wrong :
         {Image(), Plain(2, black), Plain(7, black), Image(Bitmap(6, 9, ToPixel(black)))}) {
        const Image picture = Plain(3, black);
        HasFinerEdition(picture, [wrong] { return wrong; });
        EXPECT_TRUE(FinerEditionOf(picture).Empty());
    }
}

}  // namespace
}  // namespace coinlet
