#pragma once

#include <QObject>
#include <QPointer>

class QPoint;
class QWidget;

namespace coinlet {

/// Whether a program may ask where the pointer is when it's outside of the program's windows, and put it
/// somewhere. Under Wayland it may not.
bool PointerCanBeMoved();

/// Shows where the user points by keys, where the pointer itself can't be put there: its picture, until the
/// pointer is used again or the keys go elsewhere.
class PointerSign : public QObject {
public:
    /// At a place of the widget that has the keys, in its pixels.
    void ShowOn(QWidget& widget, const QPoint& place);
    bool IsShown() const;

protected:
    bool eventFilter(QObject* target, QEvent* event) override;

private:
    void Hide();

    QPointer<QWidget> sign_;
};

}  // namespace coinlet
