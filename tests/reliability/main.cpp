// Printed files are made by the toolkit.

#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
