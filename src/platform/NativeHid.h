// The HID manager of the operating system this program was built for.
#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "foundation/RunLoop.h"
#include "platform/Hid.h"

namespace lumo {

/// Main thread. Both queues outlive the manager, and the I/O queue every device it handed out. `print` takes a line
/// for the console, from any thread.
[[nodiscard]] std::unique_ptr<HidManager> makeNativeHidManager(MainQueue main, IoQueue io,
                                                               std::function<void(std::string_view)> print);

}  // namespace lumo
