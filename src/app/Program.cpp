#include "app/Program.h"

#include <QApplication>
#include <cstdlib>

#include "app/AppDelegate.h"
#include "app/SharedObjects.h"
#include "controls/Theme.h"
#include "foundation/Identity.h"
#include "platform/qt/OneInstance.h"
#include "platform/qt/WindowSystem.h"

namespace lumo {
namespace {

QString text(std::string_view latin) { return QLatin1String(latin.data(), static_cast<qsizetype>(latin.size())); }

}  // namespace

void runProgram(QApplication& application, Platform& platform) {
    QApplication::setApplicationName(text(kProgramName));
    QGuiApplication::setDesktopFileName(text(kIdentifier));
    QGuiApplication::setQuitOnLastWindowClosed(AppDelegate::applicationShouldTerminateAfterLastWindowClosed());
    theme::apply(application);
    SharedObjects objects(platform);
    AppDelegate delegate;
    const auto launch = [&delegate] {
        delegate.applicationDidFinishLaunching();
        one_instance::whenStartedAgain([&delegate] { delegate.applicationShouldHandleReopen(); });
    };
    QMetaObject::invokeMethod(&application, launch, Qt::QueuedConnection);
    QMetaObject::invokeMethod(&application, window_system::followMotionPreference, Qt::QueuedConnection);
    const int status = QApplication::exec();
    delegate.applicationWillTerminate();
    std::_Exit(status);
}

}  // namespace lumo
