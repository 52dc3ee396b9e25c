// One program a session: whoever starts it once more brings the window that is open to the front.
#pragma once

#include <functional>

/// Main thread, after the application object exists.
namespace lumo::one_instance {

/// True when this process is the one that opens the window. Otherwise there is one already, and it has been told to
/// come to the front. Waits for one that is about to end. Without a session bus nobody knows of anybody: true.
/// On macOS the system itself sees to it.
[[nodiscard]] bool claim();

/// What this process does when the program is started once more.
void whenStartedAgain(std::function<void()> comeToFront);

/// This process is about to end: what is started from now on waits for that.
void letGo();

}  // namespace lumo::one_instance
