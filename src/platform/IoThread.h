// How the I/O queue's thread presents itself to the system.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace lumo {

/// Called first on the new thread: names it after the queue's label and, where the system has such a thing, gives it
/// user-initiated quality of service. A name longer than the system takes is cut.
void prepareIoThread(std::string_view label);

/// The label as far as the system takes it: its end, because that is what tells a reverse-domain label from others.
[[nodiscard]] inline std::string threadName(std::string_view label, std::size_t longest) {
    return std::string(label.substr(label.size() - std::min(label.size(), longest)));
}

}  // namespace lumo
