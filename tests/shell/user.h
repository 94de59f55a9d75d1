#pragma once

#include "controls/control.h"
#include "shell/qt_platform.h"
#include "support/block_fonts.h"
#include "told_faults.h"

#include <QPoint>

#include <functional>
#include <gtest/gtest.h>
#include <string>

class QImage;
class QWidget;

namespace coinlet::test {

/// Somebody before the screen: moves the pointer and presses keys by the window system, and looks at what
/// comes of it. He is a thread of his own, for the program waits for him in loops of its own.
class User {
public:
    explicit User(QtPlatform& platform) : platform_(platform) {}

    /// Waits until the program, asked between two events, says yes; false if it doesn't within a time that no
    /// working program needs.
    bool Sees(const std::function<bool()>& condition);
    /// Has the program's thread do something between two events, and waits until it is done.
    void Has(const std::function<void()>& action);

    /// The place of a point of a control, a menu entry or a widget, in pixels of the screen.
    QPoint PlaceOf(const Control& control, int x, int y);
    QPoint PlaceOf(const MenuItem& item);

    void MoveTo(const QPoint& place);
    /// To a corner of the screens. The toolkit, which hears nothing of a pointer beside its windows, forgets
    /// where it saw it last.
    void MoveAwayFrom(QWidget& window);
    /// Buttons as the window system counts them: 1 left, 2 middle, 3 right.
    void Press(int button = 1);
    void Release(int button = 1);
    void Click(const QPoint& place);
    void Click(const Control& control, int x, int y) { Click(PlaceOf(control, x, y)); }
    void ClickMiddle(const QPoint& place);
    /// Two clicks, as quickly as a double click takes.
    void DoubleClick(const QPoint& place);
    /// A key by its name in the window system: "Return", "ctrl+n".
    void Key(const std::string& name);
    void Type(const std::string& text);
    /// Moves a window by its upper left corner to a place on the screens, in pixels, as a desktop does that
    /// drags it there.
    void MoveWindow(const QWidget& window, const QPoint& place);
    /// What a screen shows of a window, in pixels of the screen. Nothing may lie before it.
    QImage LookAt(const QWidget& window);
    /// Waits until the screen shows of a window what the window paints, in pixels of that screen; false if it
    /// doesn't come to that.
    bool SeesPainted(QWidget& window);
    /// The colour that the screen shows there.
    int ColourAt(const QPoint& place);

private:
    static void Do(const std::vector<std::string>& arguments);
    static QPoint ToScreen(const QWidget& widget, const QPoint& place);

    QtPlatform& platform_;
};

/// What a window paints on the screen that it is on, painted from the beginning.
QImage PaintedAnew(QWidget& window);

/// A test with a platform; fonts are blocks, so that the test needs none.
class ShellTest : public ::testing::Test {
protected:
    /// Shows `form` as the main window and serves events until `user` has done his work or the program ended.
    void Run(Form& form, const std::function<void(User&)>& work);
    /// What fails in a handler ends in silence for the user, but not for a test.
    void TearDown() override { EXPECT_EQ(ToldFaults() - faultsBefore_, expectedFaults); }

    int expectedFaults = 0;

    BlockFonts fonts;
    QtPlatform platform;
    FormServices services{platform, fonts};

private:
    const int faultsBefore_ = ToldFaults();
};

}  // namespace coinlet::test
