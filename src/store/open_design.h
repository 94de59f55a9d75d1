#pragma once

namespace coinlet {

struct Context;

/// Opens a design of the store by its dialog. When that has closed, a sign blinks three times if the design
/// on the canvas has an info text, wherever that came from.
void OpenDesign(Context& context);

}  // namespace coinlet
