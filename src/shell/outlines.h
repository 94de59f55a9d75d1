#pragma once

#include "controls/control.h"
#include "surface/colour.h"

#include <QRect>

#include <vector>

class QPainter;
class QWidget;

namespace coinlet {

/// The shapes and lines of one container. They are no widgets: the container's widget paints them over what
/// it shows itself, and where one moves, repaints the places it leaves and comes to.
class Outlines {
public:
    /// Finds the outlines among the container's children; to be called when its elements have changed. Asks
    /// `widget` to repaint if they are others than before.
    void Gather(const Container& container, QWidget& widget);
    /// Asks `widget` to repaint where an outline looks different now.
    void Mirror(QWidget& widget);
    void Paint(QPainter& painter) const;
    void Clear() { items_.clear(); }

private:
    enum class Figure { Rectangle, Ellipse, Line };

    /// An outline as it is painted, in pixels of the container.
    struct Look {
        Figure figure = Figure::Rectangle;
        bool visible = false;
        int x1 = 0, y1 = 0, x2 = 0, y2 = 0;  ///< Both corners, or ends, included.
        int width = 1;
        bool dotted = false, filled = false;
        Colour border = black, fill = white;

        QRect Bounds() const;
        friend bool operator==(const Look&, const Look&) = default;
    };
    struct Item {
        const Control* control;
        Look look;
    };

    static Look LookOf(const Control& control);

    std::vector<Item> items_;
};

}  // namespace coinlet
