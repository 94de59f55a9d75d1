#pragma once

#include <QKeyEvent>
#include <QScrollArea>
#include <QScrollBar>

namespace coinlet {

/// Shows a content that may be larger than itself: then there are bars, and the wheel moves it. It takes no
/// focus and no key, and around a content that is smaller there is the plain background.
class RoomyArea : public QScrollArea {
public:
    explicit RoomyArea(QWidget* parent) : QScrollArea(parent) {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        for (QScrollBar* bar : {horizontalScrollBar(), verticalScrollBar()}) {
            bar->setFocusPolicy(Qt::NoFocus);
            bar->setContextMenuPolicy(Qt::NoContextMenu);
            bar->setSingleStep(wheelStep);
        }
    }

protected:
    void keyPressEvent(QKeyEvent* event) override { event->ignore(); }

private:
    static constexpr int wheelStep = 20;  // pixels; the wheel goes three of them at a notch
};

}  // namespace coinlet
