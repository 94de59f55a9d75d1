#include "shell/shell.h"

#include "shell/look.h"
#include "shell/qt_clipboard.h"
#include "shell/qt_desktop.h"
#include "shell/qt_platform.h"
#include "shell/qt_printer.h"
#include "shell/qt_screen_grab.h"
#include "shell/qt_text.h"

#include <QApplication>

#include <clocale>

namespace coinlet {

namespace {

/// The toolkit is told how to behave before it starts.
QApplication* MakeApplication(int& argc, char** argv) {
    PrepareToolkit();
    QCoreApplication::setApplicationName(QStringLiteral("Coinlet Designer"));
    // Desktops find the icon and the name of a window by it; it is the name of the installed desktop entry.
    QGuiApplication::setDesktopFileName(QStringLiteral("coinlet-designer"));
    auto* application = new QApplication(argc, argv);
    // Numbers in files have a point whatever the desktop's language.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setQuitOnLastWindowClosed(false);
    ApplyLook();
    return application;
}

}  // namespace

struct Shell::Parts {
    Parts(int& argc, char** argv) : application(MakeApplication(argc, argv)) {}

    std::unique_ptr<QApplication> application;
    QtPlatform platform;
    QtDesktop desktop;
    QtClipboard clipboard;
    QtPrinter printer{desktop.PictureFolder()};
    QtScreenGrab screenGrab;
};

Shell::Shell(int& argc, char** argv) : parts_(std::make_unique<Parts>(argc, argv)) {}

Shell::~Shell() = default;

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

int Shell::Run(const std::function<void()>& start) {
    parts_->platform.Run(start);
    return 0;
}

}  // namespace coinlet
