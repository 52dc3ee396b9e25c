// A window with a canvas whose frames are counted, and what it takes to see that none are coming.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractEventDispatcher>
#include <QPaintEvent>
#include <QTest>
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
    std::function<void()> duringFrame = [] {};
    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    Canvas* canvas = new Canvas(window.get());
    std::unique_ptr<FrameClock> clock;

    explicit FrameFixture(bool followsDisplay) {
        window->resize(200, 100);
        canvas->setGeometry(20, 30, 40, 50);
        const auto onFrame = [this] {
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
        m_begin = std::chrono::steady_clock::now();
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
    /// No more frames than the rate allows since the beginning. One after a late one may follow soon, so the pauses
    /// themselves say nothing on a busy machine.
    [[nodiscard]] bool keepsRate() const {
        const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - m_begin;
        return frames <= 2 + passed.count() * rateHz * 4.0 / 3.0;  // within a quarter of a period counts as on time
    }
    /// Nothing is left that could wake the program: no timer, and no update that Qt still owes the window.
    [[nodiscard]] bool isAsleep() const {
        const bool isStill = !clock->isRunning() && timersMs().empty();
        const int before = frames;
        EventCount updates(*window->windowHandle(), QEvent::UpdateRequest);
        const auto isQuiet = [&updates] {
            updates.forget();
            QTest::qWait(20);  // what was asked for before comes after 5 ms, or later on a busy machine
            return updates.count() == 0;
        };
        return isStill && QTest::qWaitFor(isQuiet, 2000) && frames == before;
    }

private:
    std::chrono::steady_clock::time_point m_begin;
};

}  // namespace lumo::test
