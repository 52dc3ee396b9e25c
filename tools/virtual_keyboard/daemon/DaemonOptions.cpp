#include "daemon/DaemonOptions.h"

#include <charconv>

namespace lumo::vk {
namespace {

bool parseId(std::string_view text, std::uint16_t& id) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id, 16);
    return error == std::errc{} && end == text.data() + text.size();
}

bool apply(std::string_view option, std::string_view value, DaemonOptions& options) {
    if (option == "--vid") return parseId(value, options.vendorId);
    if (option == "--pid") return parseId(value, options.productId);
    if (option == "--log") options.logPath = value;
    if (option == "--name") options.name = value;
    return option == "--log" || option == "--name";
}

}  // namespace

std::optional<DaemonOptions> parseOptions(std::span<char* const> arguments) {
    DaemonOptions options;
    if (arguments.size() % 2 != 0) return std::nullopt;
    for (; !arguments.empty(); arguments = arguments.subspan(2)) {
        if (!apply(arguments[0], arguments[1], options)) return std::nullopt;
    }
    return options;
}

}  // namespace lumo::vk
