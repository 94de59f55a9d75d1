#pragma once

#include "controls/platform.h"
#include "shell/busy_watch.h"
#include "shell/faults.h"

#include <QObject>
#include <QPointer>
#include <QScopeGuard>
#include <QScopedValueRollback>

#include <concepts>
#include <functional>
#include <utility>
#include <vector>

namespace coinlet {

/// The one door through which the toolkit's events enter the program. Behind it handlers run; no exception
/// passes it on the way back, for the toolkit's own frames can't be unwound; and after every event the
/// windows are made equal to the forms.
class EventGate {
public:
    /// `mirror` makes all windows equal to their forms; `busy` is told of the work that events make.
    EventGate(Platform& platform, std::function<void()> mirror, BusyWatch& busy)
        : platform_(platform), mirror_(std::move(mirror)), busy_(busy) {}

    /// Runs a handler and mirrors. What widgets report because they are being mirrored is no event, and after
    /// the end of the program there are none: both are passed over.
    template <std::invocable Handler>
    void Enter(Handler handler) {
        if (mirroring_ || platform_.Ended()) return;
        const BusyWatch::Work work(busy_);
        ++depth_;
        const auto left = qScopeGuard([this] {
            if (--depth_ == 0) EndRetired();
        });
        try {
            // Each of them may fail, and the next is due all the same.
            EndAtFault(handler);
            EndAtFault([this] { platform_.SettleFocus(); });
            EndAtFault([this] { Mirror(); });
        } catch (const ProgramEnded&) {
            // The windows are hidden by now, and every event loop is on its way out.
        }
    }

    /// Does something to widgets whose reports are no events.
    template <std::invocable Change>
    void Quietly(Change change) {
        const QScopedValueRollback<bool> quiet(mirroring_, true);
        change();
    }
    void Mirror() {
        if (!mirroring_) Quietly(mirror_);
    }
    bool Mirroring() const { return mirroring_; }

    /// Ends an object of the toolkit once no handler runs that an event to it may have started: handlers wait
    /// for further events, and those may take away what the first one was for.
    void Retire(QObject& object) {
        if (depth_ == 0) {
            object.deleteLater();
        } else {
            retired_.emplace_back(&object);
        }
    }

    /// Ends an object once the event that is under way is over, though others may be that came before it: no
    /// handler runs that an event to the object may have started.
    void End(QObject& object) {
        // What lay in those that have ended is gone too.
        std::erase_if(retired_, [&](const auto& one) { return one.isNull() || one == &object; });
        object.deleteLater();
    }

private:
    void EndRetired() {
        for (const auto& object : std::exchange(retired_, {}))
            if (object) object->deleteLater();
    }

    Platform& platform_;
    std::function<void()> mirror_;
    BusyWatch& busy_;
    bool mirroring_ = false;
    int depth_ = 0;
    std::vector<QPointer<QObject>> retired_;
};

}  // namespace coinlet
