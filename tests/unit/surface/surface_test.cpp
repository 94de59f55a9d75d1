// A surface's size, scales, background, stored picture and snapshots.

#include "surface/surface.h"

#include "support/block_fonts.h"
#include "support/picture_grid.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace coinlet {
namespace {

using test::Grid;
using test::GridOf;
using test::PictureOf;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

class SurfaceTest : public testing::Test {
protected:
    test::BlockFonts fonts_;
    Surface surface_{fonts_, 4, 3};
};

TEST(Colour, IsTheSumOfItsParts) {
    EXPECT_EQ(RGB(0, 0, 0), 0);
    EXPECT_EQ(RGB(1, 2, 3), 0x030201);
    EXPECT_EQ(RGB(255, 255, 255), 0xFFFFFF);
    // Parts out of range go over into the others.
    EXPECT_EQ(RGB(-1, 0, 0), -1);
    EXPECT_EQ(RGB(256, 0, 0), RGB(0, 1, 0));
    EXPECT_EQ(RGB(300, -1, 2), 300 - 256 + 2 * 65536);
    EXPECT_EQ(RGB(32767, 32767, 32767), static_cast<int>(32767U + 256U * 32767U + 65536U * 32767U));
}

TEST(Colour, BelowZeroIsDrawnWhite) {
    constexpr Pixel whitePixel = 0xFFFFFFFF;
    for (const Colour none : {-1, -2, -256, -65536, std::numeric_limits<Colour>::min()})
        EXPECT_EQ(ToPixel(none), whitePixel) << none;
    EXPECT_EQ(ToPixel(RGB(1, 2, 3)), 0xFF010203);
}

TEST_F(SurfaceTest, IsWhiteAtFirst) {
    EXPECT_EQ(surface_.PixelWidth(), 4);
    EXPECT_EQ(surface_.PixelHeight(), 3);
    EXPECT_EQ(GridOf(surface_), Grid({"....", "....", "...."}));
    for (const Pixel pixel : surface_.Pixels().Pixels())
        EXPECT_EQ(pixel, 0xFFFFFFFFU);
}

TEST_F(SurfaceTest, ARefusedSizeGivesAnEmptySurface) {
    const Surface refused(fonts_, -1, 10);
    EXPECT_EQ(refused.PixelWidth(), 0);
    EXPECT_EQ(refused.PixelHeight(), 0);
}

// --- Size ----------------------------------------------------------------------------------------------

TEST_F(SurfaceTest, ResizingKeepsTheTopLeftAndAddsBackground) {
    test::DrawGrid(surface_, {"R##R", "####", "R##R"});
    surface_.SetBackColor(RGB(0, 255, 0));  // wipes
    test::DrawGrid(surface_, {"R##R", "####", "R##R"});
    EXPECT_TRUE(surface_.Resize(5, 2));
    EXPECT_EQ(GridOf(surface_), Grid({"R##RG", "####G"}));
    EXPECT_TRUE(surface_.Resize(1, 3));
    EXPECT_EQ(GridOf(surface_), Grid({"R", "#", "G"}));
    EXPECT_EQ(surface_.Changed(), (PixelRect{0, 0, 1, 3}));
}

TEST_F(SurfaceTest, ARefusedSizeChangesNothing) {
    const auto revision = surface_.Revision();
    EXPECT_FALSE(surface_.Resize(-1, 3));
    EXPECT_FALSE(surface_.Resize(maximumSide + 1, 3));
    EXPECT_FALSE(surface_.Resize(16384, 16384));  // 1 GiB
    EXPECT_EQ(surface_.PixelWidth(), 4);
    EXPECT_EQ(surface_.Revision(), revision);
}

TEST_F(SurfaceTest, ALongSurfaceIsDrawnOnToItsEnd) {
    EXPECT_TRUE(surface_.Resize(65535, 2));
    EXPECT_EQ(surface_.ScaleWidth(), 65535);
    surface_.Line(0, 1, 65535, 1);
    surface_.PSet(65534, 0, RGB(255, 0, 0));
    EXPECT_EQ(surface_.Point(65533, 0), white);
    EXPECT_EQ(surface_.Point(65534, 0), RGB(255, 0, 0));
    EXPECT_EQ(surface_.Point(65534, 1), black);
    EXPECT_EQ(surface_.Point(65535, 1), -1);
    EXPECT_TRUE(surface_.Resize(1, 65535));
    EXPECT_FALSE(surface_.Resize(65536, 1));
    EXPECT_FALSE(surface_.Resize(1, 65536));
}

TEST_F(SurfaceTest, ASurfaceOfNoSizeDrawsNothing) {
    for (const auto& [width, height] : {std::pair{0, 0}, {0, 5}, {5, 0}}) {
        Surface empty(fonts_, 4, 4);
        EXPECT_TRUE(empty.Resize(width, height));
        for (const int pen : {1, 2, 7}) {
            empty.DrawWidth = pen;
            empty.FillStyle = solidFill;
            empty.PSet(0, 0);
            empty.Line(-5, -5, 5, 5);
            empty.Line(-5, -5, 5, 5, black, Box::Outline);
            empty.Line(-5, -5, 5, 5, black, Box::Filled);
            empty.Circle(0, 0, 3);
            empty.Scale(0, 0, 1, 1);
            empty.Line(0, 0, 1, 1);
        }
        empty.Cls();
        EXPECT_EQ(empty.Point(0, 0), -1);
        EXPECT_TRUE(empty.Pixels().Pixels().empty());
    }
}

// --- Scales --------------------------------------------------------------------------------------------

TEST_F(SurfaceTest, ATwipIsAFifteenthOfAPixel) {
    surface_.SetScaleMode(twipScale);
    EXPECT_EQ(surface_.ScaleWidth(), 60);
    EXPECT_EQ(surface_.ScaleHeight(), 45);
    surface_.PSet(37, 15);  // 2.47 pixels
    EXPECT_EQ(surface_.Point(30, 15), black);
    EXPECT_EQ(GridOf(surface_), Grid({"....", "..#.", "...."}));
}

TEST_F(SurfaceTest, OtherScaleModesAreIgnored) {
    surface_.SetScaleMode(2);
    EXPECT_EQ(surface_.ScaleMode(), pixelScale);
    EXPECT_EQ(surface_.ScaleWidth(), 4);
}

TEST_F(SurfaceTest, AUserScaleMapsItsEdgesToTheSurfaces) {
    surface_.Scale(-2, 3, 2, 0);  // y grows upward
    EXPECT_EQ(surface_.ScaleWidth(), 4);
    EXPECT_EQ(surface_.ScaleHeight(), -3);
    surface_.PSet(-2, 3);
    surface_.PSet(0, 2, RGB(255, 0, 0));
    surface_.PSet(1, 1, RGB(0, 0, 255));
    EXPECT_EQ(GridOf(surface_), Grid({"#...", "..R.", "...B"}));
    surface_.SetScaleMode(pixelScale);
    EXPECT_EQ(surface_.ScaleHeight(), 3);
}

/// The rule itself: a place between the edges lies as far between the edges of the bitmap, and is rounded
/// there.
TEST_F(SurfaceTest, PointsAndLinesOfAUserScaleLieWhereTheMapPutsThem) {
    std::mt19937 random(23);
    std::uniform_int_distribution<int> pen(1, 5), eighths(-80, 80), side(1, 40), coin(0, 1);
    const auto edge = [&] { return eighths(random) / 8.0; };
    for (int i = 0; i < 1000; ++i) {
        const int width = side(random), height = side(random);
        const double left = edge(), top = edge(), right = left + 0.125 + std::abs(edge());
        const double bottom = top + (coin(random) == 0 ? -1 : 1) * (0.125 + std::abs(edge()));
        Surface scaled(fonts_, width, height), plain(fonts_, width, height);
        scaled.Scale(left, top, right, bottom);
        scaled.DrawWidth = plain.DrawWidth = pen(random);
        scaled.DrawMode = plain.DrawMode = coin(random) == 0 ? copyPen : invertPen;
        const double x1 = edge(), y1 = edge(), x2 = edge(), y2 = edge();
        const auto column = [&](double x) { return (x - left) / (right - left) * width; };
        const auto row = [&](double y) { return (y - top) / (bottom - top) * height; };
        scaled.Line(x1, y1, x2, y2, RGB(255, 0, 0));
        scaled.PSet(x2, y1);
        plain.Line(column(x1), row(y1), column(x2), row(y2), RGB(255, 0, 0));
        plain.PSet(column(x2), row(y1));
        ASSERT_EQ(scaled.Image(), plain.Image()) << left << ' ' << top << ' ' << right << ' ' << bottom
                                                 << ": " << x1 << ' ' << y1 << ' ' << x2 << ' ' << y2;
        ASSERT_EQ(scaled.CurrentX, static_cast<float>(x2));
        ASSERT_EQ(scaled.CurrentY, static_cast<float>(y1));
        ASSERT_EQ(scaled.Point(x2, y1), plain.Point(column(x2), row(y1)));
    }
}

TEST_F(SurfaceTest, AUserScaleRoundsInPixelsAndLeavesThePenItsWidth) {
    Surface surface(fonts_, 8, 8);
    surface.Scale(-1, 1, 1, -1);  // four pixels a unit
    surface.PSet(-0.875, 0.625);  // column 0.5, row 1.5
    surface.DrawWidth = 2;
    surface.Line(-0.5, 0, 0.5, 0, RGB(255, 0, 0));  // row 4, columns 2 to 6
    EXPECT_EQ(GridOf(surface), Grid({"........", "........", "#.......", ".RRRRRR.", ".RRRRRR.", "........",
                                     "........", "........"}));
}

TEST_F(SurfaceTest, AUserScaleFollowsTheSizeAndSurvivesWiping) {
    surface_.Scale(0, 1, 1, 0);
    surface_.Resize(8, 2);
    surface_.Cls();
    surface_.SetBackColor(white);
    surface_.SetPicture({});
    surface_.PSet(0.5, 0.5);
    EXPECT_EQ(GridOf(surface_), Grid({"........", "....#..."}));
    surface_.Scale(0, 2, 8, 0);  // the last one counts
    surface_.PSet(1, 2, RGB(255, 0, 0));
    EXPECT_EQ(GridOf(surface_), Grid({".R......", "....#..."}));
}

TEST_F(SurfaceTest, AUserScaleWithoutExtentIsIgnored) {
    surface_.Scale(1, 0, 1, 3);
    surface_.Scale(0, 2, 4, 2);
    surface_.Scale(0, 0, infinity, 3);
    surface_.Scale(0, notANumber, 4, 3);
    surface_.Scale(-1e308, 0, 1.7e308, 3);
    EXPECT_EQ(surface_.ScaleWidth(), 4);
    EXPECT_EQ(surface_.ScaleHeight(), 3);
}

// --- Background, picture, snapshot ---------------------------------------------------------------------

TEST_F(SurfaceTest, ABackColourWipesButLeavesTheCursor) {
    surface_.PSet(1, 2);
    surface_.SetBackColor(RGB(255, 0, 0));
    EXPECT_EQ(surface_.BackColor(), RGB(255, 0, 0));
    EXPECT_EQ(GridOf(surface_), Grid({"RRRR", "RRRR", "RRRR"}));
    EXPECT_EQ(surface_.CurrentX, 1);
    EXPECT_EQ(surface_.CurrentY, 2);
}

TEST_F(SurfaceTest, TheColourMinusOneIsKeptAndDrawnWhite) {
    surface_.SetBackColor(RGB(255, 0, 0));
    surface_.PSet(0, 0, surface_.Point(-1, 0));
    surface_.ForeColor = -1;
    surface_.PSet(1, 0);
    EXPECT_EQ(surface_.ForeColor, -1);
    EXPECT_EQ(GridOf(surface_), Grid({"..RR", "RRRR", "RRRR"}));
}

TEST_F(SurfaceTest, APictureOfAnotherSizeStandsAtTheTopLeft) {
    surface_.SetBackColor(RGB(0, 0, 255));
    surface_.PSet(3, 2);
    surface_.SetPicture(PictureOf({"#.", "R#"}));
    EXPECT_EQ(GridOf(surface_), Grid({"#.BB", "R#BB", "BBBB"}));
    surface_.SetPicture(PictureOf({"#.#.#", ".#.#.", "#####", "RRRRR"}));
    EXPECT_EQ(GridOf(surface_), Grid({"#.#.", ".#.#", "####"}));
    EXPECT_EQ(surface_.Picture(), PictureOf({"#.#.#", ".#.#.", "#####", "RRRRR"}));
}

TEST_F(SurfaceTest, AutoSizeTakesThePicturesSize) {
    surface_.AutoSize = true;
    surface_.SetPicture(PictureOf({"#R"}));
    EXPECT_EQ(GridOf(surface_), Grid({"#R"}));
    surface_.SetPicture({});
    EXPECT_EQ(GridOf(surface_), Grid({".."}));
    EXPECT_TRUE(surface_.Picture().Empty());
}

TEST_F(SurfaceTest, ClsReturnsToTheStoredPicture) {
    const Image picture = PictureOf({"#..#", ".RR.", "#..#"});
    surface_.SetPicture(picture);
    surface_.Line(0, 0, 3, 2, RGB(0, 0, 255), Box::Filled);
    surface_.Cls();
    EXPECT_EQ(surface_.Image(), picture);
    EXPECT_EQ(surface_.CurrentX, 0);
    EXPECT_EQ(surface_.CurrentY, 0);
    surface_.Resize(5, 2);
    surface_.PSet(1, 1);
    surface_.Cls();
    EXPECT_EQ(GridOf(surface_), Grid({"#..#.", ".RR.."}));
}

TEST_F(SurfaceTest, ClsWithoutAPictureGivesTheBackColour) {
    surface_.SetBackColor(RGB(255, 0, 0));
    surface_.PSet(1, 1);
    surface_.Cls();
    EXPECT_EQ(GridOf(surface_), Grid({"RRRR", "RRRR", "RRRR"}));
}

TEST_F(SurfaceTest, ASnapshotKeepsWhatItShowed) {
    surface_.PSet(0, 0);
    const Image before = surface_.Image();
    surface_.PSet(1, 0);
    EXPECT_EQ(GridOf(before), Grid({"#...", "....", "...."}));
    EXPECT_EQ(GridOf(surface_), Grid({"##..", "....", "...."}));
    surface_.Cls();
    EXPECT_EQ(GridOf(before), Grid({"#...", "....", "...."}));
}

TEST_F(SurfaceTest, PicturesGoFromSurfaceToSurfaceAndBack) {
    Surface undo(fonts_, 4, 3);
    surface_.PSet(0, 0);
    undo.SetPicture(surface_.Image());
    surface_.PSet(1, 0);
    undo.PSet(3, 2);
    EXPECT_EQ(GridOf(surface_), Grid({"##..", "....", "...."}));
    EXPECT_EQ(GridOf(undo), Grid({"#...", "....", "...#"}));
    EXPECT_EQ(GridOf(undo.Picture()), Grid({"#...", "....", "...."}));
    surface_.SetPicture(undo.Image());
    undo.SetPicture({});
    EXPECT_EQ(GridOf(surface_), Grid({"#...", "....", "...#"}));
}

TEST_F(SurfaceTest, DrawingOnLeavesTheStoredPictureAsItWas) {
    surface_.SetPicture(PictureOf({"....", "....", "...."}));
    surface_.PSet(0, 0);
    surface_.SetPicture(surface_.Image());
    surface_.PSet(1, 0);
    EXPECT_EQ(GridOf(surface_.Picture()), Grid({"#...", "....", "...."}));
}

// --- Point, changes, screen ----------------------------------------------------------------------------

TEST_F(SurfaceTest, PointRoundsAndGivesMinusOneOutside) {
    surface_.PSet(2, 0, RGB(1, 2, 3));
    EXPECT_EQ(surface_.Point(2.5, 0.5), RGB(1, 2, 3));  // halves to the even neighbour
    EXPECT_EQ(surface_.Point(3.5, 0), -1);
    EXPECT_EQ(surface_.Point(-0.5, 0), white);
    EXPECT_EQ(surface_.Point(-1, 0), -1);
    EXPECT_EQ(surface_.Point(0, 3), -1);
    EXPECT_EQ(surface_.Point(notANumber, 0), -1);
    EXPECT_EQ(surface_.Point(infinity, 0), -1);
    EXPECT_EQ(surface_.Point(0, -1e30), -1);
}

TEST_F(SurfaceTest, ChangesAreCountedAndBounded) {
    surface_.ForgetChanges();
    const auto revision = surface_.Revision();
    surface_.PSet(-1, 0);
    surface_.Line(-5, -5, -1, 7);
    EXPECT_EQ(surface_.Revision(), revision);
    EXPECT_TRUE(surface_.Changed().Empty());
    surface_.PSet(1, 1);
    EXPECT_EQ(surface_.Changed(), (PixelRect{1, 1, 2, 2}));
    surface_.PSet(3, 2);
    EXPECT_EQ(surface_.Changed(), (PixelRect{1, 1, 4, 3}));
    EXPECT_GT(surface_.Revision(), revision);
}

TEST_F(SurfaceTest, RefreshTellsTheScreen) {
    struct Screen : SurfaceScreen {
        void SurfaceRefreshed(const Surface& surface) override { shown = &surface; }
        const Surface* shown = nullptr;
    } screen;
    surface_.Refresh();
    surface_.SetScreen(&screen);
    surface_.Refresh();
    EXPECT_EQ(screen.shown, &surface_);
    screen.shown = nullptr;
    surface_.SetScreen(nullptr);
    surface_.Refresh();
    EXPECT_EQ(screen.shown, nullptr);
}

}  // namespace
}  // namespace coinlet
