#include "base/random.h"

namespace coinlet {

double RandomGenerator::Next() {
    counter_ += 0x9E3779B97F4A7C15u;  // 2^64 divided by the golden ratio
    std::uint64_t mixed = counter_;
    mixed = (mixed ^ mixed >> 30) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ mixed >> 27) * 0x94D049BB133111EBu;
    mixed ^= mixed >> 31;
    // As many bits as a double holds, so that nothing rounds up to 1.
    return static_cast<double>(mixed >> 11) * 0x1p-53;
}

}  // namespace coinlet
