#include "shell/qt_image.h"

#include <QPainter>

#include <algorithm>
#include <memory>
#include <utility>

namespace coinlet {

QImage ViewPixels(const Bitmap& bitmap) {
    if (bitmap.Width() == 0 || bitmap.Height() == 0) return {};
    return {reinterpret_cast<const uchar*>(bitmap.Row(0)), bitmap.Width(), bitmap.Height(),
            static_cast<qsizetype>(sizeof(Pixel)) * bitmap.Width(), QImage::Format_RGB32};
}

QImage ToQImage(const Image& image) {
    if (image.Empty()) return {};
    using Shared = std::shared_ptr<const Bitmap>;
    auto held = std::make_unique<Shared>(image.Shared());
    const auto release = [](void* shared) { delete static_cast<Shared*>(shared); };
    return {reinterpret_cast<const uchar*>(image.Row(0)),
            image.Width(),
            image.Height(),
            static_cast<qsizetype>(sizeof(Pixel)) * image.Width(),
            QImage::Format_RGB32,
            release,
            held.release()};
}

Image FromQImage(const QImage& picture) {
    if (picture.isNull() || !IsPictureSize(picture.width(), picture.height())) return {};
    QImage opaque(picture.size(), QImage::Format_RGB32);
    if (opaque.isNull()) return {};
    opaque.fill(Qt::white);
    QPainter painter(&opaque);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.drawImage(opaque.rect(), picture);
    painter.end();

    Bitmap bitmap(opaque.width(), opaque.height());
    for (int y = 0; y < opaque.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(opaque.constScanLine(y));
        std::transform(row, row + opaque.width(), bitmap.Row(y),
                       [](QRgb pixel) { return pixel | spareByte; });
    }
    return Image(std::move(bitmap));
}

}  // namespace coinlet
