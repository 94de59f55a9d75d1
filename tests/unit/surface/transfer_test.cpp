// Stretched copies against the rule written down pixel by pixel, on random small pictures.

#include "surface/transfer.h"

#include "support/block_fonts.h"
#include "surface/device.h"
#include "surface/mirror.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace coinlet {
namespace {

const test::BlockFonts fonts;

int Between(std::mt19937& random, int low, int high) {
    return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
}

// Any colour, but for every fourth pixel one of two, so that a left-out colour occurs.
Image RandomPicture(std::mt19937& random, int width, int height) {
    Bitmap bitmap(width, height);
    for (Pixel& pixel : bitmap.Pixels()) {
        const auto any = static_cast<Pixel>(random());
        pixel = spareByte | (any % 4 == 0 ? (any >> 8 & 1) * 0xFFFFFF : any & 0xFFFFFF);
    }
    return Image(std::move(bitmap));
}

void Show(Surface& surface, const Image& picture) {
    ASSERT_EQ(surface.PixelWidth(), picture.Width());
    ASSERT_EQ(surface.PixelHeight(), picture.Height());
    surface.SetPicture(picture);
}

// Which source position the i-th target position takes, both counted the way that their runs go.
int TakenBy(int i, PixelRun to, PixelRun from) {
    const long long m = std::abs(to.length), n = std::abs(from.length);
    const int k = static_cast<int>((2LL * i + 1) * n / (2 * m));
    return from.length > 0 ? from.start + k : from.start - k;
}

template <class Join>
Image BySlowRule(const Image& target, const TransferBox& to, const Image& source, const TransferBox& from,
                 Join join) {
    Bitmap result(target.Width(), target.Height());
    for (int y = 0; y < target.Height(); ++y)
        std::copy_n(target.Row(y), target.Width(), result.Row(y));
    if (from.columns.length == 0 || from.rows.length == 0) return Image(std::move(result));
    for (int j = 0; j < std::abs(to.rows.length); ++j) {
        for (int i = 0; i < std::abs(to.columns.length); ++i) {
            const int x = to.columns.start + (to.columns.length > 0 ? i : -i);
            const int y = to.rows.start + (to.rows.length > 0 ? j : -j);
            const Colour taken =
                source.At(TakenBy(i, to.columns, from.columns), TakenBy(j, to.rows, from.rows));
            if (taken == -1 || target.At(x, y) == -1) continue;
            result.Row(y)[x] = ToPixel(join(target.At(x, y), taken));
        }
    }
    return Image(std::move(result));
}

Colour Joined(RasterOp op, Colour target, Colour source) {
    if (op == SRCAND) return target & source;
    if (op == MERGE_NOT_SOURCE) return (target | ~source) & 0xFFFFFF;
    return source;
}

void ExpectSame(const Image& actual, const Image& expected, const char* what) {
    ASSERT_EQ(actual.Width(), expected.Width());
    ASSERT_EQ(actual.Height(), expected.Height());
    for (int y = 0; y < actual.Height(); ++y) {
        for (int x = 0; x < actual.Width(); ++x) {
            ASSERT_EQ(actual.Row(y)[x], expected.Row(y)[x]) << what << " at " << x << ", " << y;
        }
    }
}

TransferBox RandomBox(std::mt19937& random, int reach) {
    return {{Between(random, -reach, reach), Between(random, -reach, reach)},
            {Between(random, -reach, reach), Between(random, -reach, reach)}};
}

// --- Against the slow rule -----------------------------------------------------------------------------

TEST(StretchBlt, FollowsTheRuleAtAnySizeAndPlace) {
    std::mt19937 random(2024);
    for (int round = 0; round < 4000; ++round) {
        const int width = Between(random, 1, 14), height = Between(random, 1, 14);
        Surface target(fonts, width, height), source(fonts, Between(random, 1, 14), Between(random, 1, 14));
        const Image before = RandomPicture(random, width, height);
        const Image picture = RandomPicture(random, source.PixelWidth(), source.PixelHeight());
        Show(target, before);
        Show(source, picture);
        const TransferBox to = RandomBox(random, 20), from = RandomBox(random, 20);
        for (const RasterOp op : {SRCCOPY, SRCAND, MERGE_NOT_SOURCE}) {
            Show(target, before);
            StretchBlt(target.hDC(), to.columns.start, to.rows.start, to.columns.length, to.rows.length,
                       source.hDC(), from.columns.start, from.rows.start, from.columns.length,
                       from.rows.length, op);
            ExpectSame(
                target.Image(),
                BySlowRule(before, to, picture, from, [&](Colour a, Colour b) { return Joined(op, a, b); }),
                "StretchBlt");
        }
        ExpectSame(source.Image(), picture, "the source");
    }
}

TEST(StretchBlt, WholeToWholeFollowsTheRule) {
    std::mt19937 random(31);
    for (int n = 1; n <= 24; ++n) {
        for (int m = 1; m <= 24; ++m) {
            const Image picture = RandomPicture(random, n, 1), before = RandomPicture(random, m, 1);
            Surface target(fonts, m, 1);
            Show(target, before);
            target.PaintPicture(picture, {0, 0, static_cast<double>(m), 1});
            const TransferBox to = {{0, m}, {0, 1}}, from = {{0, n}, {0, 1}};
            ExpectSame(target.Image(),
                       BySlowRule(before, to, picture, from, [](Colour, Colour b) { return b; }),
                       "PaintPicture");
        }
    }
}

TEST(TransparentBlt, LeavesTheColourOut) {
    std::mt19937 random(77);
    for (int round = 0; round < 1000; ++round) {
        Surface target(fonts, Between(random, 1, 10), Between(random, 1, 10));
        Surface source(fonts, Between(random, 1, 10), Between(random, 1, 10));
        const Image before = RandomPicture(random, target.PixelWidth(), target.PixelHeight());
        const Image picture = RandomPicture(random, source.PixelWidth(), source.PixelHeight());
        Show(target, before);
        Show(source, picture);
        const TransferBox to = RandomBox(random, 14), from = RandomBox(random, 14);
        TransparentBlt(target.hDC(), to.columns.start, to.rows.start, to.columns.length, to.rows.length,
                       source.hDC(), from.columns.start, from.rows.start, from.columns.length,
                       from.rows.length, white);
        ExpectSame(
            target.Image(),
            BySlowRule(before, to, picture, from, [](Colour a, Colour b) { return b == white ? a : b; }),
            "TransparentBlt");
    }
}

TEST(BitBlt, OntoItselfReadsThePictureAsItWas) {
    std::mt19937 random(5);
    for (int round = 0; round < 1000; ++round) {
        const int width = Between(random, 1, 12), height = Between(random, 1, 12);
        Surface surface(fonts, width, height);
        const Image before = RandomPicture(random, width, height);
        Show(surface, before);
        const PixelRun columns = {Between(random, -6, 12), Between(random, 1, 12)};
        const PixelRun rows = {Between(random, -6, 12), Between(random, 1, 12)};
        const int sx = Between(random, -6, 12), sy = Between(random, -6, 12);
        BitBlt(surface.hDC(), columns.start, rows.start, columns.length, rows.length, surface.hDC(), sx, sy,
               SRCCOPY);
        ExpectSame(surface.Image(),
                   BySlowRule(before, {columns, rows}, before, {{sx, columns.length}, {sy, rows.length}},
                              [](Colour, Colour b) { return b; }),
                   "BitBlt");
    }
}

// --- Relations -----------------------------------------------------------------------------------------

TEST(Flip, TwiceGivesBackThePicture) {
    std::mt19937 random(9);
    for (int width = 1; width <= 9; ++width) {
        for (int height = 1; height <= 9; ++height) {
            Surface surface(fonts, width, height);
            const Image before = RandomPicture(random, width, height);
            Show(surface, before);
            FlipHorizontal(surface);
            for (int y = 0; y < height; ++y) {
                for (int x = 0; x < width; ++x) {
                    ASSERT_EQ(GetPixel(surface.hDC(), width - 1 - x, y), before.At(x, y));
                }
            }
            FlipVertical(surface);
            for (int y = 0; y < height; ++y) {
                for (int x = 0; x < width; ++x) {
                    ASSERT_EQ(GetPixel(surface.hDC(), width - 1 - x, height - 1 - y), before.At(x, y));
                }
            }
            FlipHorizontal(surface);
            FlipVertical(surface);
            ExpectSame(surface.Image(), before, "flipped twice");
        }
    }
}

TEST(Flip, IsAStretchOntoItselfFromTheLastColumnOrRow) {
    std::mt19937 random(10);
    for (const int side : {1, 2, 3, 8, 17}) {
        Surface flipped(fonts, side, side), copied(fonts, side, side);
        const Image before = RandomPicture(random, side, side);
        Show(flipped, before);
        Show(copied, before);
        FlipHorizontal(flipped);
        StretchBlt(copied.hDC(), 0, 0, side, side, copied.hDC(), side - 1, 0, -side, side, SRCCOPY);
        ExpectSame(copied.Image(), flipped.Image(), "left to right");
        FlipVertical(flipped);
        StretchBlt(copied.hDC(), 0, 0, side, side, copied.hDC(), 0, side - 1, side, -side, SRCCOPY);
        ExpectSame(copied.Image(), flipped.Image(), "top to bottom");
    }
}

TEST(Flip, OfASurfaceOfNoSizeDoesNothing) {
    Surface surface(fonts, 0, 5);
    FlipHorizontal(surface);
    FlipVertical(surface);
    MirrorColumnToRight(surface, 0);
    MirrorRowToBottom(surface, 0);
    EXPECT_EQ(surface.PixelWidth(), 0);
}

TEST(Mirror, HalvesMeetAtTheMiddle) {
    std::mt19937 random(11);
    for (const int side : {1, 2, 5, 6}) {
        Surface surface(fonts, side, side);
        const Image before = RandomPicture(random, side, side);
        Show(surface, before);
        for (int i = -1; i <= side; ++i)  // also columns outside the left half
            MirrorColumnToRight(surface, i);
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                ASSERT_EQ(GetPixel(surface.hDC(), x, y), before.At(std::min(x, side - 1 - x), y));
            }
        }

