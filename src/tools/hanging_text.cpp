#include "tools/hanging_text.h"

#include "controls/label.h"

namespace coinlet {

TextCorner CornerOfHangingText(const Label& text, GesturePoint pointer) {
    constexpr double distance = 5;
    return {pointer.x - text.Width() - distance, pointer.y - text.Height() - distance};
}

}  // namespace coinlet
