#pragma once

#include <QPointer>
#include <QWidget>

class QPainter;
class QRect;

namespace coinlet {

/// Surrounds what has the focus and doesn't show it by itself. It lies beside it, so that nothing of the
/// control is covered, and lets the pointer through.
class FocusRing {
public:
    /// Goes around a widget; nowhere for nullptr.
    void Surround(QWidget* widget);

private:
    QPointer<QWidget> ring_;
};

/// Paints such a ring within the edges of `frame`, on whatever colour.
void PaintFocusRing(QPainter& painter, const QRect& frame);

}  // namespace coinlet
