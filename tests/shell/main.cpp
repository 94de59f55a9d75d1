// The tests need a screen; run_under_xvfb.sh gives them one. Called with --save-clipboard FILE the program is
// somebody else instead, who takes the picture from the clipboard; with --in-front, one who has the focus
// until he is ended.

#include "shell/look.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QPalette>
#include <QVariant>
#include <QWidget>

#include <clocale>
#include <cstring>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
    coinlet::PrepareToolkit();
    QApplication application(argc, argv);
    application.setProperty("desktopPalette", QApplication::palette());
    if (argc == 3 && std::strcmp(argv[1], "--save-clipboard") == 0)
        return QGuiApplication::clipboard()->image().save(QString::fromLocal8Bit(argv[2]), "PNG") ? 0 : 1;
    if (argc == 2 && std::strcmp(argv[1], "--in-front") == 0) {
        QWidget window;
        window.setGeometry(1200, 900, 100, 100);
        window.show();
        window.activateWindow();
        return QApplication::exec();
    }
    QApplication::setQuitOnLastWindowClosed(false);
    coinlet::ApplyLook();
    return RUN_ALL_TESTS();
}
