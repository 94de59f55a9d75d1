#pragma once

#include "controls/platform.h"

#include <string>

class QWidget;

namespace coinlet {

// The toolkit's own dialogs. Each serves events until it is answered, or until the program ends: then what it
// returns means nothing.

Answer ShowMessageBox(QWidget* parent, const Message& message);
/// The user's text; empty if he cancels.
std::string ShowInputBox(QWidget* parent, const std::string& prompt, const std::string& title,
                         const std::string& standard);
/// The path of the folder; empty if he cancels.
std::string ShowFolderPicker(QWidget* parent, const std::string& title, const std::string& start);

}  // namespace coinlet
