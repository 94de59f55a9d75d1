// JPEG both ways: colours survive, damage is survived.
#include "media/jpeg.h"

#include "support/jpeg_scans.h"

#include <turbojpeg.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>

namespace coinlet {
namespace {

/// The largest difference of a channel between two pictures of one size.
int LargestDifference(const Image& a, const Image& b) {
    int largest = 0;
    for (int y = 0; y < a.Height(); ++y) {
        for (int x = 0; x < a.Width(); ++x) {
            for (const int shift : {0, 8, 16}) {
                const auto channel = [&](const Image& image) {
                    return static_cast<int>(image.Row(y)[x] >> shift & 0xFF);
                };
                largest = std::max(largest, std::abs(channel(a) - channel(b)));
            }
        }
    }
    return largest;
}

/// Soft colours all over.
Image Gradient(int width, int height) {
    Bitmap bitmap(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            bitmap.Row(y)[x] =
                ToPixel(RGB(x * 255 / width, y * 255 / height, (x + y) * 127 / (width + height)));
        }
    }
    return Image(std::move(bitmap));
}

/// Red and blue, pixel by pixel.
Image Checkerboard(int side) {
    Bitmap bitmap(side, side);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            bitmap.Row(y)[x] = ToPixel((x + y) % 2 == 0 ? RGB(255, 0, 0) : RGB(0, 0, 255));
    }
    return Image(std::move(bitmap));
}

/// The sampling factors of the components, one byte each, from the frame's header; "" if there is none.
Bytes SamplingFactors(const Bytes& file) {
    for (std::size_t at = 2; at + 9 < file.size() && file[at] == 0xFF;) {
        const int marker = file[at + 1];
        if (marker >= 0xC0 && marker <= 0xC2) {
            Bytes factors;
            for (std::size_t i = 0; i < file[at + 9]; ++i)
                factors.push_back(file[at + 11 + 3 * i]);
            return factors;
        }
        at += 2 + (std::size_t{file[at + 2]} << 8) + file[at + 3];
    }
    return {};
}

/// A JPEG by the library itself, for the kinds of pixels that the program never writes.
Bytes Compressed(const Bytes& pixels, int width, int height, TJPF format, TJSAMP sampling,
                 int flags = TJFLAG_ACCURATEDCT) {
    const tjhandle codec = tjInitCompress();
    unsigned char* buffer = nullptr;
    unsigned long size = 0;
    const int result =
        tjCompress2(codec, pixels.data(), width, 0, height, format, &buffer, &size, sampling, 100, flags);
    Bytes bytes;
    if (result == 0) bytes.assign(buffer, buffer + size);
    tjFree(buffer);
    tjDestroy(codec);
    return bytes;
}

TEST(Jpeg, RoundTripsWithinTheRoundingOfItsColours) {
    const Image image = Gradient(70, 50);
    const auto bytes = EncodeJpegBytes(image, 100);
    ASSERT_TRUE(bytes);
    const auto again = DecodeJpegBytes(*bytes);
    ASSERT_TRUE(again);
    ASSERT_EQ(again->Width(), 70);
    ASSERT_EQ(again->Height(), 50);
    EXPECT_LE(LargestDifference(*again, image), 4);
    for (const Pixel pixel : again->Shared()->Pixels())
        ASSERT_EQ(pixel >> 24, 0xFFU);
}

TEST(Jpeg, KeepsTheColourOfSinglePixels) {
    const Image image = Checkerboard(16);
    const auto bytes = EncodeJpegBytes(image, 100);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(SamplingFactors(*bytes), (Bytes{0x11, 0x11, 0x11}));
    const auto again = DecodeJpegBytes(*bytes);
    ASSERT_TRUE(again);
    EXPECT_LE(LargestDifference(*again, image), 8);
}

TEST(Jpeg, LowerQualityTakesFewerBytes) {
    const Image image = Checkerboard(64);
    const auto size = [&](int quality) {
        const auto bytes = EncodeJpegBytes(image, quality);
        return bytes ? bytes->size() : 0;
    };
    EXPECT_GT(size(100), size(50));
    EXPECT_GT(size(50), size(1));
    EXPECT_GT(size(1), 0U);
    EXPECT_EQ(size(0), size(1));
    EXPECT_EQ(size(-5), size(1));
    EXPECT_EQ(size(1000), size(100));
}

