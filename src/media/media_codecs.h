#pragma once

#include "surface/codecs.h"

namespace coinlet {

/// The codecs of the program: JPEG by libjpeg-turbo, GIF and PNG by Qt, and WebP where
/// Qt has its plugin for it.
class MediaCodecs final : public PictureCodecs {
public:
    std::optional<Image> DecodeJpeg(std::span<const std::uint8_t> bytes) const override;
    std::optional<Image> DecodeGif(std::span<const std::uint8_t> bytes) const override;
    std::optional<Image> DecodePng(std::span<const std::uint8_t> bytes) const override;
    std::optional<Image> DecodeWebp(std::span<const std::uint8_t> bytes) const override;
    std::optional<Bytes> EncodeJpeg(const Image& image, int quality) const override;
};

}  // namespace coinlet
