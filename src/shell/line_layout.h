#pragma once

#include <QPlainTextDocumentLayout>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace coinlet {

/// Lays out the text of a box of several lines in the lines that somebody else tells, and not in those that
/// the toolkit finds: what is stored line by line must be what the user saw.
class LineLayout : public QPlainTextDocumentLayout {
public:
    /// Cuts a text without line ends into its lines.
    using Wrap = std::function<std::vector<std::string>(std::string_view)>;

    LineLayout(QTextDocument& document, Wrap wrap);

    /// Lays out everything anew, for a box of another width.
    void LayOutAll();

    QRectF blockBoundingRect(const QTextBlock& block) const override;

protected:
    void documentChanged(int from, int charsRemoved, int charsAdded) override;

private:
    void LayOut(QTextBlock block) const;

    Wrap wrap_;
};

}  // namespace coinlet