TEST(Jpeg, GivesNothingForAPictureOfNoPixels) {
    EXPECT_FALSE(EncodeJpegBytes(Image(), 100));
    EXPECT_FALSE(EncodeJpegBytes(Image(Bitmap(0, 7)), 100));
}

TEST(Jpeg, ReadsGrey) {
    Bytes pixels;
    for (unsigned i = 0; i < 256; ++i)
        pixels.push_back(static_cast<std::uint8_t>(i));
    const auto image = DecodeJpegBytes(Compressed(pixels, 16, 16, TJPF_GRAY, TJSAMP_GRAY));
    ASSERT_TRUE(image);
    ASSERT_EQ(image->Width(), 16);
    for (int i = 0; i < 256; ++i) {
        const Colour colour = image->At(i % 16, i / 16);
        EXPECT_NEAR(Red(colour), i, 2);
        EXPECT_EQ(Red(colour), Green(colour));
        EXPECT_EQ(Red(colour), Blue(colour));
    }
}

TEST(Jpeg, ReadsTheInksOfPrintShops) {
    // Inverted: 255 is no ink. Blocks of 8 by 8: no ink, black ink alone, cyan alone, and halves of all.
    constexpr std::uint8_t inks[4][4] = {
        {255, 255, 255, 255}, {255, 255, 255, 0}, {0, 255, 255, 255}, {128, 128, 128, 128}};
    // Ink c under black k leaves c k / 255 of the light: 128 * 128 / 255 = 64.25.
    constexpr Colour colours[4] = {RGB(255, 255, 255), RGB(0, 0, 0), RGB(0, 255, 255), RGB(64, 64, 64)};
    Bytes pixels;
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 32; ++x) {
            for (const auto ink : inks[x / 8])
                pixels.push_back(ink);
        }
    }
    const Bytes file = Compressed(pixels, 32, 8, TJPF_CMYK, TJSAMP_444);  // The library turns it into YCCK.
    ASSERT_FALSE(file.empty());
    const auto image = DecodeJpegBytes(file);
    ASSERT_TRUE(image);
    for (int block = 0; block < 4; ++block) {
        const Colour colour = image->At(8 * block + 4, 4);
        EXPECT_NEAR(Red(colour), Red(colours[block]), 3) << block;
        EXPECT_NEAR(Green(colour), Green(colours[block]), 3) << block;
        EXPECT_NEAR(Blue(colour), Blue(colours[block]), 3) << block;
        EXPECT_EQ(image->Row(4)[8 * block + 4] >> 24, 0xFFU);
    }
}

TEST(Jpeg, ShowsWhatIsThereOfAFileCutShort) {
    const Image image = Gradient(64, 256);
    const auto bytes = EncodeJpegBytes(image, 100);
    ASSERT_TRUE(bytes);
    const auto again = DecodeJpegBytes(std::span(*bytes).first(bytes->size() / 2));
    ASSERT_TRUE(again);
    ASSERT_EQ(again->Width(), 64);
    ASSERT_EQ(again->Height(), 256);
    for (int x = 0; x < 64; ++x) {
        EXPECT_NEAR(Red(again->At(x, 10)), Red(image.At(x, 10)), 4);
        EXPECT_NEAR(Green(again->At(x, 10)), Green(image.At(x, 10)), 4);
    }
}

TEST(Jpeg, CutShortAnywhereNeverCrashes) {
    const auto bytes = EncodeJpegBytes(Checkerboard(16), 90);
    ASSERT_TRUE(bytes);
    for (std::size_t size = 0; size < bytes->size(); ++size) {
        const auto image = DecodeJpegBytes(std::span(*bytes).first(size));
        if (size < 100) {
            EXPECT_FALSE(image) << size;  // There the header isn't complete yet.
        }
        if (image) {
            EXPECT_EQ(image->Width(), 16) << size;
        }
    }
}

TEST(Jpeg, PixelsThatTheDecoderNeverReachesAreBlack) {
    auto bytes = EncodeJpegBytes(Gradient(64, 64), 90);
    ASSERT_TRUE(bytes);
    // Stray bytes before the frame's header, of which the library warns, and no table of steps, at which it
    // stops: they become comments.
    for (std::size_t i = 0; i + 1 < bytes->size(); ++i)
        if ((*bytes)[i] == 0xFF && (*bytes)[i + 1] == 0xDB) (*bytes)[i + 1] = 0xFE;
    const Bytes marker{0xFF, 0xC0};
    const auto frame = std::search(bytes->begin(), bytes->end(), marker.begin(), marker.end());
    bytes->insert(frame, {0x12, 0x34});
    const auto image = DecodeJpegBytes(*bytes);
    ASSERT_TRUE(image);
    ASSERT_EQ(image->Width(), 64);
    for (const Pixel pixel : image->Shared()->Pixels())
        ASSERT_EQ(pixel, ToPixel(black));
}

