#pragma once

#include <cstdint>

namespace coinlet {

/// Random numbers, uniform from 0 up to but not including 1. Every generator starts at the same place, so
/// that each run of the program sees the same sequence. Steele, Lea and Flood's SplitMix: a counter, well
/// mixed.
class RandomGenerator {
public:
    double Next() {
        counter_ += 0x9E3779B97F4A7C15u;  // 2^64 divided by the golden ratio
        std::uint64_t mixed = counter_;
        mixed = (mixed ^ mixed >> 30) * 0xBF58476D1CE4E5B9u;
        mixed = (mixed ^ mixed >> 27) * 0x94D049BB133111EBu;
        mixed ^= mixed >> 31;
        // As many bits as a double holds, so that nothing rounds up to 1.
        return static_cast<double>(static_cast<std::int64_t>(mixed >> 11)) * 0x1p-53;
    }

private:
    std::uint64_t counter_ = 0;
};

}  // namespace coinlet
