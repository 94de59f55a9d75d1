#pragma once

namespace coinlet {

class MainForm;
class QtPlatform;

namespace bench {

/// A benchmark for each dialog of the program, whose main window stands: from the click that opens it until
/// it stands complete, which is when nothing in its window is painted any more but a blinking caret.
void RegisterDialogs(QtPlatform& platform, MainForm& main);

}  // namespace bench
}  // namespace coinlet
