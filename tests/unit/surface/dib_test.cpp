// Rows in and out of a memory buffer.

#include "support/block_fonts.h"
#include "support/picture_grid.h"
#include "surface/device.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>

namespace coinlet {
namespace {

using Buffer = std::vector<std::uint8_t>;
using test::Grid;
using test::GridOf;

const test::BlockFonts fonts;

// Two columns, three rows.
void DrawSample(Surface& surface) {
    test::DrawGrid(surface, {"R.", "G#", "BC"});
}

TEST(GetDIBits, GivesBlueGreenRedSpare) {
    Surface surface(fonts, 1, 1);
    SetPixel(surface.hDC(), 0, 0, RGB(10, 20, 30));
    Buffer buffer(4);
    EXPECT_EQ(GetDIBits(surface.hDC(), 0, 1, buffer, {1, -1}), 1);
    EXPECT_EQ(buffer, (Buffer{30, 20, 10, 255}));
}

TEST(GetDIBits, ANegativeHeightPutsTheTopRowFirst) {
    Surface surface(fonts, 2, 3);
    DrawSample(surface);
    Buffer buffer(std::size_t{2} * 3 * 4);
    EXPECT_EQ(GetDIBits(surface.hDC(), 0, 3, buffer, {2, -3}), 3);
    EXPECT_EQ(buffer, (Buffer{0,   0,   255, 255, 255, 255, 255, 255,    // R.
                              0,   255, 0,   255, 0,   0,   0,   255,    // G#
                              255, 0,   0,   255, 255, 255, 0,   255}))  // BC
    ;
    EXPECT_EQ(GetDIBits(surface.hDC(), 0, 3, buffer, {2, 3}), 3);
    EXPECT_EQ(buffer, (Buffer{255, 0,   0,   255, 255, 255, 0,   255,    // BC
                              0,   255, 0,   255, 0,   0,   0,   255,    // G#
                              0,   0,   255, 255, 255, 255, 255, 255}))  // R.
    ;
}

TEST(GetDIBits, SomeRowsCountedInTheBuffersOrder) {
    Surface surface(fonts, 2, 3);
    DrawSample(surface);
    const Buffer topRow = {0, 0, 255, 255, 255, 255, 255, 255};
    Buffer buffer(8);
    EXPECT_EQ(GetDIBits(surface.hDC(), 0, 1, buffer, {2, -3}), 1);
    EXPECT_EQ(buffer, topRow);
    buffer.assign(8, 0);
    EXPECT_EQ(GetDIBits(surface.hDC(), 2, 1, buffer, {2, 3}), 1);
    EXPECT_EQ(buffer, topRow);
}

TEST(SetDIBits, WritesSomeRows) {
    Surface surface(fonts, 2, 3);
    surface.ForgetChanges();
    const Buffer blueRow = {255, 0, 0, 255, 255, 0, 0, 255};
    EXPECT_EQ(SetDIBits(surface.hDC(), 0, 1, blueRow, {2, 3}), 1);  // the bottom row
    EXPECT_EQ(GridOf(surface), (Grid{"..", "..", "BB"}));
    EXPECT_EQ(surface.Changed(), (PixelRect{0, 2, 2, 3}));
    EXPECT_EQ(SetDIBits(surface.hDC(), 1, 1, blueRow, {2, -3}), 1);
    EXPECT_EQ(GridOf(surface), (Grid{"..", "BB", "BB"}));
}

TEST(SetDIBits, TheSpareByteBecomes255) {
    Surface surface(fonts, 2, 1);
    const Buffer buffer = {1, 2, 3, 0, 4, 5, 6, 77};
    SetDIBits(surface.hDC(), 0, 1, buffer, {2, -1});
    EXPECT_EQ(surface.Pixels().Row(0)[0], 0xFF030201U);
    EXPECT_EQ(surface.Pixels().Row(0)[1], 0xFF060504U);
}

TEST(SetDIBits, WhatWasReadIsTheSamePicture) {
    std::mt19937 random(3);
    for (const int sign : {1, -1}) {
        Surface from(fonts, 13, 7), to(fonts, 13, 7);
        for (Pixel& pixel : from.WriteAll().Pixels())
            pixel = spareByte | static_cast<Pixel>(random());
        Buffer buffer(std::size_t{13} * 7 * 4);
        const BITMAPINFO info = {13, sign * 7};
        EXPECT_EQ(GetDIBits(from.hDC(), 0, 7, buffer, info), 7);
        EXPECT_EQ(SetDIBits(to.hDC(), 0, 7, buffer, info), 7);
        EXPECT_EQ(from.Image(), to.Image());
        // Row by row it is the same.
        to.Cls();
        Buffer row(std::size_t{13} * 4);
        for (int i = 0; i < 7; ++i) {
            EXPECT_EQ(GetDIBits(from.hDC(), i, 1, row, info), 1);
            EXPECT_EQ(SetDIBits(to.hDC(), i, 1, row, info), 1);
        }
        EXPECT_EQ(from.Image(), to.Image());
    }
}

TEST(SetDIBits, LeavesSnapshotsAlone) {
    Surface surface(fonts, 1, 1);
    const Image before = surface.Image();
    SetDIBits(surface.hDC(), 0, 1, Buffer{0, 0, 0, 0}, {1, 1});
    EXPECT_EQ(before.At(0, 0), white);
    EXPECT_EQ(GetPixel(surface.hDC(), 0, 0), black);
}

TEST(DIBits, WhatDoesNotFitCopiesNothing) {
    constexpr int low = std::numeric_limits<int>::min(), high = std::numeric_limits<int>::max();
    struct Bad {
        int start, lines;
        std::size_t bytes;
        BITMAPINFO info;
    };
    const std::vector<Bad> all = {
        {-1, 1, 24, {2, 3}},  {0, 4, 24, {2, 3}},     {1, 3, 24, {2, 3}},    {3, 1, 24, {2, 3}},
        {0, 0, 24, {2, 3}},   {0, -1, 24, {2, 3}},    {0, 3, 23, {2, 3}},    {0, 1, 7, {2, 3}},
        {0, 3, 24, {1, 3}},   {0, 3, 36, {3, 3}},     {0, 3, 24, {-2, 3}},   {0, 1, 24, {2, 2}},
        {0, 1, 24, {2, 0}},   {0, high, 24, {2, -3}}, {high, 1, 24, {2, 3}}, {high, high, 24, {2, 3}},
        {low, 1, 24, {2, 3}}, {0, 1, 24, {2, low}},   {0, 1, 0, {2, 3}}};
    Surface surface(fonts, 2, 3);
    DrawSample(surface);
    const auto revision = surface.Revision();
    for (const Bad& bad : all) {
        Buffer buffer(bad.bytes, 99);
        EXPECT_EQ(GetDIBits(surface.hDC(), bad.start, bad.lines, buffer, bad.info), 0);
        EXPECT_EQ(buffer, Buffer(bad.bytes, 99));
        EXPECT_EQ(SetDIBits(surface.hDC(), bad.start, bad.lines, buffer, bad.info), 0);
    }
    EXPECT_EQ(surface.Revision(), revision);
    EXPECT_EQ(GridOf(surface), (Grid{"R.", "G#", "BC"}));
}

TEST(DIBits, OfASurfaceOfNoSizeCopyNothing) {
    Surface surface(fonts, 0, 0);
    Buffer buffer(16);
    EXPECT_EQ(GetDIBits(surface.hDC(), 0, 0, buffer, {0, 0}), 0);
    EXPECT_EQ(SetDIBits(surface.hDC(), 0, 1, buffer, {0, 0}), 0);
}

}  // namespace
}  // namespace coinlet
