#pragma once

#include "controls/platform.h"
#include "support/block_fonts.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace coinlet::test {

/// A platform without windows, for unit tests: questions take queued answers, and events are what a test
/// queues to happen while the program waits for them.
class TestPlatform : public Platform {
public:
    /// What the user answers, oldest first. A box with only OK answers itself; a question that nobody
    /// answers is a fault of the test and throws.
    std::deque<Answer> answers;
    std::deque<std::string> texts, folders;
    /// What the user does in the dialogs that open: one step at each moment that a dialog waits. A dialog
    /// that waits with no step left would wait for ever, and throws.
    std::deque<std::function<void()>> doings;
    /// What happens inside each DoEvents and Wait.
    std::function<void()> whenServing;
    /// What the pointer is over.
    const Control* pointerOver = nullptr;

    /// What was shown and done, oldest first.
    std::vector<Message> messages;
    std::vector<std::string> prompts;
    std::vector<std::string> foldersOffered;  ///< Where pickers began.
    std::vector<MenuItem*> popups;
    const Control* popupAt = nullptr;  ///< What the last of them stands at; the pointer if it is nullptr.
    std::vector<std::string> log;      ///< "show NAME", "hide NAME", "end".
    int served = 0;                    ///< Calls of DoEvents and Wait that served events.
    double waited = 0;                 ///< Seconds.

    /// Runs what a user does; like every place where events enter the program it ends an ending here. False
    /// if the program ended.
    bool Do(const std::function<void()>& doing) {
        try {
            doing();
        } catch (const ProgramEnded&) {
        }
        return !Ended();
    }

    void MovePointer(const Control& control, float, float) override { pointerOver = &control; }
    bool IsPointerOver(const Control& control) const override { return pointerOver == &control; }

protected:
    void RunModal(Form& dialog) override {
        while (dialog.Loaded() && !Ended())
            Do(Taken(doings, "a dialog waits and nothing happens"));
    }
    void FormLoaded(Form& form) override { log.push_back("show " + std::string(form.Name())); }
    void FormUnloaded(Form& form) override { log.push_back("hide " + std::string(form.Name())); }
    void ShowPopup(MenuItem& menu, const Control* at) override {
        popups.push_back(&menu);
        popupAt = at;
    }
    void ServeEvents() override {
        ++served;
        if (whenServing) Do(whenServing);
    }
    void ServeEventsFor(double seconds) override {
        waited += seconds;
        ServeEvents();
    }
    Answer AskMessage(const Message& message) override {
        messages.push_back(message);
        if (message.buttons == MessageButtons::Ok) return Answer::Ok;
        return Taken(answers, "nobody answers a question");
    }
    std::string AskText(const std::string& prompt, const std::string&, const std::string&) override {
        prompts.push_back(prompt);
        return Taken(texts, "nobody answers an input box");
    }
    std::string AskFolder(const std::string& title, const std::string& start) override {
        prompts.push_back(title);
        foldersOffered.push_back(start);
        return Taken(folders, "nobody picks a folder");
    }
    void ProgramEnding() override { log.emplace_back("end"); }

private:
    template <class T>
    static T Taken(std::deque<T>& queue, const char* fault) {
        if (queue.empty()) throw std::logic_error(fault);
        T first = std::move(queue.front());
        queue.pop_front();
        return first;
    }
};

/// The platform and the fonts that a form of a unit test is made with.
struct TestServices {
    TestPlatform platform;
    BlockFonts fonts;

    FormServices ForForms() { return {platform, fonts}; }
};

}  // namespace coinlet::test
