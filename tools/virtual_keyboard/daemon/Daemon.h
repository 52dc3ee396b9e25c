// The main function that both kernel keyboards share.
#pragma once

#include <functional>
#include <memory>

#include "daemon/DaemonOptions.h"
#include "daemon/KernelKeyboard.h"
#include "daemon/LoggedFirmware.h"

namespace lumo::vk {

using MakeKeyboard = std::function<std::unique_ptr<KernelKeyboard>(const DaemonOptions&, LoggedFirmware&)>;

/// Serves stdin and the kernel until told to quit. Returns the exit status: 0, 1 after a failure, 2 for wrong
/// arguments; the reason goes to stderr.
[[nodiscard]] int runDaemon(int argc, char** argv, const MakeKeyboard& makeKeyboard);

}  // namespace lumo::vk
