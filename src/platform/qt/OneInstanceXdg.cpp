// Desktops that start a program as often as they are told to. The one process owns the program's name on the session
// bus, and answers to it as the Desktop Entry standard has it (org.freedesktop.Application).
#include <QCoreApplication>
#include <memory>
#include <utility>

#include "platform/qt/OneInstance.h"
#include "platform/qt/RunningInstance.h"
#include "platform/qt/SessionBus.h"

namespace lumo::one_instance {
namespace {

RunningInstance* theRunning = nullptr;

}  // namespace

bool claim() {
    if (!hasSessionBus()) return true;
    auto running = std::make_unique<RunningInstance>(QDBusConnection::sessionBus(), qApp);
    if (!running->claim()) return false;
    theRunning = running.release();  // the application object's, as long as that lives
    return true;
}

void whenStartedAgain(std::function<void()> comeToFront) {
    if (theRunning) theRunning->whenStartedAgain(std::move(comeToFront));
}

void letGo() {
    if (theRunning) theRunning->letGo();
}

}  // namespace lumo::one_instance
