#include "shell/busy_watch.h"

#include <csignal>
#include <optional>
#include <system_error>
#include <utility>

namespace coinlet {

namespace {

/// While it lives, signals don't come to this thread, nor to those that it makes.
class SignalsBlocked {
public:
    SignalsBlocked() {
        sigset_t all;
        ::sigfillset(&all);
        ::pthread_sigmask(SIG_SETMASK, &all, &before_);
    }
    ~SignalsBlocked() { ::pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
    SignalsBlocked(const SignalsBlocked&) = delete;
    SignalsBlocked& operator=(const SignalsBlocked&) = delete;

private:
    sigset_t before_{};
};

}  // namespace

BusyWatch::BusyWatch(BusySign sign) : sign_(std::move(sign)) {
    if (!sign_.show) return;
    // Signals are for the program's own thread.
    const SignalsBlocked blocked;
    try {
        thread_ = std::jthread([this](const std::stop_token& end) { Watch(end); });
    } catch (const std::system_error&) {
        // The system has no thread to spare; the program can do without.
        sign_.show = nullptr;
    }
}

BusyWatch::~BusyWatch() = default;

void BusyWatch::SetWorking(bool working) {
    if (std::exchange(working_, working) == working || !sign_.show) return;
    if (working) {
        auto windows = sign_.windows();
        const std::lock_guard lock(mutex_);
        windows_ = std::move(windows);
        time_.Begin(WorkTime::Clock::now());
        // Else it looks at the time by itself, later than now and early enough.
        if (std::exchange(asleep_, false)) wake_.notify_one();
        return;
    }
    const bool told = [this] {
        const std::lock_guard lock(mutex_);
        return time_.End();
    }();
    if (told) sign_.takeOff();
}

void BusyWatch::WindowsChanged() {
    if (!working_ || !sign_.show) return;
    auto windows = sign_.windows();
    const std::lock_guard lock(mutex_);
    windows_ = std::move(windows);
    time_.TellAgain();
    if (std::exchange(asleep_, false)) wake_.notify_one();
}

void BusyWatch::Watch(const std::stop_token& end) {
    std::unique_lock lock(mutex_);
    while (!end.stop_requested()) {
        const std::optional<WorkTime::Time> due = time_.DueAt();
        if (!due) {
            asleep_ = true;
            wake_.wait(lock, end, [this] { return !asleep_; });
        } else if (*due > WorkTime::Clock::now()) {
            // Events are short and many: whatever ends or begins meanwhile doesn't wake it, so they cost
            // nothing.
            wake_.wait_until(lock, end, *due, [] { return false; });
        } else {
            // Under the lock, so that the program takes the sign off after it came and never before.
            sign_.show(windows_);
            time_.Tell();
        }
    }
}

}  // namespace coinlet
