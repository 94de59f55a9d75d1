#pragma once

#include "controls/platform.h"
#include "shell/busy_watch.h"

#include <string>

class QWidget;

namespace coinlet {

// The toolkit's own dialogs. Each serves events until it is answered, or until the program ends: then what it
// returns means nothing. Making it ready is work, as looking at a folder on a network may be; the work pauses
// while the user is waited for.

Answer ShowMessageBox(QWidget* parent, const Message& message, BusyWatch& busy);
/// The user's text; empty if he cancels.
std::string ShowInputBox(QWidget* parent, const std::string& prompt, const std::string& title,
                         const std::string& standard, BusyWatch& busy);
/// The path of the folder; empty if he cancels.
std::string ShowFolderPicker(QWidget* parent, const std::string& title, const std::string& start,
                             BusyWatch& busy);

}  // namespace coinlet
