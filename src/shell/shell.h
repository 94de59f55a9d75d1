#pragma once

#include <filesystem>
#include <functional>
#include <memory>

namespace coinlet {

class Clipboard;
class Desktop;
class Platform;
class Printer;
class ScreenGrab;

/// The windows of the program and what else it asks of the desktop. To be made once, first of all, since
/// fonts and pictures need the toolkit, and to outlive the program it shows. Knowing it needs no header of
/// the toolkit.
class Shell {
public:
    /// The toolkit takes its own options from the command line; what it leaves is the program's.
    Shell(int& argc, char** argv);
    ~Shell();
    Shell(const Shell&) = delete;
    Shell& operator=(const Shell&) = delete;

    /// The folder in which the program itself lies.
    std::filesystem::path ProgramFolder() const;
    Platform& GetPlatform();
    Desktop& GetDesktop();
    Clipboard& GetClipboard();
    Printer& GetPrinter();
    ScreenGrab& GetScreenGrab();

    /// Runs `start`, which shows the main form, and serves events until the program has ended. Returns the
    /// exit status.
    int Run(const std::function<void()>& start);

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

}  // namespace coinlet
