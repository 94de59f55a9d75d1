#include "controls/form.h"
#include "controls/text_box.h"
#include "controls/text_lines.h"
#include "shell/control_view.h"
#include "shell/event_gate.h"
#include "shell/field_edge.h"
#include "shell/line_layout.h"
#include "shell/look.h"
#include "shell/one_line.h"
#include "shell/qt_text.h"
#include "shell/views.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace coinlet {

namespace {

/// What boxes of one line and of several have in common. The widget edits the text and reports what it
/// became.
class TextBoxView : public ViewOf<TextBox> {
public:
    TextBoxView(TextBox& box, QWidget& widget, EventGate& gate)
        : ViewOf(box, widget, gate, Handling::WidgetToo, Handling::WidgetToo) {}

protected:
    virtual void ShowText(const QString& text) = 0;
    virtual void SelectShownText() = 0;
    /// What the user types next is another text.
    virtual void StartOver() { SelectShownText(); }
    virtual void ShowLocked(bool locked) = 0;

    void MirrorContent() override {
        const TextBox& box = model();
        if (Differs<FontProperties, FontProperties>(font_, box)) Widget().setFont(ToQFont(font_));
        const bool foreChanged = Differs(fore_, box.ForeColor);
        const bool backChanged = Differs(back_, box.BackColor);
        if (foreChanged || backChanged) Widget().setPalette(FieldPalette(fore_, back_));
        if (Differs(locked_, box.Locked)) ShowLocked(locked_);
        if (Differs(text_, box.Text())) {
            ShowText(ToQString(text_).replace(QLatin1String("\r\n"), QLatin1String("\n")));
        }
        if (Differs(selections_, box.Selections())) StartOver();
    }

    void Edited(const QString& text) {
        if (!Shown()) return;
        std::string edited = ToUtf8(QString(text).replace(QLatin1Char('\n'), QLatin1String("\r\n")));
        if (edited == text_) return;
        text_ = edited;
        Gate().Enter([&] { model().UserEdits(edited); });
    }

private:
    std::string text_;
    FontProperties font_{.FontName = {}};
    Colour fore_ = -2, back_ = -2;
    bool locked_ = false;
    int selections_ = 0;
};

class LineView : public TextBoxView {
public:
    LineView(TextBox& box, QLineEdit& widget, EventGate& gate)
        : TextBoxView(box, widget, gate), line_(widget) {
        KeepToOneLine(widget);
        connect(&widget, &QLineEdit::textEdited, this, [this](const QString& text) { Edited(text); });
    }

    /// Typing replaces the text. The widget selects it by itself only if its window is the active one by
    /// now, which that of a dialog isn't yet.
    void FocusComes() override { SelectShownText(); }

protected:
    void SelectShownText() override { line_.selectAll(); }
    /// The former text is no longer the field's to take back.
    void StartOver() override {
        line_.setText(line_.text());
        line_.selectAll();
    }
    /// With nothing of its own to take back a field leaves the key to the menus.
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool usedUp = TextBoxView::eventFilter(watched, event);
        if (event->type() != QEvent::ShortcutOverride || line_.isUndoAvailable()) return usedUp;
        return usedUp || static_cast<const QKeyEvent&>(*event).matches(QKeySequence::Undo);
    }
    void ShowText(const QString& text) override {
        const int cursor = line_.cursorPosition();
        line_.setText(text);
        line_.setCursorPosition(std::min(cursor, static_cast<int>(text.size())));
    }
    void ShowLocked(bool locked) override { line_.setReadOnly(locked); }

private:
    QLineEdit& line_;
};

/// An editor whose lines are cut by a layout of the program.
class LinesEdit : public QPlainTextEdit {
public:
    explicit LinesEdit(QWidget* parent) : QPlainTextEdit(parent) {}

    void SetWrap(LineLayout::Wrap wrap) {
        auto* document = new QTextDocument(this);
        document->setDocumentMargin(textBoxMargin);
        layout_ = new LineLayout(*document, std::move(wrap));
        document->setDocumentLayout(layout_);
        setDocument(document);
    }

protected:
    bool event(QEvent* event) override {
        if (event->type() != QEvent::Paint) return QPlainTextEdit::event(event);
        PaintFieldEdge(*this);
        return true;
    }
    void resizeEvent(QResizeEvent* event) override {
        QPlainTextEdit::resizeEvent(event);
        if (layout_ != nullptr) layout_->LayOutAll();
    }

private:
    LineLayout* layout_ = nullptr;
};

class LinesView : public TextBoxView {
public:
    LinesView(TextBox& box, LinesEdit& widget, EventGate& gate)
        : TextBoxView(box, widget, gate), lines_(widget) {
        widget.SetWrap([this](std::string_view text) { return WrapAsTheProgram(text); });
        widget.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        widget.setVerticalScrollBarPolicy(box.VerticalScroll ? Qt::ScrollBarAlwaysOn
                                                             : Qt::ScrollBarAlwaysOff);
        widget.setFrameShape(QFrame::Box);
        widget.setFrameShadow(QFrame::Plain);
        Watch(*widget.viewport());
        connect(&widget, &QPlainTextEdit::textChanged, this, [this] { Edited(Written()); });
    }

protected:
    void SelectShownText() override { lines_.selectAll(); }
    void ShowText(const QString& text) override {
        const QSignalBlocker silent(lines_);
        const int cursor = lines_.textCursor().position();
        lines_.setPlainText(text);
        QTextCursor place = lines_.textCursor();
        place.setPosition(std::min(cursor, lines_.document()->characterCount() - 1));
        lines_.setTextCursor(place);
    }
    void ShowLocked(bool locked) override { lines_.setReadOnly(locked); }
    bool EditsReturn() const override { return true; }

private:
    /// The text as it was written. The toolkit's own plain text has blanks in place of those that keep words
    /// together on a line.
    QString Written() const {
        QString text = lines_.document()->toRawText();
        for (const QChar end : {QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)})
            text.replace(end, QLatin1Char('\n'));
        return text;
    }
    std::vector<std::string> WrapAsTheProgram(std::string_view text) const {
        if (!Shown()) return {std::string(text)};
        const TextBox& box = model();
        return WrapLine(text, WrapWidth(box), box.CurrentFont(), box.OwnerForm().Fonts().Installed());
    }

    QPlainTextEdit& lines_;
};

}  // namespace

ControlView* MakeTextBoxView(Control& control, QWidget& parent, EventGate& gate) {
    auto& box = static_cast<TextBox&>(control);
    if (box.MultiLine) return new LinesView(box, *new LinesEdit(&parent), gate);
    return new LineView(box, *new QLineEdit(&parent), gate);
}

}  // namespace coinlet
