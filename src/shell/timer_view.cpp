#include "shell/timer_view.h"

#include "controls/form.h"
#include "controls/timer.h"
#include "shell/event_gate.h"

#include <QTimer>

#include <algorithm>

namespace coinlet {

namespace {

/// 0 for a timer that stands still.
int IntervalOf(const Timer& timer) {
    return timer.Enabled ? std::max(0, timer.Interval) : 0;
}

}  // namespace

struct TimerView::Clock {
    Timer* timer;
    EventGate& gate;
    int interval = 0;  ///< 0 while it stands still.
    QTimer* ticker = new QTimer;

    Clock(Timer* ofTimer, EventGate& itsGate) : timer(ofTimer), gate(itsGate) {}
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    ~Clock() {
        ticker->stop();
        gate.Retire(*ticker);
    }
};

TimerView::TimerView(Form& form, EventGate& gate) : form_(&form), gate_(gate) {}

TimerView::~TimerView() = default;

void TimerView::SyncTimers() {
    const auto& timers = form_->Timers();
    const auto same = [](const std::unique_ptr<Clock>& clock, const Timer* timer) {
        return clock->timer == timer;
    };
    if (std::equal(clocks_.begin(), clocks_.end(), timers.begin(), timers.end(), same)) return;
    std::vector<std::unique_ptr<Clock>> clocks;
    for (Timer* timer : timers) {
        const auto known = std::find_if(clocks_.begin(), clocks_.end(),
                                        [&](const auto& clock) { return clock && clock->timer == timer; });
        clocks.push_back(known == clocks_.end() ? std::make_unique<Clock>(timer, gate_) : std::move(*known));
        if (known != clocks_.end()) continue;
        const Clock* made = clocks.back().get();
        made->ticker->setTimerType(Qt::PreciseTimer);
        made->ticker->callOnTimeout([this, made] { Tick(*made); });
    }
    clocks_ = std::move(clocks);
}

void TimerView::Mirror() {
    for (auto& clock : clocks_) {
        const int interval = IntervalOf(*clock->timer);
        if (interval == clock->interval) continue;
        clock->interval = interval;
        if (interval > 0) {
            clock->ticker->start(interval);
        } else {
            clock->ticker->stop();
        }
    }
}

void TimerView::Detach() {
    form_ = nullptr;
    clocks_.clear();
}

/// A clock runs on until it is mirrored that its timer stands still.
void TimerView::Tick(const Clock& clock) {
    if (IntervalOf(*clock.timer) == 0) return;
    gate_.Enter([timer = clock.timer] { timer->Tick(); });
}

}  // namespace coinlet
