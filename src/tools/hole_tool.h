#pragma once

#include "tools/gesture_engine.h"

namespace coinlet {

/// Punches a hole at the release: a white disc with a ring of the design's metal. One press of the tool's
/// button is good for one hole. The marker that follows the pointer is the gesture engine's.
ToolFamily HoleTool(Context& context);

}  // namespace coinlet
