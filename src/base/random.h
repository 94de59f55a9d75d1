#pragma once

#include <cstdint>

namespace coinlet {

/// Random numbers, uniform from 0 up to but not including 1. Every generator starts at the same place, so
/// that each run of the program sees the same sequence. Steele, Lea and Flood's SplitMix: a counter, well
/// mixed.
class RandomGenerator {
public:
    double Next();

private:
    std::uint64_t counter_ = 0;
};

}  // namespace coinlet
