#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <random>
#include <span>

namespace coinlet::test {

/// Random choices. The same seed gives the same choices on every machine and with every library. (The
/// standard's distributions differ between libraries.)
class Dice {
public:
    explicit Dice(std::uint32_t seed) : random_(seed) {}

    std::uint32_t Next() { return static_cast<std::uint32_t>(random_()); }
    /// A number below `limit`, which is above 0.
    std::size_t Below(std::size_t limit) { return random_() % limit; }
    /// A whole number from `lowest` to `highest`.
    int Between(int lowest, int highest) {
        return lowest + static_cast<int>(Below(static_cast<std::size_t>(highest - lowest) + 1));
    }
    bool OneIn(std::size_t times) { return Below(times) == 0; }
    /// One of several; there is at least one.
    template <class List>
    decltype(auto) Pick(List&& list) {
        return list[Below(std::size(list))];
    }

private:
    std::mt19937 random_;
};

}  // namespace coinlet::test
