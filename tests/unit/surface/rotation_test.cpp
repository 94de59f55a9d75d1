// Turns of pictures: small ones drawn by hand, and any angle against the rule written down pixel by pixel.
#include "surface/rotation.h"

#include "support/block_fonts.h"
#include "support/picture_grid.h"

#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <utility>

namespace coinlet {
namespace {

using test::Grid;
using test::GridOf;

const test::BlockFonts fonts;

void Turn(Surface& target, const Surface& source, float degrees, bool clockwise) {
    Rotation rotation(target, source, degrees, clockwise);
    for (int x = 0; x <= rotation.LastStep(); ++x)
        rotation.Step(x);
}

void FillWithNoise(Surface& surface, std::mt19937& random) {
    for (Pixel& pixel : surface.WriteAll().Pixels())
        pixel = spareByte | static_cast<Pixel>(random());
}

/// A turn by the rule: for each place around the middle its angle and its distance, by polar coordinates.
class SlowTurn {
public:
    SlowTurn(const Surface& target, const Surface& source, float degrees, bool clockwise) {
        if (clockwise) degrees = 360 - degrees;
        const auto angle = static_cast<float>(degrees * 3.14159265358979 / 180);
        const auto half = [](int size) { return static_cast<int>(std::nearbyint(size / 2.0)); };
        const int middleX = half(target.PixelWidth()), middleY = half(target.PixelHeight());
        const int fromX = half(source.PixelWidth()), fromY = half(source.PixelHeight());
        const int last = std::max(middleX, middleY);
        for (int x = 0; x <= last; ++x) {
            for (int y = 0; y <= last; ++y) {
                const double polar = x == 0 ? 3.14159265358979 / 2 : std::atan(static_cast<double>(y) / x);
                const double r = std::nearbyint(std::sqrt(x * x + y * y));
                const int dx = static_cast<int>(std::nearbyint(r * std::cos(polar + angle)));
                const int dy = static_cast<int>(std::nearbyint(r * std::sin(polar + angle)));
                const auto set = [&](int tx, int ty, int sx, int sy) {
                    const Colour colour = source.Point(fromX + sx, fromY + sy);
                    if (colour != -1) taken_[{middleX + tx, middleY + ty}] = colour;
                };
                set(x, y, dx, dy);
                set(-x, -y, -dx, -dy);
                set(y, -x, dy, -dx);
                set(-y, x, -dy, dx);
            }
        }
    }
    /// What a pixel is afterwards; `before` where nothing comes from the source.
    Colour At(int x, int y, Colour before) const {
        const auto found = taken_.find({x, y});
        return found == taken_.end() ? before : found->second;
    }

private:
    std::map<std::pair<int, int>, Colour> taken_;
};

TEST(TurnColumnIntoRow, TurnsAQuarterToTheLeftColumnByColumn) {
    Surface source(fonts, 3, 3), target(fonts, 3, 3);
    DrawGrid(source, Grid{"RGB", "#..", "C.."});
    for (int x = 0; x < 3; ++x)
        TurnColumnIntoRow(target, 2 - x, source, x);
    EXPECT_EQ(GridOf(target), (Grid{"B..", "G..", "R#C"}));
}

TEST(TurnColumnIntoRow, LeavesOutWhatIsOutsideEitherPicture) {
    Surface source(fonts, 2, 3), target(fonts, 2, 2);
    DrawGrid(source, Grid{"R.", "G.", "B."});
    TurnColumnIntoRow(target, 1, source, 0);
    EXPECT_EQ(GridOf(target), (Grid{"..", "RG"}));
    const auto revision = target.Revision();
    TurnColumnIntoRow(target, -1, source, 0);
    TurnColumnIntoRow(target, 2, source, 0);
    TurnColumnIntoRow(target, 0, source, -1);
    TurnColumnIntoRow(target, 0, source, 2);
    EXPECT_EQ(target.Revision(), revision);
    Surface none(fonts, 0, 0);
    TurnColumnIntoRow(none, 0, source, 0);
    TurnColumnIntoRow(target, 0, none, 0);
    EXPECT_EQ(target.Revision(), revision);
}

TEST(Rotation, QuarterTurnsGoTheToldWayRound) {
    Surface source(fonts, 5, 5), target(fonts, 5, 5);
    DrawGrid(source, Grid{"..R..", ".....", "B...G", ".....", "..#.."});
    Turn(target, source, 90, true);
    EXPECT_EQ(GridOf(target), (Grid{"..B..", ".....", "#...R", ".....", "..G.."}));
    Turn(target, source, 90, false);
    EXPECT_EQ(GridOf(target), (Grid{"..G..", ".....", "R...#", ".....", "..B.."}));
}

TEST(Rotation, AQuarterTurnExchangesTheTargetsSides) {
    Surface source(fonts, 7, 3), target(fonts, 7, 3);
    DrawGrid(source, Grid{".......", ".......", "..R...."});
    Turn(target, source, 45, true);
    EXPECT_EQ(target.PixelWidth(), 7);
    EXPECT_EQ(target.PixelHeight(), 3);
    Turn(target, source, 270, true);
    EXPECT_EQ(target.PixelWidth(), 3);
    ASSERT_EQ(target.PixelHeight(), 7);
    // The middles are (4, 2) and (2, 4), halves going to the even neighbour. What is two pixels left of the
    // middle comes to lie two below it.
    EXPECT_EQ(target.Point(2, 6), RGB(255, 0, 0));
}

TEST(Rotation, AnyAngleFollowsTheRule) {
    std::mt19937 random(11);
    for (const float degrees : {45.0F, 0.0F, 30.0F, 137.5F, 180.0F, 359.0F, -20.0F, 400.0F}) {
        for (const auto& [width, height] :
             {std::pair(60, 60), std::pair(41, 26), std::pair(8, 57), std::pair(1, 1)}) {
            for (const bool clockwise : {true, false}) {
                Surface source(fonts, width, height), target(fonts, 50, 44), before(fonts, 50, 44);
                FillWithNoise(source, random);
                FillWithNoise(before, random);
                target.SetPicture(before.Image());
                Turn(target, source, degrees, clockwise);
                const SlowTurn slow(target, source, degrees, clockwise);
                for (int y = 0; y < 44; ++y) {
                    for (int x = 0; x < 50; ++x)
                        ASSERT_EQ(target.Point(x, y), slow.At(x, y, before.Point(x, y)))
                            << degrees << " degrees at " << x << ", " << y;
                }
            }
        }
    }
}

TEST(Rotation, AnEighthOfATurnOfTheCanvasLeavesTheCorners) {
    std::mt19937 random(12);
    Surface source(fonts, 500, 500), target(fonts, 500, 500);
    FillWithNoise(source, random);
    target.SetPicture(source.Image());
    Turn(target, source, 45, true);
    const SlowTurn slow(target, source, 45, true);
    int kept = 0;
    for (int y = 0; y < 500; ++y) {
        for (int x = 0; x < 500; ++x) {
            ASSERT_EQ(target.Point(x, y), slow.At(x, y, source.Point(x, y))) << x << ", " << y;
            // The square on its tip has |x| + |y| = 250 times the root of 2; two pixels for the rounding.
            if (std::abs(x - 250) + std::abs(y - 250) < 357) continue;
            ++kept;
            ASSERT_EQ(target.Point(x, y), source.Point(x, y)) << x << ", " << y;
        }
    }
    EXPECT_GT(kept, 30000);
}

TEST(Rotation, DrawsWithTheCopyPen) {
    Surface source(fonts, 4, 4), target(fonts, 4, 4);
    target.DrawMode = invertPen;
    Turn(target, source, 45, true);
    EXPECT_EQ(target.DrawMode, copyPen);
}

TEST(Rotation, BearsPicturesThatShrinkOnTheWay) {
    Surface source(fonts, 40, 40), target(fonts, 40, 40);
    Rotation rotation(target, source, 45, true);
    rotation.Step(0);
    source.Resize(3, 5);
    rotation.Step(1);
    target.Resize(2, 2);
    rotation.Step(2);
    source.Resize(0, 0);
    rotation.Step(3);
    EXPECT_EQ(target.PixelWidth(), 2);
    EXPECT_EQ(rotation.LastStep(), 20);
}

TEST(Rotation, OfNothingIsNothing) {
    Surface none(fonts, 0, 0), target(fonts, 3, 3);
    DrawGrid(target, Grid{"RGB", "###", "CMY"});
    Turn(target, none, 45, true);
    EXPECT_EQ(GridOf(target), (Grid{"RGB", "###", "CMY"}));
    Turn(none, target, 45, true);
    EXPECT_EQ(none.PixelWidth(), 0);
}

}  // namespace
}  // namespace coinlet
