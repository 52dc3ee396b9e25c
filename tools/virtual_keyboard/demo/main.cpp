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
    "Usage: vexa-lumo-65-demo [--log FILE]\n"
    "\n"
    "Vexa Lumo 65 on a virtual keyboard; no hardware needed.\n"
    "\n"
    "  --log FILE   writes each transfer to FILE, one JSON line each\n"
    "  --help       this text\n";

[[noreturn]] void endWithUsage(int status) {
    std::fputs(kUsage, status == 0 ? stdout : stderr);
    std::exit(status);
}

/// Empty when no log is asked for.
std::string logPath(const QStringList& arguments) {
    if (arguments.size() == 1) return {};
    if (arguments.size() == 2 && arguments[1] == "--help") endWithUsage(EXIT_SUCCESS);
    if (arguments.size() != 3 || arguments[1] != "--log") endWithUsage(2);
    return QFile::encodeName(arguments[2]).toStdString();
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
    lumo::vk::DemoPlatform platform(openLog(logPath(QCoreApplication::arguments())));
    lumo::runProgram(application, platform);
}
