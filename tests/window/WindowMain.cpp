#include "window/Program.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "de_DE.UTF-8"); // numbers have a point all the same
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    Tensarix::Program::Prepare_Application();
    return RUN_ALL_TESTS();
}
