#pragma once

#include <QRect>
#include <QTransform>

class QColor;
class QPainter;

namespace coinlet {

/// As long as it lives, a painter of a widget paints in the pixels of the screen instead of the widget's, of
/// which one is as many as the screen's scale says, and that may be one and a quarter. What is placed by
/// `Of` has edges that no rounding blurs or makes vanish, and lies edge to edge with its neighbours.
class DevicePixels {
public:
    explicit DevicePixels(QPainter& painter);
    ~DevicePixels();
    DevicePixels(const DevicePixels&) = delete;
    DevicePixels& operator=(const DevicePixels&) = delete;

    /// The pixels of the screen that a rectangle of the widget covers.
    QRect Of(const QRect& rectangle) const;
    /// A line of that width is so many pixels of the screen wide; at least 1.
    int Thickness(int width) const;
    /// A line of that width has so many everywhere, also where its edges are rounded towards each other; at
    /// least 1.
    int LeastThickness(int width) const;

    void Fill(const QRect& rectangle, const QColor& colour);
    /// A frame of one pixel's width along the inside of the rectangle's edges, or along that of so many such
    /// frames: all four lines of it.
    void Frame(const QRect& rectangle, const QColor& colour, int framesAround = 0);

private:
    QPainter& painter_;
    QTransform toScreen_;
};

}  // namespace coinlet
