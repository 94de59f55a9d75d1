#pragma once

#include <QObject>
#include <QSize>

#include <functional>

class QWidget;

namespace coinlet {

/// Sets how small and how large the user may make a window, and tells it the window system anew, in pixels of
/// the screen that the window is on: of limits that stay the same for it the toolkit says nothing.
void SetSizeLimits(QWidget& window, const QSize& least, const QSize& most);

/// A window that comes to a screen of another scale keeps its pixels, as far as the window system knows, and
/// so would show twice or half as much. As long as this lives, it stays as large as it is to the eye.
class SameSizeOnScreens : public QObject {
public:
    /// Gives a window its size on the screen that it has come to; `before` is the one that it had.
    using Restore = std::function<void(const QSize& before)>;

    /// The window gets back the size that it had, and its limits.
    explicit SameSizeOnScreens(QWidget& window);
    /// It gets its size from `restore`, which is called once everybody knows of the new screen.
    SameSizeOnScreens(QWidget& window, Restore restore);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& window_;
    Restore restore_;
    double scale_;  ///< Of the screen that it has its size for.
};

}  // namespace coinlet
