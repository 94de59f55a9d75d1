// Bitmaps of every depth, coding and row order, built byte by byte, and those that lie.
#include "support/bmp_bytes.h"
#include "surface/codecs.h"

#include <climits>
#include <cmath>
#include <gtest/gtest.h>

namespace coinlet {
namespace {

using test::BmpBytes;

constexpr std::uint32_t red = 0xFF0000, green = 0x00FF00, blue = 0x0000FF, grey = 0x808080;

/// The picture's colours as 0xRRGGBB, row by row from the top; "rows" of no picture is empty.
using Rows = std::vector<std::vector<std::uint32_t>>;

Rows Decoded(const Bytes& file) {
    Rows rows;
    const auto image = DecodeBmp(file);
    for (int y = 0; image && y < image->Height(); ++y) {
        rows.emplace_back();
        for (int x = 0; x < image->Width(); ++x) {
            const Pixel pixel = image->Row(y)[x];
            EXPECT_EQ(pixel >> 24, 0xFFU) << "spare byte at " << x << ", " << y;
            rows.back().push_back(pixel & 0xFFFFFF);
        }
    }
    return rows;
}

Rows Decoded(const BmpBytes& file) {
    return Decoded(file.File());
}

/// The same file with its rows from top to bottom.
BmpBytes TopDown(BmpBytes file) {
    file.height = -file.height;
    return file;
}

Rows UpsideDown(Rows rows) {
    return {rows.rbegin(), rows.rend()};
}

/// Checks a file in both row orders: `rows` are as the bottom row first gives them.
void ExpectInBothOrders(const BmpBytes& file, const Rows& rows) {
    EXPECT_EQ(Decoded(file), rows);
    EXPECT_EQ(Decoded(TopDown(file)), UpsideDown(rows));
}

TEST(DecodeBmp, Reads1Bit) {
    // 10 pixels a row: two bytes and two of padding.
    ExpectInBothOrders({.width = 10,
                        .height = 2,
                        .bits = 1,
                        .palette = {red, blue},
                        .pixels = {0b10000000, 0b01111111, 0xFF, 0xFF, 0b01010101, 0b10000000, 0, 0}},
                       {{red, blue, red, blue, red, blue, red, blue, blue, red},
                        {blue, red, red, red, red, red, red, red, red, blue}});
}

TEST(DecodeBmp, Reads4Bits) {
    ExpectInBothOrders({.width = 3,
                        .height = 2,
                        .bits = 4,
                        .palette = {red, green, blue, grey},
                        .pixels = {0x01, 0x2F, 0, 0, 0x32, 0x10, 0, 0}},
                       {{grey, blue, green}, {red, green, blue}});
}

TEST(DecodeBmp, Reads8Bits) {
    ExpectInBothOrders({.width = 5,
                        .height = 2,
                        .bits = 8,
                        .palette = {red, green, blue, grey},
                        .pixels = {0, 1, 2, 3, 0, 9, 9, 9, 3, 2, 1, 0, 3, 9, 9, 9}},
                       {{grey, blue, green, red, grey}, {red, green, blue, grey, red}});
}

TEST(DecodeBmp, Reads16BitsAsFiveEach) {
    // 5-5-5; the top bit counts for nothing. 16 of 31 is 16 * 255 / 31 = 131.6, so 132 = 0x84.
    ExpectInBothOrders({.width = 3,
                        .height = 2,
                        .bits = 16,
                        .pixels = {0x00, 0x7C, 0xE0, 0x03, 0x1F, 0x00, 0, 0,  //
                                   0x00, 0x80, 0x10, 0x42, 0xFF, 0xFF, 0, 0}},
                       {{0, 0x848484, 0xFFFFFF}, {red, green, blue}});
}

TEST(DecodeBmp, Reads24BitsOfEveryWidth) {
    for (std::int32_t width = 1; width <= 9; ++width) {
        BmpBytes file{.width = width, .height = 2};
        Rows rows(2);
        for (unsigned y = 0; y < 2; ++y) {
            for (unsigned x = 0; x < static_cast<unsigned>(width); ++x) {
                const unsigned b = 10 * x + y, g = 100 + 7 * x, r = 250 - 9 * x - y;
                for (const unsigned channel : {b, g, r})
                    file.pixels.push_back(static_cast<std::uint8_t>(channel));
                rows[1 - y].push_back(r << 16 | g << 8 | b);
            }
            while (file.pixels.size() % 4 != 0)
                file.pixels.push_back(0xEE);
        }
        ExpectInBothOrders(file, rows);
    }
}

TEST(DecodeBmp, Reads32BitsWithoutTheFourthByte) {
    ExpectInBothOrders({.width = 2,
                        .height = 2,
                        .bits = 32,
                        .pixels = {1, 2, 3, 0, 4, 5, 6, 255, 7, 8, 9, 128, 10, 11, 12, 1}},
                       {{0x090807, 0x0C0B0A}, {0x030201, 0x060504}});
}

TEST(DecodeBmp, ReadsEveryHeader) {
    for (const std::uint32_t size : {12U, 16U, 40U, 52U, 56U, 64U, 108U, 124U}) {
        SCOPED_TRACE(size);
        EXPECT_EQ(Decoded({.headerSize = size, .width = 1, .height = 2, .pixels = {1, 2, 3, 0, 4, 5, 6, 0}}),
                  (Rows{{0x060504}, {0x030201}}));
        EXPECT_EQ(
            Decoded(
                {.headerSize = size, .width = 2, .bits = 8, .palette = {red, green}, .pixels = {1, 0, 0, 0}}),
            (Rows{{green, red}}));
    }
    for (const std::uint32_t size : {0U, 11U, 13U, 39U, 41U, 125U, 0xFFFFFFFFU}) {
        BmpBytes file{.pixels = {1, 2, 3, 0}};
        Bytes bytes = file.File();
        bytes.resize(300);
        for (unsigned i = 0; i < 4; ++i)
            bytes[14 + i] = static_cast<std::uint8_t>(size >> 8 * i);
        EXPECT_FALSE(DecodeBmp(bytes)) << size;
    }
}

TEST(DecodeBmp, ReadsBitFieldsInAndBehindTheHeader) {
    for (const std::uint32_t size : {40U, 52U, 56U, 108U, 124U}) {
        SCOPED_TRACE(size);
        // 5-6-5: 0x8410 is 16 of 31, 32 of 63, 16 of 31; 32 * 255 / 63 = 129.5, so 130 = 0x82.
        ExpectInBothOrders({.headerSize = size,
                            .width = 3,
                            .height = 2,
                            .bits = 16,
                            .compression = 3,
                            .masks = {0xF800, 0x07E0, 0x001F},
                            .pixels = {0x00, 0xF8, 0xE0, 0x07, 0x1F, 0x00, 0, 0,  //
                                       0x10, 0x84, 0x00, 0x00, 0xFF, 0xFF, 0, 0}},
                           {{0x848284, 0, 0xFFFFFF}, {red, green, blue}});
        // Red in the low byte.
        ExpectInBothOrders({.headerSize = size,
                            .bits = 32,
                            .compression = 3,
                            .masks = {0x000000FF, 0x0000FF00, 0x00FF0000},
                            .pixels = {1, 2, 3, 4}},
                           {{0x010203}});
    }
}

TEST(DecodeBmp, ReadsBitFieldsWithAlpha) {
    EXPECT_EQ(Decoded({.bits = 32,
                       .compression = 6,
                       .masks = {0xFF, 0xFF00, 0xFF0000, 0xFF000000},
                       .pixels = {1, 2, 3, 0}}),
              (Rows{{0x010203}}));
}

TEST(DecodeBmp, StretchesFieldsOfAnyLength) {
    // Each length of field: the value v of max gives the nearest whole number to v * 255 / max.
    for (unsigned length = 1; length <= 32; ++length) {
        const auto max = static_cast<std::uint32_t>((std::uint64_t{1} << length) - 1);
        for (const std::uint32_t value : {0U, 1U, max / 3, max / 2, max - 1, max}) {
            const BmpBytes file{
                .bits = 32,
                .compression = 3,
                .masks = {0, max, 0},
                .pixels = {static_cast<std::uint8_t>(value), static_cast<std::uint8_t>(value >> 8),
                           static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 24)}};
            const auto expected =
                static_cast<std::uint32_t>(std::floor(static_cast<double>(value) * 255 / max + 0.5));
            EXPECT_EQ(Decoded(file), (Rows{{expected << 8}})) << length << " bits, " << value;
        }
    }
}

TEST(DecodeBmp, LetsFieldsOverlapOrBeMissing) {
    EXPECT_EQ(
        Decoded({.bits = 16, .compression = 3, .masks = {0xFF00, 0, 0xFF00}, .pixels = {0x12, 0x34, 0, 0}}),
        (Rows{{0x340034}}));
    EXPECT_EQ(Decoded({.bits = 16, .compression = 3, .masks = {0, 0, 0}, .pixels = {0x12, 0x34, 0, 0}}),
              (Rows{{0}}));
}

TEST(DecodeBmp, IndicesBeyondThePaletteAreBlack) {
    EXPECT_EQ(
        Decoded({.width = 4, .bits = 8, .coloursUsed = 2, .palette = {red, green}, .pixels = {0, 1, 2, 255}}),
        (Rows{{red, green, 0, 0}}));
    EXPECT_EQ(Decoded({.width = 2, .bits = 4, .coloursUsed = 1, .palette = {red}, .pixels = {0x0F, 0, 0, 0}}),
              (Rows{{red, 0}}));
}

TEST(DecodeBmp, PaletteEndsWhereThePixelsStart) {
    // All 256 colours are promised, two are there.
    EXPECT_EQ(Decoded({.width = 4, .bits = 8, .palette = {red, green}, .pixels = {0, 1, 2, 3}}),
              (Rows{{red, green, 0, 0}}));
    // More than there can be.
    EXPECT_EQ(Decoded({.width = 4,
                       .bits = 8,
                       .coloursUsed = 0xFFFFFFFF,
                       .palette = {red, green},
                       .pixels = {0, 1, 2, 3}}),
              (Rows{{red, green, 0, 0}}));
}

TEST(DecodeBmp, HonoursTheOffsetOfThePixels) {
    BmpBytes file{.gap = {9, 9, 9, 9, 9}, .pixels = {1, 2, 3, 0}};
    EXPECT_EQ(Decoded(file), (Rows{{0x030201}}));
    file.bits = 8;
    file.palette = {red, green};
    file.coloursUsed = 2;
    EXPECT_EQ(Decoded(file), (Rows{{green}}));
}

TEST(DecodeBmp, AnOffsetThatCannotBeMeansRightBehindThePalette) {
    for (const std::uint32_t offset : {0U, 1U, 53U, 100000U, 0xFFFFFFFFU}) {
        EXPECT_EQ(Decoded({.offset = offset, .pixels = {1, 2, 3, 0}}), (Rows{{0x030201}})) << offset;
        EXPECT_EQ(Decoded({.width = 2,
                           .bits = 8,
                           .coloursUsed = 2,
                           .palette = {red, green},
                           .offset = offset,
                           .pixels = {1, 0, 0, 0}}),
                  (Rows{{green, red}}))
            << offset;
        // The palette of a deep picture is a hint.
        EXPECT_EQ(
            Decoded({.coloursUsed = 2, .palette = {red, green}, .offset = offset, .pixels = {1, 2, 3, 0}}),
            (Rows{{0x030201}}))
            << offset;
        EXPECT_EQ(Decoded({.coloursUsed = 0xFFFFFFFF, .offset = offset, .pixels = {1, 2, 3, 0}}),
                  (Rows{{0x030201}}))
            << offset;
    }
}

TEST(DecodeBmp, RefusesSizesThatCannotBe) {
    const std::pair<std::int32_t, std::int32_t> sizes[] = {
        {0, 1},     {1, 0},     {-1, 1},        {INT_MIN, 1},       {1, INT_MIN},        {INT_MIN, INT_MIN},
        {65536, 1}, {1, 65536}, {65535, 65535}, {INT_MAX, INT_MAX}, {INT_MAX, -INT_MAX}, {16384, 4097}};
    for (const auto& [width, height] : sizes) {
        for (const std::uint16_t bits : {std::uint16_t{1}, std::uint16_t{32}}) {
            EXPECT_FALSE(DecodeBmp(BmpBytes{.width = width, .height = height, .bits = bits}.File()))
                << width << " x " << height;
        }
    }
    EXPECT_FALSE(DecodeBmp(BmpBytes{.headerSize = 12, .width = 65535, .height = 65535}.File()));
}

TEST(DecodeBmp, RefusesWhatIsFarLargerThanItsFile) {
    for (const auto& [width, height] : {std::pair{8192, 8192}, {6000, -4001}, {16384, 1465}}) {
        EXPECT_FALSE(DecodeBmp(BmpBytes{.width = width, .height = height}.File())) << width;
        EXPECT_FALSE(
            DecodeBmp(BmpBytes{.width = width, .height = height, .bits = 8, .compression = 1}.File()))
            << width;
    }
    const auto most = DecodeBmp(BmpBytes{.width = 6000, .height = 4000}.File());
    ASSERT_TRUE(most);
    EXPECT_EQ(most->At(5999, 3999), black);
    // From a megabyte on a file may hold as much as can be made.
    Bytes large = BmpBytes{.width = 8192, .height = 8192, .bits = 1}.File();
    large.resize(999'999);
    EXPECT_FALSE(DecodeBmp(large));
    large.resize(1'000'000);
    EXPECT_TRUE(DecodeBmp(large));
}

TEST(DecodeBmp, RefusesCodingsThatCannotBe) {
    for (const std::uint16_t bits : std::initializer_list<std::uint16_t>{0, 2, 3, 5, 15, 31, 33, 64, 65535})
        EXPECT_FALSE(DecodeBmp(BmpBytes{.bits = bits, .pixels = Bytes(64)}.File())) << bits;
    struct Coding {
        std::uint16_t bits;
        std::uint32_t compression;
    };
    for (const auto& [bits, compression] :
         {Coding{24, 1}, Coding{4, 1}, Coding{8, 2}, Coding{24, 3}, Coding{8, 3}, Coding{24, 4},
          Coding{24, 5}, Coding{32, 7}, Coding{8, 0xFFFFFFFF}}) {
        EXPECT_FALSE(
            DecodeBmp(BmpBytes{.bits = bits, .compression = compression, .pixels = Bytes(64)}.File()))
            << bits << " bits, compression " << compression;
    }
    // In the second OS/2 header the number 3 stands for another coding.
    EXPECT_FALSE(DecodeBmp(BmpBytes{
        .headerSize = 64, .bits = 32, .compression = 3, .masks = {0xFF, 0xFF, 0xFF}, .pixels = Bytes(64)}
                               .File()));
}

TEST(DecodeBmp, MissingPixelsAreBlack) {
    const BmpBytes whole{
        .width = 3, .height = 2, .pixels = {1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 0, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9}};
    auto cut = whole;
    cut.pixels.resize(12 + 7);  // two pixels and a third of the third
    EXPECT_EQ(Decoded(cut), (Rows{{0x030201, 0x060504, 0}, {0x030201, 0x060504, 0x090807}}));
    cut.pixels.resize(12);
    EXPECT_EQ(Decoded(cut), (Rows{{0, 0, 0}, {0x030201, 0x060504, 0x090807}}));
    cut.pixels.clear();
    EXPECT_EQ(Decoded(cut), (Rows{{0, 0, 0}, {0, 0, 0}}));
    // Black though the palette's first colour is another.
    EXPECT_EQ(Decoded({.width = 9, .bits = 1, .palette = {red, green}, .pixels = {0xFF}}),
              (Rows{{green, green, green, green, green, green, green, green, 0}}));
}

TEST(DecodeBmp, Rle8DrawsRunsAndSingles) {
    ExpectInBothOrders(
        {.width = 6,
         .height = 2,
         .bits = 8,
         .compression = 1,
         .palette = {0, red, green, blue},
         .pixels = {2, 1, 0, 3, 1, 2, 3, 99, 1, 3, 0, 0,  // run, three singles with padding, run
                    6, 2, 0, 1}},
        {{green, green, green, green, green, green}, {red, red, red, green, blue, blue}});
}

TEST(DecodeBmp, Rle4DrawsRunsAndSingles) {
    ExpectInBothOrders(
        {.width = 10,
         .height = 2,
         .bits = 4,
         .compression = 2,
         .palette = {0, red, green, blue},
         .pixels = {5, 0x12, 0, 5, 0x33, 0x21, 0x10, 99, 0, 0,  // five singles: three bytes, padded
                    10, 0x33, 0, 1}},
        {{blue, blue, blue, blue, blue, blue, blue, blue, blue, blue},
         {red, green, red, green, red, blue, blue, green, red, red}});
}

TEST(DecodeBmp, SkippedPixelsAreBlack) {
    const BmpBytes file{.width = 3,
                        .height = 4,
                        .bits = 8,
                        .compression = 1,
                        .palette = {grey, red},
                        .pixels = {1, 1, 0, 2, 1, 2, 1, 1, 0, 0, 1, 1, 0, 1, 3, 1}};
    ExpectInBothOrders(file, {{red, 0, 0}, {0, 0, red}, {0, 0, 0}, {red, 0, 0}});
}

TEST(DecodeBmp, RunsEndAtTheRightEdge) {
    for (const Bytes& pixels : {Bytes{255, 1, 0, 0, 1, 2}, Bytes{0, 5, 1, 1, 1, 1, 1, 0, 0, 0, 1, 2},
                                Bytes{3, 1, 200, 2, 0, 2, 255, 0, 9, 2, 0, 0, 1, 2}}) {
        EXPECT_EQ(Decoded({.width = 3,
                           .height = 2,
                           .bits = 8,
                           .compression = 1,
                           .palette = {0, red, green},
                           .pixels = pixels}),
                  (Rows{{green, 0, 0}, {red, red, red}}));
    }
}

TEST(DecodeBmp, RunsEndAtTheLastRow) {
    EXPECT_EQ(Decoded({.width = 1,
                       .height = 2,
                       .bits = 8,
                       .compression = 1,
                       .palette = {0, red},
                       .pixels = {0, 2, 0, 255, 1, 1, 1, 1, 0, 0, 1, 1}}),
              (Rows{{0}, {0}}));
    EXPECT_EQ(Decoded({.bits = 8, .compression = 1, .palette = {0, red}, .pixels = {0, 0, 1, 1}}),
              (Rows{{0}}));
}

TEST(DecodeBmp, CutShortAnywhereNeverCrashes) {
    const std::vector<BmpBytes> files = {
        {.headerSize = 12,
         .width = 3,
         .height = 3,
         .bits = 1,
         .palette = {red, green},
         .pixels = Bytes(12, 0x5A)},
        {.width = 3, .height = 3, .bits = 4, .palette = {red, green}, .pixels = Bytes(12, 0x11)},
        {.width = 3, .height = -3, .bits = 8, .palette = {red, green}, .pixels = Bytes(12, 1)},
        {.width = 3, .height = 3, .bits = 16, .pixels = Bytes(24, 0xFF)},
        {.width = 3, .height = 3, .bits = 24, .pixels = Bytes(36, 0xFF)},
        {.headerSize = 124, .width = 3, .height = 3, .bits = 32, .pixels = Bytes(36, 0xFF)},
        {.width = 3,
         .bits = 32,
         .compression = 3,
         .masks = {0xFF, 0xFF00, 0xFF0000},
         .pixels = Bytes(12, 0xFF)},
        {.width = 8, .height = 3, .bits = 8, .compression = 1, .palette = {red}, .pixels = {3, 0, 0, 5, 1,
                                                                                            2, 3, 4, 5, 0,
                                                                                            0, 2, 1, 1, 0,
                                                                                            0, 9, 9, 0, 1}},
        {.width = 8,
         .height = 3,
         .bits = 4,
         .compression = 2,
         .palette = {red},
         .pixels = {3, 0, 0, 5, 0x12, 0x34, 0x50, 0, 0, 2, 1, 1, 0, 0, 9, 9, 0, 1}}};
    for (const auto& file : files) {
        const Bytes whole = file.File();
        const std::size_t pixelStart = whole.size() - file.pixels.size();
        const std::size_t headerEnd =
            14 + file.headerSize + (file.headerSize < 52 ? file.masks.size() * 4 : 0);
        for (std::size_t size = 0; size <= whole.size(); ++size) {
            const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
            const auto image = DecodeBmp(cut);
            ASSERT_EQ(image.has_value(), size >= headerEnd) << size;
            if (!image) continue;
            EXPECT_EQ(image->Width(), file.width);
            EXPECT_EQ(image->Height(), std::abs(file.height));
            if (size <= pixelStart) {
                for (const Pixel pixel : image->Shared()->Pixels())
                    EXPECT_EQ(pixel, ToPixel(black));
            }
        }
    }
}

TEST(DecodeBmp, NeedsItsFirstTwoBytes) {
    Bytes file = BmpBytes{.pixels = {1, 2, 3, 0}}.File();
    ASSERT_TRUE(DecodeBmp(file));
    file[1] = 'A';
    EXPECT_FALSE(DecodeBmp(file));
    EXPECT_FALSE(DecodeBmp({}));
}

}  // namespace
}  // namespace coinlet
