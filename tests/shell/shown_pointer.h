#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace coinlet::test {

/// What the pointer on the screen looks like.
struct PointerLook {
    int width = 0, height = 0;
    int hotX = 0, hotY = 0;
    std::vector<std::uint32_t> pixels;
    friend bool operator==(const PointerLook&, const PointerLook&) = default;
};

/// As the screen shows it at this moment, asked without the help of any program that is on it. Nothing if the
/// screen doesn't tell.
std::optional<PointerLook> ShownPointer();

}  // namespace coinlet::test
