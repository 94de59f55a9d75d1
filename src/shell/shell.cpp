#include "shell/shell.h"

#include "base/program.h"
#include "shell/ending_signals.h"
#include "shell/faults.h"
#include "shell/look.h"
#include "shell/qt_clipboard.h"
#include "shell/qt_desktop.h"
#include "shell/qt_platform.h"
#include "shell/qt_printer.h"
#include "shell/qt_screen_grab.h"
#include "shell/qt_text.h"
#include "shell/screen_choice.h"

#include <QApplication>
#include <QSessionManager>

#include <clocale>
#include <cstdlib>
#include <utility>

namespace coinlet {

namespace {

/// The toolkit's own, but for its end: nobody asks the windows whether they may close.
class ToolkitApplication : public QApplication {
public:
    using QApplication::QApplication;

    /// What the session's end means.
    std::function<void()> quitAsked;

    bool event(QEvent* event) override {
        if (event->type() != QEvent::Quit || !quitAsked) return QApplication::event(event);
        quitAsked();
        return true;
    }
};

/// The toolkit is told how to behave before it starts. Where it would find no screen it makes do without.
ToolkitApplication* MakeApplication(int& argc, char** argv, bool hasScreen) {
    if (!hasScreen) qputenv("QT_QPA_PLATFORM", "offscreen");
    PrepareToolkit();
    QCoreApplication::setApplicationName(ToQString(programTitle));
    // Desktops find the icon and the name of a window by it; it is the name of the installed desktop entry.
    QGuiApplication::setDesktopFileName(QStringLiteral("coinlet-designer"));
    auto* application = new ToolkitApplication(argc, argv);
    // Numbers in files have a point whatever the desktop's language.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setQuitOnLastWindowClosed(false);
    ApplyLook();
    return application;
}

/// While it lives, a call of exit() amidst the events ends with a farewell. The toolkit calls it where its
/// screen is gone: the server has died, or somebody cut the program's connection to it.
class FarewellAtExit {
public:
    explicit FarewellAtExit(const std::function<void()>& farewell) {
        static const int registered = std::atexit([] {
            if (const auto* last = std::exchange(farewell_, nullptr)) EndAtFault(*last);
        });
        if (registered == 0) farewell_ = &farewell;
    }
    ~FarewellAtExit() { farewell_ = nullptr; }
    FarewellAtExit(const FarewellAtExit&) = delete;
    FarewellAtExit& operator=(const FarewellAtExit&) = delete;

private:
    inline static const std::function<void()>* farewell_ = nullptr;
};

}  // namespace

struct Shell::Parts {
    Parts(int& argc, char** argv)
        : hasScreen(FindsScreen(argc, argv)), application(MakeApplication(argc, argv, hasScreen)) {}

    bool hasScreen;
    std::unique_ptr<ToolkitApplication> application;
    QtPlatform platform;
    QtDesktop desktop;
    QtClipboard clipboard;
    QtPrinter printer{desktop.PictureFolder()};
    QtScreenGrab screenGrab;
};

Shell::Shell(int& argc, char** argv) : parts_(std::make_unique<Parts>(argc, argv)) {}

Shell::~Shell() = default;

bool Shell::HasScreen() const {
    return parts_->hasScreen;
}

std::filesystem::path Shell::ProgramFolder() const {
    return ToUtf8(QCoreApplication::applicationDirPath());
}

Platform& Shell::GetPlatform() {
    return parts_->platform;
}
Desktop& Shell::GetDesktop() {
    return parts_->desktop;
}
Clipboard& Shell::GetClipboard() {
    return parts_->clipboard;
}
Printer& Shell::GetPrinter() {
    return parts_->printer;
}
ScreenGrab& Shell::GetScreenGrab() {
    return parts_->screenGrab;
}

void Shell::NameControlsBy(const NameGiver& names) {
    parts_->platform.NameControlsBy(names);
}

int Shell::Run(const std::function<void()>& start, const ForeignEnd& end) {
    const FarewellAtExit farewell(end.isHere);
    const auto leave = [&] { return parts_->platform.Leave(end.isHere); };
    const EndingSignals endingSignals(leave);
    parts_->application->quitAsked = leave;
    const auto session = QObject::connect(parts_->application.get(), &QGuiApplication::commitDataRequest,
                                          [&](const QSessionManager&) { EndAtFault(end.isNear); });
    parts_->platform.Run(start);
    QObject::disconnect(session);
    parts_->application->quitAsked = nullptr;
    return 0;
}

}  // namespace coinlet
