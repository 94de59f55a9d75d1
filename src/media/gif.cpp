#include "media/gif.h"

#include "media/toolkit_reader.h"
#include "surface/codecs.h"

#include <QImage>

#include <algorithm>
#include <utility>

namespace coinlet {

namespace {

Bitmap OnWhite(const QImage& picture) {
    Bitmap bitmap(picture.width(), picture.height());
    const bool hasHoles = picture.hasAlphaChannel();
    for (int y = 0; y < bitmap.Height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        std::transform(from, from + bitmap.Width(), bitmap.Row(y), [hasHoles](QRgb pixel) {
            // A GIF's pixel is there or not.
            return hasHoles && qAlpha(pixel) == 0 ? ToPixel(white) : spareByte | (pixel & ~spareByte);
        });
    }
    return bitmap;
}

/// The size of the logical screen, on which the reader draws the frame: it tells the frame's own size alone.
QSize ScreenSize(std::span<const std::uint8_t> bytes) {
    constexpr std::size_t widthAt = 6, heightAt = 8, headerSize = 10;
    if (bytes.size() < headerSize) return {};
    return {bytes[widthAt] | bytes[widthAt + 1] << 8, bytes[heightAt] | bytes[heightAt + 1] << 8};
}

}  // namespace

std::optional<Image> DecodeGifBytes(std::span<const std::uint8_t> bytes) {
    const QSize screen = ScreenSize(bytes);
    if (!IsWorthDecoding(screen.width(), screen.height(), bytes.size())) return std::nullopt;
    QImage picture = ReadByToolkit(bytes, "gif");
    if (picture.isNull()) return std::nullopt;
    // Of both kinds of 32 bits the pixels are taken as they are; a copy of a large picture is dear.
    if (picture.format() != QImage::Format_RGB32 && picture.format() != QImage::Format_ARGB32)
        picture.convertTo(QImage::Format_ARGB32);
    if (picture.isNull()) return std::nullopt;
    return Image(OnWhite(picture));
}

}  // namespace coinlet
