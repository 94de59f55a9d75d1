#include "shell/qt_screen_grab.h"

#include "shell/qt_image.h"

#include <QApplication>
#include <QCursor>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace coinlet {

namespace {

/// The toolkit counts places in units that a scaled display enlarges; the program counts pixels.
QPoint ToPixels(const QPoint& place, const QScreen& screen) {
    const QPointF inside = QPointF(place - screen.geometry().topLeft()) * screen.devicePixelRatio();
    return inside.toPoint() + screen.geometry().topLeft();
}

const QScreen* ScreenUnderPointer() {
    const QScreen* screen = QGuiApplication::screenAt(QCursor::pos());
    return screen ? screen : QGuiApplication::primaryScreen();
}

int WindowsBehind(const QWidget& window) {
    int count = 0;
    for (const QWidget* behind = window.parentWidget(); behind; behind = behind->parentWidget())
        ++count;
    return count;
}

/// The ones that others lie before first.
void PaintOwnWindows(QPainter& painter, const QScreen& screen) {
    QWidgetList windows = QApplication::topLevelWidgets();
    std::ranges::stable_sort(windows, {}, [](const QWidget* window) { return WindowsBehind(*window); });
    for (QWidget* window : windows) {
        if (!window->isVisible()) continue;
        const QPoint corner = ToPixels(window->mapToGlobal(QPoint(0, 0)), screen);
        QPixmap picture = window->grab();
        picture.setDevicePixelRatio(1);
        painter.drawPixmap(corner, picture);
    }
}

}  // namespace

void QtScreenGrab::GetCursorPos(int* x, int* y) const {
    const QScreen* screen = ScreenUnderPointer();
    const QPoint place = screen ? ToPixels(QCursor::pos(), *screen) : QCursor::pos();
    *x = place.x();
    *y = place.y();
}

Image QtScreenGrab::Grab(const PixelRect& area) const {
    const QScreen* screen = ScreenUnderPointer();
    if (!screen || area.Empty() || !IsPictureSize(area.Width(), area.Height())) return {};
    QImage picture(area.Width(), area.Height(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.translate(-area.left, -area.top);

    const QPoint corner = screen->geometry().topLeft();
    const double scale = screen->devicePixelRatio();
    // The part of this screen that lies in the area, in the toolkit's units and rounded outward.
    const QRectF wanted((area.left - corner.x()) / scale, (area.top - corner.y()) / scale,
                        area.Width() / scale, area.Height() / scale);
    const QRect part = wanted.toAlignedRect() & QRect(QPoint(0, 0), screen->size());
    QPixmap seen;
    if (!part.isEmpty())
        seen = const_cast<QScreen*>(screen)->grabWindow(0, part.x(), part.y(), part.width(), part.height());
    if (seen.isNull()) {
        PaintOwnWindows(painter, *screen);
    } else {
        seen.setDevicePixelRatio(1);
        painter.drawPixmap(ToPixels(part.topLeft() + corner, *screen), seen);
    }
    painter.end();
    return FromQImage(picture);
}

}  // namespace coinlet
