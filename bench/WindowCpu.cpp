// What the open window costs while nobody touches it: processor time and wake-ups of the whole process, for an effect
// that stands still and for one that moves, also below a popup; and before that what an empty window costs, also with a
// timer as slow as the look at the grants. Needs a display; prints one line each. With any argument: the moving effect
// alone.
#include <sys/resource.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <cstdlib>

#include "app/AppDelegate.h"
#include "app/SharedObjects.h"
#include "controls/Theme.h"
#include "demo/DemoPlatform.h"

namespace lumo {
namespace {

constexpr int kSettleMs = 3000;
constexpr int kWatchMs = 20000;
constexpr int kLookAtGrantsMs = 2000;

struct Usage {
    double cpuMs = 0.0;
    long wakeUps = 0;
};

double inMs(const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

Usage usageSoFar() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return {inMs(usage.ru_utime) + inMs(usage.ru_stime), usage.ru_nvcsw};
}

void runLoopFor(int ms) {
    QEventLoop turns;  // the application's own would close the window when it quits
    QTimer::singleShot(ms, &turns, &QEventLoop::quit);
    turns.exec();
}

void watch(const char* what) {
    runLoopFor(kSettleMs);
    QElapsedTimer clock;
    clock.start();
    const Usage before = usageSoFar();
    runLoopFor(kWatchMs);
    const Usage after = usageSoFar();
    const auto elapsedMs = static_cast<double>(clock.elapsed());
    std::printf("%-30s %8.4f %% of a core %8.2f wake-ups a second\n", what,
                100.0 * (after.cpuMs - before.cpuMs) / elapsedMs,
                1000.0 * static_cast<double>(after.wakeUps - before.wakeUps) / elapsedMs);
    std::fflush(stdout);
}

void watchEffect(const char* what, std::int64_t effect) {
    VexaProtocol::shared().activeModeId.set(effect);
    watch(what);
}

void watchEmptyWindow() {
    QWidget window;
    window.resize(960, 760);
    window.show();
    watch("empty window");
    QTimer timer;
    timer.start(kLookAtGrantsMs);
    watch("empty window, timer of 2 s");
}

}  // namespace
}  // namespace lumo

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const bool isWhole = argc == 1;
    if (isWhole) lumo::watchEmptyWindow();
    lumo::theme::apply(application);
    lumo::vk::DemoPlatform platform{lumo::vk::ReportLog()};
    lumo::SharedObjects objects(platform);
    lumo::AppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    if (isWhole) lumo::watchEffect("moving below a popup", 4);
    lumo::PermissionManager::shared().completeFirstLaunch();  // takes the welcome away
    if (isWhole) lumo::watchEffect("still", 1);
    lumo::watchEffect("moving", 4);
    std::_Exit(EXIT_SUCCESS);
}
