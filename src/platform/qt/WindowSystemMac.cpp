// macOS: the calls into AppKit, and the moments for them.
#include <QEvent>
#include <QImage>
#include <QWidget>

#include "platform/macos/Activation.h"
#include "platform/macos/MainMenu.h"
#include "platform/macos/ReducedMotion.h"
#include "platform/macos/SystemSymbol.h"
#include "platform/macos/WindowChrome.h"
#include "platform/qt/WindowSystem.h"

namespace lumo::window_system {
namespace {

/// Qt makes the native window anew when its flags change, and AppKit's looks go with the old one.
class ChromeKeeper final : public QObject {
public:
    explicit ChromeKeeper(QWidget& window) : QObject(&window), m_window(window) {
        window.installEventFilter(this);
        apply();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::WinIdChange && m_window.internalWinId()) apply();
        return QObject::eventFilter(watched, event);
    }

private:
    void apply() { lumo::applyWindowChrome(m_window.winId()); }

    QWidget& m_window;
};

}  // namespace

void becomeRegularApplication() { lumo::becomeRegularApplication(); }

bool showsMenuBar() { return true; }

void dressWindow(QWidget& window) {
    // The title bar lies over the header, which keeps its place free itself.
    window.setAttribute(Qt::WA_ContentsMarginsRespectsSafeArea, false);
#if QT_VERSION >= QT_VERSION_CHECK(6, 9, 0)
    // From here on Qt knows the style itself, and would take it back whenever it sets its flags.
    window.setWindowFlags(window.windowFlags() | Qt::ExpandedClientAreaHint | Qt::NoTitleBarBackgroundHint);
#endif
    new ChromeKeeper(window);
}

void installMenu(QWidget&, QAction&) { lumo::installMainMenu(); }

void followMotionPreference() {}  // AppKit knows it at any time

bool prefersReducedMotion() { return lumo::prefersReducedMotion(); }

void activateApplication(QWidget&) { lumo::activateIgnoringOtherApplications(); }

QImage systemSymbol(const QString& name, QSize pixels) {
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const SymbolPixels target{image.bits(), static_cast<std::size_t>(image.width()),
                              static_cast<std::size_t>(image.height()), static_cast<std::size_t>(image.bytesPerLine())};
    return lumo::drawSystemSymbol(name.toStdString(), target) ? image : QImage();
}

}  // namespace lumo::window_system
