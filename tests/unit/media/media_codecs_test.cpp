// The program's codecs behind the loading of pictures: any picture under any name.
#include "media/media_codecs.h"

#include "support/gif_bytes.h"
#include "support/temporary_folder.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

#include <gtest/gtest.h>

namespace coinlet {
namespace {

std::string Text(const Bytes& bytes) {
    return {bytes.begin(), bytes.end()};
}

TEST(MediaCodecs, LoadEveryFormatUnderAnyName) {
    const test::TemporaryFolder folder;
    const MediaCodecs codecs;
    const Image image(Bitmap(16, 8, ToPixel(RGB(200, 100, 50))));

    const auto bitmap = EncodeBmp(image);
    ASSERT_TRUE(bitmap);
    EXPECT_EQ(LoadPicture(folder.Write("bitmap.gif", Text(*bitmap)), codecs), image);

    const auto jpeg = codecs.EncodeJpeg(image, 100);
    ASSERT_TRUE(jpeg);
    const auto fromJpeg = LoadPicture(folder.Write("jpeg.bmp", Text(*jpeg)), codecs);
    ASSERT_TRUE(fromJpeg);
    EXPECT_EQ(fromJpeg->Width(), 16);
    EXPECT_NEAR(Red(fromJpeg->At(8, 4)), 200, 2);

    const test::GifBytes gif{.width = 2, .height = 1, .frames = {{0, 0, 2, 1, {1, 3}}}};
    const auto fromGif = LoadPicture(folder.Write("gif.jpg", Text(gif.File())), codecs);
    ASSERT_TRUE(fromGif);
    EXPECT_EQ(fromGif->At(0, 0), RGB(255, 0, 0));
    EXPECT_EQ(fromGif->At(1, 0), RGB(0, 0, 255));
}

Bytes Saved(const QImage& picture, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(picture.save(&buffer, format));
    return {bytes.begin(), bytes.end()};
}

TEST(MediaCodecs, LetWhiteShowThroughAPng) {
    const MediaCodecs codecs;
    QImage picture(4, 1, QImage::Format_ARGB32);
    picture.setPixel(0, 0, qRgba(200, 100, 50, 255));
    picture.setPixel(1, 0, qRgba(255, 0, 0, 128));
    picture.setPixel(2, 0, qRgba(200, 100, 50, 0));
    picture.setPixel(3, 0, qRgba(0, 0, 0, 51));
    const auto decoded = DecodeOfferedPicture(Saved(picture, "png"), codecs);
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->At(0, 0), RGB(200, 100, 50));
    EXPECT_EQ(decoded->At(1, 0), RGB(255, 127, 127));
    EXPECT_EQ(decoded->At(2, 0), white);
    EXPECT_EQ(decoded->At(3, 0), RGB(204, 204, 204));
    // Nowhere else is a PNG a picture.
    EXPECT_FALSE(DecodePicture(Saved(picture, "png"), codecs));
}

TEST(MediaCodecs, RefuseDamagedAndHugePngs) {
    const MediaCodecs codecs;
    QImage picture(64, 64, QImage::Format_RGB32);
    picture.fill(0xFF123456);
    Bytes bytes = Saved(picture, "png");
    EXPECT_TRUE(codecs.DecodePng(bytes));
    EXPECT_FALSE(codecs.DecodePng(std::span(bytes).first(20)));
    EXPECT_FALSE(codecs.DecodePng({}));
    EXPECT_FALSE(codecs.DecodePng(AsBytes("GIF89a")));
    EXPECT_FALSE(codecs.DecodePng(Saved(picture, "bmp")));
    // A header that claims 60,000 by 60,000 pixels.
    constexpr std::size_t widthPlace = 16;
    for (const std::size_t side : {widthPlace, widthPlace + 4}) {
        bytes[side + 2] = 0xEA;
        bytes[side + 3] = 0x60;
    }
    EXPECT_FALSE(codecs.DecodePng(bytes));
}

TEST(MediaCodecs, ReadWebpWhereTheToolkitDoes) {
    const MediaCodecs codecs;
    // One red pixel, without loss.
    constexpr std::uint8_t bytes[] = {'R',  'I',  'F',  'F',  0x1A, 0,    0,    0,    'W',  'E',  'B',  'P',
                                      'V',  'P',  '8',  'L',  0x0D, 0,    0,    0,    0x2F, 0x00, 0x00, 0x00,
                                      0x10, 0x07, 0x10, 0x11, 0x11, 0x88, 0x88, 0xFE, 0x07, 0x00};
    const auto decoded = DecodeOfferedPicture(bytes, codecs);
    if (QImageReader::supportedImageFormats().contains("webp")) {
        ASSERT_TRUE(decoded);
        EXPECT_EQ(decoded->Width(), 1);
    } else {
        EXPECT_FALSE(decoded);
    }
}

TEST(MediaCodecs, RefuseOtherFormats) {
    const MediaCodecs codecs;
    EXPECT_FALSE(codecs.DecodeGif(AsBytes("BM")));
    EXPECT_FALSE(codecs.DecodeJpeg(AsBytes("GIF89a")));
    EXPECT_FALSE(codecs.EncodeJpeg(Image(), 100));
}

}  // namespace
}  // namespace coinlet
