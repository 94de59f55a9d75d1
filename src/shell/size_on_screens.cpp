#include "shell/size_on_screens.h"

#include <QResizeEvent>
#include <QWidget>

#include <utility>

namespace coinlet {

void SetSizeLimits(QWidget& window, const QSize& least, const QSize& most) {
    window.setMinimumSize(0, 0);
    window.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    window.setMinimumSize(least);
    window.setMaximumSize(most);
}

SameSizeOnScreens::SameSizeOnScreens(QWidget& window)
    : SameSizeOnScreens(window, [&window](const QSize& before) {
          SetSizeLimits(window, window.minimumSize(), window.maximumSize());
          window.resize(before);
      }) {}

SameSizeOnScreens::SameSizeOnScreens(QWidget& window, Restore restore)
    : window_(window), restore_(std::move(restore)), scale_(window.devicePixelRatioF()) {
    window.installEventFilter(this);
}

bool SameSizeOnScreens::eventFilter(QObject* /*watched*/, QEvent* event) {
    // What comes first is where a window is shown that hasn't been before.
    if (event->type() == QEvent::Show) scale_ = window_.devicePixelRatioF();
    if (event->type() != QEvent::Resize || scale_ == window_.devicePixelRatioF()) return false;
    scale_ = window_.devicePixelRatioF();
    // Later: the toolkit is amidst telling everybody of the new screen.
    QMetaObject::invokeMethod(
        this, [this, before = static_cast<const QResizeEvent&>(*event).oldSize()] { restore_(before); },
        Qt::QueuedConnection);
    return false;
}

}  // namespace coinlet
