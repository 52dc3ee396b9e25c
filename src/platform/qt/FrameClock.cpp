#include "platform/qt/FrameClock.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <utility>

#include "platform/qt/WindowUpdates.h"

namespace lumo {
namespace {

using Clock = std::chrono::steady_clock;

double refreshRateOfScreen(const QWindow& window) {
    const QScreen* const screen = window.screen();
    return screen ? screen->refreshRate() : 0.0;
}

}  // namespace

bool updatesFollowDisplay(const QString& platformName) {
    return platformName == "cocoa" || platformName.startsWith("wayland");
}

FramePacing FramePacing::ofThisDisplay() {
    return {updatesFollowDisplay(QGuiApplication::platformName()), refreshRateOfScreen};
}

FrameClock::FrameClock(QWidget& widget, std::function<void()> onFrame, FramePacing pacing)
    : m_widget(&widget),
      m_onFrame(std::make_shared<const std::function<void()>>(std::move(onFrame))),
      m_pacing(std::move(pacing)) {
    widget.installEventFilter(this);
}

void FrameClock::setWanted(bool isWanted) {
    m_isWanted = isWanted;
    follow();
}

bool FrameClock::isRunning() const { return m_isWanted && isOnScreen(); }

bool FrameClock::isOnScreen() const {
    return m_widget && m_widget->isVisible() && m_window && m_window->isExposed() &&
           !m_window->windowStates().testFlag(Qt::WindowMinimized);
}

bool FrameClock::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Show:
        case QEvent::Hide:
        case QEvent::Expose:
            follow();
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

void FrameClock::timerEvent(QTimerEvent*) {
    m_timer.stop();
    if (!isRunning()) return;
    m_pacing.followsDisplay ? request() : runFrame();
}

/// The widget is always hidden while its window changes, and shown again in the new one.
void FrameClock::watchWindow() {
    QWindow* const window = m_widget ? m_widget->window()->windowHandle() : nullptr;
    if (window == m_window) return;
    if (m_window) leaveWindow();
    m_window = window;
    if (!window) return;
    window->installEventFilter(this);
    connect(window, &QWindow::windowStateChanged, this, &FrameClock::follow);
    if (m_pacing.followsDisplay)
        connect(&WindowUpdates::of(*window), &WindowUpdates::granted, this, &FrameClock::updateGranted);
}

void FrameClock::leaveWindow() {
    m_window->removeEventFilter(this);
    m_window->disconnect(this);
    if (m_pacing.followsDisplay) WindowUpdates::of(*m_window).disconnect(this);
}

void FrameClock::follow() {
    watchWindow();
    if (!isRunning()) return stop();
    if (!m_timer.isActive()) request();
}

void FrameClock::stop() {
    m_timer.stop();
    m_hasStarted = false;
}

/// A Wayland window that was covered may still owe an update then, and grants it only after it has painted something.
void FrameClock::request() {
    if (!m_pacing.followsDisplay) return waitForDeadline();
    if (!std::exchange(m_hasStarted, true)) m_widget->update();
    WindowUpdates::of(*m_window).request();
}

void FrameClock::waitForDeadline() {
    const auto now = Clock::now();
    const auto delay = m_deadlines.next(now, m_pacing.refreshRateHz(*m_window)) - now;
    m_timer.start(static_cast<int>(std::chrono::ceil<std::chrono::milliseconds>(delay).count()), Qt::PreciseTimer,
                  this);
}

/// A Wayland window that painted nothing in its last frame owes the display none, and Qt answers at once: such frames
/// are spaced by the timer, or the loop would spin.
void FrameClock::updateGranted() {
    if (!isRunning() || m_timer.isActive()) return;
    const bool cameAtOnce = Clock::now() - m_lastFrame < framePeriod(m_pacing.refreshRateHz(*m_window)) / 4;
    if (cameAtOnce) return waitForDeadline();
    runFrame();
}

void FrameClock::runFrame() {
    const QPointer<FrameClock> self = this;
    const QPointer<QWidget> top = m_widget->window();
    const auto onFrame = m_onFrame;  // lives on while it deletes this clock
    m_lastFrame = Clock::now();
    (*onFrame)();
    // What was marked is painted now, as part of the update the display asked for. The next update is requested after
    // that: it is the painting that the display answers.
    if (top) QCoreApplication::sendPostedEvents(top, QEvent::UpdateRequest);
    if (self) follow();
}

}  // namespace lumo
