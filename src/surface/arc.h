#pragma once

#include <optional>

namespace coinlet {

struct ArcAngles;

/// The directions between two angles, both included: counter-clockwise from the positive x axis, from `start`
/// to `end`, through 0 if the end comes before the start.
class Arc {
public:
    /// Angles in radians, of any number of turns. Equal ones are all directions, an end of 0 is a full turn.
    /// Nothing if one of them isn't finite.
    static std::optional<Arc> Between(const ArcAngles& angles);

    bool IsWholeTurn() const { return whole_; }
    /// If the pixel at a point belongs to the arc; y grows upward here. It does if its direction lies in the
    /// arc, or if it is within half a pixel of one of the two rays in the directions of the ends: so the
    /// pixel that an end falls on belongs to the arc, and a line that is drawn on from there leaves no gap.
    bool Contains(int x, int y) const;

private:
    Arc() = default;

    bool whole_ = false;
    double start_ = 0, end_ = 0;  ///< In 0 .. 2 pi.
    double span_ = 0;             ///< From start to end, in 0 .. 2 pi.
    double startX_ = 1, startY_ = 0, endX_ = 1, endY_ = 0;
};

}  // namespace coinlet
