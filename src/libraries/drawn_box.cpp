#include "libraries/drawn_box.h"

#include "controls/shapes.h"
#include "core/session.h"

#include <algorithm>

namespace coinlet {

void BeginBox(Session& session, Shape& box, float x, float y) {
    session.StartX = x;
    session.StartY = y;
    box.Move(x, y, 0, 0);
    box.Visible = true;
}

void StretchBox(const Session& session, Shape& box, float x, float y) {
    const double left = session.StartX, top = session.StartY;
    box.Move(left, top, std::max<double>(x, left) - left + 1, std::max<double>(y, top) - top + 1);
}

}  // namespace coinlet
