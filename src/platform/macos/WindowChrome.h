// The title bar and background of the main window, as AppKit draws them.
#pragma once

#include <cstdint>

namespace lumo {

/// Main thread, once the native window exists, and again whenever it was made anew. `nsView` is what
/// QWidget::winId() tells on macOS. A view that stands in no window is left alone. The content keeps its place and
/// size on the screen, and from the first call on reaches under the title bar.
/// Dragging by the background also needs QWindow::startSystemMove() on presses that no control took: Qt's view
/// takes every press before AppKit's own flag could act on it.
void applyWindowChrome(std::uintptr_t nsView);

}  // namespace lumo
