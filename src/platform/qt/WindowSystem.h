// What differs between the desktops around one window: dock, title bar, menu, motion, coming to the front.
#pragma once

class QAction;
class QImage;
class QSize;
class QString;
class QWidget;

/// Main thread, after the application object exists.
namespace lumo::window_system {

/// A normal application, with a place in the dock where there is one.
void becomeRegularApplication();

/// True where the system shows the program's menu itself, and the window therefore does not.
[[nodiscard]] bool showsMenuBar();

/// Gives the title bar and the native background their looks, now and whenever the native window is made anew.
void dressWindow(QWidget& window);

/// Where the system shows the menu: one menu with the one item. Elsewhere: its key equivalent works in the window.
void installMenu(QWidget& window, QAction& quit);

/// Asks the desktop about motion and listens to it from then on; waits for nothing.
void followMotionPreference();

/// The user's wish for less motion, as it stands; false as long as the desktop has not answered.
[[nodiscard]] bool prefersReducedMotion();

/// In front of other applications, as far as the system lets a program decide that.
void activateApplication(QWidget& window);

/// The shape of the system's own symbol of that name, centred and as large as fits, premultiplied; its colour says
/// nothing. Null where the system has none.
[[nodiscard]] QImage systemSymbol(const QString& name, QSize pixels);

}  // namespace lumo::window_system
