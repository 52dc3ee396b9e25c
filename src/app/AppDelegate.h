// Builds the one window and its menu once the event loop runs, and ends both.
#pragma once

#include <QAction>
#include <memory>

class QMainWindow;

namespace lumo {

/// Main thread. The shared objects are installed before it launches.
class AppDelegate final {
public:
    AppDelegate();
    ~AppDelegate();
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;

    /// Called once, in the first turn of the event loop.
    void applicationDidFinishLaunching();

    /// The program was started once more: the window comes to the front, also from the dock.
    void applicationShouldHandleReopen();

    [[nodiscard]] static bool applicationShouldTerminateAfterLastWindowClosed() { return true; }

    /// The window leaves the screen and the report under way is the last. Never waits for a keyboard.
    void applicationWillTerminate();

    /// Null before the launch.
    [[nodiscard]] QMainWindow* window() const { return m_window.get(); }
    [[nodiscard]] QAction& quitAction() { return m_quit; }

private:
    void makeQuitAction();
    void makeWindow();

    QAction m_quit;
    std::unique_ptr<QMainWindow> m_window;
};

}  // namespace lumo
