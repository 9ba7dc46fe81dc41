#include <QApplication>

#include <gtest/gtest.h>

#include <ctime>

int main(int argc, char** argv) {
    // The same environment whoever starts the program: ctest, a debugger or a shell.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "America/Sao_Paulo");
    qputenv("LANG", "C.UTF-8");
    qputenv("LC_ALL", "C.UTF-8");
    tzset();
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
