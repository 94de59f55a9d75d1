#include "media/media_codecs.h"

#include "media/gif.h"
#include "media/jpeg.h"

namespace coinlet {

std::optional<Image> MediaCodecs::DecodeJpeg(std::span<const std::uint8_t> bytes) const {
    return DecodeJpegBytes(bytes);
}

std::optional<Image> MediaCodecs::DecodeGif(std::span<const std::uint8_t> bytes) const {
    return DecodeGifBytes(bytes);
}

std::optional<Bytes> MediaCodecs::EncodeJpeg(const Image& image, int quality) const {
    return EncodeJpegBytes(image, quality);
}

}  // namespace coinlet
