// The first frame of a GIF on its screen, built byte by byte.
#include "media/gif.h"

#include "support/gif_bytes.h"

#include <gtest/gtest.h>
#include <utility>

namespace coinlet {
namespace {

using test::GifBytes;
using Rows = std::vector<std::vector<std::uint32_t>>;

constexpr std::uint32_t red = 0xFF0000, green = 0x00FF00, blue = 0x0000FF, paper = 0xFFFFFF;

/// The picture's colours as 0xRRGGBB, row by row; no rows of no picture.
Rows Decoded(const Bytes& file) {
    Rows rows;
    const auto image = DecodeGifBytes(file);
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

TEST(DecodeGif, ReadsAFrame) {
    const GifBytes gif{.width = 3, .height = 2, .frames = {{0, 0, 3, 2, {0, 1, 2, 3, 2, 1}}}};
    EXPECT_EQ(Decoded(gif.File()), (Rows{{0, red, green}, {blue, green, red}}));
}

TEST(DecodeGif, TransparentPixelsAreWhite) {
    const GifBytes gif{.width = 3, .height = 2, .frames = {{0, 0, 3, 2, {0, 1, 2, 3, 2, 1}, 2}}};
    EXPECT_EQ(Decoded(gif.File()), (Rows{{0, red, paper}, {blue, paper, red}}));
}

TEST(DecodeGif, PutsTheFrameAtItsPlace) {
    GifBytes gif{.width = 4, .height = 3, .background = 1, .frames = {{1, 1, 2, 1, {2, 3}}}};
    EXPECT_EQ(Decoded(gif.File()),
              (Rows{{red, red, red, red}, {red, green, blue, red}, {red, red, red, red}}));
    gif.frames[0].transparent = 3;
    EXPECT_EQ(
        Decoded(gif.File()),
        (Rows{{paper, paper, paper, paper}, {paper, green, paper, paper}, {paper, paper, paper, paper}}));
}

TEST(DecodeGif, CutsAFrameThatReachesOutOfTheScreen) {
    const GifBytes gif{.width = 2, .height = 2, .frames = {{1, 1, 2, 2, {1, 2, 3, 0}}}};
    EXPECT_EQ(Decoded(gif.File()), (Rows{{0, 0}, {0, red}}));
}

TEST(DecodeGif, ShowsTheFirstFrameAlone) {
    const GifBytes gif{.width = 2, .height = 1, .frames = {{0, 0, 2, 1, {1, 2}}, {0, 0, 2, 1, {3, 3}}}};
    EXPECT_EQ(Decoded(gif.File()), (Rows{{red, green}}));
}

TEST(DecodeGif, ReadsInterlacedRows) {
    // Eight rows are stored in the order 0, 4, 2, 6, 1, 3, 5, 7.
    const GifBytes gif{.width = 1, .height = 8, .frames = {{0, 0, 1, 8, {1, 2, 3, 0, 1, 2, 3, 0}, -1, true}}};
    EXPECT_EQ(Decoded(gif.File()), (Rows{{red}, {red}, {blue}, {green}, {green}, {blue}, {0}, {0}}));
}

TEST(DecodeGif, ReadsTheWidthOfABorder) {
    GifBytes gif{.width = 2000, .height = 5, .frames = {{0, 0, 2000, 5}}};
    for (unsigned i = 0; i < 10000; ++i)
        gif.frames[0].indices.push_back(i * i / 7 % 4);
    const auto image = DecodeGifBytes(gif.File());
    ASSERT_TRUE(image);
    ASSERT_EQ(image->Width(), 2000);
    ASSERT_EQ(image->Height(), 5);
    for (unsigned i = 0; i < 10000; ++i) {
        ASSERT_EQ(image->Row(static_cast<int>(i / 2000))[i % 2000] & 0xFFFFFF,
                  gif.palette[gif.frames[0].indices[i]])
            << i;
    }
}

TEST(DecodeGif, ShowsWhatIsThereOfAFileCutShort) {
    GifBytes gif{.width = 10, .height = 100, .frames = {{0, 0, 10, 100}}};
    gif.frames[0].indices.assign(1000, 1);
    const Bytes whole = gif.File();
    const Bytes half(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(whole.size() / 2));
    const auto image = DecodeGifBytes(half);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->Width(), 10);
    EXPECT_EQ(image->Height(), 100);
    for (int y = 0; y < 40; ++y)
        EXPECT_EQ(image->At(5, y), RGB(255, 0, 0)) << y;
    EXPECT_EQ(image->At(5, 99), black);
}

TEST(DecodeGif, CutShortAnywhereNeverCrashes) {
    const GifBytes gif{.width = 3, .height = 2, .frames = {{0, 0, 3, 2, {0, 1, 2, 3, 2, 1}, 2, true}}};
    const Bytes whole = gif.File();
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const auto image = DecodeGifBytes(std::span(whole).first(size));
        if (size < 25) {
            EXPECT_FALSE(image) << size;  // the palette ends there
        }
        if (image) {
            EXPECT_EQ(image->Width(), 3) << size;
            EXPECT_EQ(image->Height(), 2) << size;
        }
    }
}

TEST(DecodeGif, RefusesSizesAboveTheLimit) {
    const GifBytes tooLarge{.width = 65535, .height = 1025, .frames = {{0, 0, 1, 1, {1}}}};
    EXPECT_FALSE(DecodeGifBytes(tooLarge.File()));
    const GifBytes tooMany{.width = 65535, .height = 65535, .frames = {{0, 0, 1, 1, {1}}}};
    EXPECT_FALSE(DecodeGifBytes(tooMany.File()));
}

TEST(DecodeGif, ReadsAPictureAsLargeAsTheLimit) {
    const GifBytes gif{.width = 8192, .height = 8192, .frames = {{8191, 8191, 1, 1, {1}}}};
    Bytes file = gif.File();
    file.resize(1'000'000);  // what follows the end is passed over
    const auto image = DecodeGifBytes(file);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->At(8191, 8191), RGB(255, 0, 0));
    EXPECT_EQ(image->At(0, 0), black);
}

