// The menu bar of the program: the quit item and nothing else.
#pragma once

namespace lumo {

/// Main thread, after the application object exists and Qt has built its own menu, which this one replaces: Qt
/// puts Services, Hide and more into it.
void installMainMenu();

}  // namespace lumo
