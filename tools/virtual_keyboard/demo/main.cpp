// The demo: the program's own window, with a keyboard that needs no hardware.
#include <QApplication>
#include <QFile>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <system_error>

#include "app/Program.h"
#include "demo/DemoPlatform.h"

namespace {

constexpr auto kUsage =
    "Usage: vexa-lumo-65-demo [--log FILE] [--later-launch]\n"
    "\n"
    "Vexa Lumo 65 on a virtual keyboard, with a simulated privacy centre; no hardware needed.\n"
    "\n"
    "  --log FILE      writes each transfer to FILE, one JSON line each\n"
    "  --later-launch  starts as every launch but the first does\n"
    "  --help          this text\n";

[[noreturn]] void endWithUsage(int status) {
    std::fputs(kUsage, status == 0 ? stdout : stderr);
    std::exit(status);
}

struct Wishes {
    std::string log;  // empty when none is asked for
    bool isLaterLaunch = false;
};

Wishes readArguments(QStringList arguments) {
    Wishes wishes;
    arguments.removeFirst();
    while (!arguments.isEmpty()) {
        const QString wish = arguments.takeFirst();
        if (wish == "--help") endWithUsage(EXIT_SUCCESS);
        if (wish == "--later-launch") {
            wishes.isLaterLaunch = true;
        } else if (wish == "--log" && !arguments.isEmpty()) {
            wishes.log = QFile::encodeName(arguments.takeFirst()).toStdString();
        } else {
            endWithUsage(2);
        }
    }
    return wishes;
}

lumo::vk::ReportLog openLog(const std::string& path) try {
    return path.empty() ? lumo::vk::ReportLog() : lumo::vk::ReportLog(path);
} catch (const std::system_error& error) {
    std::fprintf(stderr, "vexa-lumo-65-demo: %s\n", error.what());
    std::exit(EXIT_FAILURE);
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const Wishes wishes = readArguments(QCoreApplication::arguments());
    lumo::vk::DemoPlatform platform(openLog(wishes.log));
    if (wishes.isLaterLaunch) platform.setLaunchedBefore();
    lumo::runProgram(application, platform);
}
