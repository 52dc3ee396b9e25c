// One operating system, as the shared objects see it.
#pragma once

#include <memory>
#include <string_view>

#include "foundation/RunLoop.h"
#include "platform/Bundle.h"
#include "platform/Desktop.h"
#include "platform/Hid.h"
#include "platform/Preferences.h"
#include "platform/Privacy.h"

namespace lumo {

/// Made once by the entry point; outlives every object created from it. Main thread, but for `print`.
class Platform {
public:
    Platform() = default;
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;
    virtual ~Platform() = default;

    [[nodiscard]] virtual MainQueue mainQueue() = 0;

    /// A serial queue with user-initiated quality of service where the system has such a thing.
    [[nodiscard]] virtual std::unique_ptr<BlockingExecutor> makeIoQueue(std::string_view label) = 0;

    /// `io` runs what may block beside the reports themselves (closing a node); it outlives the manager.
    [[nodiscard]] virtual std::unique_ptr<HidManager> makeHidManager(IoQueue io) = 0;

    [[nodiscard]] virtual Bundle& bundle() = 0;
    [[nodiscard]] virtual Desktop& desktop() = 0;
    [[nodiscard]] virtual Preferences& preferences() = 0;
    [[nodiscard]] virtual Privacy& privacy() = 0;

    /// Any thread: one diagnostic line on the console, flushed at once.
    virtual void print(std::string_view line) = 0;
};

}  // namespace lumo
