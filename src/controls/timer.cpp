#include "controls/timer.h"

#include "controls/form.h"

namespace coinlet {

Timer::Timer(Form& form, std::string_view name, Control* owner)
    : Element(form, name, noIndex), owner_(owner) {
    form.timers_.push_back(this);
}

Timer::~Timer() {
    std::erase(OwnerForm().timers_, this);
}

void Timer::VisitProperties(PropertyVisitor& visitor) {
    Element::VisitProperties(visitor);
    VisitField(visitor, "Interval", Interval);
    VisitField(visitor, "Enabled", Enabled);
}

void Timer::VisitEvents(EventVisitor& visitor) {
    VisitEvent(visitor, "Timer", Tick);
}

}  // namespace coinlet
