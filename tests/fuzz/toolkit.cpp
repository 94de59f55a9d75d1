#include "fuzz/toolkit.h"

#include <QGuiApplication>

namespace coinlet::test {

namespace {

void BeSilent(QtMsgType, const QMessageLogContext&, const QString&) {}

}  // namespace

void SilenceToolkit() {
    qInstallMessageHandler(BeSilent);
}

void StartToolkit() {
    static int count = 1;
    static char name[] = "fuzz";
    static char* words[] = {name, nullptr};
    if (QGuiApplication::instance() != nullptr) return;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    SilenceToolkit();
    // Fonts may go after it does, whatever the order in which statics end.
    new QGuiApplication(count, words);
}

}  // namespace coinlet::test

/// What the desktop's list of fonts loses when fonts are taken out of it is no loss of ours: the program
/// takes none out. The name is that which the leak sanitizer asks for.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig";
}
// NOLINTEND(bugprone-reserved-identifier)
