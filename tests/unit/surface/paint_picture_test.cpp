// PaintPicture and the device copies on pictures small enough to be drawn here.

#include "support/block_fonts.h"
#include "support/picture_grid.h"
#include "surface/device.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace coinlet {
namespace {

using test::Grid;
using test::GridOf;
using test::PictureOf;

const test::BlockFonts fonts;
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

// Four columns and two rows that all differ.
Image Sample() {
    return PictureOf({"RGB#",  //
                      "CMYo"});
}

// --- Places and sizes ----------------------------------------------------------------------------------

TEST(PaintPicture, WholePictureInItsOwnSize) {
    Surface surface(fonts, 6, 4);
    surface.PaintPicture(Sample(), 1, 2);
    EXPECT_EQ(GridOf(surface), (Grid{"......",  //
                                     "......",  //
                                     ".RGB#.",  //
                                     ".CMYo."}));
}

TEST(PaintPicture, IsCutAtEveryEdge) {
    Surface surface(fonts, 3, 3);
    surface.PaintPicture(Sample(), -2, -1);
    EXPECT_EQ(GridOf(surface), (Grid{"Yo.", "...", "..."}));
    surface.PaintPicture(Sample(), 1, 2);
    EXPECT_EQ(GridOf(surface), (Grid{"Yo.", "...", ".RG"}));
}

TEST(PaintPicture, PlacesAreRoundedHalfToEven) {
    const std::pair<double, int> places[] = {{0.5, 0},    {1.5, 2},    {2.5, 2},
                                             {0.4999, 0}, {0.5001, 1}, {-0.5, 0}};
    for (const auto& [place, column] : places) {
        Surface surface(fonts, 5, 1);
        surface.PaintPicture(PictureOf({"#"}), place, 0);
        for (int x = 0; x < 5; ++x)
            EXPECT_EQ(GetPixel(surface.hDC(), x, 0) == black, x == column) << place;
    }
}

TEST(PaintPicture, SizesAreRoundedOnTheirOwn) {
    // From 0.6 with a width of 2.5: two columns from the column 1 on, though 0.6 + 2.5 lies beyond 3.
    Surface surface(fonts, 5, 1);
    surface.PaintPicture(PictureOf({"##"}), {0.6, 0, 2.5, 1});
    EXPECT_EQ(GridOf(surface), (Grid{".##.."}));
}

TEST(PaintPicture, StretchesToTheNearestPixel) {
    // 4 columns onto 6: the middles 1/2, 3/2, ... times 4/6 are 0.33, 1, 1.67, 2.33, 3, 3.67.
    Surface wide(fonts, 6, 2);
    wide.PaintPicture(Sample(), {0, 0, 6, 2});
    EXPECT_EQ(GridOf(wide), (Grid{"RGGB##", "CMMYoo"}));
    // 4 columns onto 2: the middles are 1 and 3; 2 rows onto 1: the middle is 1.
    Surface narrow(fonts, 2, 1);
    narrow.PaintPicture(Sample(), {0, 0, 2, 1});
    EXPECT_EQ(GridOf(narrow), (Grid{"Mo"}));
}

TEST(PaintPicture, TakesAPart) {
    Surface surface(fonts, 4, 2);
    surface.PaintPicture(Sample(), {1, 0, 2, 2}, {2, 0, 2, 2});
    EXPECT_EQ(GridOf(surface), (Grid{".B#.", ".Yo."}));
}

TEST(PaintPicture, LeavesTheTargetWhereTheSourceEnds) {
    Surface surface(fonts, 6, 3);
    surface.SetBackColor(RGB(128, 128, 128));
    surface.PaintPicture(PictureOf({"RG", "BY"}), {0, 0, 6, 3}, {-2, -1, 6, 3});
    EXPECT_EQ(GridOf(surface), (Grid{"oooooo",  //
                                     "ooRGoo",  //
                                     "ooBYoo"}));
}

TEST(PaintPicture, NegativeSizesMirror) {
    Surface surface(fonts, 6, 2);
    surface.PaintPicture(Sample(), {4, 0, -4, 2});  // the column 4 is the first one
    EXPECT_EQ(GridOf(surface), (Grid{".#BGR.", ".oYMC."}));
    surface.PaintPicture(Sample(), {1, 1, 4, -2});
    EXPECT_EQ(GridOf(surface), (Grid{".CMYo.", ".RGB#."}));
    // Of the source: from its last column leftward.
    surface.PaintPicture(Sample(), {1, 0, 4, 2}, {3, 0, -4, 2});
    EXPECT_EQ(GridOf(surface), (Grid{".#BGR.", ".oYMC."}));
    // Of both: as it stands.
    surface.PaintPicture(Sample(), {4, 0, -4, 2}, {3, 0, -4, 2});
    EXPECT_EQ(GridOf(surface), (Grid{".RGB#.", ".CMYo."}));
}

TEST(PaintPicture, OfNoSizeDoesNothing) {
    Surface surface(fonts, 2, 2);
    const auto revision = surface.Revision();
    surface.PaintPicture(Image(), 0, 0);
    surface.PaintPicture(Image(), {0, 0, 2, 2});
    surface.PaintPicture(Sample(), {0, 0, 0, 2});
    surface.PaintPicture(Sample(), {0, 0, 2, 0.5});
    surface.PaintPicture(Sample(), {0, 0, 2, 2}, {0, 0, 0, 2});
    surface.PaintPicture(Sample(), {0, 0, 2, 2}, {0, 0, 2, 0});
    EXPECT_EQ(surface.Revision(), revision);
    Surface empty(fonts, 0, 0);
    empty.PaintPicture(Sample(), 0, 0);
    EXPECT_TRUE(empty.Image().Empty());
}

TEST(PaintPicture, NoNumbersDrawNothing) {
    Surface surface(fonts, 2, 2);
    const auto revision = surface.Revision();
    const Image sample = Sample();
    surface.PaintPicture(sample, notANumber, 0);
    surface.PaintPicture(sample, 0, notANumber);
    for (int i = 0; i < 4; ++i) {
        double sizes[4] = {0, 0, 2, 2};
        sizes[i] = notANumber;
        const Rectangle bad = {sizes[0], sizes[1], sizes[2], sizes[3]};
        surface.PaintPicture(sample, bad);
        surface.PaintPicture(sample, bad, {0, 0, 2, 2});
        surface.PaintPicture(sample, {0, 0, 2, 2}, bad);
    }
    EXPECT_EQ(surface.Revision(), revision);
}

TEST(PaintPicture, FarAwayIsOutside) {
    Surface surface(fonts, 2, 2);
    const auto revision = surface.Revision();
    for (const double far : {1e30, -1e30, infinity, -infinity, 2147483647.0, -2147483648.0}) {
        surface.PaintPicture(Sample(), far, 0);
        surface.PaintPicture(Sample(), 0, far);
        surface.PaintPicture(Sample(), {far, far, 2, 2});
        surface.PaintPicture(Sample(), {0, 0, 2, 2}, {far, 0, 2, 2});
        surface.PaintPicture(Sample(), {0, 0, 2, 2}, {0, far, -2, -2});
    }
    EXPECT_EQ(surface.Revision(), revision);
}

TEST(PaintPicture, HugeSizesShowTheNearEndOfTheSource) {
    for (const double huge : {1e30, infinity, 2147483647.0}) {
        Surface surface(fonts, 3, 2);
        surface.PaintPicture(Sample(), {0, 0, huge, huge});
        EXPECT_EQ(GridOf(surface), (Grid{"RRR", "RRR"}));
        surface.PaintPicture(Sample(), {2, 0, -huge, 1});
        EXPECT_EQ(GridOf(surface), (Grid{"CCC", "RRR"}));  // of two rows onto one the second is taken
    }
}

// --- Units ---------------------------------------------------------------------------------------------

TEST(PaintPicture, InTwips) {
    Surface surface(fonts, 6, 3);
    surface.SetScaleMode(twipScale);
    surface.PaintPicture(Sample(), {15, 15, 30, 30}, {30, 0, 30, 30});
    EXPECT_EQ(GridOf(surface), (Grid{"......",  //
                                     ".B#...",  //
                                     ".Yo..."}));
    // Sizes left out are the source's own, whatever the unit; 22.5 twips are one and a half pixels.
    Surface other(fonts, 6, 3);
    other.SetScaleMode(twipScale);
    other.PaintPicture(Sample(), 22.5, 7.5);
    EXPECT_EQ(GridOf(other), (Grid{"..RGB#",  //
                                   "..CMYo",  //
                                   "......"}));
}

TEST(PaintPicture, InAUserScale) {
    Surface surface(fonts, 6, 3);
    surface.Scale(100, 0, 160, 30);
    surface.PaintPicture(Sample(), {110, 10, 40, 20});
    EXPECT_EQ(GridOf(surface), (Grid{"......",  //
                                     ".RGB#.",  //
                                     ".CMYo."}));
}

TEST(PaintPicture, OntoTheSamePlaceIsNoChangeInAnyScale) {
    Surface surface(fonts, 4, 2);
    surface.PaintPicture(Sample(), 0, 0);
    surface.Scale(-10, 10, 30, -10);  // y grows upward
    surface.PaintPicture(surface.Image(), {0, 5, 20, -10}, {0, 5, 20, -10});
    EXPECT_EQ(GridOf(surface), (Grid{"RGB#", "CMYo"}));
}

// --- Raster operations ---------------------------------------------------------------------------------

TEST(PaintPicture, WhiteSurroundingsLeaveTheDestination) {
    Surface surface(fonts, 5, 3);
    surface.SetBackColor(RGB(255, 255, 0));
    surface.PaintPicture(PictureOf({".....",  //
                                    "..#C.",  //
                                    "....."}),
                         0, 0, SRCAND);
    EXPECT_EQ(GridOf(surface), (Grid{"YYYYY",  //
                                     "YY#GY",  // yellow and cyan have green in common
                                     "YYYYY"}));
}

TEST(PaintPicture, JoinedWithItsOwnInverseOnePixelOffKeepsStepsAlone) {
    // Where a pixel equals the one to its upper left, the two together are white.
    Surface surface(fonts, 4, 4);
    test::DrawGrid(surface, {"....",  //
                             ".##.",  //
                             ".##.",  //
                             "...."});
    surface.PaintPicture(surface.Image(), {1, 1, 4, 4}, {0, 0, 4, 4}, MERGE_NOT_SOURCE);
    EXPECT_EQ(GridOf(surface), (Grid{"....",  //
                                     ".##.",  //
                                     ".#..",  //
                                     "...."}));
}

TEST(PaintPicture, EveryOperationKeepsTheSpareByte) {
    Surface surface(fonts, 2, 1);
    for (const RasterOp op : {SRCCOPY, SRCAND, MERGE_NOT_SOURCE}) {
        surface.PaintPicture(PictureOf({"#o"}), 0, 0, op);
        for (const Pixel pixel : surface.Pixels().Pixels())
            EXPECT_EQ(pixel & spareByte, spareByte);
    }
}

// --- The surface's own image, and snapshots ------------------------------------------------------------

TEST(PaintPicture, OfItsOwnImageReadsThePictureAsItWas) {
    Surface surface(fonts, 4, 2);
    surface.PaintPicture(Sample(), 0, 0);
    surface.PaintPicture(surface.Image(), 1, 0);
    EXPECT_EQ(GridOf(surface), (Grid{"RRGB", "CCMY"}));
    surface.PaintPicture(surface.Image(), {3, 0, -4, 2});
    EXPECT_EQ(GridOf(surface), (Grid{"BGRR", "YMCC"}));
}

TEST(PaintPicture, LeavesSnapshotsAndCursorAlone) {
    Surface surface(fonts, 4, 2);
    const Image before = surface.Image();
    surface.CurrentX = 3;
    surface.PaintPicture(Sample(), 0, 0);
    EXPECT_EQ(before.At(0, 0), white);
    EXPECT_EQ(surface.CurrentX, 3);
}

TEST(PaintPicture, TellsTheScreenWhatChanged) {
    Surface surface(fonts, 6, 4);
    surface.ForgetChanges();
    surface.PaintPicture(Sample(), 4, 1);
    EXPECT_EQ(surface.Changed(), (PixelRect{4, 1, 6, 3}));
}

// --- Device copies -------------------------------------------------------------------------------------

TEST(StretchBlt, FromTheLastColumnWithNegativeWidthIsTheMirrorImage) {
    Surface surface(fonts, 4, 2);
    surface.PaintPicture(Sample(), 0, 0);
    StretchBlt(surface.hDC(), 0, 0, 4, 2, surface.hDC(), 3, 0, -4, 2, SRCCOPY);
    EXPECT_EQ(GridOf(surface), (Grid{"#BGR", "oYMC"}));
}

TEST(BitBlt, IgnoresTheScale) {
    Surface target(fonts, 4, 2), source(fonts, 4, 2);
    source.PaintPicture(Sample(), 0, 0);
    target.SetScaleMode(twipScale);
    BitBlt(target.hDC(), 1, 0, 2, 2, source.hDC(), 2, 0, SRCCOPY);
    EXPECT_EQ(GridOf(target), (Grid{".B#.", ".Yo."}));
}

TEST(TransparentBlt, LeavesOneColourOut) {
    Surface target(fonts, 4, 2), source(fonts, 4, 2);
    target.SetBackColor(RGB(128, 128, 128));
    source.PaintPicture(PictureOf({"GRG#", "GGBG"}), 0, 0);
    TransparentBlt(target.hDC(), 0, 0, 4, 2, source.hDC(), 0, 0, 4, 2, RGB(0, 255, 0));
    EXPECT_EQ(GridOf(target), (Grid{"oRo#", "ooBo"}));
}

TEST(DeviceCopies, OfHugeSizesEnd) {
    constexpr int huge = std::numeric_limits<int>::max(), hugeDown = std::numeric_limits<int>::min();
    Surface target(fonts, 3, 1), source(fonts, 4, 2);
    source.PaintPicture(Sample(), 0, 0);
    StretchBlt(target.hDC(), 0, 0, huge, 1, source.hDC(), 0, 0, 4, 1, SRCCOPY);
    EXPECT_EQ(GridOf(target), (Grid{"RRR"}));
    BitBlt(target.hDC(), hugeDown, 0, hugeDown, 1, source.hDC(), huge, 0, SRCCOPY);
    BitBlt(target.hDC(), huge, huge, huge, huge, source.hDC(), hugeDown, hugeDown, SRCCOPY);
    EXPECT_EQ(GridOf(target), (Grid{"RRR"}));
    BitBlt(target.hDC(), 0, 0, huge, huge, source.hDC(), 1, 1, SRCCOPY);
    EXPECT_EQ(GridOf(target), (Grid{"MYo"}));
}

// --- Single pixels -------------------------------------------------------------------------------------

TEST(SetPixel, IsReadBackAndClipped) {
    Surface surface(fonts, 3, 2);
    const DeviceContext hDC = surface.hDC();
    SetPixel(hDC, 2, 1, RGB(1, 20, 200));
    SetPixelV(hDC, 0, 0, RGB(255, 0, 0));
    EXPECT_EQ(GetPixel(hDC, 2, 1), RGB(1, 20, 200));
    EXPECT_EQ(surface.Pixels().Row(1)[2], 0xFF0114C8U);
    EXPECT_EQ(GridOf(surface), (Grid{"R..", "..?"}));

    const auto revision = surface.Revision();
    for (const auto& [x, y] :
         {std::pair{-1, 0}, {3, 0}, {0, -1}, {0, 2}, {std::numeric_limits<int>::max(), 0}}) {
        SetPixel(hDC, x, y, black);
        EXPECT_EQ(GetPixel(hDC, x, y), -1);
    }
    EXPECT_EQ(surface.Revision(), revision);
}

TEST(SetPixel, DrawsTheColourOfNowhereAsWhite) {
    Surface surface(fonts, 1, 1);
    SetPixel(surface.hDC(), 0, 0, black);
    SetPixel(surface.hDC(), 0, 0, GetPixel(surface.hDC(), 5, 5));
    EXPECT_EQ(GetPixel(surface.hDC(), 0, 0), white);
}

TEST(SetPixel, LeavesSnapshotsAlone) {
    Surface surface(fonts, 2, 1);
    const Image before = surface.Image();
    SetPixel(surface.hDC(), 0, 0, black);
    EXPECT_EQ(before.At(0, 0), white);
}

}  // namespace
}  // namespace coinlet
