#include "platform/NativeHid.h"

#include "platform/macos/IoKitHidManager.h"

namespace lumo {

// Nothing is opened or closed a second time for a report here, and a refusal has no line to print.
std::unique_ptr<HidManager> makeNativeHidManager(MainQueue main, IoQueue, std::function<void(std::string_view)>) {
    return makeMacHidManager(main);
}

}  // namespace lumo
