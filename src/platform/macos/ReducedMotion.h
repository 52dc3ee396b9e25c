// The user's wish for less motion, from the system's accessibility settings.
// Main thread.
#pragma once

namespace lumo {

/// Kept current by AppKit; cheap.
[[nodiscard]] bool prefersReducedMotion();

}  // namespace lumo
