// Desktops that decorate windows themselves: X11 and Wayland.
#include <QCoreApplication>
#include <QImage>
#include <QWidget>

#include "platform/qt/MotionPreference.h"
#include "platform/qt/SessionBus.h"
#include "platform/qt/WindowSystem.h"

namespace lumo::window_system {

void becomeRegularApplication() {}

bool showsMenuBar() { return false; }

void dressWindow(QWidget&) {}

void installMenu(QWidget& window, QAction& quit) { window.addAction(&quit); }

void followMotionPreference() {
    if (hasSessionBus()) new MotionPreference(&QDBusConnection::sessionBus, qApp);
}

bool prefersReducedMotion() { return MotionPreference::currentIsReduced(); }

void activateApplication(QWidget& window) {
    window.raise();
    window.activateWindow();
}

QImage systemSymbol(const QString&, QSize) { return {}; }

}  // namespace lumo::window_system