        Show(surface, before);
        for (int i = -1; i <= side; ++i)
            MirrorRowToBottom(surface, i);
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                ASSERT_EQ(GetPixel(surface.hDC(), x, y), before.At(x, std::min(y, side - 1 - y)));
            }
        }
    }
}

TEST(Mirror, OneColumnOrRowChangesNoOther) {
    std::mt19937 random(12);
    Surface surface(fonts, 6, 4);
    const Image before = RandomPicture(random, 6, 4);
    Show(surface, before);
    surface.ForgetChanges();
    MirrorColumnToRight(surface, 1);
    EXPECT_EQ(surface.Changed(), (PixelRect{4, 0, 5, 4}));
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 6; ++x) {
            EXPECT_EQ(GetPixel(surface.hDC(), x, y), before.At(x == 4 ? 1 : x, y));
        }
    }
    Show(surface, before);
    surface.ForgetChanges();
    MirrorRowToBottom(surface, 0);
    EXPECT_EQ(surface.Changed(), (PixelRect{0, 3, 6, 4}));
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 6; ++x) {
            EXPECT_EQ(GetPixel(surface.hDC(), x, y), before.At(x, y == 3 ? 0 : y));
        }
    }
}

// --- The axis map at the ends of the number range ------------------------------------------------------

TEST(MapAxis, LengthsOfTheWholeRangeAreExact) {
    constexpr int huge = std::numeric_limits<int>::max(), hugeDown = std::numeric_limits<int>::min();
    // 2^31 - 1 onto itself, cut to the 10 pixels that both have.
    const AxisMap same = MapAxis({0, huge}, 10, {0, huge}, 10);
    EXPECT_EQ(same.first, 0);
    EXPECT_EQ(same.sources, (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(same.order, AxisMap::Order::Forward);

    // From 9 downward for 2^31 pixels, out of a run from 9 upward: only the pixel 9 of each is in both, and
    // those below take what lies beyond the source.
    const AxisMap down = MapAxis({9, hugeDown}, 10, {9, huge}, 10);
    EXPECT_EQ(down.first, 9);
    EXPECT_EQ(down.sources, (std::vector<int>{9}));

    // Two source pixels over 2^31 - 1 target pixels: the first one is all that the target shows.
    const AxisMap wide = MapAxis({0, huge}, 4, {0, 2}, 2);
    EXPECT_EQ(wide.first, 0);
    EXPECT_EQ(wide.sources, (std::vector<int>{0, 0, 0, 0}));

    // Its far end: pixel 2^31 - 2 is the last of the target, and shows the second one.
    const AxisMap end = MapAxis({4 - huge, huge}, 4, {0, 2}, 2);
    EXPECT_EQ(end.sources, (std::vector<int>{1, 1, 1, 1}));

    // 2^31 - 1 source pixels in one target pixel: it takes the middle one.
    const AxisMap narrow = MapAxis({0, 1}, 1, {5 - huge / 2, huge}, 10);
    EXPECT_EQ(narrow.sources, (std::vector<int>{5}));
}

TEST(MapAxis, NothingInCommonIsEmpty) {
    EXPECT_TRUE(MapAxis({0, 0}, 10, {0, 5}, 10).Empty());
    EXPECT_TRUE(MapAxis({0, 5}, 10, {0, 0}, 10).Empty());
    EXPECT_TRUE(MapAxis({10, 5}, 10, {0, 5}, 10).Empty());
    EXPECT_TRUE(MapAxis({-5, 5}, 10, {0, 5}, 10).Empty());
    EXPECT_TRUE(MapAxis({-1, -5}, 10, {0, 5}, 10).Empty());
    EXPECT_TRUE(MapAxis({0, 5}, 10, {10, 5}, 10).Empty());
    EXPECT_TRUE(MapAxis({0, 5}, 10, {-5, 5}, 10).Empty());
    EXPECT_TRUE(MapAxis({0, 5}, 0, {0, 5}, 10).Empty());
    EXPECT_TRUE(MapAxis({0, 5}, 10, {0, 5}, 0).Empty());
}

}  // namespace
}  // namespace coinlet
