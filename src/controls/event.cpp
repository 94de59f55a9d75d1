#include "controls/event.h"

#include "base/numbers.h"

namespace coinlet {

namespace {

double Argument(std::span<const double> arguments, std::size_t index) {
    return index < arguments.size() ? arguments[index] : 0;
}

int Whole(std::span<const double> arguments, std::size_t index) {
    return RoundHalfEven(Argument(arguments, index));
}

}  // namespace

void VisitEvent(EventVisitor& visitor, std::string_view name, const Event<>& event) {
    visitor.Visit({name, 0, [&event](std::span<const double>) { event(); }});
}

void VisitEvent(EventVisitor& visitor, std::string_view name, const Event<int>& event) {
    visitor.Visit({name, 1, [&event](std::span<const double> arguments) { event(Whole(arguments, 0)); }});
}

void VisitEvent(EventVisitor& visitor, std::string_view name, const KeyEvent& event) {
    visitor.Visit({name, 2, [&event](std::span<const double> arguments) {
                       event(Whole(arguments, 0), Whole(arguments, 1));
                   }});
}

void VisitEvent(EventVisitor& visitor, std::string_view name, const PointerEvent& event) {
    visitor.Visit({name, 4, [&event](std::span<const double> arguments) {
                       event(Whole(arguments, 0), Whole(arguments, 1),
                             static_cast<float>(Argument(arguments, 2)),
                             static_cast<float>(Argument(arguments, 3)));
                   }});
}

}  // namespace coinlet
