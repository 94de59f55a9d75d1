#include "controls/scroll_bar.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

namespace coinlet {

ScrollBar::ScrollBar(Container& container, std::string_view name, coinlet::Orientation orientation, int index)
    : Control(container, name, index, ControlKind::ScrollBar), orientation_(orientation) {
    MakeFocusable();
}

int ScrollBar::Lowest() const {
    return reversed_ ? max_ : min_;
}

int ScrollBar::Highest() const {
    return reversed_ ? min_ : std::max(min_, max_);
}

int ScrollBar::Clamped(int value) const {
    return std::clamp(value, Lowest(), Highest());
}

void ScrollBar::SetValue(int value) {
    const int clamped = Clamped(value);
    if (clamped == value_) return;
    value_ = clamped;
    Change();
}

void ScrollBar::SetRange(int min, int max) {
    min_ = min;
    max_ = max;
    reversed_ = max < min;
    SetValue(value_);
}

void ScrollBar::SetMin(int min) {
    min_ = min;
    reversed_ = reversed_ && max_ < min_;
    SetValue(value_);
}

void ScrollBar::SetMax(int max) {
    max_ = max;
    reversed_ = reversed_ && max_ < min_;
    SetValue(value_);
}

void ScrollBar::UserDrags(int value) {
    const int clamped = Clamped(value);
    if (!Answers() || clamped == value_) return;
    value_ = clamped;
    dragged_ = true;
    Scroll();
}

void ScrollBar::UserReleases() {
    if (std::exchange(dragged_, false) && Answers()) Change();
}

void ScrollBar::KeyPressed(int code, int shift) {
    Control::KeyPressed(code, shift);
    if (!Answers()) return;
    if (code == keyHome) return SetValue(min_);
    if (code == keyEnd) return SetValue(max_);
    std::int64_t step = 0;
    if (code == keyRight || code == keyDown) step = SmallChange;
    if (code == keyLeft || code == keyUp) step = -std::int64_t{SmallChange};
    if (code == keyPageDown) step = LargeChange;
    if (code == keyPageUp) step = -std::int64_t{LargeChange};
    // Right and down lead towards the end where Max stands, also where that is the lower number.
    const std::int64_t value = value_ + (reversed_ ? -step : step);
    SetValue(static_cast<int>(
        std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max())));
}

void ScrollBar::VisitProperties(PropertyVisitor& visitor) {
    Control::VisitProperties(visitor);
    VisitProperty(
        visitor, "Min", PropertyKind::Number, [this] { return min_; }, [this](int min) { SetMin(min); });
    VisitProperty(
        visitor, "Max", PropertyKind::Number, [this] { return max_; }, [this](int max) { SetMax(max); });
    VisitProperty(
        visitor, "Value", PropertyKind::Number, [this] { return value_; },
        [this](int value) { SetValue(value); });
    VisitField(visitor, "SmallChange", SmallChange);
    VisitField(visitor, "LargeChange", LargeChange);
}

void ScrollBar::VisitEvents(EventVisitor& visitor) {
    Control::VisitEvents(visitor);
    VisitEvent(visitor, "Change", Change);
    VisitEvent(visitor, "Scroll", Scroll);
}

}  // namespace coinlet
