#pragma once

#include <QPaintEvent>
#include <QPainter>
#include <QWidget>

#include <functional>

namespace coinlet {

/// A widget without behaviour that somebody else paints.
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
};

}  // namespace coinlet
