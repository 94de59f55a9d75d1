#pragma once

#include "controls/element.h"

namespace coinlet {

class Control;

/// Raises its event again and again while it is enabled and its interval is above 0. Time is the shell's; the
/// scenario player ticks by hand.
class Timer : public Element {
public:
    /// `owner` is the control that the timer belongs to, or nullptr for one of the form.
    Timer(Form& form, std::string_view name, Control* owner = nullptr);
    ~Timer() override;

    int Interval = 0;  ///< Milliseconds.
    bool Enabled = true;
    Event<> Tick;

    Control* Owner() const { return owner_; }
    void VisitProperties(PropertyVisitor& visitor) override;
    void VisitEvents(EventVisitor& visitor) override;

private:
    Control* owner_;
};

}  // namespace coinlet
