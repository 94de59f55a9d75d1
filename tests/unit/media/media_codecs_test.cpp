// The program's codecs behind the loading of pictures: any picture under any name.
#include "media/media_codecs.h"

#include "support/gif_bytes.h"
#include "support/temporary_folder.h"

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

TEST(MediaCodecs, RefuseOtherFormats) {
    const MediaCodecs codecs;
    EXPECT_FALSE(codecs.DecodeGif(AsBytes("BM")));
    EXPECT_FALSE(codecs.DecodeJpeg(AsBytes("GIF89a")));
    EXPECT_FALSE(codecs.EncodeJpeg(Image(), 100));
}

}  // namespace
}  // namespace coinlet
