#pragma once

#include <QMargins>
#include <QRect>
#include <QSize>

class QWidget;

namespace coinlet {

/// The room that a screen has for a window, without what the desktop keeps for itself, and what the frame
/// around the window takes of it. Before a window is shown nobody knows its frame; then it counts as none.
struct RoomOnScreen {
    QRect place;
    QMargins frame;

    /// What is left for the inside of the window.
    QSize Inside() const { return place.marginsRemoved(frame).size(); }
};

RoomOnScreen RoomOf(const QWidget& window);

/// How large a window is that shows a content of `wanted`, with bars of that thickness where it is cut off.
struct WindowFit {
    QSize size;   ///< As much of the content as there is room for.
    QSize whole;  ///< From that size on it is shown without further gain; larger than `size` if it is cut.

    bool IsCut() const { return size != whole; }
    friend bool operator==(const WindowFit&, const WindowFit&) = default;
};

/// A bar at one side takes room at the other, so that one may bring forth the other. A room of no size counts
/// as one without an end.
WindowFit FitIntoRoom(const QSize& wanted, const QSize& room, int barThickness);

/// `place`, moved so that it doesn't stick out of `room`; where it is larger, its top left corner is seen.
QRect MovedInto(QRect place, const QRect& room);

}  // namespace coinlet
