#pragma once

namespace coinlet {

struct Context;

/// What happens between the start of the program and the first look at its window, in this order.
void StartUp(Context& context);

}  // namespace coinlet
