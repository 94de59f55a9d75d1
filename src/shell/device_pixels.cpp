#include "shell/device_pixels.h"

#include <QColor>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace coinlet {

namespace {

/// Halves go the same way everywhere, so that places that adjoin still do.
int Rounded(double place) {
    return static_cast<int>(std::floor(place + 0.5));
}

}  // namespace

DevicePixels::DevicePixels(QPainter& painter) : painter_(painter), toScreen_(painter.deviceTransform()) {
    painter_.save();
    painter_.setWorldTransform(toScreen_.inverted() * painter_.worldTransform());
}

DevicePixels::~DevicePixels() {
    painter_.restore();
}

QRect DevicePixels::Of(const QRect& rectangle) const {
    const QRectF place = toScreen_.mapRect(QRectF(rectangle));
    const int left = Rounded(place.left()), top = Rounded(place.top());
    return {left, top, Rounded(place.right()) - left, Rounded(place.bottom()) - top};
}

int DevicePixels::Thickness(int width) const {
    return std::max(1, Rounded(width * toScreen_.m11()));
}

int DevicePixels::LeastThickness(int width) const {
    return std::max(1, static_cast<int>(width * toScreen_.m11()));
}

void DevicePixels::Fill(const QRect& rectangle, const QColor& colour) {
    painter_.fillRect(Of(rectangle), colour);
}

void DevicePixels::Frame(const QRect& rectangle, const QColor& colour, int framesAround) {
    const int inward = framesAround * Thickness(1);
    const QRect box = Of(rectangle).adjusted(inward, inward, -inward, -inward);
    if (box.isEmpty()) return;
    const int thickness = std::min({Thickness(1), box.width(), box.height()});
    const int right = box.right() + 1 - thickness, bottom = box.bottom() + 1 - thickness;
    for (const int y : {box.top(), bottom})
        painter_.fillRect(QRect(box.left(), y, box.width(), thickness), colour);
    for (const int x : {box.left(), right})
        painter_.fillRect(QRect(x, box.top(), thickness, box.height()), colour);
}

}  // namespace coinlet
