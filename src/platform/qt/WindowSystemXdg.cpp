// Desktops that decorate windows themselves: X11 and Wayland.
#include <QWidget>

#include "platform/qt/WindowSystem.h"

namespace lumo::window_system {

void becomeRegularApplication() {}

bool showsMenuBar() { return false; }

void dressWindow(QWidget&) {}

void installMenu(QWidget& window, QAction& quit) { window.addAction(&quit); }

void activateApplication(QWidget& window) {
    window.raise();
    window.activateWindow();
}

}  // namespace lumo::window_system
