#pragma once

#include "tools/gesture_engine.h"

namespace coinlet {

/// Repaints the region of one colour under the pointer with the fill colour, at the press.
ToolFamily FillTool(Context& context);
/// Dabs a disc up and to the left of the pointer, at the press and at each move: white, or in the fill colour
/// if the user ticked that.
ToolFamily EraseTool(Context& context);
/// Shows the colour under the pointer in the colour field all the time, and stores it at a press as the
/// colour of the present pick.
ToolFamily PickTool(Context& context);

}  // namespace coinlet
