// What differs between the desktops around one window: dock, title bar, menu, coming to the front.
#pragma once

class QAction;
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

/// In front of other applications, as far as the system lets a program decide that.
void activateApplication(QWidget& window);

}  // namespace lumo::window_system
