#include "player/answers.h"

namespace coinlet::player {

template <class Outcome>
std::optional<Outcome> Answers::Take(
    const std::function<std::optional<Outcome>(const QueuedAnswer&)>& reaction) {
    for (auto answer = queue_.begin(); answer != queue_.end(); ++answer) {
        if (auto outcome = reaction(*answer)) {
            queue_.erase(answer);
            return outcome;
        }
    }
    return std::nullopt;
}

std::optional<Answer> Answers::TakeForQuestion() {
    return Take<Answer>([](const QueuedAnswer& queued) -> std::optional<Answer> {
        const Answer* const answer = std::get_if<Answer>(&queued);
        if (!answer || *answer == Answer::Ok) return std::nullopt;
        return *answer == Answer::Yes ? Answer::Yes : Answer::No;
    });
}

std::optional<std::string> Answers::TakeForInput(const std::string& standard) {
    return Take<std::string>([&](const QueuedAnswer& queued) -> std::optional<std::string> {
        if (const TextAnswer* const text = std::get_if<TextAnswer>(&queued)) return text->text;
        const Answer* const answer = std::get_if<Answer>(&queued);
        if (answer && *answer == Answer::Ok) return standard;
        if (answer && *answer == Answer::Cancel) return std::string();
        return std::nullopt;
    });
}

std::optional<std::string> Answers::TakeForFolder() {
    return Take<std::string>([](const QueuedAnswer& queued) -> std::optional<std::string> {
        const FolderAnswer* const folder = std::get_if<FolderAnswer>(&queued);
        if (folder) return folder->path;
        const Answer* const answer = std::get_if<Answer>(&queued);
        if (answer && *answer == Answer::Cancel) return std::string();
        return std::nullopt;
    });
}

}  // namespace coinlet::player
