// The frames of a widget that moves: as often as its display shows them, and only while somebody can see them.
#pragma once

#include <QBasicTimer>
#include <QPointer>
#include <QWidget>
#include <QWindow>
#include <functional>
#include <memory>

#include "foundation/FrameDeadlines.h"

namespace lumo {

/// True where `QWindow::requestUpdate` waits for the display (macOS, Wayland). Elsewhere it only waits for 5 ms.
[[nodiscard]] bool updatesFollowDisplay(const QString& platformName);

/// What the frames of a window keep to.
struct FramePacing {
    bool followsDisplay;
    std::function<double(const QWindow&)> refreshRateHz;  // asked for each frame: windows move, and screens change

    [[nodiscard]] static FramePacing ofThisDisplay();
};

/// Main thread. Calls `onFrame` while frames are wanted, the widget is visible and its window is exposed and not
/// minimised; no timer runs and no update is requested otherwise. The window may come late, go and be made anew; clock
/// and widget may go in any order. `onFrame` marks what changed with QWidget::update and may delete either.
class FrameClock final : public QObject {
public:
    FrameClock(QWidget& widget, std::function<void()> onFrame, FramePacing pacing = FramePacing::ofThisDisplay());

    void setWanted(bool isWanted);
    [[nodiscard]] bool isRunning() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    [[nodiscard]] bool isOnScreen() const;
    void watchWindow();
    void leaveWindow();
    void follow();
    void stop();
    void request();
    void waitForDeadline();
    void updateGranted();
    void runFrame();

    QPointer<QWidget> m_widget;
    QPointer<QWindow> m_window;
    std::shared_ptr<const std::function<void()>> m_onFrame;
    FramePacing m_pacing;
    FrameDeadlines m_deadlines;
    std::chrono::steady_clock::time_point m_lastFrame;
    QBasicTimer m_timer;  // while it runs no update is requested
    bool m_isWanted = false;
    bool m_hasStarted = false;
};

}  // namespace lumo
