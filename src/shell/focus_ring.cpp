#include "shell/focus_ring.h"

#include "shell/device_pixels.h"
#include "shell/look.h"
#include "shell/painted_widget.h"

#include <QRegion>

namespace coinlet {

namespace {

constexpr int ringWidth = 2;

/// What is larger than the widget that it lies in, which shows a part of it as large as itself.
bool IsShownInPart(const QWidget& widget) {
    const QWidget* outer = widget.parentWidget();
    return !widget.isWindow() && outer &&
           (widget.width() > outer->width() || widget.height() > outer->height());
}

}  // namespace

void FocusRing::Surround(QWidget* widget) {
    if (!widget) {
        if (ring_) ring_->hide();
        return;
    }
    while (IsShownInPart(*widget))
        widget = widget->parentWidget();
    if (!ring_) {
        auto* ring = new PaintedWidget(widget->parentWidget());
        ring->setAttribute(Qt::WA_TransparentForMouseEvents);
        ring->setFocusPolicy(Qt::NoFocus);
        ring->Paint = [](QPainter& painter, const QRect& dirty) {
            painter.fillRect(dirty, ToQColor(focusRingColour));
        };
        ring_ = ring;
    }
    if (ring_->parentWidget() != widget->parentWidget()) ring_->setParent(widget->parentWidget());
    const QRect place = widget->geometry();
    const QRect around = place.adjusted(-ringWidth, -ringWidth, ringWidth, ringWidth);
    if (ring_->geometry() != around || ring_->mask().isEmpty()) {
        ring_->setGeometry(around);
        ring_->setMask(QRegion(ring_->rect()) - place.translated(-around.topLeft()));
    }
    ring_->raise();
    ring_->show();
}

void PaintFocusRing(QPainter& painter, const QRect& frame) {
    DevicePixels screen(painter);
    screen.Frame(frame, ToQColor(focusRingColour));
    screen.Frame(frame, ToQColor(white), 1);
}

}  // namespace coinlet
