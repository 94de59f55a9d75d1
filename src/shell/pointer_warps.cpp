#include "shell/pointer_warps.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>

#include <algorithm>

namespace coinlet {

namespace {

constexpr qint64 patience = 1000;

/// On an enlarged display places are rounded on the way there and back.
bool IsNear(const QPointF& place, const QPoint& other) {
    return std::abs(place.x() - other.x()) <= 1 && std::abs(place.y() - other.y()) <= 1;
}

}  // namespace

void PointerWarps::MoveTo(const QPoint& place) {
    if (QCursor::pos() == place) return;
    if (!clock_.isValid()) clock_.start();
    ForgetOldOnes();
    if (echoes_.empty()) qGuiApp->installEventFilter(this);
    echoes_.push_back({place, clock_.elapsed() + patience});
    QCursor::setPos(place);
}

void PointerWarps::ForgetOldOnes() {
    while (!echoes_.empty() && echoes_.front().due < clock_.elapsed())
        echoes_.pop_front();
}

bool PointerWarps::eventFilter(QObject* target, QEvent* event) {
    // The toolkit's own window has to see it, or else the toolkit loses count of where the pointer is.
    if (event->type() != QEvent::MouseMove || !target->isWidgetType()) return false;
    ForgetOldOnes();
    const QPointF place = static_cast<const QMouseEvent&>(*event).globalPosition();
    const auto echo =
        std::ranges::find_if(echoes_, [&](const Echo& each) { return IsNear(place, each.place); });
    const bool isEcho = echo != echoes_.end();
    // Moves come in their order: of those before it nothing comes any more.
    if (isEcho) echoes_.erase(echoes_.begin(), echo + 1);
    if (echoes_.empty()) qGuiApp->removeEventFilter(this);
    return isEcho;
}

}  // namespace coinlet
