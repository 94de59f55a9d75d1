// What the bytes of a picture are taken for.
#include "media/toolkit_reader.h"

#include "base/files.h"
#include "support/gif_bytes.h"
#include "surface/codecs.h"

#include <QImage>

#include <gtest/gtest.h>

namespace coinlet {
namespace {

TEST(ToolkitReader, ReadsWhatItIsToldToBeAndNothingElse) {
    const auto bitmap = EncodeBmp(Image(Bitmap(16, 8, ToPixel(RGB(200, 100, 50)))));
    ASSERT_TRUE(bitmap);
    const Bytes gif = test::GifBytes{.width = 2, .height = 1, .frames = {{0, 0, 2, 1, {1, 3}}}}.File();
    EXPECT_EQ(ReadByToolkit(*bitmap, "bmp").size(), QSize(16, 8));
    EXPECT_EQ(ReadByToolkit(gif, "gif").size(), QSize(2, 1));
    for (const char* const other : {"gif", "png", "jpeg", "webp", "no-format"})
        EXPECT_TRUE(ReadByToolkit(*bitmap, other).isNull()) << other;
    for (const char* const other : {"bmp", "png", "jpeg", "webp", "no-format"})
        EXPECT_TRUE(ReadByToolkit(gif, other).isNull()) << other;
}

}  // namespace
}  // namespace coinlet
