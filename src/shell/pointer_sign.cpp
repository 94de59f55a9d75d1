#include "shell/pointer_sign.h"

#include "shell/painted_widget.h"

#include <QCursor>
#include <QGuiApplication>
#include <QPixmap>

#include <utility>

namespace coinlet {

namespace {

/// The pointers that are lines have no picture.
QPixmap PictureOf(const QCursor& pointer, qreal scale) {
    if (pointer.shape() == Qt::BitmapCursor) return pointer.pixmap();
    constexpr int side = 17, middle = side / 2;
    QPixmap cross((QSizeF(side, side) * scale).toSize());
    cross.setDevicePixelRatio(scale);
    cross.fill(Qt::transparent);
    QPainter painter(&cross);
    // Black on white, so that it shows on every design.
    for (const auto& [colour, width] : {std::pair(Qt::white, 3), std::pair(Qt::black, 1)}) {
        painter.setPen(QPen(colour, width));
        painter.drawLine(middle, 1, middle, side - 2);
        painter.drawLine(1, middle, side - 2, middle);
    }
    return cross;
}

QPoint HotSpotOf(const QCursor& pointer, const QPixmap& picture) {
    if (pointer.shape() == Qt::BitmapCursor) return pointer.hotSpot();
    return QRect(QPoint(0, 0), picture.deviceIndependentSize().toSize()).center();
}

}  // namespace

bool PointerCanBeMoved() {
    return !QGuiApplication::platformName().startsWith(u"wayland");
}

void PointerSign::ShowOn(QWidget& widget, const QPoint& place) {
    if (!sign_ || sign_->parentWidget() != &widget) {
        Hide();
        auto* sign = new PaintedWidget(&widget);
        sign->setAttribute(Qt::WA_TransparentForMouseEvents);
        sign->setFocusPolicy(Qt::NoFocus);
        sign_ = sign;
        qGuiApp->installEventFilter(this);
    }
    const QCursor pointer = widget.cursor();
    const QPixmap picture = PictureOf(pointer, widget.devicePixelRatioF());
    static_cast<PaintedWidget&>(*sign_).Paint = [picture](QPainter& painter, const QRect&) {
        painter.drawPixmap(0, 0, picture);
    };
    sign_->setGeometry(QRect(place - HotSpotOf(pointer, picture), picture.deviceIndependentSize().toSize()));
    sign_->raise();
    sign_->show();
}

bool PointerSign::IsShown() const {
    return sign_ && sign_->isVisible();
}

void PointerSign::Hide() {
    qGuiApp->removeEventFilter(this);
    delete sign_;
}

bool PointerSign::eventFilter(QObject* target, QEvent* event) {
    const auto type = event->type();
    const bool isOver =
        (target->isWidgetType() && (type == QEvent::MouseMove || type == QEvent::MouseButtonPress)) ||
        (type == QEvent::FocusOut && (!sign_ || target == sign_->parentWidget()));
    if (isOver) Hide();
    return false;
}

}  // namespace coinlet
