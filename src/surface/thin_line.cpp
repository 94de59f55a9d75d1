#include "surface/line.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace coinlet {

namespace {

/// The quotient rounded up; `divisor` is above 0.
std::int64_t CeilDivide(std::int64_t dividend, std::int64_t divisor) {
    return dividend / divisor + (dividend % divisor > 0 ? 1 : 0);
}

struct Steps {
    std::int64_t first, last;  ///< Both included; none if last is before first.
};

/// The steps 0..count - 1 of one pixel each, from `start` on in direction `sign`, that lie in 0..size - 1.
Steps StepsInside(std::int64_t start, int sign, int size, std::int64_t count) {
    const std::int64_t ahead = sign > 0 ? -start : start - (size - 1);
    return {std::max<std::int64_t>(ahead, 0), std::min(ahead + size, count) - 1};
}

/// A line seen along its longer side: after i steps of one pixel that way it has gone
/// floor((2 i rise + bias) / (2 length)) pixels the other way. That is i rise / length to the nearest whole,
/// and the bias, length or length - 1, says where a half goes.
struct Slope {
    std::int64_t length, rise, bias;

    /// The first step at which at least `height` pixels are gone the other way; `rise` is above 0.
    std::int64_t FirstAt(std::int64_t height) const {
        return CeilDivide(2 * length * height - bias, 2 * rise);
    }
    std::int64_t HeightAt(std::int64_t step) const { return (2 * step * rise + bias) / (2 * length); }
};

Steps Clip(Steps along, const Slope& slope, const Steps& across) {
    if (slope.rise == 0) return across.first > 0 || across.last < 0 ? Steps{0, -1} : along;
    return {std::max(along.first, slope.FirstAt(across.first)),
            std::min(along.last, slope.FirstAt(across.last + 1) - 1)};
}

/// The height of a slope in steps of one pixel, in 24.40 binary places. Rounding makes the sum too large, by
/// at most one unit of the last place a step and one to begin with. On 65,535 pixels that stays below 2^-24,
/// which is no more than 1 / (2 length), the distance between heights; so the whole part is always right.
class RunningHeight {
public:
    RunningHeight(const Slope& slope, std::int64_t step) : increment_(Places(slope.rise, slope.length)) {
        const std::int64_t whole = slope.HeightAt(step);
        sum_ = Places(2 * step * slope.rise + slope.bias - 2 * slope.length * whole, 2 * slope.length);
    }

    /// How far it has gone since the first step.
    std::int64_t Whole() const { return static_cast<std::int64_t>(sum_ >> places); }
    void Advance() { sum_ += increment_; }

private:
    static constexpr int places = 40;

    /// A fraction of at most 1.
    static std::uint64_t Places(std::int64_t numerator, std::int64_t denominator) {
        return (static_cast<std::uint64_t>(numerator) << places) / static_cast<std::uint64_t>(denominator) +
               1;
    }

    std::uint64_t increment_, sum_ = 0;
};
static_assert(maximumSide < 1 << 16 && 2 * lineReach <= 1 << 23, "RunningHeight counts on it");

bool IsOn(std::int64_t dot) {
    return dot % (2 * dotLength) < dotLength;
}

}  // namespace

