#include "designers/control_points.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace coinlet {

namespace {

constexpr int overflow = 6, outOfRange = 9;  // numbers of errors

bool Fits(double whole) {
    using Limits = std::numeric_limits<std::int16_t>;
    return whole >= Limits::min() && whole <= Limits::max();
}

}  // namespace

int ControlPoints::FindControlPoint(double x, double y) const {
    constexpr double reach = 3;
    const int last = std::min(count_, most - 1);
    for (int i = 0; i <= last; ++i) {
        const auto entry = static_cast<std::size_t>(i);
        if (std::abs(x - x_.at(entry)) < reach && std::abs(y - y_.at(entry)) < reach) return i;
    }
    return -1;
}

std::optional<int> ControlPoints::AddControlPoint(double x, double y) {
    if (count_ == most) return outOfRange;
    if (!Fits(x) || !Fits(y)) return overflow;
    const auto entry = static_cast<std::size_t>(count_++);
    x_.at(entry) = static_cast<std::int16_t>(x);
    y_.at(entry) = static_cast<std::int16_t>(y);
    return {};
}

void ControlPoints::MoveControlPoint(int index, double x, double y) {
    if (!Fits(x) || !Fits(y)) return;
    const auto entry = static_cast<std::size_t>(index);
    x_.at(entry) = static_cast<std::int16_t>(x);
    y_.at(entry) = static_cast<std::int16_t>(y);
}

}  // namespace coinlet
