#pragma once

#include "core/tool_sliders.h"
#include "tools/gesture_engine.h"

namespace coinlet {

class Surface;

/// The drag that a figure is drawn into: the anchor, the release, and the size of the rubber band, which is
/// one pixel more than the drag. Canvas pixels.
struct ShapeBox {
    float left = 0, top = 0, right = 0, bottom = 0;
    float bandWidth = 0, bandHeight = 0;
};

/// What the sliders of single figures tell, in pixels.
struct ShapeMeasures {
    int cornerSize = cornerSizes.standard;  ///< Width and height of the corners of the rounded rectangle.
    int rasterStep = rasterSteps.standard;  ///< From line to line of the raster; below 1 draws none.
};

/// Draws the figure of a tool code from 21 to 36 as a black outline in the surface's pen width. A drag that
/// doesn't lead right and down from its anchor draws nothing, nor does another code.
void DrawShape(Surface& surface, int code, const ShapeBox& box, const ShapeMeasures& measures);

/// The sixteen figures of the shapes menu, drawn at the release.
ToolFamily ShapeTools(Context& context);

}  // namespace coinlet