std::optional<PixelLine> WithinReach(const PlaneLine& line) {
    if (std::isnan(line.x1) || std::isnan(line.y1) || std::isnan(line.x2) || std::isnan(line.y2)) return {};
    const auto pixels = [](double x1, double y1, double x2, double y2) {
        const auto round = [](double value) { return static_cast<int>(std::nearbyint(value)); };
        return PixelLine{{round(x1), round(y1)}, {round(x2), round(y2)}};
    };
    const auto near = [](double value) { return std::abs(value) <= lineReach; };
    if (near(line.x1) && near(line.y1) && near(line.x2) && near(line.y2)) {
        return pixels(line.x1, line.y1, line.x2, line.y2);
    }

    // By its direction, its distance from the origin, and where on it the ends lie, counted from the point
    // nearest to the origin: none of these loses its meaning when the ends are far out on both sides.
    const auto finite = [](double value) { return std::clamp(value, -1e100, 1e100); };
    const double x1 = finite(line.x1), y1 = finite(line.y1), x2 = finite(line.x2), y2 = finite(line.y2);
    const double length = std::hypot(x2 - x1, y2 - y1);
    if (length == 0) return {};
    const double alongX = (x2 - x1) / length, alongY = (y2 - y1) / length;
    const double distance = x1 * (y2 / length) - x2 * (y1 / length);
    if (std::abs(distance) > lineReach / 2.0) return {};
    const double reach = lineReach / 2.0;
    const double start = std::clamp(x1 * alongX + y1 * alongY, -reach, reach);
    const double end = std::clamp(x2 * alongX + y2 * alongY, -reach, reach);
    if (start == end) return {};
    const double nearestX = distance * alongY, nearestY = -distance * alongX;
    return pixels(nearestX + start * alongX, nearestY + start * alongY, nearestX + end * alongX,
                  nearestY + end * alongY);
}

void DrawThinLine(Bitmap& bitmap, PixelPoint from, PixelPoint to, const Ink& ink,
                  std::optional<std::int64_t> dotPhase) {
    const std::int64_t width = std::abs(to.x - from.x), height = std::abs(to.y - from.y);
    if (width == 0 && height == 0) return;
    const int signX = to.x < from.x ? -1 : 1, signY = to.y < from.y ? -1 : 1;
    const bool flat = width >= height;
    const std::int64_t length = flat ? width : height, rise = flat ? height : width;
    const bool risesDownOrRight = (flat ? signY : signX) > 0;
    const Slope slope{length, rise, risesDownOrRight ? length - 1 : length};

    const Steps columns = StepsInside(from.x, signX, bitmap.Width(), flat ? length : rise + 1);
    const Steps rows = StepsInside(from.y, signY, bitmap.Height(), flat ? rise + 1 : length);
    const Steps visible = Clip(flat ? columns : rows, slope, flat ? rows : columns);
    if (visible.last < visible.first) return;

    const std::int64_t rowStep = std::int64_t{signY} * bitmap.Width();
    const std::int64_t alongStep = flat ? signX : rowStep, acrossStep = flat ? rowStep : signX;
    const std::int64_t firstHeight = slope.HeightAt(visible.first);
    const std::int64_t firstX = from.x + signX * (flat ? visible.first : firstHeight);
    const std::int64_t firstY = from.y + signY * (flat ? firstHeight : visible.first);
    Pixel* const start = bitmap.Row(static_cast<int>(firstY)) + firstX;
    const std::int64_t count = visible.last - visible.first + 1;

    ink.Visit([&](const auto& paint) {
        RunningHeight risen(slope, visible.first);
        for (std::int64_t i = 0; i < count; ++i, risen.Advance()) {
            if (dotPhase && !IsOn(*dotPhase + visible.first + i)) continue;
            paint(start[i * alongStep + risen.Whole() * acrossStep]);
        }
    });
}

void DrawDottedBox(Bitmap& bitmap, PixelPoint first, PixelPoint opposite, const Ink& ink) {
    const std::int64_t width = std::abs(opposite.x - first.x), height = std::abs(opposite.y - first.y);
    if (width == 0 ||
        height == 0) {  // The way back would meet the way there: a line, its last point included.
        PixelPoint beyond = opposite;
        (height > 0 ? beyond.y : beyond.x) += opposite.x < first.x || opposite.y < first.y ? -1 : 1;
        DrawThinLine(bitmap, first, beyond, ink, 0);
        return;
    }
    const PixelPoint beside{opposite.x, first.y}, below{first.x, opposite.y};
    DrawThinLine(bitmap, first, beside, ink, 0);
    DrawThinLine(bitmap, beside, opposite, ink, width);
    DrawThinLine(bitmap, opposite, below, ink, width + height);
    DrawThinLine(bitmap, below, first, ink, 2 * width + height);
}

}  // namespace coinlet
