#pragma once

#include "base/random.h"

#include <cstdint>
#include <iosfwd>
#include <vector>

namespace coinlet::test {

/// A picture as the rules of the filters speak of it: value(channel, x, y), all counted from 1; channels are
/// blue, green, red.
class Picture {
public:
    Picture(int width, int height)
        : W(width),
          H(height),
          values_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3) {}

    int& operator()(int channel, int x, int y) { return values_[Offset(channel, x, y)]; }
    int operator()(int channel, int x, int y) const { return values_[Offset(channel, x, y)]; }
    bool Contains(long long x, long long y) const { return x >= 1 && x <= W && y >= 1 && y <= H; }

    int W, H;

    friend bool operator==(const Picture&, const Picture&) = default;

private:
    std::size_t Offset(int channel, int x, int y) const {
        return static_cast<std::size_t>(((y - 1) * W + x - 1) * 3 + channel - 1);
    }

    std::vector<int> values_;
};

/// What a filter makes of a picture, worked out pixel by pixel after its rule, as slowly as it likes. A
/// number that is no filter, and a parameter that its rule can't be worked out for, give the picture itself.
Picture SlowFilter(int number, std::int32_t parameter, const Picture& source, RandomGenerator& random);

/// Some lines of a rule, to be tested by their own figures.
struct Trio {
    long long B, G, R;
    friend bool operator==(const Trio&, const Trio&) = default;
};
Trio SlowSpread(Trio colour);

}  // namespace coinlet::test
