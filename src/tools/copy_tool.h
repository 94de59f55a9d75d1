#pragma once

#include "tools/gesture_engine.h"

namespace coinlet {

/// Copies the area under the rubber band, at the release, into an image that floats over the canvas. The area
/// itself stays as it is. What the band has outside the canvas is white.
ToolFamily CopyTool(Context& context);

}  // namespace coinlet
