// What differs between frames on deadlines and frames that the display drives.
#include <QGuiApplication>
#include <QScreen>
#include <thread>

#include "gui/FrameFixture.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;
using test::EventCount;

class FramesOnDeadlines : public test::FrameFixture {
protected:
    FramesOnDeadlines() : FrameFixture(false) {}
};

/// The update comes from Qt's own 5 ms here, which is what a display looks like that answers at once.
class FramesOnDisplayUpdates : public test::FrameFixture {
protected:
    int others = 0;
    FrameClock other{*window, [this] { ++others; }, FramePacing{true, [](const QWindow&) { return 500.0; }}};

    FramesOnDisplayUpdates() : FrameFixture(true) {}
    [[nodiscard]] bool moreOthersCome() {
        return QTest::qWaitFor([this, wanted = others + 3] { return others >= wanted; }, 30000);
    }
};

TEST_F(FramesOnDeadlines, GoOnFromNowAfterTheThreadWasBusy) {
    rateHz = 10.0;
    run();
    std::this_thread::sleep_for(310ms);  // three deadlines are missed
    ASSERT_TRUE(moreFramesCome(1));
    EXPECT_EQ(timersMs(), std::vector{100});
}

TEST_F(FramesOnDeadlines, FollowTheScreenToAnotherRate) {
    run();
    rateHz = 10.0;
    ASSERT_TRUE(moreFramesCome(1));
    ASSERT_EQ(timersMs().size(), 1U);
    EXPECT_GT(timersMs().front(), 2);
    EXPECT_LE(timersMs().front(), 100);
    rateHz = 500.0;
    ASSERT_TRUE(moreFramesCome(1));
    ASSERT_EQ(timersMs().size(), 1U);
    EXPECT_LE(timersMs().front(), 2);
}

TEST_F(FramesOnDisplayUpdates, NeedNoTimer) {
    run();
    duringFrame = [this] { EXPECT_TRUE(timersMs().empty()); };
    EXPECT_TRUE(moreFramesCome(20));
    EXPECT_TRUE(timersMs().empty());
}

TEST_F(FramesOnDisplayUpdates, ArePaintedAsPartOfTheUpdate) {
    run();
    duringFrame = [this] { canvas->update(); };
    std::this_thread::sleep_for(2ms);  // a period: this is no answer at once
    const int before = canvas->paints;
    QEvent update(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(window->windowHandle(), &update);
    EXPECT_EQ(canvas->paints, before + 1);
}

TEST_F(FramesOnDisplayUpdates, AreSpacedWhereTheDisplayAnswersAtOnce) {
    rateHz = 10.0;
    run();
    EventCount answers(*window->windowHandle(), QEvent::UpdateRequest);
    ASSERT_TRUE(moreFramesCome(4));
    EXPECT_TRUE(keepsRate()) << frames;
    EXPECT_LE(answers.count(), 2 * 4);
}

TEST_F(FramesOnDisplayUpdates, StartWithAPaintAndGoOnWithoutOne) {
    show();
    const int before = canvas->paints;
    clock->setWanted(true);
    EXPECT_TRUE(moreFramesCome());
    EXPECT_EQ(canvas->paints, before + 1);
}

TEST_F(FramesOnDisplayUpdates, AnUpdateLeftOverPaintsNothing) {
    run();
    const int before = canvas->paints;
    EventCount updates(*window->windowHandle(), QEvent::UpdateRequest);
    clock->setWanted(false);
    ASSERT_TRUE(QTest::qWaitFor([&] { return updates.count() == 1; }, 30000));
    EXPECT_EQ(canvas->paints, before);
}

TEST_F(FramesOnDisplayUpdates, LeaveAloneWhatOthersAskFor) {
    run();
    clock->setWanted(false);
    ASSERT_TRUE(isAsleep());
    const int before = canvas->paints;
    window->windowHandle()->requestUpdate();
    EXPECT_TRUE(QTest::qWaitFor([&] { return canvas->paints > before; }, 30000));
}

TEST_F(FramesOnDisplayUpdates, AreSharedByTheClocksOfAWindow) {
    other.setWanted(true);
    run();
    const int before = others;
    ASSERT_TRUE(moreFramesCome(10));
    EXPECT_GE(others, before + 9);
    EXPECT_LE(others, before + 11);
    clock->setWanted(false);
    EXPECT_TRUE(moreOthersCome());
}

TEST_F(FramesOnDisplayUpdates, KeepTheirRateBesideThoseOfAFasterClock) {
    rateHz = 10.0;
    other.setWanted(true);
    run();
    ASSERT_TRUE(moreFramesCome());
    EXPECT_TRUE(keepsRate()) << frames;
}

TEST(FramePacing, FollowsTheDisplayWhereQtDoes) {
    EXPECT_TRUE(updatesFollowDisplay("cocoa"));
    EXPECT_TRUE(updatesFollowDisplay("wayland"));
    EXPECT_TRUE(updatesFollowDisplay("wayland-egl"));
    EXPECT_FALSE(updatesFollowDisplay("xcb"));
    EXPECT_FALSE(updatesFollowDisplay("offscreen"));
}

TEST(FramePacing, HasTheRateOfTheScreenTheWindowIsOn) {
    const QWindow window;
    const FramePacing pacing = FramePacing::ofThisDisplay();
    EXPECT_EQ(pacing.refreshRateHz(window), window.screen()->refreshRate());
    EXPECT_EQ(pacing.followsDisplay, updatesFollowDisplay(QGuiApplication::platformName()));
}

}  // namespace
}  // namespace lumo
