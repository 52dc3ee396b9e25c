// Whether things on the screen may move and fade, or shall simply be where they go.
#pragma once

namespace lumo {

/// Main thread; cheap, and asked anew whenever a motion is about to begin, so that a changed setting is followed. True
/// where the system asks for less motion, and where the desktop has animations switched off. What the keyboard itself
/// shows is content, not motion: the preview of its light runs on.
[[nodiscard]] bool motionIsReduced();

}  // namespace lumo
