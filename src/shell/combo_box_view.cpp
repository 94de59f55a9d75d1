#include "controls/combo_box.h"
#include "controls/type_ahead.h"
#include "shell/control_view.h"
#include "shell/event_gate.h"
#include "shell/key_events.h"
#include "shell/look.h"
#include "shell/one_line.h"
#include "shell/qt_text.h"
#include "shell/row_model.h"
#include "shell/views.h"

#include <QComboBox>
#include <QCompleter>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QSignalBlocker>

#include <algorithm>
#include <functional>
#include <string>
#include <utility>

namespace coinlet {

namespace {

/// The list that drops down: letters lead to rows as they do in lists that stand by themselves.
class DroppedRows : public QListView {
public:
    /// `combo` gives the control while there is one.
    explicit DroppedRows(std::function<const ComboBox*()> combo) : combo_(std::move(combo)) {}

    void keyboardSearch(const QString& letter) override {
        const ComboBox* combo = combo_();
        if (!combo) return;
        if (pause_.isValid() && pause_.hasExpired(typeAheadPause)) typed_.Forget();
        pause_.start();
        const int row = typed_.RowFor(combo->Rows(), currentIndex().row(), ToUtf8(letter));
        if (row >= 0) setCurrentIndex(model()->index(row, 0));
    }

private:
    std::function<const ComboBox*()> combo_;
    TypeAhead typed_;
    QElapsedTimer pause_;
};

/// Opens its list at the row that the text tells, typed or chosen.
class DropDown : public QComboBox {
public:
    using QComboBox::QComboBox;

    void showPopup() override {
        const QString text = currentText();
        if (itemText(currentIndex()) != text) {
            const int row = findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
            const QSignalBlocker silent(*this);
            if (row >= 0) setCurrentIndex(row);
        }
        QComboBox::showPopup();
    }
};

class ComboBoxView : public ViewOf<ComboBox> {
public:
    ComboBoxView(ComboBox& combo, QComboBox& widget, EventGate& gate)
        : ViewOf(combo, widget, gate, Handling::WidgetToo, Handling::WidgetToo),
          combo_(widget),
          list_(*new DroppedRows([this] { return Shown() ? &model() : nullptr; })),
          rows_(*new RowModel(&widget)) {
        constexpr int rowsAtOnce = 16;
        widget.setEditable(true);
        widget.setCompleter(nullptr);
        widget.setInsertPolicy(QComboBox::NoInsert);
        widget.setMaxVisibleItems(rowsAtOnce);
        // Else the widget would measure every row of a long list before it is first shown.
        widget.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        widget.setView(&list_);
        list_.setUniformItemSizes(true);
        widget.setModel(&rows_);
        KeepToOneLine(*widget.lineEdit());
        // Its menu opens by the pointer too, as that of any other field.
        widget.lineEdit()->setContextMenuPolicy(Qt::DefaultContextMenu);
        Watch(*widget.lineEdit());
        connect(&widget, &QComboBox::activated, this, [this](int index) { Pick(index); });
        connect(widget.lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) { Edit(text); });
    }

    void Detach() override {
        rows_.Clear();
        ViewOf::Detach();
    }

protected:
    void MirrorContent() override {
        const ComboBox& combo = model();
        if (Differs<FontProperties, FontProperties>(font_, combo)) combo_.setFont(ToQFont(font_));
        const bool foreChanged = Differs(fore_, combo.ForeColor);
        const bool backChanged = Differs(back_, combo.BackColor);
        if (foreChanged || backChanged) combo_.setPalette(FieldPalette(fore_, back_));
        const bool rowsChanged = rows_.Mirror(combo.Rows());
        const bool choiceChanged = Differs(chosen_, combo.ListIndex());
        const bool textChanged = Differs(text_, combo.Text());
        if (textChanged) shownText_ = ToQString(text_);
        // The widget takes a choice over by itself, also where the program doesn't follow. While its list is
        // open it stands at the row that it opened at.
        const bool isElsewhere = !combo_.view()->isVisible() && (combo_.currentIndex() != chosen_ ||
                                                                 combo_.lineEdit()->text() != shownText_);
        if (!rowsChanged && !choiceChanged && !textChanged && !isElsewhere) return;
        const QSignalBlocker silent(combo_);
        const int cursor = combo_.lineEdit()->cursorPosition();
        combo_.setCurrentIndex(chosen_);
        if (combo_.lineEdit()->text() != shownText_) combo_.lineEdit()->setText(shownText_);
        // Behind a choice one types on.
        const auto end = static_cast<int>(shownText_.size());
        combo_.lineEdit()->setCursorPosition(choiceChanged && chosen_ >= 0 ? end : std::min(cursor, end));
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool usedUp = ViewOf::eventFilter(watched, event);
        if (event->type() == QEvent::FocusIn) {
            // A field that is come to by key, or that its form starts on, has its text selected: typing
            // replaces it. Selected later, since the mirror may have a text to set first.
            const auto reason = static_cast<const QFocusEvent*>(event)->reason();
            if (reason != Qt::MouseFocusReason && reason != Qt::PopupFocusReason &&
                reason != Qt::MenuBarFocusReason)
                QMetaObject::invokeMethod(combo_.lineEdit(), &QLineEdit::selectAll, Qt::QueuedConnection);
        }
        if (event->type() != QEvent::KeyPress) return usedUp;
        // The program steps through the rows by itself.
        const int code = KeyCode(static_cast<const QKeyEvent*>(event)->key());
        return usedUp || code == keyUp || code == keyDown || code == keyPageUp || code == keyPageDown;
    }

private:
    void Pick(int index) {
        if (!Shown()) return;
        Gate().Enter([&] { model().UserPicks(index); });
        if (Shown()) combo_.lineEdit()->end(false);
    }
    void Edit(const QString& text) {
        if (!Shown()) return;
        shownText_ = text;
        text_ = ToUtf8(text);
        Gate().Enter([&] { model().UserEdits(text_); });
    }

    QComboBox& combo_;
    DroppedRows& list_;
    RowModel& rows_;
    FontProperties font_{.FontName = {}};
    Colour fore_ = -2, back_ = -2;
    int chosen_ = -1;
    std::string text_;
    QString shownText_;
};

}  // namespace

ControlView* MakeComboBoxView(Control& control, QWidget& parent, EventGate& gate) {
    return new ComboBoxView(static_cast<ComboBox&>(control), *new DropDown(&parent), gate);
}

}  // namespace coinlet
