#pragma once

#include <QCoreApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>
#include <QWidget>

#include <functional>

namespace coinlet {

/// A widget without behaviour that somebody else paints. The wheel is meant for what lies behind it: a window
/// that is too small for its form moves it.
class PaintedWidget : public QWidget {
public:
    using QWidget::QWidget;

    /// Paints `dirty`, a part of the widget.
    std::function<void(QPainter& painter, const QRect& dirty)> Paint;

protected:
    void paintEvent(QPaintEvent* event) override {
        if (!Paint) return;
        QPainter painter(this);
        Paint(painter, event->rect());
    }
    void wheelEvent(QWheelEvent* event) override {
        event->ignore();
        // The toolkit itself goes no further where presses aren't to go further, nor with what it is handed.
        const bool stopsHere = testAttribute(Qt::WA_NoMousePropagation) || !event->spontaneous();
        if (parentWidget() && stopsHere) QCoreApplication::sendEvent(parentWidget(), event);
    }
};

}  // namespace coinlet
