// Pictures that wait for the end of a print job.
#include "shell/packed_picture.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

QImage Chequered() {
    QImage picture(37, 20, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, (x + y) % 2 == 0 ? 0xFF123456U : 0xFFFFFFFFU);
    }
    return picture;
}

TEST(PackedPicture, ComesOutAsItWentIn) {
    EXPECT_EQ(Unpack(Pack(Chequered())), Chequered());
    EXPECT_TRUE(Unpack(Pack(QImage())).isNull());
}

TEST(PackedPicture, IsNoneIfItIsNotWhole) {
    PackedPicture cut = Pack(Chequered());
    cut.bytes.truncate(cut.bytes.size() / 2);
    EXPECT_TRUE(Unpack(cut).isNull());
    PackedPicture empty = Pack(Chequered());
    empty.bytes.clear();
    EXPECT_TRUE(Unpack(empty).isNull());
    PackedPicture larger = Pack(Chequered());
    larger.size.setHeight(21);
    EXPECT_TRUE(Unpack(larger).isNull());
}

}  // namespace
}  // namespace coinlet
