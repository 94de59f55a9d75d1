// Sizes of labels and pictures, and the units of what lies on a picture.

#include "controls/label.h"
#include "controls/picture_box.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>
#include <limits>

namespace coinlet {
namespace {

struct SizesForm : Form {
    using Form::Form;

    Label Label1{*this, "Label1"};
    PictureBox Pic{*this, "Pic"};
    PictureBox OnPic{Pic, "OnPic"};
};

struct SizesTest : testing::Test {
    test::TestServices services;
    SizesForm form{services.ForForms(), "Sample"};
};

TEST_F(SizesTest, ALabelThatSizesItselfIsAsLargeAsItsCaption) {
    form.Label1.Move(0, 0, 5000, 700);
    EXPECT_EQ(form.Label1.Width(), 5000);
    form.Label1.AutoSize = true;
    form.Label1.FontSize = 10;
    // Letters of blocks: at 10 points a line is 10 pixels high and a letter 5 wide.
    EXPECT_EQ(form.Label1.Width(), 0);
    EXPECT_EQ(form.Label1.Height(), 10 * 15);
    form.Label1.Caption = "four";
    EXPECT_EQ(form.Label1.Width(), 4 * 5 * 15);
    form.Label1.Caption = "two\r\nlines";
    EXPECT_EQ(form.Label1.Width(), 5 * 5 * 15);
    EXPECT_EQ(form.Label1.Height(), 2 * 10 * 15);
    form.Label1.AutoSize = false;
    EXPECT_EQ(form.Label1.Width(), 5000);
    EXPECT_EQ(form.Label1.Height(), 700);
}

TEST_F(SizesTest, ALabelOnAPictureOfPixelsIsMeasuredInPixels) {
    Label label(form.Pic, "OnIt");
    label.AutoSize = true;
    label.FontSize = 10;
    label.Caption = "four";
    EXPECT_EQ(label.Width(), 20);
    EXPECT_EQ(label.Height(), 10);
}

TEST_F(SizesTest, APictureKeepsTheToldTwips) {
    form.Pic.SetWidth(6430);   // 428.67 pixels
    form.Pic.SetHeight(22.5);  // 1.5 pixels, to the even neighbour
    EXPECT_EQ(form.Pic.Width(), 6430);
    EXPECT_EQ(form.Pic.Height(), 22.5);
    EXPECT_EQ(form.Pic.surface.PixelWidth(), 429);
    EXPECT_EQ(form.Pic.surface.PixelHeight(), 2);
    form.Pic.SetWidth(37.5);  // 2.5 pixels
    EXPECT_EQ(form.Pic.surface.PixelWidth(), 2);
    form.Pic.SetWidth(0);
    EXPECT_EQ(form.Pic.surface.PixelWidth(), 0);
    EXPECT_EQ(form.Pic.Width(), 0);
}

TEST_F(SizesTest, APictureThatTookItsSizeFromAPictureTellsIt) {
    form.Pic.Move(0, 0, 6430, 150);
    form.Pic.surface.AutoSize = true;
    form.Pic.surface.SetPicture(Image(Bitmap(20, 10, ToPixel(black))));
    EXPECT_EQ(form.Pic.Width(), 300);
    EXPECT_EQ(form.Pic.Height(), 150);
    EXPECT_EQ(form.Pic.PixelWidth(), 20);
}

TEST_F(SizesTest, AFixedBitmapStaysWhateverTheSize) {
    form.Pic.Move(0, 0, 7500, 7500);
    form.Pic.FixedBitmap = true;
    form.Pic.SetWidth(4500);
    EXPECT_EQ(form.Pic.Width(), 4500);
    EXPECT_EQ(form.Pic.PixelWidth(), 300);
    EXPECT_EQ(form.Pic.surface.PixelWidth(), 500);
}

TEST_F(SizesTest, SizesThatCannotBeMadeAreRefused) {
    form.Pic.Move(0, 0, 150, 150);
    for (const double size :
         {-1.0, std::numeric_limits<double>::quiet_NaN(), 65536.0 * 15,
          std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()}) {
        form.Pic.SetWidth(size);
        form.Pic.SetHeight(size);
        EXPECT_EQ(form.Pic.Width(), 150) << size;
        EXPECT_EQ(form.Pic.Height(), 150) << size;
        EXPECT_EQ(form.Pic.surface.PixelWidth(), 10) << size;
    }
}

TEST_F(SizesTest, WhatLiesOnAPictureIsPlacedInItsScale) {
    EXPECT_EQ(form.OnPic.Parent().ChildUnitsPerPixel(), 1);
    form.OnPic.Move(1, 2, 30, 40);
    EXPECT_EQ(form.OnPic.surface.PixelWidth(), 30);
    EXPECT_EQ(form.OnPic.surface.PixelHeight(), 40);
    form.Pic.surface.SetScaleMode(twipScale);
    EXPECT_EQ(form.OnPic.Parent().ChildUnitsPerPixel(), 15);
    // The bitmap stays, so its size is told in the new unit.
    EXPECT_EQ(form.OnPic.Width(), 450);
}

}  // namespace
}  // namespace coinlet
