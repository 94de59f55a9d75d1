#include "controls/edge.h"

#include "surface/surface.h"

namespace coinlet {

void SetEdge(Shape& edge, const Control& around) {
    constexpr Colour edgeColour = RGB(150, 150, 120);
    edge.BorderColor = edgeColour;
    edge.Move(around.Left() - twipsPerPixel, around.Top() - twipsPerPixel, around.Width() + 2 * twipsPerPixel,
              around.Height() + 2 * twipsPerPixel);
}

}  // namespace coinlet
