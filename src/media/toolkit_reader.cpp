#include "media/toolkit_reader.h"

#include "surface/codecs.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

#include <algorithm>
#include <utility>

namespace coinlet {

namespace {

/// A pixel whose colours were multiplied by its opacity, on white.
Pixel OnWhite(QRgb pixel) {
    const std::uint32_t behind = 255U - static_cast<std::uint32_t>(qAlpha(pixel));
    return spareByte | (pixel + behind * 0x010101U);
}

}  // namespace

QImage ReadByToolkit(std::span<const std::uint8_t> bytes, const char* format) {
    // A reader may make a larger picture than it tells beforehand. Its own limit is in whole megabytes.
    constexpr std::size_t megabyte = std::size_t{1} << 20;
    QImageReader::setAllocationLimit(
        static_cast<int>((BytesWorthDecoding(bytes.size()) + megabyte - 1) / megabyte));

    QByteArray data = QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                              static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    if (size.isEmpty() || !IsWorthDecoding(size.width(), size.height(), bytes.size())) return {};
    QImage picture = reader.read();
    return IsWorthDecoding(picture.width(), picture.height(), bytes.size()) ? picture : QImage();
}

std::optional<Image> DecodeToolkitBytes(std::span<const std::uint8_t> bytes, const char* format) {
    QImage picture = ReadByToolkit(bytes, format);
    if (picture.isNull()) return std::nullopt;
    // Colours that are multiplied by the opacity already need only what shows through them added.
    picture.convertTo(QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull()) return std::nullopt;
    Bitmap bitmap(picture.width(), picture.height());
    for (int y = 0; y < bitmap.Height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(std::as_const(picture).constScanLine(y));
        std::transform(row, row + bitmap.Width(), bitmap.Row(y), OnWhite);
    }
    return Image(std::move(bitmap));
}

}  // namespace coinlet
