#pragma once

#include "controls/platform.h"
#include "player/answers.h"
#include "player/pointer_place.h"
#include "player/record.h"
#include "player/virtual_clock.h"

namespace coinlet::player {

/// Who reads the script: the platform asks it to go on wherever a user would act.
class ScriptReader {
public:
    virtual ~ScriptReader() = default;
    /// Does the next line. At the end of the script it throws and so ends whatever is still open.
    virtual void RunNextLine() = 0;
    /// Does what is to happen while the program serves events.
    virtual void ServeInterrupts() = 0;
    virtual void ProgramEnding() {}
};

/// A message box, question or input box that was shown.
struct ShownMessage {
    std::string prompt;
    std::string title;
};

/// The platform without windows. While a dialog is open the script goes on with its next lines; boxes take
/// the queued answers.
class PlayerPlatform : public Platform {
public:
    PlayerPlatform(ScriptReader& reader, VirtualClock& clock, Answers& answers)
        : reader_(reader), clock_(clock), answers_(answers) {}

    void MovePointer(const Control& control, float x, float y) override { pointer.PutOn(control, x, y); }
    bool IsPointerOver(const Control& control) const override { return pointer.IsOver(control); }

    PointerPlace pointer{*this};
    Record<ShownMessage> messages;
    /// The menu last popped up, as in an address; empty before the first.
    const std::string& Popup() const { return popup_; }
    /// The control that it stands at, likewise; empty if it stands at the pointer.
    const std::string& PopupAt() const { return popupAt_; }
    /// The menu itself, or nullptr once its form is unloaded.
    const MenuItem* PopupMenuItem() const { return popupMenu_; }

protected:
    void RunModal(Form& dialog) override;
    void FormLoaded(Form&) override {}
    void FormUnloaded(Form& form) override;
    void ShowPopup(MenuItem& menu, const Control* at) override;
    void ServeEvents() override { reader_.ServeInterrupts(); }
    void ServeEventsFor(double seconds) override;
    Answer AskMessage(const Message& message) override;
    std::string AskText(const std::string& prompt, const std::string& title,
                        const std::string& standard) override;
    std::string AskFolder(const std::string& title, const std::string& start) override;
    void ProgramEnding() override { reader_.ProgramEnding(); }

private:
    ScriptReader& reader_;
    VirtualClock& clock_;
    Answers& answers_;
    std::string popup_, popupAt_;
    const MenuItem* popupMenu_ = nullptr;
    const Form* popupForm_ = nullptr;
};

}  // namespace coinlet::player
