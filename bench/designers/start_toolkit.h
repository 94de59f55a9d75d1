#pragma once

#include <QGuiApplication>

namespace coinlet::bench {

/// Letters of Qt need an application.
inline void StartToolkit() {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "bench";
    static char* arguments[] = {name, nullptr};
    static const QGuiApplication application(count, arguments);
}

}  // namespace coinlet::bench
