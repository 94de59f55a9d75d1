#include "controls/platform.h"

#include "base/text.h"
#include "controls/menu.h"

#include <algorithm>
#include <utility>

namespace coinlet {

namespace {

/// Handlers that wait for events may be entered again while they wait; so deep and no deeper.
constexpr int maximumDepth = 16;

}  // namespace

class Platform::DepthGuard {
public:
    explicit DepthGuard(int& depth) : depth_(depth) { ++depth_; }
    ~DepthGuard() { --depth_; }
    DepthGuard(const DepthGuard&) = delete;
    DepthGuard& operator=(const DepthGuard&) = delete;

private:
    int& depth_;
};

/// Takes a dialog off the list however its call ends: a dialog lives in its caller's frame, and nobody may
/// know of it once that is gone.
class Platform::ModalGuard {
public:
    ModalGuard(Platform& platform, Form& dialog) : platform_(platform), dialog_(dialog) {}
    ~ModalGuard() { platform_.Remove(dialog_); }
    ModalGuard(const ModalGuard&) = delete;
    ModalGuard& operator=(const ModalGuard&) = delete;

private:
    Platform& platform_;
    Form& dialog_;
};

void Platform::Load(Form& form) {
    form.loaded_ = true;
    forms_.push_back(&form);
    form.Form_Load();
}

void Platform::Announce(Form& form) {
    form.announced_ = true;
    FormLoaded(form);
}

void Platform::Activate(Form& form) {
    active_ = &form;
    form.Form_Activate();
}

void Platform::Remove(Form& form) {
    if (!std::exchange(form.loaded_, false)) return;
    form.focus_ = form.lastFocus_ = nullptr;
    std::erase(forms_, &form);
    if (active_ == &form) active_ = nullptr;
    if (std::exchange(form.announced_, false)) FormUnloaded(form);
}

void Platform::ShowMain(Form& form) {
    if (ended_ || form.loaded_) return;
    Load(form);
    if (form.loaded_) Announce(form);
    if (form.loaded_) Activate(form);
}

void Platform::ShowModal(Form& dialog) {
    if (ended_ || dialog.loaded_) return;
    {
        const ModalGuard guard(*this, dialog);
        Load(dialog);
        if (dialog.loaded_) Announce(dialog);
        if (dialog.loaded_) Activate(dialog);
        if (dialog.loaded_) RunModal(dialog);
    }
    ThrowIfEnded();
    // A form that closed below another one leaves that one active: it isn't activated twice.
    if (Form* front = FrontForm(); front && front != active_) Activate(*front);
}

void Platform::DoEvents() {
    if (ended_ || depth_ >= maximumDepth) return;
    const DepthGuard guard(depth_);
    ServeEvents();
    ThrowIfEnded();
}

void Platform::Wait(double seconds) {
    if (ended_ || depth_ >= maximumDepth) return;
    const DepthGuard guard(depth_);
    // Written so that NaN, too, is not above 0.
    if (seconds > 0) {
        ServeEventsFor(seconds);
    } else {
        ServeEvents();
    }
    ThrowIfEnded();
}

Answer Platform::ShowMessage(const Message& message) {
    if (ended_) return message.standard;
    const Answer answer = AskMessage(message);
    ThrowIfEnded();
    return answer;
}

std::string Platform::InputBox(const std::string& prompt, const std::string& title,
                               const std::string& standard) {
    if (ended_) return {};
    const std::string text = AskText(prompt, title, standard);
    ThrowIfEnded();
    return std::string(FirstLine(text));
}

std::string Platform::PickFolder(const std::string& title, const std::string& start) {
    if (ended_) return {};
    std::string folder = AskFolder(title, start);
    ThrowIfEnded();
    return folder;
}

void Platform::PopupMenu(MenuItem& menu) {
    if (!ended_) ShowPopup(menu, menu.OwnerForm().KeyedControl());
}

void Platform::SettleFocus() {
    // What is told of the loss may open or close forms.
    for (Form* form : std::vector(forms_))
        if (std::ranges::find(forms_, form) != forms_.end()) form->SettleFocus();
}

void Platform::End() {
    if (!std::exchange(ended_, true)) ProgramEnding();
    throw ProgramEnded{};
}

void Platform::ThrowIfEnded() const {
    if (ended_) throw ProgramEnded{};
}

Form* Platform::FindForm(std::string_view name) const {
    // A form may be open twice, one before the other.
    const auto found = std::find_if(forms_.rbegin(), forms_.rend(),
                                    [name](const Form* form) { return form->Name() == name; });
    return found == forms_.rend() ? nullptr : *found;
}

}  // namespace coinlet
