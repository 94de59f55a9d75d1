#include "shell/packed_picture.h"

#include <cstring>

namespace coinlet {

PackedPicture Pack(const QImage& picture) {
    constexpr int quickly = 1;
    return {.size = picture.size(),
            .format = picture.format(),
            .bytes = qCompress(picture.constBits(), picture.sizeInBytes(), quickly)};
}

QImage Unpack(const PackedPicture& packed) {
    const QByteArray plain = qUncompress(packed.bytes);
    QImage picture(packed.size, packed.format);
    // What was never filled would be printed as whatever the memory held before.
    if (picture.isNull() || picture.sizeInBytes() != plain.size()) return {};
    std::memcpy(picture.bits(), plain.constData(), static_cast<std::size_t>(plain.size()));
    return picture;
}

}  // namespace coinlet
