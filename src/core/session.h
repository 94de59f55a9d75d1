#pragma once

#include "controls/property.h"
#include "surface/colour.h"

#include <cstdint>
#include <string>

namespace coinlet {

/// The values of `ToolCode` that are no button of the tool strip.
constexpr std::int16_t noToolArmed = 999;

/// What all forms share beside the canvas: the tool in use, the gesture, the design and its metal.
struct Session {
    std::int16_t ToolCode = noToolArmed;
    /// The design has changes that were not saved.
    bool DesignChanged = false;
    /// Where the present gesture started; while drawing free hand, the last point.
    float StartX = 0, StartY = 0;
    /// The previous pointer position of a gesture.
    float LastX = 0, LastY = 0;
    std::uint8_t LineWidth = 2;  ///< Pixels.

    void VisitProperties(PropertyVisitor& visitor);
};

}  // namespace coinlet
