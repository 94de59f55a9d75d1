#include "controls/file_boxes.h"
#include "shell/control_view.h"
#include "shell/event_gate.h"
#include "shell/look.h"
#include "shell/row_model.h"
#include "shell/views.h"

#include <QListView>
#include <QPainter>
#include <QPixmap>

#include <algorithm>

namespace coinlet {

namespace {

/// A small folder, open or shut, to the right of an indent that tells how deep it lies.
QPixmap FolderMark(int depth, bool open, const QColor& colour, qreal ratio) {
    constexpr int step = 8, deepest = 10, width = 12, height = 11;
    const int left = step * std::min(depth, deepest);
    QPixmap mark((QSizeF(left + width, height) * ratio).toSize());
    mark.setDevicePixelRatio(ratio);
    mark.fill(Qt::transparent);
    QPainter painter(&mark);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(left, 0);
    painter.setPen(QPen(colour, 1));
    // The back with its tab, and the front, which leans forward when the folder is open.
    const QPolygonF back({{0.5, 9.5}, {0.5, 1.5}, {4.5, 1.5}, {5.5, 3.5}, {9.5, 3.5}, {9.5, 9.5}});
    painter.drawPolygon(back);
    painter.setBrush(open ? QBrush(colour) : QBrush(Qt::NoBrush));
    if (open) painter.drawPolygon(QPolygonF({{0.5, 9.5}, {2.5, 5.5}, {11.5, 5.5}, {9.5, 9.5}}));
    return mark;
}

/// Rows, and below them the room that is left where the next one isn't whole.
class RowsView : public QListView {
public:
    using QListView::QListView;

    void LeaveRoomBelow(int pixels) { setViewportMargins(0, 0, 0, pixels); }
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
        // The room below is a part of the list.
        widget.setBackgroundRole(QPalette::Base);
        widget.setAutoFillBackground(true);
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
