// What is written is a bitmap that any program reads, and reading it gives the same pixels.
#include "surface/codecs.h"

#include <gtest/gtest.h>
#include <random>

namespace coinlet {
namespace {

Image RandomImage(int width, int height, unsigned seed) {
    std::mt19937 random(seed);
    Bitmap bitmap(width, height);
    for (Pixel& pixel : bitmap.Pixels())
        pixel = spareByte | static_cast<Pixel>(random());
    return Image(std::move(bitmap));
}

TEST(EncodeBmp, WritesThisFileByteForByte) {
    Bitmap bitmap(2, 2);
    bitmap.Row(0)[0] = ToPixel(RGB(1, 2, 3));
    bitmap.Row(0)[1] = ToPixel(RGB(4, 5, 6));
    bitmap.Row(1)[0] = ToPixel(RGB(7, 8, 9));
    bitmap.Row(1)[1] = ToPixel(RGB(255, 128, 0));
    const Bytes expected = {
        'B',  'M',  70, 0, 0,    0,    0, 0, 0, 0, 54, 0, 0, 0,  // 70 bytes, pixels from 54 on
        40,   0,    0,  0, 2,    0,    0, 0, 2, 0, 0,  0, 1, 0, 24, 0,
        0,    0,    0,  0, 16,   0,    0, 0,                            // 2 x 2, 24 bits, 16 bytes
        0xC4, 0x0E, 0,  0, 0xC4, 0x0E, 0, 0, 0, 0, 0,  0, 0, 0, 0,  0,  // 3780 pixels a metre
        9,    8,    7,  0, 128,  255,  0, 0,                            // bottom row, padded
        3,    2,    1,  6, 5,    4,    0, 0};
    EXPECT_EQ(EncodeBmp(Image(std::move(bitmap))), expected);
}

TEST(EncodeBmp, RoundTripsEveryWidth) {
    for (int width = 1; width <= 21; ++width) {
        const Image image = RandomImage(width, 3, static_cast<unsigned>(width));
        const auto bytes = EncodeBmp(image);
        ASSERT_TRUE(bytes);
        const auto again = DecodeBmp(*bytes);
        ASSERT_TRUE(again);
        EXPECT_EQ(*again, image) << width;
    }
}

TEST(EncodeBmp, RoundTripsAStoredDesign) {
    const Image image = RandomImage(700, 500, 1);
    const auto bytes = EncodeBmp(image);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->size(), 54U + 700 * 3 * 500);
    EXPECT_EQ(DecodeBmp(*bytes), image);
}

TEST(EncodeBmp, WritesNoSpareByte) {
    Bitmap bitmap(5, 1, 0);  // spare bytes of 0
    const auto bytes = EncodeBmp(Image(std::move(bitmap)));
    ASSERT_TRUE(bytes);
    EXPECT_EQ(Bytes(bytes->begin() + 54, bytes->end()), Bytes(16, 0));
}

TEST(EncodeBmp, GivesNothingForAPictureOfNoPixels) {
    EXPECT_FALSE(EncodeBmp(Image()));
    EXPECT_FALSE(EncodeBmp(Image(Bitmap(5, 0))));
    EXPECT_FALSE(EncodeBmp(Image(Bitmap(0, 5))));
}

}  // namespace
}  // namespace coinlet
