#pragma once

#include "fuzz/dice.h"
#include "fuzz/random_user/invariants.h"
#include "shell/qt_platform.h"

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QString>

#include <atomic>
#include <cstdint>
#include <fstream>
#include <memory>
#include <string>

class QDialog;
class QMimeData;
class QWidget;
class QWindow;

namespace coinlet::test {

/// Somebody before the windows of the program who does whatever comes to his mind: moves the pointer and
/// presses its buttons and the keys by way of the toolkit's window system, turns the wheel, drops files,
/// takes the clipboard away, closes and resizes windows, goes to another program and comes back, and answers
/// what he is asked. He acts whenever the toolkit has nothing else to do, also while the program waits, runs
/// a filter or shows a dialog.
class WindowUser {
public:
    /// He acts `acts` times in all his sessions; then, and now and then before, he leaves the program. `log`
    /// takes each act before it is done. `folder` holds the files that he drops and copies.
    WindowUser(std::uint32_t seed, std::size_t acts, std::string folder, std::ofstream& log);
    ~WindowUser();
    WindowUser(const WindowUser&) = delete;
    WindowUser& operator=(const WindowUser&) = delete;

    /// Sits down before a program that is about to run. Its windows end before the next call.
    void SitDown(QtPlatform& platform);
    /// True when he has done all that he wanted to.
    bool IsDone() const { return acts_ >= wanted_; }
    std::size_t Acts() const { return acts_; }
    /// Grows with whatever he does; may be asked by any thread.
    std::size_t Doings() const { return doings_; }

private:
    using Act = void (WindowUser::*)();
    struct WeightedAct;
    static const WeightedAct usualActs[];

    void ActSoon();
    void DoSomething();
    void Note(const std::string& act);
    /// True if a box, a picker or a menu stood before everything else, and was answered.
    bool AnswerQuestion();
    void AnswerDialog(QDialog& dialog);
    void UseMenu(QWidget& popup);
    void Leave();

    void Press();
    void MoveOn();
    void Release();
    void ClickSomething();
    void Hover();
    void TurnWheel();
    void PressKey();
    void TypeText();
    void GiveFocus();
    void GoAway();
    void ComeBack();
    void CloseWindow();
    void Resize();
    void LoseClipboard();
    void FillClipboard();
    void DropFiles();
    void OpenMenu();

    /// The window that has the user: the form in front.
    QWidget* Window() const;
    /// Something that is seen in the window; nullptr if nothing is.
    QWidget* AnyWidget();
    QPoint AnyPlaceIn(const QWidget& widget);
    void SendMouse(QEvent::Type type, QWidget& widget, const QPoint& place, Qt::MouseButton button);
    void SendKey(QWindow* window, int key, Qt::KeyboardModifiers modifiers, const QString& text);
    std::unique_ptr<QMimeData> AnyOffer();

    Dice dice_;
    std::size_t wanted_;
    std::string folder_;
    std::ofstream& log_;
    QtPlatform* platform_ = nullptr;
    std::unique_ptr<QObject> session_;    ///< Ends what was to be done soon in an earlier session.
    std::unique_ptr<QWidget> elsewhere_;  ///< A window of another program, as it were.
    QPointer<QWidget> pressed_;
    Qt::MouseButtons buttons_;
    std::size_t acts_ = 0, actsOfSession_ = 0, actsToLeave_ = 0;
    FaultFinder faults_;
    std::atomic<std::size_t> doings_ = 0;
};

}  // namespace coinlet::test
