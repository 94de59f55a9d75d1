#pragma once

#include "shell/busy_watch.h"

namespace coinlet {

/// The pointer that says "wait", on all of the program's windows. Only an X server lets anybody change what
/// the pointer looks like on a window while the window's own program is busy; elsewhere the sign has no way
/// to be shown. To be called after the toolkit has started.
BusySign X11BusySign();

}  // namespace coinlet
