#include "controls/file_boxes.h"
#include "shell/control_view.h"
#include "shell/device_pixels.h"
#include "shell/event_gate.h"
#include "shell/field_edge.h"
#include "shell/look.h"
#include "shell/row_model.h"
#include "shell/views.h"

#include <QEvent>
#include <QListView>
#include <QPainter>
#include <QPixmap>
#include <QStyle>
#include <QStyledItemDelegate>

#include <algorithm>
#include <cmath>

namespace coinlet {

namespace {

/// A small folder, open or shut, to the right of an indent that tells how deep it lies, for a screen that
/// shows a pixel of the program by `ratio` pixels. Its lines lie on whole ones of these.
QPixmap FolderMark(int depth, bool open, const QColor& colour, qreal ratio) {
    constexpr int step = 8, deepest = 10, width = 12, height = 11;
    const int left = step * std::min(depth, deepest);
    QPixmap mark((QSizeF(left + width, height) * ratio).toSize());
    mark.fill(Qt::transparent);
    QPainter painter(&mark);
    painter.setRenderHint(QPainter::Antialiasing);
    const int line = std::max(1, static_cast<int>(ratio));
    const auto at = [&](int x, int y) {
        return QPointF(std::floor((left + x) * ratio), std::floor(y * ratio)) + QPointF(line, line) / 2;
    };
    painter.setPen(QPen(colour, line, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    // The back with its tab, and the front, which leans forward when the folder is open.
    painter.drawPolygon(QPolygonF({at(0, 9), at(0, 1), at(4, 1), at(5, 3), at(9, 3), at(9, 9)}));
    painter.setBrush(open ? QBrush(colour) : QBrush(Qt::NoBrush));
    if (open) painter.drawPolygon(QPolygonF({at(0, 9), at(2, 5), at(11, 5), at(9, 9)}));
    painter.end();
    mark.setDevicePixelRatio(ratio);
    return mark;
}

/// Paints the marks of rows in the pixels of the screen that they were drawn for: the style would place them
/// between these, and tint that of the chosen row.
class RowsDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        QPixmap mark = index.data(Qt::DecorationRole).value<QPixmap>();
        if (mark.isNull()) return;
        QStyleOptionViewItem row = option;
        initStyleOption(&row, index);
        const QRect place =
            row.widget->style()->subElementRect(QStyle::SE_ItemViewItemDecoration, &row, row.widget);
        const DevicePixels screen(*painter);
        mark.setDevicePixelRatio(1);
        painter->drawPixmap(screen.Of(place).topLeft(), mark);
    }

protected:
    /// The room for the mark stays.
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->icon = {};
    }
};

/// Rows, and below them the room that is left where the next one isn't whole.
class RowsView : public QListView {
public:
    using QListView::QListView;

    void LeaveRoomBelow(int pixels) { setViewportMargins(0, 0, 0, pixels); }

protected:
    bool event(QEvent* event) override {
        if (event->type() != QEvent::Paint) return QListView::event(event);
        PaintFieldEdge(*this);
        return true;
    }
};

class ListBoxView : public ViewOf<ListBox> {
public:
    ListBoxView(ListBox& list, RowsView& widget, EventGate& gate)
        : ViewOf(list, widget, gate), list_(widget), rows_(*new RowModel(&widget)) {
        widget.setModel(&rows_);
        widget.setUniformItemSizes(true);
        widget.setSelectionMode(QAbstractItemView::SingleSelection);
        widget.setEditTriggers(QAbstractItemView::NoEditTriggers);
        widget.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        widget.setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
        widget.setFrameShape(QFrame::Box);
        widget.setFrameShadow(QFrame::Plain);
        widget.setContextMenuPolicy(Qt::NoContextMenu);
        Watch(*widget.viewport());
        const auto* folders = dynamic_cast<const DirListBox*>(&list);
        if (!folders) return;
        // The way down to the folder in use is open.
        rows_.Mark = [this, folders](int row) -> QVariant {
            const int depth = folders->DepthOf(row);
            const bool open = LiesIn(folders->Path(), folders->TargetOf(row));
            return FolderMark(depth, open, ToQColor(fore_), list_.devicePixelRatioF());
        };
        constexpr int widest = 120, height = 11;
        widget.setIconSize({widest, height});
        widget.setItemDelegate(new RowsDelegate(&widget));
    }

    void Detach() override {
        rows_.Clear();
        ViewOf::Detach();
    }

protected:
    void MirrorContent() override {
        const ListBox& list = model();
        if (Differs<FontProperties, FontProperties>(font_, list)) list_.setFont(ToQFont(font_));
        const bool foreChanged = Differs(fore_, list.ForeColor);
        const bool backChanged = Differs(back_, list.BackColor);
        if (foreChanged || backChanged) list_.setPalette(FieldPalette(fore_, back_));
        MirrorHeight(list);
        rows_.Mirror(list.Rows());
        // The widget goes to a row by itself when it gets the focus.
        const QModelIndex chosen = rows_.index(list.ListIndex(), 0);
        if (list_.currentIndex() != chosen) list_.setCurrentIndex(chosen);
    }

    /// A press on a row is its click; a second one soon after it is the double click, and no further click.
    void Press(int button, int shift, float x, float y, bool again) override {
        const QPoint place(static_cast<int>(x), static_cast<int>(y));
        const int row = list_.indexAt(list_.viewport()->mapFrom(&list_, place)).row();
        Gate().Enter([&] {
            ListBox& list = model();
            list.PointerPressed(button, shift, x, y);
            if (button != leftButton || row < 0) return;
            if (again && row == list.ListIndex()) {
                list.UserActivates();
            } else {
                list.UserPicks(row);
            }
        });
    }

private:
    void MirrorHeight(const ListBox& list) {
        // The font is measured again only where it may have become another one.
        const bool sizeChanged = Differs(height_, list.PixelHeight());
        if (!Differs<FontProperties, FontProperties>(measured_, list) && !sizeChanged) return;
        rows_.RowHeight = list.RowPixels();
        const int room = height_ - 2 * listFrame - list.VisibleRows() * rows_.RowHeight;
        list_.LeaveRoomBelow(std::max(0, room));
        list_.doItemsLayout();
    }

    RowsView& list_;
    RowModel& rows_;
    int height_ = -1;
    FontProperties measured_{.FontName = {}};
    FontProperties font_{.FontName = {}};
    Colour fore_ = -2, back_ = -2;
};

}  // namespace

ControlView* MakeListBoxView(Control& control, QWidget& parent, EventGate& gate) {
    return new ListBoxView(static_cast<ListBox&>(control), *new RowsView(&parent), gate);
}

}  // namespace coinlet
