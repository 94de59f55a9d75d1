#pragma once

#include <filesystem>
#include <functional>
#include <memory>

namespace coinlet {

class Clipboard;
class Desktop;
class NameGiver;
class Platform;
class Printer;
class ScreenGrab;

/// What the program does about an end that its user didn't choose in it: a signal, the end of his session,
/// the loss of the screen. Neither may ask anything or serve events.
struct ForeignEnd {
    std::function<void()> isNear;  ///< The session is about to end, but somebody may still stop that.
    std::function<void()> isHere;  ///< The last that the program does.
};

/// The windows of the program and what else it asks of the desktop. To be made once, first of all, since
/// fonts and pictures need the toolkit, and to outlive the program it shows. Knowing it needs no header of
/// the toolkit.
class Shell {
public:
    /// The toolkit takes its own options from the command line; what it leaves is the program's. That is so
    /// without a screen too, so that whatever is wrong can be said.
    Shell(int& argc, char** argv);
    ~Shell();
    Shell(const Shell&) = delete;
    Shell& operator=(const Shell&) = delete;

    /// False where there is no screen to open windows on.
    bool HasScreen() const;
    /// The folder in which the program itself lies.
    std::filesystem::path ProgramFolder() const;
    Platform& GetPlatform();
    Desktop& GetDesktop();
    Clipboard& GetClipboard();
    Printer& GetPrinter();
    ScreenGrab& GetScreenGrab();

    /// Who names to assistive tools what has no caption; it must outlive Run.
    void NameControlsBy(const NameGiver& names);

    /// Runs `start`, which shows the main form, and serves events until the program has ended, by itself or
    /// in a foreign way. Returns the exit status.
    int Run(const std::function<void()>& start, const ForeignEnd& end);

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

}  // namespace coinlet
