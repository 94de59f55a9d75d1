#pragma once

#include "controls/platform.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <variant>

namespace coinlet::player {

/// A text for an input box.
struct TextAnswer {
    std::string text;
};
/// A folder for the folder picker; empty is its cancel.
struct FolderAnswer {
    std::string path;
};
using QueuedAnswer = std::variant<Answer, TextAnswer, FolderAnswer>;

/// The user's reactions to the boxes to come. A box takes the oldest reaction that fits it, and passes over
/// those meant for boxes of another kind.
class Answers {
public:
    void Add(QueuedAnswer answer) { queue_.push_back(std::move(answer)); }
    const std::deque<QueuedAnswer>& Waiting() const { return queue_; }

    /// Yes or No; cancelling is No. Nothing if no reaction fits; so with the others.
    std::optional<Answer> TakeForQuestion();
    /// The text of the box; `standard` if the user leaves what stands there, empty if he cancels.
    std::optional<std::string> TakeForInput(const std::string& standard);
    /// The path; empty if the user cancels.
    std::optional<std::string> TakeForFolder();

private:
    /// Takes out the first answer that `reaction` has an outcome for.
    template <class Outcome>
    std::optional<Outcome> Take(const std::function<std::optional<Outcome>(const QueuedAnswer&)>& reaction);

    std::deque<QueuedAnswer> queue_;
};

}  // namespace coinlet::player
