// The desktop around the program: what opens links, starts programs and tells which one is in front.
#pragma once

#include <memory>
#include <string_view>

#include "foundation/RunLoop.h"

namespace lumo {

/// Main thread, where nothing else is said.
class Desktop {
public:
    Desktop() = default;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    virtual ~Desktop() = default;

    /// A link that cannot be formed here is skipped silently.
    virtual void openLink(std::string_view link) = 0;

    /// Starts this very program once more, without any options. `completed` is called once, on any thread, whether or
    /// not that worked.
    virtual void openThisApplication(Task completed) = 0;

    /// Ends the process as the quit action of its menu does.
    virtual void terminate() = 0;

    /// Runs the task on the main thread each time the program comes to the front.
    [[nodiscard]] virtual std::unique_ptr<Registration> whenBecameActive(Task task) = 0;
};

}  // namespace lumo
