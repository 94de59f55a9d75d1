#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPoint>

#include <deque>

namespace coinlet {

/// Puts the pointer somewhere for the program. The window system tells of that as of a move by the user, but
/// later, when the program may have moved it on by further keys: such an echo is passed over.
class PointerWarps : public QObject {
public:
    /// `place` is the toolkit's, on the screen.
    void MoveTo(const QPoint& place);

protected:
    bool eventFilter(QObject* target, QEvent* event) override;

private:
    struct Echo {
        QPoint place;
        qint64 due;  ///< Milliseconds on the clock; after it nothing comes back any more.
    };
    void ForgetOldOnes();

    std::deque<Echo> echoes_;  ///< The oldest first.
    QElapsedTimer clock_;
};

}  // namespace coinlet
