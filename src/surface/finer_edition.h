#pragma once

#include "surface/image.h"

#include <functional>

namespace coinlet {

/// Says that `picture`, and every copy of it, has an edition with a whole number of times more pixels a side,
/// for screens that are as fine. `make` gives it; it is asked only there, and as long as there are copies. So
/// it may refer to nothing that a copy could outlive. What was made for pictures of which no copy is left is
/// forgotten at the next call.
void HasFinerEdition(const Image& picture, std::function<Image()> make);

/// The finer edition, or the empty picture where none is known or what was made isn't such a one.
Image FinerEditionOf(const Image& picture);

}  // namespace coinlet
