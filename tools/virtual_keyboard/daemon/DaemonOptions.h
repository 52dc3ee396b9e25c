// What the keyboards before a kernel are told on their command line.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace lumo::vk {

struct DaemonOptions {
    std::string logPath;  // empty: no log
    std::uint16_t vendorId = 0x258A;
    std::uint16_t productId = 0x010C;
    std::string name = "Vexa Lumo 65";  // UTF-8, the product string
};

/// Arguments without the program's name: --log FILE, --vid HEX, --pid HEX, --name TEXT. Absent when they are
/// anything else.
[[nodiscard]] std::optional<DaemonOptions> parseOptions(std::span<char* const> arguments);

inline constexpr std::string_view kDaemonUsage =
    "[--log FILE] [--vid HEX] [--pid HEX] [--name TEXT]\n"
    "Commands on stdin, one a line, each answered by one line, \"ok ...\" or \"error ...\":\n"
    "  plug | unplug | fault TEXT | clear | registers | quit\n"
    "  a fault reads: set|get COMMAND|any refuse|hang|vanish|short N|long N|wrong|nothing [skip N] [once]\n";

}  // namespace lumo::vk
