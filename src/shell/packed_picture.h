#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace coinlet {

/// A picture of a job that waits for its end. All designs of a large store together would take more memory
/// than a small machine has; packed, a design is a tenth of its size.
struct PackedPicture {
    QSize size;
    QImage::Format format = QImage::Format_Invalid;
    QByteArray bytes;
};

PackedPicture Pack(const QImage& picture);

/// The picture; the empty one if there is no memory for it, or what was packed isn't whole.
QImage Unpack(const PackedPicture& packed);

}  // namespace coinlet
