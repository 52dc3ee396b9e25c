#include "daemon/Daemon.h"

#include <unistd.h>

#include <iostream>

#include "daemon/ControlLoop.h"

namespace lumo::vk {
namespace {

void serve(const DaemonOptions& options, const MakeKeyboard& makeKeyboard) {
    LoggedFirmware firmware = options.logPath.empty() ? LoggedFirmware() : LoggedFirmware(options.logPath);
    const auto keyboard = makeKeyboard(options, firmware);
    ControlLoop(*keyboard, firmware).run(STDIN_FILENO, STDOUT_FILENO);
}

}  // namespace

int runDaemon(int argc, char** argv, const MakeKeyboard& makeKeyboard) {
    const auto options = parseOptions(std::span(argv, static_cast<std::size_t>(argc)).subspan(1));
    if (!options) {
        std::cerr << "usage: " << argv[0] << ' ' << kDaemonUsage;
        return 2;
    }
    try {
        serve(*options, makeKeyboard);
    } catch (const std::exception& error) {
        std::cerr << argv[0] << ": " << error.what() << '\n';
        return 1;
    }
    return 0;
}

}  // namespace lumo::vk
