// How the I/O queue's thread presents itself to the system.
#pragma once

#include <string_view>

namespace lumo {

/// Called first on the new thread: names it after the queue's label and, where the system has such a thing, gives it
/// user-initiated quality of service. A name longer than the system takes is cut.
void prepareIoThread(std::string_view label);

}  // namespace lumo
