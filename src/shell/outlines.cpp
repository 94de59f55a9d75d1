#include "shell/outlines.h"

#include "base/numbers.h"
#include "controls/shapes.h"
#include "shell/device_pixels.h"
#include "shell/look.h"

#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace coinlet {

namespace {

/// Outlines end within this distance, in pixels: far beyond every screen, and near enough for the toolkit's
/// arithmetic. A user who types a size of many digits sees what he would see of a figure that large: nothing.
constexpr int reach = 1 << 14;

int Place(double pixels) {
    return std::clamp(RoundHalfEven(pixels), -reach, reach);
}

}  // namespace

QRect Outlines::Look::Bounds() const {
    const QRect bounds(QPoint(std::min(x1, x2), std::min(y1, y2)),
                       QPoint(std::max(x1, x2), std::max(y1, y2)));
    return bounds.adjusted(-width, -width, width, width);
}

void Outlines::Gather(const Container& container, QWidget& widget) {
    std::vector<Item> items;
    for (const Control* child : container.Children()) {
        if (child->Kind() != ControlKind::Shape && child->Kind() != ControlKind::Line) continue;
        const auto known = std::find_if(items_.begin(), items_.end(),
                                        [child](const Item& item) { return item.control == child; });
        items.push_back({child, known == items_.end() ? Look{} : known->look});
    }
    const bool same = std::equal(items.begin(), items.end(), items_.begin(), items_.end(),
                                 [](const Item& a, const Item& b) { return a.control == b.control; });
    if (!same) widget.update();
    items_ = std::move(items);
}

void Outlines::Mirror(QWidget& widget) {
    for (Item& item : items_) {
        const Look look = LookOf(*item.control);
        if (look == item.look) continue;
        if (item.look.visible) widget.update(item.look.Bounds());
        if (look.visible) widget.update(look.Bounds());
        item.look = look;
    }
}

Outlines::Look Outlines::LookOf(const Control& control) {
    const double unit = control.Parent().ChildUnitsPerPixel();
    Look look;
    look.visible = control.Visible;
    if (control.Kind() == ControlKind::Line) {
        const auto& line = static_cast<const LineShape&>(control);
        look.figure = Figure::Line;
        look.x1 = Place(line.X1 / unit);
        look.y1 = Place(line.Y1 / unit);
        look.x2 = Place(line.X2 / unit);
        look.y2 = Place(line.Y2 / unit);
        look.width = std::max(1, line.BorderWidth);
        look.border = line.BorderColor;
        return look;
    }
    const auto& shape = static_cast<const Shape&>(control);
    int width = std::min(control.PixelWidth(), 2 * reach);
    int height = std::min(control.PixelHeight(), 2 * reach);
    look.x1 = Place(shape.Left() / unit);
    look.y1 = Place(shape.Top() / unit);
    if (shape.Form == ShapeForm::Circle) {
        // The largest circle about the middle of the box.
        const int side = std::min(width, height);
        look.x1 += (width - side) / 2;
        look.y1 += (height - side) / 2;
        width = height = side;
    }
    look.visible = look.visible && width > 0 && height > 0;
    look.figure = shape.Form == ShapeForm::Rectangle ? Figure::Rectangle : Figure::Ellipse;
    look.x2 = look.x1 + width - 1;
    look.y2 = look.y1 + height - 1;
    look.width = std::max(1, shape.BorderWidth);
    look.dotted = shape.BorderDotted;
    look.filled = shape.Filled;
    look.border = shape.BorderColor;
    look.fill = shape.FillColor;
    return look;
}

void Outlines::Paint(QPainter& painter) const {
    DevicePixels screen(painter);
    for (const auto& [control, look] : items_) {
        if (!look.visible) continue;
        // The pen lies about the middle of the pixels that an outline of one pixel's width would have. These
        // adjoin what the outline surrounds, whatever the screen's pixels: they grow outward.
        const int thickness = screen.Thickness(look.width), hair = screen.Thickness(1);
        const int before = hair / 2, behind = hair - before;
        QPen pen(ToQColor(look.border), thickness);
        pen.setJoinStyle(Qt::MiterJoin);
        if (look.dotted) pen.setDashPattern({3, 3});
        painter.setPen(pen);
        painter.setBrush(look.filled ? QBrush(ToQColor(look.fill)) : QBrush(Qt::NoBrush));
        // Of the pixels of the two corners, whichever way round.
        const auto place = [&](int x, int y) { return screen.Of(QRect(x, y, 1, 1)); };
        const QRect first = place(look.x1, look.y1), last = place(look.x2, look.y2);
        const QRect box(QPoint(first.right() + 1 - behind, first.bottom() + 1 - behind),
                        QPoint(last.left() + before - 1, last.top() + before - 1));
        switch (look.figure) {
            case Figure::Rectangle:
                painter.drawRect(box);
                break;
            case Figure::Ellipse:
                painter.drawEllipse(box);
                break;
            case Figure::Line:
                painter.drawLine(first.topLeft() + QPoint(before, before),
                                 last.topLeft() + QPoint(before, before));
                break;
        }
    }
}

}  // namespace coinlet
