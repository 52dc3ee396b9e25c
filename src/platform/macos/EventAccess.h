// Who may listen to the keys: the grants "Input Monitoring" and "Accessibility".
// Main thread. Only the requests show anything to the user, and they wait for nobody.
#pragma once

namespace lumo::event_access {

/// Whether keyboard events can be listened to.
[[nodiscard]] bool preflight();

void request();

/// Whether the process is trusted for accessibility.
[[nodiscard]] bool isTrusted();

/// The answer as it stands; the user's own comes later.
[[nodiscard]] bool isTrustedWithPrompt();

}  // namespace lumo::event_access
