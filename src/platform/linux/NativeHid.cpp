#include "platform/NativeHid.h"

#include <utility>

#include "platform/linux/LinuxHidManager.h"

namespace lumo {

std::unique_ptr<HidManager> makeNativeHidManager(MainQueue main, IoQueue io,
                                                 std::function<void(std::string_view)> print) {
    return makeLinuxHidManager(main, io, std::move(print));
}

}  // namespace lumo
