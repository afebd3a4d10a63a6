#include <QApplication>

#include <gtest/gtest.h>

#include <cstdlib>

// The Qt tests need an application object and a platform; with no display, the offscreen one.
int main(int argc, char* argv[]) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication qt(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
