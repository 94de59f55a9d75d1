#include "shell/one_line.h"

#include "base/text.h"
#include "shell/qt_text.h"

#include <QLineEdit>
#include <QValidator>

namespace coinlet {

namespace {

/// The toolkit asks a validator after every change, however it came about, and takes the text that it leaves.
class OneLine : public QValidator {
public:
    explicit OneLine(QLineEdit& field) : QValidator(&field), field_(field) {
        connect(&field, &QLineEdit::textChanged, this, &OneLine::Remember);
        connect(&field, &QLineEdit::selectionChanged, this, &OneLine::Remember);
        connect(&field, &QLineEdit::cursorPositionChanged, this, &OneLine::Remember);
        Remember();
    }

    State validate(QString& text, int& caret) const override {
        if (FirstLineOf(text) == text) return Acceptable;
        // What was put in stands between what had stood in front of the caret, or of the selection, and
        // behind.
        const QString front = before_.left(start_), behind = before_.mid(end_);
        const bool isAround =
            text.size() >= front.size() + behind.size() && text.startsWith(front) && text.endsWith(behind);
        const qsizetype from = isAround ? front.size() : 0, to = text.size() - (isAround ? behind.size() : 0);
        const QString taken = FirstLineOf(text.mid(from, to - from));
        text.replace(from, to - from, taken);
        caret = static_cast<int>(from + taken.size());
        return Acceptable;
    }

private:
    static QString FirstLineOf(const QString& text) { return ToQString(FirstLine(ToUtf8(text))); }

    void Remember() {
        before_ = field_.text();
        start_ = field_.hasSelectedText() ? field_.selectionStart() : field_.cursorPosition();
        end_ = field_.hasSelectedText() ? field_.selectionEnd() : field_.cursorPosition();
    }

    QLineEdit& field_;
    QString before_;
    int start_ = 0, end_ = 0;
};

}  // namespace

void KeepToOneLine(QLineEdit& field) {
    field.setValidator(new OneLine(field));
}

}  // namespace coinlet
