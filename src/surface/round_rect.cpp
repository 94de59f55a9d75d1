#include "surface/device.h"
#include "surface/ellipse.h"
#include "surface/line.h"

#include <algorithm>
#include <cstdlib>

namespace coinlet {

void RoundRect(DeviceContext hDC, int x1, int y1, int x2, int y2, int w, int h) {
    Surface& surface = hDC.Target();
    const auto within = [](int value, int reach) { return std::clamp(value, -reach, reach); };
    const auto [left, right] = std::minmax({within(x1, lineReach), within(x2, lineReach)});
    const auto [top, bottom] = std::minmax({within(y1, lineReach), within(y2, lineReach)});
    const PixelRect path{left, top, right, bottom};
    if (path.Empty()) return;

    const int penWidth = std::clamp(surface.DrawWidth, 1, lineReach);
    const int cornerWidth = std::min(std::abs(within(w, 2 * lineReach)), path.Width());
    const int cornerHeight = std::min(std::abs(within(h, 2 * lineReach)), path.Height());
    const RoundedBox outside = BoxOutside(path, cornerWidth, cornerHeight, penWidth);
    const PixelRect area = Intersection(outside.edges, {0, 0, surface.PixelWidth(), surface.PixelHeight()});
    if (area.Empty()) return;
    const std::optional<Ink> fill =
        surface.FillStyle == solidFill ? std::optional(Ink{ToPixel(surface.FillColor)}) : std::nullopt;
    DrawRing(surface.Write(area), outside, penWidth, Ink{ToPixel(surface.ForeColor)}, fill);
}

}  // namespace coinlet
