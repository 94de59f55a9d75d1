#include "designers/atan3.h"

#include "base/angles.h"

#include <cmath>

namespace coinlet {

namespace {

constexpr double threeQuarters = 4.712388980384685, fullTurn = 6.28318530717958;

}  // namespace

// The rows of a picture grow downward, so a point above the centre has a negative DY. DX over DY is the
// tangent of what is missing to the vertical, which is a quarter turn or three quarters.
float ATan3(double DX, double DY) {
    if (DY < 0) return static_cast<float>(std::atan(DX / DY) + pi / 2);
    if (DY > 0) return static_cast<float>(std::atan(DX / DY) + threeQuarters);
    return static_cast<float>(DX < 0 ? pi : fullTurn);
}

}  // namespace coinlet
