#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace coinlet {

/// The signals by which a desktop, a terminal or an administrator asks a program to end (SIGTERM, SIGHUP,
/// SIGINT), as an event. While the object lives, of which there may be one at a time, they don't kill the
/// program; one that was ignored when it was made, as by `nohup`, stays so. Afterwards they do what they did
/// before.
class EndingSignals {
public:
    /// After a signal `arrived` is called by the event loop, as soon as that runs, again and again until it
    /// returns true.
    explicit EndingSignals(std::function<bool()> arrived);
    ~EndingSignals();
    EndingSignals(const EndingSignals&) = delete;
    EndingSignals& operator=(const EndingSignals&) = delete;

private:
    std::function<bool()> arrived_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace coinlet
