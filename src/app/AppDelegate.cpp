#include "app/AppDelegate.h"

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QScreen>
#include <QStyle>
#include <algorithm>

#include "app/AssetManager.h"
#include "app/MainView.h"
#include "app/SharedObjects.h"
#include "controls/Theme.h"
#include "platform/qt/WindowSystem.h"

namespace lumo {
namespace {

constexpr QSize kContentSize{960, 760};
constexpr QSize kMinimumSize{900, 680};

/// Centred on the screen; on a screen that is too small its upper left corner stays in sight.
QRect centred(const QSize& size, const QRect& screen) {
    QRect place = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, screen);
    place.moveTopLeft({std::max(place.left(), screen.left()), std::max(place.top(), screen.top())});
    return place;
}

}  // namespace

AppDelegate::AppDelegate() { makeQuitAction(); }

AppDelegate::~AppDelegate() = default;

void AppDelegate::makeQuitAction() {
    m_quit.setText("Quit Vexa Lumo 65");
    m_quit.setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));  // Qt's name for Command on macOS
    QObject::connect(&m_quit, &QAction::triggered, qApp, &QCoreApplication::quit);
}

void AppDelegate::applicationDidFinishLaunching() {
    window_system::becomeRegularApplication();
    AssetManager::shared().readAhead("keyimg.png");
    // The view comes before the window: making it brings the device link to life.
    auto view = std::make_unique<MainView>(window_system::showsMenuBar() ? nullptr : &m_quit);
    AssetManager::shared().readAhead("colorwheel.png");  // behind the keys, which the view has drawn ahead
    makeWindow();
    m_window->setCentralWidget(view.release());
    m_window->show();
    // Qt wants all that is shown painted, later. Left for the event loop, that came behind the painting that the screen
    // asks for, and everything was painted twice.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateLater);
    window_system::installMenu(*m_window, m_quit);
    window_system::activateApplication(*m_window);
}

void AppDelegate::makeWindow() {
    m_window = std::make_unique<QMainWindow>();
    m_window->setMinimumSize(kMinimumSize);
    m_window->setGeometry(centred(kContentSize, QGuiApplication::primaryScreen()->availableGeometry()));
    m_window->setWindowTitle("Vexa Lumo 65");
    QPalette palette = m_window->palette();
    palette.setColor(QPalette::Window, theme::kWindow);
    m_window->setPalette(palette);
    window_system::dressWindow(*m_window);
}

void AppDelegate::applicationShouldHandleReopen() {
    m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
    window_system::activateApplication(*m_window);
}

void AppDelegate::applicationWillTerminate() {
    if (m_window) m_window->hide();
    QGuiApplication::sync();
    SharedObjects::current().stopDeviceTraffic();
}

}  // namespace lumo
