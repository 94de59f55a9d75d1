#include "store/bmp_to_jpeg.h"

namespace coinlet {

void BmpToJpeg(std::span<const std::uint8_t> source, const fs::path& target, int quality,
               const PictureCodecs& codecs, FileCalls& calls) {
    const auto picture = DecodeBmp(source);
    if (!picture) return;
    if (const auto bytes = codecs.EncodeJpeg(*picture, quality))
        static_cast<void>(ReplaceFile(target, *bytes, calls));
}

}  // namespace coinlet
