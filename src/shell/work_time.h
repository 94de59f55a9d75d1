#pragma once

#include <chrono>
#include <optional>
#include <utility>

namespace coinlet {

/// How long the program has been at one piece of work, during which it does nothing that its user could see,
/// and when he is to be told that it is busy. What the time is, the caller says, by a clock that never goes
/// back.
class WorkTime {
public:
    using Clock = std::chrono::steady_clock;
    using Time = Clock::time_point;
    /// Up to here people take what they see for the answer to what they did.
    static constexpr std::chrono::milliseconds patience{300};

    /// A piece of work begins, and nothing else is under way.
    void Begin(Time now) { since_ = now; }
    /// It has ended. True if the user has been told, who is now to be told the opposite.
    bool End() {
        since_.reset();
        return std::exchange(told_, Told::Nothing) != Told::Nothing;
    }

    /// When the user is to be told; nothing if there is nothing to tell him.
    std::optional<Time> DueAt() const {
        if (!since_ || told_ == Told::All) return {};
        return *since_ + patience;
    }
    /// He has been told.
    void Tell() { told_ = Told::All; }
    /// He may look now where it wasn't said.
    void TellAgain() {
        if (told_ == Told::All) told_ = Told::Elsewhere;
    }

private:
    enum class Told { Nothing, Elsewhere, All };

    std::optional<Time> since_;
    Told told_ = Told::Nothing;
};

}  // namespace coinlet
