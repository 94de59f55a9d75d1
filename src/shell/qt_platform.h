#pragma once

#include "controls/platform.h"
#include "shell/busy_watch.h"
#include "shell/event_gate.h"
#include "shell/field_menus.h"
#include "shell/frame_pace.h"
#include "shell/pointer_sign.h"
#include "shell/pointer_warps.h"

#include <QObject>
#include <QtCore/qnamespace.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QEventLoop;
class QWidget;

namespace coinlet {

class FormWindow;
class NameGiver;

/// The platform of the program with windows: each loaded form has one.
class QtPlatform : public Platform {
public:
    QtPlatform();
    ~QtPlatform() override;
    QtPlatform(const QtPlatform&) = delete;
    QtPlatform& operator=(const QtPlatform&) = delete;

    /// Runs `start`, which shows the main form, and serves events until the program has ended or no form is
    /// left. After it no window is left either.
    void Run(const std::function<void()>& start);

    /// Ends the program from outside of its handlers, whatever they are doing: `farewell` is called first,
    /// once. True when it has ended; while the windows are being made equal to the forms, nothing happens.
    bool Leave(const std::function<void()>& farewell);

    void MovePointer(const Control& control, float x, float y) override;
    bool IsPointerOver(const Control& control) const override;
    void ShowPointer() override { MirrorHourglass(); }

    /// Who names controls to assistive tools; it must outlive the platform's windows.
    void NameControlsBy(const NameGiver& names) { names_ = &names; }
    /// Makes all windows equal to their forms.
    void Mirror() { gate_.Mirror(); }
    /// The window of a form, or nullptr if it isn't loaded.
    FormWindow* WindowOf(const Form& form) const;

protected:
    void RunModal(Form& dialog) override;
    void FormLoaded(Form& form) override;
    void FormUnloaded(Form& form) override;
    void ShowPopup(MenuItem& menu, const Control* at) override;
    void ServeEvents() override;
    void ServeEventsFor(double seconds) override;
    Answer AskMessage(const Message& message) override;
    std::string AskText(const std::string& prompt, const std::string& title,
                        const std::string& standard) override;
    std::string AskFolder(const std::string& title, const std::string& start) override;
    void ProgramEnding() override;

private:
    class OwnDialog;
    struct ModalLoop {
        const Form* dialog;
        QEventLoop* loop;
    };

    void MirrorAll();
    void MirrorHourglass();
    void ReadScreen();
    QWidget* FrontWindow() const;
    void FrontComesBack();
    void StateChanged(Qt::ApplicationState state);

    BusyWatch busy_;
    EventGate gate_;
    FieldMenus fieldMenus_{gate_};
    QObject connections_;
    std::vector<FormWindow*> windows_;  ///< The last one is in front.
    std::vector<ModalLoop> loops_;
    FramePace pace_;
    const NameGiver* names_ = nullptr;
    PointerWarps warps_;
    PointerSign pointerSign_;
    bool hourglass_ = false;

    int ownDialogs_ = 0;            ///< Message boxes, pickers and dialogs that are open.
    bool focusIsOnItsWay_ = false;  ///< One of them has closed, and the window before has no focus yet.
    bool away_ = false;             ///< The user is in another program, and went there from the main window.
};

}  // namespace coinlet
