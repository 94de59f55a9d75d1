// Filled regions: against a breadth-first search on random pictures, and the cases that a user meets.

#include "surface/flood_fill.h"

#include "support/block_fonts.h"
#include "surface/device.h"

#include <queue>

#include <array>
#include <gtest/gtest.h>
#include <random>
#include <utility>
#include <vector>

namespace coinlet {
namespace {

const test::BlockFonts fonts;
constexpr std::array<Colour, 4> palette = {white, black, RGB(255, 0, 0), RGB(0, 0, 255)};

// A picture of `colours` colours of the palette; `grain` of 8 keeps the left neighbour's colour, so that
// regions grow.
void Scatter(Surface& surface, std::mt19937& random, std::size_t colours, std::size_t grain) {
    const DeviceContext hDC = surface.hDC();
    for (int y = 0; y < surface.PixelHeight(); ++y) {
        for (int x = 0; x < surface.PixelWidth(); ++x) {
            const bool same = random() % 8 < grain && x > 0;
            SetPixel(hDC, x, y, same ? GetPixel(hDC, x - 1, y) : palette[random() % colours]);
        }
    }
}

// The pixels reached from (x, y) over the four neighbours, as long as `inside` holds.
template <class Inside>
std::vector<std::pair<int, int>> Reached(const Image& picture, int x, int y, Inside inside) {
    std::vector<std::pair<int, int>> reached;
    std::vector<bool> seen(static_cast<std::size_t>(picture.Width()) *
                           static_cast<std::size_t>(picture.Height()));
    std::queue<std::pair<int, int>> waiting;
    waiting.emplace(x, y);
    while (!waiting.empty()) {
        const auto [cx, cy] = waiting.front();
        waiting.pop();
        const Colour colour = picture.At(cx, cy);
        if (colour == -1 || !inside(colour)) continue;
        const auto index = static_cast<std::size_t>(cy) * static_cast<std::size_t>(picture.Width()) +
                           static_cast<std::size_t>(cx);
        if (seen[index]) continue;
        seen[index] = true;
        reached.emplace_back(cx, cy);
        waiting.emplace(cx + 1, cy);
        waiting.emplace(cx - 1, cy);
        waiting.emplace(cx, cy + 1);
        waiting.emplace(cx, cy - 1);
    }
    return reached;
}

template <class Inside>
void ExpectFilled(const Image& before, const Surface& after, int x, int y, Colour fill, Inside inside) {
    Surface expected(fonts, before.Width(), before.Height());
    expected.SetPicture(before);
    for (const auto& [px, py] : Reached(before, x, y, inside))
        SetPixel(expected.hDC(), px, py, fill);
    for (int row = 0; row < before.Height(); ++row) {
        for (int column = 0; column < before.Width(); ++column) {
            ASSERT_EQ(after.Pixels().Row(row)[column], expected.Pixels().Row(row)[column])
                << before.Width() << "x" << before.Height() << " from " << x << ", " << y << " at " << column
                << ", " << row;
        }
    }
}

TEST(ExtFloodFill, IsTheBreadthFirstSearch) {
    std::mt19937 random(4711);
    for (int round = 0; round < 3000; ++round) {
        const int width = 1 + static_cast<int>(random() % 24), height = 1 + static_cast<int>(random() % 24);
        Surface surface(fonts, width, height);
        Scatter(surface, random, 2 + random() % 3, random() % 8);
        surface.FillStyle = solidFill;
        surface.FillColor = palette[random() % palette.size()];
        const int x = static_cast<int>(random() % static_cast<unsigned>(width));
        const int y = static_cast<int>(random() % static_cast<unsigned>(height));
        const Image before = surface.Image();
        const Colour seed = before.At(x, y);
        EXPECT_TRUE(ExtFloodFill(surface.hDC(), x, y, seed, FLOODFILLSURFACE));
        ExpectFilled(before, surface, x, y, surface.FillColor, [&](Colour c) { return c == seed; });
    }
}

TEST(FloodFill, IsTheBreadthFirstSearchUpToTheBorder) {
    std::mt19937 random(1147);
    for (int round = 0; round < 3000; ++round) {
        const int width = 1 + static_cast<int>(random() % 24), height = 1 + static_cast<int>(random() % 24);
        Surface surface(fonts, width, height);
        Scatter(surface, random, 2 + random() % 3, random() % 8);
        surface.FillStyle = solidFill;
        surface.FillColor = palette[random() % palette.size()];  // often in the region, often the border's
        const Colour border = palette[random() % palette.size()];
        const int x = static_cast<int>(random() % static_cast<unsigned>(width));
        const int y = static_cast<int>(random() % static_cast<unsigned>(height));
        const Image before = surface.Image();
        EXPECT_EQ(FloodFill(surface.hDC(), x, y, border), before.At(x, y) != border);
        ExpectFilled(before, surface, x, y, surface.FillColor, [&](Colour c) { return c != border; });
    }
}

TEST(ExtFloodFill, WideRegionsWithHolesAndOverhangs) {
    // Wide enough for the runs that are looked at in blocks.
    std::mt19937 random(99);
    for (int round = 0; round < 200; ++round) {
        Surface surface(fonts, 90 + static_cast<int>(random() % 40), 30);
        for (int i = 0; i < 60; ++i)
            SetPixel(surface.hDC(), static_cast<int>(random() % 130), static_cast<int>(random() % 30), black);
        surface.FillStyle = solidFill;
        surface.FillColor = RGB(10, 20, 30);
        const Image before = surface.Image();
        ExtFloodFill(surface.hDC(), 40, 15, white, FLOODFILLSURFACE);
        ExpectFilled(before, surface, 40, 15, surface.FillColor, [](Colour c) { return c == white; });
        surface.SetPicture(before);
        FloodFill(surface.hDC(), 40, 15, black);
        ExpectFilled(before, surface, 40, 15, surface.FillColor, [](Colour c) { return c != black; });
    }
}

TEST(ExtFloodFill, DoesNotPassADiagonalGap) {
    // #.
    // .#   the two open corners touch only by their corners
    Surface surface(fonts, 2, 2);
    SetPixel(surface.hDC(), 0, 0, black);
    SetPixel(surface.hDC(), 1, 1, black);
    surface.FillStyle = solidFill;
    surface.FillColor = RGB(255, 0, 0);
    EXPECT_TRUE(ExtFloodFill(surface.hDC(), 1, 0, white, FLOODFILLSURFACE));
    EXPECT_EQ(GetPixel(surface.hDC(), 1, 0), RGB(255, 0, 0));
    EXPECT_EQ(GetPixel(surface.hDC(), 0, 1), white);
}

TEST(ExtFloodFill, ANearlyEqualColourStopsIt) {
    Surface surface(fonts, 3, 1);
    SetPixel(surface.hDC(), 1, 0, RGB(255, 255, 254));
    surface.FillStyle = solidFill;
    ExtFloodFill(surface.hDC(), 0, 0, white, FLOODFILLSURFACE);
    EXPECT_EQ(GetPixel(surface.hDC(), 0, 0), black);
    EXPECT_EQ(GetPixel(surface.hDC(), 1, 0), RGB(255, 255, 254));
    EXPECT_EQ(GetPixel(surface.hDC(), 2, 0), white);
}

TEST(ExtFloodFill, WithoutAPlaceOrAPaintItDoesNothing) {
    Surface surface(fonts, 4, 4);
    surface.FillColor = RGB(255, 0, 0);
    const auto revision = surface.Revision();
    EXPECT_FALSE(ExtFloodFill(surface.hDC(), 1, 1, white, FLOODFILLSURFACE));  // FillStyle is transparent
    surface.FillStyle = solidFill;
    EXPECT_FALSE(ExtFloodFill(surface.hDC(), -1, 1, white, FLOODFILLSURFACE));
    EXPECT_FALSE(ExtFloodFill(surface.hDC(), 1, 4, white, FLOODFILLSURFACE));
    EXPECT_FALSE(ExtFloodFill(surface.hDC(), 1, 1, black, FLOODFILLSURFACE));  // another colour is there
    EXPECT_FALSE(ExtFloodFill(surface.hDC(), 1, 1, white, 0));
    // What Point gave outside the surface is drawn as white, so it finds nothing of another colour.
    EXPECT_FALSE(ExtFloodFill(surface.hDC(), -1, -1, -1, FLOODFILLSURFACE));
    EXPECT_EQ(surface.Revision(), revision);
    EXPECT_EQ(GetPixel(surface.hDC(), 1, 1), white);
}

TEST(ExtFloodFill, WithTheRegionsOwnColourChangesNothing) {
    Surface surface(fonts, 5, 5);
    surface.FillStyle = solidFill;
    surface.FillColor = white;
    const auto revision = surface.Revision();
    EXPECT_TRUE(ExtFloodFill(surface.hDC(), 2, 2, white, FLOODFILLSURFACE));
    EXPECT_EQ(surface.Revision(), revision);
}

TEST(ExtFloodFill, LeavesSnapshotsAlone) {
    Surface surface(fonts, 5, 5);
    const Image before = surface.Image();
    surface.FillStyle = solidFill;
    ExtFloodFill(surface.hDC(), 2, 2, white, FLOODFILLSURFACE);
    EXPECT_EQ(before.At(2, 2), white);
    EXPECT_EQ(GetPixel(surface.hDC(), 2, 2), black);
}

TEST(ExtFloodFill, TellsTheScreenWhatChanged) {
    Surface surface(fonts, 10, 10);
    for (int i = 0; i < 10; ++i) {
        SetPixel(surface.hDC(), 6, i, black);
        SetPixel(surface.hDC(), i, 3, black);
    }
    surface.FillStyle = solidFill;
    surface.FillColor = RGB(255, 0, 0);
    surface.ForgetChanges();
    ExtFloodFill(surface.hDC(), 8, 8, white, FLOODFILLSURFACE);
    EXPECT_EQ(surface.Changed(), (PixelRect{7, 4, 10, 10}));
}

TEST(FloodFill, TransparentLeavesNoMark) {
    Surface surface(fonts, 4, 4);
    const auto revision = surface.Revision();
    surface.FillStyle = transparentFill;
    EXPECT_TRUE(FloodFill(surface.hDC(), 1, 1, black));
    EXPECT_EQ(surface.Revision(), revision);
}

TEST(FloodFill, OnTheBorderOrOutsideIsRefused) {
    Surface surface(fonts, 4, 4);
    surface.FillStyle = solidFill;
    surface.FillColor = RGB(255, 0, 0);
    EXPECT_FALSE(FloodFill(surface.hDC(), 1, 1, white));
    EXPECT_FALSE(FloodFill(surface.hDC(), -1, 1, black));
    EXPECT_FALSE(FloodFill(surface.hDC(), 4, 0, black));
    EXPECT_EQ(GetPixel(surface.hDC(), 1, 1), white);
}

TEST(FloodFill, ASurfaceOfNoSizeIsRefused) {
    Surface surface(fonts, 0, 0);
    surface.FillStyle = solidFill;
    EXPECT_FALSE(FloodFill(surface.hDC(), 0, 0, black));
    EXPECT_FALSE(ExtFloodFill(surface.hDC(), 0, 0, white, FLOODFILLSURFACE));
}

}  // namespace
}  // namespace coinlet
