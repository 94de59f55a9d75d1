#include "shell/screen_room.h"

#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace coinlet {

RoomOnScreen RoomOf(const QWidget& window) {
    const QRect outside = window.frameGeometry();
    const QRect inside = window.geometry();
    const QMargins frame(inside.left() - outside.left(), inside.top() - outside.top(),
                         outside.right() - inside.right(), outside.bottom() - inside.bottom());
    const QScreen* screen = window.screen();
    return {screen ? screen->availableGeometry() : QRect(), frame};
}

WindowFit FitIntoRoom(const QSize& wanted, const QSize& room, int barThickness) {
    if (room.isEmpty()) return {wanted, wanted};
    bool barAtTheSide = wanted.height() > room.height();
    const bool barBelow = wanted.width() + (barAtTheSide ? barThickness : 0) > room.width();
    barAtTheSide = barAtTheSide || wanted.height() + (barBelow ? barThickness : 0) > room.height();
    const QSize whole(wanted.width() + (barAtTheSide ? barThickness : 0),
                      wanted.height() + (barBelow ? barThickness : 0));
    return {whole.boundedTo(room), whole};
}

QRect MovedInto(QRect place, const QRect& room) {
    if (room.isEmpty()) return place;
    place.moveLeft(std::max(room.left(), std::min(place.left(), room.right() + 1 - place.width())));
    place.moveTop(std::max(room.top(), std::min(place.top(), room.bottom() + 1 - place.height())));
    return place;
}

}  // namespace coinlet
