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

    /// Starts and stops clocks so that they run as the form's timers say.
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
