// Rows and columns of pictures, within them and beyond.
#include "filters/surface_walk.h"

#include "support/block_fonts.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

constexpr int width = 3, height = 4;

Colour ColourAt(int x, int y) {
    return RGB(10 + x, 20 + y, 0);
}

class SurfaceWalk : public ::testing::Test {
protected:
    SurfaceWalk() {
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x)
                picture.PSet(x, y, ColourAt(x, y));
        }
        picture.ForgetChanges();
    }
    void ExpectUnchanged() const {
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x)
                EXPECT_EQ(picture.Point(x, y), ColourAt(x, y)) << x << ", " << y;
        }
    }

    test::BlockFonts fonts;
    Surface picture{fonts, width, height};
};

TEST_F(SurfaceWalk, ChangesARowAsFarAsItIsTold) {
    const auto row = RowToChange(picture, 2, 2);
    ASSERT_EQ(row.size(), 2U);
    row[1] = ToPixel(white);
    EXPECT_EQ(picture.Point(1, 2), white);
    EXPECT_EQ(picture.Point(2, 2), ColourAt(2, 2));
    EXPECT_EQ(picture.Changed(), (PixelRect{0, 2, 2, 3}));
    EXPECT_EQ(RowToChange(picture, 0, 500).size(), 3U);
}

TEST_F(SurfaceWalk, FindsNoRowOutsideThePicture) {
    const auto revision = picture.Revision();
    EXPECT_TRUE(RowToChange(picture, -1, 3).empty());
    EXPECT_TRUE(RowToChange(picture, height, 3).empty());
    EXPECT_TRUE(RowToChange(picture, 0, 0).empty());
    EXPECT_TRUE(RowToChange(picture, 0, -5).empty());
    EXPECT_EQ(picture.Revision(), revision);
}

// What shared the pixels keeps its own.
TEST_F(SurfaceWalk, LeavesASnapshotAlone) {
    const Image before = picture.Image();
    RowToChange(picture, 0, 1)[0] = ToPixel(white);
    WriteColumn(picture, 2, std::vector<Pixel>{ToPixel(black)});
    EXPECT_EQ(before.At(0, 0), ColourAt(0, 0));
    EXPECT_EQ(before.At(2, 0), ColourAt(2, 0));
    EXPECT_EQ(picture.Point(0, 0), white);
    EXPECT_EQ(picture.Point(2, 0), black);
}

TEST_F(SurfaceWalk, ReadsAndWritesAColumn) {
    std::vector<Pixel> column(1);
    ReadColumn(picture, 1, column);
    ASSERT_EQ(column.size(), 4U);
    for (int y = 0; y < height; ++y)
        EXPECT_EQ(ToColour(column[static_cast<std::size_t>(y)]), ColourAt(1, y));
    WriteColumn(picture, 0, column);
    EXPECT_EQ(picture.Changed(), (PixelRect{0, 0, 1, 4}));
    for (int y = 0; y < height; ++y) {
        EXPECT_EQ(picture.Point(0, y), ColourAt(1, y));
        EXPECT_EQ(picture.Point(1, y), ColourAt(1, y));
        EXPECT_EQ(picture.Point(2, y), ColourAt(2, y));
    }
}

TEST_F(SurfaceWalk, CutsAColumnToThePicture) {
    WriteColumn(picture, 1, std::vector<Pixel>(10, ToPixel(white)));
    EXPECT_EQ(picture.Point(1, 3), white);
    EXPECT_EQ(picture.Point(2, 0), ColourAt(2, 0));
    WriteColumn(picture, 2, std::vector<Pixel>(2, ToPixel(white)));
    EXPECT_EQ(picture.Point(2, 1), white);
    EXPECT_EQ(picture.Point(2, 2), ColourAt(2, 2));
}

TEST_F(SurfaceWalk, FindsNoColumnOutsideThePicture) {
    std::vector<Pixel> column(7);
    ReadColumn(picture, width, column);
    EXPECT_TRUE(column.empty());
    ReadColumn(picture, -1, column);
    EXPECT_TRUE(column.empty());
    const std::vector<Pixel> ink(4, ToPixel(white));
    WriteColumn(picture, width, ink);
    WriteColumn(picture, -1, ink);
    WriteColumn(picture, 0, {});
    ExpectUnchanged();
}

}  // namespace
}  // namespace coinlet
