#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace coinlet {

/// The control points of a curve, in whole pixels. Behind those in use lies one free entry, which keeps what
/// once stood there.
class ControlPoints {
public:
    static constexpr int most = 101;

    int PointCount() const { return count_; }
    std::span<const std::int16_t> PointX() const { return {x_.data(), static_cast<std::size_t>(count_)}; }
    std::span<const std::int16_t> PointY() const { return {y_.data(), static_cast<std::size_t>(count_)}; }

    /// The index of the first point less than 3 pixels away from (x, y) both ways, or -1. The free entry is
    /// looked at too, as the last one: a press near (0, 0), or near where an earlier curve had a point, is a
    /// hit. A full list has none.
    int FindControlPoint(double x, double y) const;

    /// Adds a point; x and y are whole. Gives the number of the error if that can't be done, and changes
    /// nothing then: 6 where a coordinate has more than 16 bits, 9 where the list is full.
    std::optional<int> AddControlPoint(double x, double y);

    /// Moves a point, or the free entry; x and y are whole. What has more than 16 bits moves nothing.
    void MoveControlPoint(int index, double x, double y);

    /// Takes all points out of use. The entries keep them.
    void Clear() { count_ = 0; }

private:
    std::array<std::int16_t, most> x_{}, y_{};
    int count_ = 0;
};

}  // namespace coinlet
