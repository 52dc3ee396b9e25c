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
#include "Tour.h"
#include "app/Program.h"
#include "demo/DemoPlatform.h"

namespace {

constexpr auto kUsage =
    "Usage: vexa-lumo-65-tour FOLDER\n"
    "\n"
    "Drives Vexa Lumo 65 on a virtual keyboard and leaves the pictures in FOLDER, which is made if need be.\n";

QString folderOf(const QStringList& arguments) {
    const bool wantsHelp = arguments.size() == 2 && arguments[1] == "--help";
    if (arguments.size() != 2 || wantsHelp) {
        std::fputs(kUsage, wantsHelp ? stdout : stderr);
        std::exit(wantsHelp ? EXIT_SUCCESS : 2);
    }
    if (!QDir().mkpath(arguments[1])) {
        std::fprintf(stderr, "vexa-lumo-65-tour: the folder cannot be made: %s\n", qUtf8Printable(arguments[1]));
        std::exit(EXIT_FAILURE);
    }
    return arguments[1];
}

QMainWindow* mainWindow() {
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (auto* const window = qobject_cast<QMainWindow*>(widget)) return window;
    }
    return nullptr;
}

struct Guide {
    Guide(QWidget& window, const QString& folder) : hand(window), tour(window, folder) {
        lumo::tour::addLightingPage(tour, hand, window);
        tour.begin();
    }

    lumo::tour::Hand hand;
    lumo::tour::Tour tour;
};

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QString folder = folderOf(QCoreApplication::arguments());
    lumo::vk::DemoPlatform platform{lumo::vk::ReportLog()};
    std::unique_ptr<Guide> guide;
    // The window is made in the first turn of the loop, and this looks for it in a later one.
    QTimer start;
    QObject::connect(&start, &QTimer::timeout, [&] {
        QMainWindow* const window = mainWindow();
        if (guide || !window || !window->windowHandle() || !window->windowHandle()->isExposed()) return;
        start.stop();
        guide = std::make_unique<Guide>(*window, folder);
    });
    start.start(20);
    lumo::runProgram(application, platform);
}
