// A window with a canvas whose frames are counted, and what it takes to see that none are coming.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractEventDispatcher>
#include <QPaintEvent>
#include <QTest>
#include <algorithm>
#include <chrono>
#include <memory>
#include <vector>

#include "gui/EventCount.h"
#include "platform/qt/FrameClock.h"

namespace lumo::test {

/// Counts how often it is painted, and where last.
class Canvas final : public QWidget {
public:
    using QWidget::QWidget;
    int paints = 0;
    QRect lastPainted;

protected:
    void paintEvent(QPaintEvent* event) override {
        ++paints;
        lastPainted = event->rect();
    }
};

/// A window with a canvas in it, and the clock of that canvas.
class FrameFixture : public testing::Test {
protected:
    double rateHz = 500.0;
    int frames = 0;
    std::vector<std::chrono::steady_clock::time_point> times;  // of the frames
    std::function<void()> duringFrame = [] {};
    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    Canvas* canvas = new Canvas(window.get());
    std::unique_ptr<FrameClock> clock;

    explicit FrameFixture(bool followsDisplay) {
        window->resize(200, 100);
        canvas->setGeometry(20, 30, 40, 50);
        const auto onFrame = [this] {
            times.push_back(std::chrono::steady_clock::now());
            duringFrame();
            ++frames;  // after it, so that the function is still needed when its clock is gone
        };
        const auto rate = [this](const QWindow&) { return rateHz; };
        clock = std::make_unique<FrameClock>(*canvas, onFrame, FramePacing{followsDisplay, rate});
    }
    void show() {
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }
    void run() {
        clock->setWanted(true);
        show();
        ASSERT_TRUE(moreFramesCome());
    }
    [[nodiscard]] bool moreFramesCome(int more = 3) {
        return QTest::qWaitFor([this, wanted = frames + more] { return frames >= wanted; }, 30000);
    }
    [[nodiscard]] std::vector<int> timersMs() const {
        std::vector<int> intervals;
        for (const auto& timer : QAbstractEventDispatcher::instance()->registeredTimers(clock.get()))
            intervals.push_back(timer.interval);
        return intervals;
    }
    /// Between two frames.
    [[nodiscard]] std::chrono::steady_clock::duration shortestPause() const {
        auto shortest = std::chrono::steady_clock::duration::max();
        for (std::size_t i = 1; i < times.size(); ++i) shortest = std::min(shortest, times[i] - times[i - 1]);
        return shortest;
    }
    /// Nothing is left that could wake the program: no timer, and no update that Qt still owes the window.
    [[nodiscard]] bool isAsleep() const {
        const bool isStill = !clock->isRunning() && timersMs().empty();
        const int before = frames;
        EventCount updates(*window->windowHandle(), QEvent::UpdateRequest);
        QTest::qWait(20);  // what was asked for before comes after 5 ms
        updates.forget();
        QTest::qWait(20);
        return isStill && updates.count() == 0 && frames == before;
    }
};

}  // namespace lumo::test
