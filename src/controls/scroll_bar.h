#pragma once

#include "controls/control.h"

namespace coinlet {

enum class Orientation { Horizontal, Vertical };

/// A slider over whole numbers. Its value always lies in its range: an assignment, or a new range, that would
/// leave it is clamped, and whatever changes the value raises `Change`.
class ScrollBar : public Control {
public:
    ScrollBar(Container& container, std::string_view name, coinlet::Orientation orientation,
              int index = noIndex);

    coinlet::Orientation Orientation() const { return orientation_; }
    int Min() const { return min_; }
    int Max() const { return max_; }
    int Value() const { return value_; }
    void SetValue(int value);
    /// Both ends at once. `min` above `max` makes a reversed bar, with `min` at its left or top end.
    void SetRange(int min, int max);
    void SetMin(int min);
    /// A `max` below `Min` makes an inert bar that stands at `Min` (unless the bar is a reversed one).
    void SetMax(int max);
    bool Reversed() const { return reversed_; }
    bool Inert() const { return !reversed_ && max_ < min_; }
    /// The range that values are clamped to, low end first.
    int Lowest() const;
    int Highest() const;

    int SmallChange = 1;   ///< A click on an arrow, an arrow key.
    int LargeChange = 10;  ///< A click beside the thumb.

    Event<> Change;
    /// While the user drags the thumb; `Change` follows when he lets go.
    Event<> Scroll;

    /// The user drags the thumb to `value`: `Scroll`, if that changes the value.
    void UserDrags(int value);
    /// The user lets the thumb go: `Change`, if the drag changed the value.
    void UserReleases();

    void KeyPressed(int code, int shift) override;
    bool WantsKey(int code, int) const override { return IsStepKey(code); }
    void VisitProperties(PropertyVisitor& visitor) override;
    void VisitEvents(EventVisitor& visitor) override;

private:
    int Clamped(int value) const;

    coinlet::Orientation orientation_;
    int min_ = 0, max_ = 32767, value_ = 0;
    bool reversed_ = false;
    bool dragged_ = false;
};

}  // namespace coinlet