TEST(DecodeGif, ReadsAPictureAsWideAsGifsAre) {
    const GifBytes gif{.width = 65535, .height = 2, .frames = {{65534, 1, 1, 1, {1}}}};
    const auto image = DecodeGifBytes(gif.File());
    ASSERT_TRUE(image);
    EXPECT_EQ(image->Width(), 65535);
    EXPECT_EQ(image->At(65534, 1), RGB(255, 0, 0));
    EXPECT_EQ(image->At(40000, 1), black);
}

TEST(DecodeGif, AScreenOfNoSizeEndsWithItsFrame) {
    const GifBytes gif{.width = 0, .height = 0, .frames = {{1, 0, 2, 1, {1, 2}}}};
    EXPECT_EQ(Decoded(gif.File()), (Rows{{0, red, green}}));
}

TEST(DecodeGif, RefusesAFrameThatLiesFarOutOfItsScreen) {
    for (const int side : {0, 2010}) {  // A screen that is far larger than its frame isn't believed, either.
        const GifBytes gif{.width = side, .height = side, .frames = {{7999, 7999, 1, 1, {1}}}};
        EXPECT_FALSE(DecodeGifBytes(gif.File())) << side;
    }
}

TEST(DecodeGif, RefusesWhatIsFarLargerThanItsFile) {
    for (const auto& [width, height] : {std::pair{8192, 8192}, {6000, 4001}, {16384, 1465}}) {
        // The frame may be small, or as large as the screen.
        const GifBytes gif{.width = width, .height = height, .frames = {{0, 0, 1, 1, {1}}}};
        EXPECT_FALSE(DecodeGifBytes(gif.File())) << width << ' ' << height;
        const GifBytes whole{.width = width, .height = height, .frames = {{0, 0, width, height, {1}}}};
        EXPECT_FALSE(DecodeGifBytes(whole.File())) << width << ' ' << height;
    }
    const GifBytes most{.width = 6000, .height = 4000, .frames = {{5999, 3999, 1, 1, {1}}}};
    const auto image = DecodeGifBytes(most.File());
    ASSERT_TRUE(image);
    EXPECT_EQ(image->At(5999, 3999), RGB(255, 0, 0));
}

TEST(DecodeGif, GivesNothingForWhatIsNoGif) {
    EXPECT_FALSE(DecodeGifBytes({}));
    EXPECT_FALSE(DecodeGifBytes(AsBytes("GIF89a")));
    EXPECT_FALSE(DecodeGifBytes(AsBytes("This is a text and no picture at all.")));
}

}  // namespace
}  // namespace coinlet
