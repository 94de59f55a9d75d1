#pragma once

#include "controls/event.h"

#include <optional>

namespace coinlet {

constexpr bool IsArrowKey(int code) {
    return code >= keyLeft && code <= keyDown;
}

/// A way in pixels, to the right and downwards.
struct PixelSteps {
    int columns = 0, rows = 0;
};

/// How far an arrow key leads, the pointer as well as a picture that it moves: by a pixel, or with Shift by
/// ten. Nothing for other keys.
constexpr std::optional<PixelSteps> ArrowSteps(int code, int shift) {
    constexpr int step = 1, longStep = 10;
    const int pixels = (shift & shiftHeld) != 0 ? longStep : step;
    switch (code) {
        case keyLeft:
            return PixelSteps{-pixels, 0};
        case keyRight:
            return PixelSteps{pixels, 0};
        case keyUp:
            return PixelSteps{0, -pixels};
        case keyDown:
            return PixelSteps{0, pixels};
        default:
            return std::nullopt;
    }
}

}  // namespace coinlet
