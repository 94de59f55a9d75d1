#pragma once

#include "tools/gesture_engine.h"

namespace coinlet {

/// Punches a hole at the release: a white disc with a ring of the design's metal. One press of the tool's
/// button is good for one hole. A circle on the pointer shows where it would come.
ToolFamily HoleTool(Context& context);

}  // namespace coinlet
