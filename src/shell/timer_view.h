#pragma once

#include <memory>
#include <vector>

class QTimer;

namespace coinlet {

class EventGate;
class Form;
class Timer;

/// Gives every running timer of a form its time.
class TimerView {
public:
    TimerView(Form& form, EventGate& gate);
    ~TimerView();

    /// Makes clocks for timers that have come, which stand still at first, and ends those of timers that have
    /// gone.
    void SyncTimers();
    /// Starts and stops clocks so that they run as the form's timers say, which must be those that were there
    /// at the last SyncTimers.
    void Mirror();
    void Detach();

private:
    struct Clock;

    void Tick(const Clock& clock);

    Form* form_;
    EventGate& gate_;
    std::vector<std::unique_ptr<Clock>> clocks_;
};

}  // namespace coinlet
