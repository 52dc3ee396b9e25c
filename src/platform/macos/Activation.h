// How the program stands among the running applications.
// Main thread, after the application object exists.
#pragma once

namespace lumo {

/// A normal application with a Dock icon and a menu bar, also when it was started outside a bundle.
void becomeRegularApplication();

/// Brings the program to the front, whichever application is there. From macOS 14 on the system takes it as a
/// wish and may leave the other one in front.
void activateIgnoringOtherApplications();

}  // namespace lumo
