#pragma once

#include "controls/control.h"
#include "controls/shapes.h"

namespace coinlet {

/// Makes `edge` a thin line around a control that has none of its own, such as a picture. Both lie in the
/// same container, which is placed in twips; the control has its place by then.
void SetEdge(Shape& edge, const Control& around);

}  // namespace coinlet
