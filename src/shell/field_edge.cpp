#include "shell/field_edge.h"

#include "shell/device_pixels.h"

#include <QFrame>
#include <QPainter>

namespace coinlet {

void PaintFieldEdge(QFrame& field) {
    QPainter painter(&field);
    DevicePixels screen(painter);
    const QPalette& palette = field.palette();
    const QRect whole = screen.Of(field.rect());
    const int line = screen.LeastThickness(field.frameWidth());
    painter.fillRect(whole, palette.color(QPalette::WindowText));
    painter.fillRect(whole.adjusted(line, line, -line, -line), palette.color(QPalette::Base));
}

}  // namespace coinlet
