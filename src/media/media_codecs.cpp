#include "media/media_codecs.h"

#include "media/gif.h"
#include "media/jpeg.h"
#include "media/toolkit_reader.h"

namespace coinlet {

std::optional<Image> MediaCodecs::DecodeJpeg(std::span<const std::uint8_t> bytes) const {
    return DecodeJpegBytes(bytes);
}

std::optional<Image> MediaCodecs::DecodeGif(std::span<const std::uint8_t> bytes) const {
    return DecodeGifBytes(bytes);
}

std::optional<Image> MediaCodecs::DecodePng(std::span<const std::uint8_t> bytes) const {
    return DecodeToolkitBytes(bytes, "png");
}

std::optional<Image> MediaCodecs::DecodeWebp(std::span<const std::uint8_t> bytes) const {
    return DecodeToolkitBytes(bytes, "webp");
}

std::optional<Bytes> MediaCodecs::EncodeJpeg(const Image& image, int quality) const {
    return EncodeJpegBytes(image, quality);
}

}  // namespace coinlet
