// The program: the window over the operating system it runs on.
#include <QApplication>

#include "app/Program.h"
#include "platform/FreedMemory.h"
#include "platform/qt/NativePlatform.h"
#include "platform/qt/OneInstance.h"

int main(int argc, char** argv) {
    lumo::giveBackFreedMemory();
    QApplication application(argc, argv);
    if (!lumo::one_instance::claim()) return 0;
    lumo::NativePlatform platform;
    lumo::runProgram(application, platform);
}
