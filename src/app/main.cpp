// The program: the window over the operating system it runs on.
#include <QApplication>

#include "app/Program.h"
#include "platform/qt/NativePlatform.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    lumo::NativePlatform platform;
    lumo::runProgram(application, platform);
}
