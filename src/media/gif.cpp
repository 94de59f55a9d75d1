#include "media/gif.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

#include <algorithm>
#include <utility>

namespace coinlet {

namespace {

Bitmap OnWhite(const QImage& picture) {
    Bitmap bitmap(picture.width(), picture.height());
    for (int y = 0; y < bitmap.Height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        std::transform(from, from + bitmap.Width(), bitmap.Row(y), [](QRgb pixel) {
            // A GIF's pixel is there or not.
            return qAlpha(pixel) == 0 ? ToPixel(white) : spareByte | (pixel & ~spareByte);
        });
    }
    return bitmap;
}

}  // namespace

std::optional<Image> DecodeGifBytes(std::span<const std::uint8_t> bytes) {
    // The reader's own limit is told in whole megabytes, above which it reads nothing.
    constexpr int limit = static_cast<int>(maximumPictureBytes >> 20);
    if (QImageReader::allocationLimit() < limit) QImageReader::setAllocationLimit(limit);

    QByteArray data = QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                              static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "gif");
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    if (size.isEmpty() || !IsPictureSize(size.width(), size.height())) return std::nullopt;

    const QImage picture = reader.read().convertToFormat(QImage::Format_ARGB32);
    if (picture.isNull() || !IsPictureSize(picture.width(), picture.height())) return std::nullopt;
    return Image(OnWhite(picture));
}

}  // namespace coinlet
