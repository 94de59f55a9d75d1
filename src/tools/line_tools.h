#pragma once

#include "tools/gesture_engine.h"

namespace coinlet {

/// Free hand: a chain of short black lines, one for each move.
ToolFamily FreeHandTool(Context& context);
/// A straight black line, previewed by inverting the canvas under it.
ToolFamily LineTool(Context& context);

}  // namespace coinlet
