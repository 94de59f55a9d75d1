#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <random>
#include <span>

namespace coinlet::test {

/// Random choices. The same seed gives the same choices on every machine and with every library. (The
/// standard's distributions differ between libraries.)
class Dice {
public:
    explicit Dice(std::uint32_t seed) : random_(seed) {}

    /// The bytes, which it keeps, make the choices, as few of them each as will do: what a fuzzer does to
    /// them is done to single choices. When they are used up, a seed goes on.
    explicit Dice(std::span<const std::uint8_t> bytes) : bytes_(bytes.begin(), bytes.end()) {}

    std::uint32_t Next() { return static_cast<std::uint32_t>(bytes_.empty() ? random_() : Taken(4)); }
    /// A number below `limit`, which is above 0.
    std::size_t Below(std::size_t limit) {
        if (bytes_.empty()) return random_() % limit;
        constexpr std::size_t oneByte = 256;
        return Taken(limit <= oneByte ? 1 : 4) % limit;
    }
    /// True if it was made of bytes, and none is left.
    bool IsUsedUp() const { return hasTaken_ && bytes_.empty(); }
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
    std::size_t Taken(int count) {
        std::size_t number = 0;
        for (; count > 0 && !bytes_.empty(); --count) {
            number = number << 8 | bytes_.front();
            bytes_.pop_front();
        }
        hasTaken_ = true;
        return number;
    }

    std::mt19937 random_;
    std::deque<std::uint8_t> bytes_;
    bool hasTaken_ = false;
};

}  // namespace coinlet::test