TEST(Jpeg, RefusesSizesAboveTheLimit) {
    auto bytes = EncodeJpegBytes(Gradient(16, 16), 90);
    ASSERT_TRUE(bytes);
    // The frame's header: marker, length, depth, then height and width.
    const Bytes marker{0xFF, 0xC0};
    const auto frame = std::search(bytes->begin(), bytes->end(), marker.begin(), marker.end());
    ASSERT_NE(frame, bytes->end());
    for (const auto& [high, low] : {std::pair{0xFF, 0x00}, std::pair{0x40, 0x01}, std::pair{0, 0}}) {
        frame[5] = frame[7] = static_cast<std::uint8_t>(high);
        frame[6] = frame[8] = static_cast<std::uint8_t>(low);
        EXPECT_FALSE(DecodeJpegBytes(*bytes)) << high << " " << low;
    }
}

// A million pixels in one colour: a file of some kilobytes, in ten scans at first.
TEST(Jpeg, RefusesMoreScansThanAFileOfItsSizeHasReasonFor) {
    constexpr int side = 1000, usualScans = 10, mostScans = 250;
    const Bytes pixels(std::size_t{3} * side * side, 200);
    const Bytes file = Compressed(pixels, side, side, TJPF_RGB, TJSAMP_420, TJFLAG_PROGRESSIVE);
    ASSERT_LT(file.size(), 100'000U);
    const auto image = DecodeJpegBytes(file);
    ASSERT_TRUE(image);
    const auto most = DecodeJpegBytes(test::WithFurtherScans(file, mostScans - usualScans));
    ASSERT_TRUE(most);
    EXPECT_EQ(*most, *image);
    EXPECT_FALSE(DecodeJpegBytes(test::WithFurtherScans(file, mostScans - usualScans + 1)));
    EXPECT_FALSE(DecodeJpegBytes(test::WithFurtherScans(file, 480)));
}

TEST(Jpeg, CountsNoScansInTextsAndPreviews) {
    // A preview inside the file has markers of its own; it is stepped over as a whole. As many scans of this
    // picture would be too many.
    Bytes file = EncodeJpegBytes(Gradient(128, 128), 90).value();
    Bytes preview{0xFF, 0xE1, 0xFF, 0x00};
    for (int i = 0; i < 0xFF00 / 2 - 1; ++i)
        preview.insert(preview.end(), {0xFF, 0xDA});
    file.insert(file.begin() + 2, preview.begin(), preview.end());
    EXPECT_TRUE(DecodeJpegBytes(file));
}

TEST(Jpeg, RefusesWhatIsFarLargerThanItsFile) {
    Bytes file = EncodeJpegBytes(Gradient(16, 16), 90).value();
    const Bytes marker{0xFF, 0xC0};
    const auto frame = std::search(file.begin(), file.end(), marker.begin(), marker.end());
    ASSERT_NE(frame, file.end());
    const auto setSize = [&](int width, int height) {
        frame[5] = static_cast<std::uint8_t>(height >> 8);
        frame[6] = static_cast<std::uint8_t>(height);
        frame[7] = static_cast<std::uint8_t>(width >> 8);
        frame[8] = static_cast<std::uint8_t>(width);
    };
    setSize(6000, 4001);
    EXPECT_FALSE(DecodeJpegBytes(file));
    setSize(6000, 4000);
    EXPECT_TRUE(DecodeJpegBytes(file));
    setSize(8192, 6144);  // 50 million pixels, as cameras have them
    EXPECT_FALSE(DecodeJpegBytes(file));
    file.resize(1'000'000);
    EXPECT_TRUE(DecodeJpegBytes(file));
}

TEST(Jpeg, GivesNothingForWhatIsNoJpeg) {
    EXPECT_FALSE(DecodeJpegBytes({}));
    EXPECT_FALSE(DecodeJpegBytes(AsBytes("\xFF\xD8\xFF")));
    EXPECT_FALSE(DecodeJpegBytes(AsBytes("This is a text and no picture at all.")));
}

}  // namespace
}  // namespace coinlet
