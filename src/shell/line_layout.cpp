#include "shell/line_layout.h"

#include "shell/qt_text.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <utility>

namespace coinlet {

namespace {

/// Gives a line `length` units of text. The toolkit counts letters, of which one may be several units.
void Fill(QTextLine& line, int length) {
    int letters = length;
    line.setNumColumns(letters);
    while (line.textLength() > length && letters > 1)
        line.setNumColumns(--letters);
}

}  // namespace

LineLayout::LineLayout(QTextDocument& document, Wrap wrap)
    : QPlainTextDocumentLayout(&document), wrap_(std::move(wrap)) {}

void LineLayout::LayOut(QTextBlock block) const {
    QTextLayout& layout = *block.layout();
    QTextOption option = document()->defaultTextOption();
    option.setWrapMode(QTextOption::WrapAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    qreal height = 0;
    for (const std::string& text : wrap_(ToUtf8(block.text()))) {
        QTextLine line = layout.createLine();
        if (!line.isValid()) break;
        line.setLeadingIncluded(true);
        Fill(line, static_cast<int>(ToQString(text).size()));
        line.setPosition(QPointF(document()->documentMargin(), height));
        height += line.height();
    }
    layout.endLayout();
    block.setLineCount(block.isVisible() ? layout.lineCount() : 0);
}

void LineLayout::LayOutAll() {
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        LayOut(block);
    emit documentSizeChanged(documentSize());
    emit update();
}

QRectF LineLayout::blockBoundingRect(const QTextBlock& block) const {
    if (block.isValid() && block.layout()->lineCount() == 0) LayOut(block);
    return QPlainTextDocumentLayout::blockBoundingRect(block);
}

void LineLayout::documentChanged(int from, int charsRemoved, int charsAdded) {
    QPlainTextDocumentLayout::documentChanged(from, charsRemoved, charsAdded);
    const QTextBlock last = document()->findBlock(from + charsAdded);
    for (QTextBlock block = document()->findBlock(from); block.isValid(); block = block.next()) {
        LayOut(block);
        if (block == last) break;
    }
    emit documentSizeChanged(documentSize());
    emit update();
}

}  // namespace coinlet
