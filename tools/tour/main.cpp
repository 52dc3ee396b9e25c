// The tour: the program's own window on the virtual keyboard, driven as a user would, with pictures of what it shows.
#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <QTimer>
#include <QWindow>
#include <cstdio>
#include <memory>

#include "Hand.h"
#include "LightingTour.h"
#include "MacroTour.h"
#include "MusicTour.h"
#include "PromptTour.h"
#include "RemapTour.h"
#include "SettingsTour.h"
#include "Tour.h"
#include "app/Program.h"
#include "demo/DemoPlatform.h"

namespace {

constexpr auto kUsage =
    "Usage: vexa-lumo-65-tour [--later-launch] FOLDER\n"
    "\n"
    "Drives Vexa Lumo 65 on a virtual keyboard and leaves the pictures in FOLDER, which is made if need be. The tour "
    "of\n"
    "a later launch is shorter: what differs from the first one.\n";

struct Wishes {
    QString folder;
    bool isLaterLaunch = false;
};

Wishes readArguments(QStringList arguments) {
    arguments.removeFirst();
    Wishes wishes;
    wishes.isLaterLaunch = arguments.removeOne("--later-launch");
    const bool wantsHelp = arguments == QStringList{"--help"};
    if (arguments.size() != 1 || wantsHelp) {
        std::fputs(kUsage, wantsHelp ? stdout : stderr);
        std::exit(wantsHelp ? EXIT_SUCCESS : 2);
    }
    wishes.folder = arguments.front();
    if (!QDir().mkpath(wishes.folder)) {
        std::fprintf(stderr, "vexa-lumo-65-tour: the folder cannot be made: %s\n", qUtf8Printable(wishes.folder));
        std::exit(EXIT_FAILURE);
    }
    return wishes;
}

QMainWindow* mainWindow() {
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (auto* const window = qobject_cast<QMainWindow*>(widget)) return window;
    }
    return nullptr;
}

struct Guide {
    Guide(QWidget& window, const Wishes& wishes) : hand(window), tour(window, wishes.folder) {
        if (wishes.isLaterLaunch) {
            lumo::tour::addLaterLaunch(tour, hand, window);
            lumo::tour::addMusicPage(tour, hand, window);
            lumo::tour::addSettingsPage(tour, hand, window);
        } else {
            lumo::tour::addWelcome(tour, hand);
            lumo::tour::addLightingPage(tour, hand, window);
            lumo::tour::addMacroPage(tour, hand, window);
            lumo::tour::addRemapPage(tour, hand, window);
        }
        tour.begin();
    }

    lumo::tour::Hand hand;
    lumo::tour::Tour tour;
};

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const Wishes wishes = readArguments(QCoreApplication::arguments());
    lumo::vk::DemoPlatform platform{lumo::vk::ReportLog()};
    if (wishes.isLaterLaunch) platform.setLaunchedBefore();
    std::unique_ptr<Guide> guide;
    // The window is made in the first turn of the loop, and this looks for it in a later one.
    QTimer start;
    QObject::connect(&start, &QTimer::timeout, [&] {
        QMainWindow* const window = mainWindow();
        if (guide || !window || !window->windowHandle() || !window->windowHandle()->isExposed()) return;
        start.stop();
        guide = std::make_unique<Guide>(*window, wishes);
    });
    start.start(20);
    lumo::runProgram(application, platform);
}
