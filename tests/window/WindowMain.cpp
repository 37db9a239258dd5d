#include "SaveInTurn.h"
#include "window/Program.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (argc > 3 && std::string_view{argv[1]} == "--save") {
        QCoreApplication application(argc, argv);
        return Tensarix::Tests::Save_In_Turn(argv[2], argv[3]);
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("FONTCONFIG_FILE", TENSARIX_SOURCE_DIR "/tests/window/Fonts.conf");
    qputenv("LC_ALL", "de_DE.UTF-8"); // numbers have a point all the same
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    Tensarix::Program::Prepare_Application();
    return RUN_ALL_TESTS();
}
