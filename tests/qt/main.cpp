#include <gtest/gtest.h>

#include <QApplication>

/// The windows are drawn into memory: no display is needed.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("http_proxy"); // the servers of the tests are on this machine
    QApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
