#include "window/Program.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    Tensarix::Program::Prepare_Application();
    Tensarix::Program program;
    return program.Start() ? QApplication::exec() : 0;
}
