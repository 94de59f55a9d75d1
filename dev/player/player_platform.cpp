#include "player/player_platform.h"

#include "controls/control.h"
#include "controls/menu.h"
#include "player/failure.h"
#include "player/names.h"
#include "player/values.h"

namespace coinlet::player {

namespace {

/// The answer, which the script must have queued.
template <class T>
T Queued(std::optional<T> answer, std::string_view asker, const std::string& text) {
    if (!answer)
        Fail("expected a queued answer, found none for the " + std::string(asker) + " " + Quoted(text));
    return *std::move(answer);
}

}  // namespace

void PlayerPlatform::ShowPopup(MenuItem& menu, const Control* at) {
    popupMenu_ = &menu;
    popupForm_ = &menu.OwnerForm();
    popup_ = NameOf(menu);
    popupAt_ = at ? NameOf(*at) : std::string();
}

void PlayerPlatform::FormUnloaded(Form& form) {
    if (&form == popupForm_) popupMenu_ = nullptr;
}

void PlayerPlatform::RunModal(Form& dialog) {
    while (dialog.Loaded() && !Ended())
        reader_.RunNextLine();
}

void PlayerPlatform::ServeEventsFor(double seconds) {
    clock_.Advance(seconds);
    reader_.ServeInterrupts();
}

Answer PlayerPlatform::AskMessage(const Message& message) {
    messages.Add({message.prompt, message.title});
    if (message.buttons == MessageButtons::Ok) return Answer::Ok;
    return Queued(answers_.TakeForQuestion(), "question", message.prompt);
}

std::string PlayerPlatform::AskText(const std::string& prompt, const std::string& title,
                                    const std::string& standard) {
    messages.Add({prompt, title});
    return Queued(answers_.TakeForInput(standard), "input box", prompt);
}

std::string PlayerPlatform::AskFolder(const std::string& title, const std::string& /*start*/) {
    return Queued(answers_.TakeForFolder(), "folder picker", title);
}

}  // namespace coinlet::player
