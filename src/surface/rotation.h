#pragma once

#include "surface/surface.h"

#include <vector>

namespace coinlet {

/// Copies column x of a picture into row `row` of another surface, the top pixel to the left: columns from
/// left to right into rows from the bottom up turn a picture a quarter to the left. What lies outside either
/// picture is left out. The surfaces must not be the same.
void TurnColumnIntoRow(Surface& target, int row, const Surface& source, int x);

/// A turn of a picture by any angle about its middle, done from the middle outward in steps, so that it can
/// be watched. What comes from outside the picture leaves the target as it was.
///
/// Each target pixel asks where it comes from. The pixel at (x, y) from the middle lies at the angle
/// atan(y / x) and the distance r = sqrt(x^2 + y^2), rounded to a whole number; it takes the source pixel at
/// the same distance and an angle that is larger by the turn. Three more follow from it by quarter turns.
class Rotation {
public:
    /// Turns by `degrees`, clockwise or against the clock. By a quarter (or three), the target's width and
    /// height are exchanged first. The surfaces must not be the same, and must live as long as this.
    Rotation(Surface& target, const Surface& source, float degrees, bool clockwise);

    /// The steps are 0 to this one, in pixels from the middle.
    int LastStep() const { return halfSize_; }
    /// Sets the pixels whose distance from the middle, along one axis or the other, is `x`, and along the
    /// other one not above LastStep(). x is from 0 to LastStep().
    void Step(int x);

private:
    struct Offset {
        int x = 0, y = 0;
    };
    void FindOffsets(int x);
    /// How many of the pixels of a step, from y = 0 on, come from inside the source and go inside the target,
    /// all four of them.
    int CountOfInner(int x) const;

    Surface& target_;
    const Surface& source_;
    int halfSize_;
    Offset sourceCentre_, targetCentre_;
    double cosine_, sine_;
    /// Of the present step: from the source's middle to the pixel taken, by y.
    std::vector<int> offsetsX_, offsetsY_;
};

}  // namespace coinlet
