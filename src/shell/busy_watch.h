#pragma once

#include "shell/work_time.h"

#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <stop_token>
#include <thread>
#include <utility>
#include <vector>

namespace coinlet {

/// How the user is told that the program is busy.
struct BusySign {
    using Windows = std::vector<std::uint32_t>;

    std::function<Windows()> windows;  ///< Where he may look, as the window system numbers them.
    std::function<void(const Windows& on)>
        show;                       ///< Called by another thread: it must leave the toolkit alone.
    std::function<void()> takeOff;  ///< Everything is as the toolkit has it.
};

/// Tells the user when an event takes the program longer than he takes for granted, whatever it is that takes
/// so long. A second thread looks at the clock, for the program's own has no time to: it is what is busy. All
/// calls here are of that one.
class BusyWatch {
    /// Sets for a while whether the program is at work.
    class Span {
    public:
        Span(BusyWatch& watch, bool working) : watch_(watch), before_(watch.working_) {
            watch_.SetWorking(working);
        }
        ~Span() { watch_.SetWorking(before_); }
        Span(const Span&) = delete;
        Span& operator=(const Span&) = delete;

    private:
        BusyWatch& watch_;
        const bool before_;
    };

public:
    /// While it lives, the program is at work on an event. Work within work is part of that.
    class Work : Span {
    public:
        explicit Work(BusyWatch& watch) : Span(watch, true) {}
    };
    /// While it lives, the program serves events or waits for some: each of them is work of its own, and so
    /// is what the program does afterwards.
    class Pause : Span {
    public:
        explicit Pause(BusyWatch& watch) : Span(watch, false) {}
    };

    /// Without a way to show the sign nothing is ever told, and there is no second thread.
    explicit BusyWatch(BusySign sign);
    ~BusyWatch();
    BusyWatch(const BusyWatch&) = delete;
    BusyWatch& operator=(const BusyWatch&) = delete;

    /// Other windows are there than when the work began.
    void WindowsChanged();

private:
    void SetWorking(bool working);
    void Watch(const std::stop_token& end);

    BusySign sign_;
    bool working_ = false;

    std::mutex mutex_;  ///< For all that follows.
    std::condition_variable_any wake_;
    WorkTime time_;
    BusySign::Windows windows_;
    bool asleep_ = false;  ///< The second thread waits for nothing but a call.

    std::jthread thread_;
};

}  // namespace coinlet
