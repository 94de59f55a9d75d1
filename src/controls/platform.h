#pragma once

#include "base/program.h"
#include "controls/form.h"

#include <string>
#include <string_view>
#include <vector>

namespace coinlet {

class Control;
class MenuItem;

/// Thrown by Platform::End, and by every call of the platform that served events when the program ended in
/// one of them, so that no handler runs on. It is caught where events enter the program, and nowhere else.
class ProgramEnded {};

enum class MessageButtons { Ok, YesNo };
enum class MessageIcon { None, Stop, Question, Warning, Information };
enum class Answer { Ok, Cancel, Yes, No };

/// A message box or a question. Escape in a yes/no box is No.
struct Message {
    std::string prompt;
    std::string title{programTitle};
    MessageButtons buttons = MessageButtons::Ok;
    MessageIcon icon = MessageIcon::None;
    /// The button that the Enter key presses; questions that destroy something stand on No.
    Answer standard = Answer::Ok;
};

/// What the program asks of the screen, and the pointer that it shows everywhere.
struct ScreenState {
    int DotsPerInch = 96;
    int Width = 1920, Height = 1080;  ///< Pixels.
    /// hourglassPointer shows the hourglass on the whole screen; defaultPointer and toolPointer lift it.
    int MousePointer = 0;
};

/// The windows of the program, seen from inside: a shell with real ones, or the scenario player with none.
/// All calls that serve events may run other handlers before they return; when the program ended meanwhile
/// they throw ProgramEnded.
class Platform {
public:
    virtual ~Platform() = default;

    ScreenState Screen;

    /// Loads a form and shows it in front as the program's main window, without waiting.
    void ShowMain(Form& form);
    /// Loads a dialog, shows it in front of the form before it and returns when it has unloaded; the form
    /// that is then in front is activated. A dialog that unloads itself while it loads is never shown.
    void ShowModal(Form& dialog);

    /// Makes the pointer on the screen the one that `Screen` names, at once and without serving events.
    virtual void ShowPointer() {}

    /// Serves waiting events once. At a depth of 16 calls it returns at once.
    void DoEvents();
    /// Serves events for that many seconds; not above 0, once. At a depth of 16 calls it returns at once.
    void Wait(double seconds);

    Answer ShowMessage(const Message& message);
    /// The user's text, which is one line; empty if he cancels.
    std::string InputBox(const std::string& prompt, const std::string& title, const std::string& standard);
    /// The path of the folder that the user chose; empty if he cancels. He begins in `start`, or at home if
    /// there is no such folder.
    std::string PickFolder(const std::string& title, const std::string& start = {});

    /// Pops up a menu and returns at once; what is chosen comes as its own event. It stands at the pointer,
    /// or at the control whose key the user pressed for it.
    void PopupMenu(MenuItem& menu);
    /// Puts the pointer on a place of a control, in the units of its pointer events. The control isn't told.
    /// Where windows may not do that, it stays where it is.
    virtual void MovePointer(const Control& control, float x, float y) = 0;
    /// True if the pointer is over the control and nothing covers it there.
    virtual bool IsPointerOver(const Control& control) const = 0;

    /// Ends the program: no handler runs on, and later calls that would serve events return at once: a
    /// dialog isn't shown, a message gives its standard answer, a text is empty.
    [[noreturn]] void End();
    bool Ended() const { return ended_; }

    /// Takes the focus of every form away from what was hidden or disabled with it: whoever lets events in
    /// calls it after each.
    void SettleFocus();

    /// The loaded forms; the last one is in front and the only one the user can reach.
    const std::vector<Form*>& Forms() const { return forms_; }
    Form* FrontForm() const { return forms_.empty() ? nullptr : forms_.back(); }
    /// The loaded form of that name, the one nearest to the front; nullptr if there is none.
    Form* FindForm(std::string_view name) const;

protected:
    /// Serves events until `dialog` is unloaded or the program has ended.
    virtual void RunModal(Form& dialog) = 0;
    /// Shows a form in front; takes it off again. They come in pairs: a form that never was shown isn't
    /// taken off. When FormUnloaded comes the form may be half destroyed: its address counts, and the lists
    /// of those of its controls, menus and timers that are still there.
    virtual void FormLoaded(Form& form) = 0;
    virtual void FormUnloaded(Form& form) = 0;
    /// Pops up a menu at a control, or at the pointer if that is nullptr, and returns at once.
    virtual void ShowPopup(MenuItem& menu, const Control* at) = 0;
    virtual void ServeEvents() = 0;
    virtual void ServeEventsFor(double seconds) = 0;
    virtual Answer AskMessage(const Message& message) = 0;
    virtual std::string AskText(const std::string& prompt, const std::string& title,
                                const std::string& standard) = 0;
    virtual std::string AskFolder(const std::string& title, const std::string& start) = 0;
    virtual void ProgramEnding() = 0;

private:
    friend class Form;
    class DepthGuard;
    class ModalGuard;
    void Load(Form& form);
    void Announce(Form& form);
    void Activate(Form& form);
    void Remove(Form& form);
    void ThrowIfEnded() const;

    std::vector<Form*> forms_;
    Form* active_ = nullptr;  ///< The form that was last activated.
    int depth_ = 0;
    bool ended_ = false;
};

}  // namespace coinlet
