#include "window/Program.h"

#include <QApplication>

int main(int argc, char** argv) {
    using namespace Tensarix;
    Program::Prepare_Toolkit();
    const QByteArray activationToken = Activation_Token();
    QApplication application(argc, argv);
    Program::Prepare_Application();
    Program program(Program_Folders(), std::make_unique<SteadyClock>(), activationToken);
    return program.Start() ? QApplication::exec() : 0;
}
