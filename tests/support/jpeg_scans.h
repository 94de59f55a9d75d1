#pragma once

#include "base/files.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace coinlet::test {

/// A JPEG file with its last scan so many times more. It must have one, and an end.
inline Bytes WithFurtherScans(const Bytes& file, int count) {
    constexpr std::array<std::uint8_t, 2> scan{0xFF, 0xDA}, end{0xFF, 0xD9};
    const auto lastScan = std::find_end(file.begin(), file.end(), scan.begin(), scan.end());
    const auto lastEnd = std::find_end(file.begin(), file.end(), end.begin(), end.end());
    Bytes more(file.begin(), lastEnd);
    for (int i = 0; i < count; ++i)
        more.insert(more.end(), lastScan, lastEnd);
    more.insert(more.end(), lastEnd, file.end());
    return more;
}

}  // namespace coinlet::test
