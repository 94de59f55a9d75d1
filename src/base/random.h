#pragma once

#include <cstdint>

namespace coinlet {

/// Random numbers, uniform from 0 up to but not including 1. Every generator starts at the same place, so
/// that each run of the program sees the same sequence. Steele, Lea and Flood's SplitMix: a counter, well
/// mixed.
class RandomGenerator {
public:
    /// What the counter grows by for each number: 2^64 divided by the golden ratio.
    static constexpr std::uint64_t step = 0x9E3779B97F4A7C15u;

    double Next() {
        counter_ += step;
        // As many bits as a double holds, so that nothing rounds up to 1.
        return static_cast<double>(static_cast<std::int64_t>(Mixed(counter_) >> 11)) * 0x1p-53;
    }

    // For loops that make many numbers at once: the n-th number to come is the upper 53 bits of
    // Mixed(Counter() + n * step), in units of 2^-53.

    static constexpr std::uint64_t Mixed(std::uint64_t counter) {
        std::uint64_t mixed = counter;
        mixed = (mixed ^ mixed >> 30) * 0xBF58476D1CE4E5B9u;
        mixed = (mixed ^ mixed >> 27) * 0x94D049BB133111EBu;
        return mixed ^ mixed >> 31;
    }
    std::uint64_t Counter() const { return counter_; }
    /// As if so many numbers had been taken.
    void Skip(std::uint64_t count) { counter_ += count * step; }

private:
    std::uint64_t counter_ = 0;
};

}  // namespace coinlet
