#pragma once

#include "core/main_form.h"
#include "screen.h"
#include "support/temporary_folder.h"
#include "support/test_platform.h"

#include <QProcess>

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace coinlet::test {

/// True once `condition` is; false if it isn't within a time that no working program needs.
bool Comes(const std::function<bool()>& condition);

/// The program in an application folder of its own, and somebody before the screen who uses it by pointer and
/// keys and sees what the screen shows. He has the screen to himself.
class StartedProgram : public ::testing::Test {
protected:
    StartedProgram();
    ~StartedProgram() override;

    /// Starts it and waits until its main window is painted.
    void Start();
    /// Waits until it has ended by itself; false if it doesn't, or ends with a status other than 0.
    bool EndsWell();
    bool Runs();
    /// Sends it a signal.
    void Send(int signal) const;
    /// Takes the screen away from it, as a desktop does that is told to close the window by force.
    void CutOff() const;
    /// Ends it on the spot, whatever it is doing, and waits until its windows are gone.
    void Kill();

    std::string Title() const { return screen.TitleOf(window_); }
    /// The place on the screen of a pixel of a control of the main form.
    QPoint PlaceOf(const Control& control, int x, int y) const;
    QRect PlaceOf(const Control& control) const;
    QRgb ColourAt(const QPoint& place) const { return Screen::Grab(QRect(place, QSize(1, 1))).pixel(0, 0); }
    /// The menu bar on the screen.
    QRect MenuBar() const;

    void MoveTo(const QPoint& place);
    void Press();
    void Release();
    void ClickRight();
    void Click(const QPoint& place);
    void Click(const Control& control, int x, int y) { Click(PlaceOf(control, x, y)); }
    /// A key by its name in the window system: "Return", "ctrl+n".
    void Key(const std::string& name);
    /// The same key again and again, as quickly as one that is held down comes.
    void Keys(const std::string& name, int times);
    void HoldKey(const std::string& name);
    void LetGoKey(const std::string& name);
    /// Opens a menu of the menu bar by the pointer.
    OpenWindow OpenMenu(const MenuItem& menu);
    /// Clicks at an entry of an open menu. The entries on the screen must be as many as those of the form.
    void Choose(const OpenWindow& open, const MenuItem& entry);
    /// The close box of the main window.
    void CloseBox() { screen.AskToClose(window_); }

    /// Waits for a window before the main window and `others` further ones, until it is painted. Without a
    /// place if none comes.
    OpenWindow Front(std::size_t others = 0);
    /// Waits until no window is left before the main window.
    bool MainIsInFront();
    /// What the screen shows of a window; waited for until it stays the same.
    static QImage Look(const OpenWindow& window);

    TemporaryFolder folder;
    /// What starts it, word by word. At first: the copy in `folder`.
    std::vector<std::string> command;
    /// The home of its user, so that what it prints and exports doesn't go to that of whoever runs the tests.
    std::filesystem::path home = folder / "home";
    /// What its environment has beside that of the tests.
    std::map<std::string, std::string> variables;
    /// What somebody else does while it starts, again and again.
    std::function<void()> meanwhile = [] {};
    Screen screen;
    TestServices services;
    /// Where everything is: the program's own form, without a window.
    MainForm form{services.ForForms()};

private:
    OpenWindow window_;
    QProcess process_;
};

}  // namespace coinlet::test
