// What holds of a widget's frames whichever way they come.
#include <QGuiApplication>
#include <QLibrary>
#include <utility>

#include "gui/FrameFixture.h"

namespace lumo {
namespace {

class FramesOfWindow : public test::FrameFixture, public testing::WithParamInterface<bool> {
protected:
    FramesOfWindow() : FrameFixture(GetParam()) {}
};

INSTANTIATE_TEST_SUITE_P(FrameClock, FramesOfWindow, testing::Bool(),
                         [](const auto& way) { return way.param ? "OnDisplayUpdates" : "OnDeadlines"; });

TEST_P(FramesOfWindow, ComeWhileItIsWantedAndSeen) {
    run();
    EXPECT_TRUE(clock->isRunning());
    EXPECT_TRUE(moreFramesCome(20));
}

TEST_P(FramesOfWindow, DoNotComeUnlessWanted) {
    show();
    EXPECT_TRUE(isAsleep());
    EXPECT_EQ(frames, 0);
}

TEST_P(FramesOfWindow, DoNotComeBeforeThereIsAWindow) {
    clock->setWanted(true);
    EXPECT_FALSE(clock->isRunning());
    EXPECT_TRUE(timersMs().empty());
}

TEST_P(FramesOfWindow, WaitForTheWindowToBeExposed) {
    clock->setWanted(true);
    window->show();
    ASSERT_FALSE(window->windowHandle()->isExposed());
    EXPECT_FALSE(clock->isRunning());
    EXPECT_TRUE(timersMs().empty());
    EXPECT_TRUE(moreFramesCome());
    EXPECT_TRUE(window->windowHandle()->isExposed());
}

TEST_P(FramesOfWindow, StopWhenTheyAreNoLongerWanted) {
    run();
    clock->setWanted(false);
    EXPECT_TRUE(isAsleep());
}

TEST_P(FramesOfWindow, StopWhileTheWindowIsHiddenAndComeBackWithIt) {
    run();
    window->hide();
    EXPECT_TRUE(isAsleep());
    window->show();
    EXPECT_TRUE(moreFramesCome());
}

TEST_P(FramesOfWindow, StopWhileOnlyTheWidgetIsHiddenAndComeBackWithIt) {
    run();
    canvas->hide();
    EXPECT_TRUE(isAsleep());
    canvas->show();
    EXPECT_TRUE(moreFramesCome());
}

TEST_P(FramesOfWindow, StopWhileTheWindowIsMinimisedAndComeBackWithIt) {
    run();
    window->showMinimized();
    EXPECT_TRUE(isAsleep());
    window->showNormal();
    EXPECT_TRUE(moreFramesCome());
}

TEST_P(FramesOfWindow, StopWhenTheStateOfTheWindowIsAllThatChanges) {
    run();
    window->windowHandle()->setWindowState(Qt::WindowMinimized);
    EXPECT_FALSE(clock->isRunning());
    EXPECT_TRUE(timersMs().empty());
    window->windowHandle()->setWindowState(Qt::WindowNoState);
    EXPECT_TRUE(moreFramesCome());
}

TEST_P(FramesOfWindow, MayEndThemselves) {
    duringFrame = [this] { clock->setWanted(frames < 2); };
    run();
    EXPECT_TRUE(isAsleep());
    EXPECT_EQ(frames, 3);
}

TEST_P(FramesOfWindow, SurviveAChangeOfWindowFlags) {
    run();
    window->setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    EXPECT_FALSE(clock->isRunning());
    show();
    EXPECT_TRUE(moreFramesCome());
}

TEST_P(FramesOfWindow, FollowTheWidgetIntoAWindowMadeAnew) {
    run();
    const QPointer<QWindow> old = window->windowHandle();
    QWidget other;
    window->setParent(&other);
    window->setParent(nullptr);
    ASSERT_TRUE(old.isNull());
    show();
    EXPECT_TRUE(moreFramesCome());
}

TEST_P(FramesOfWindow, SurviveThatTheSystemsWindowGoesWhileAnUpdateIsOnItsWay) {
    run();
    window->windowHandle()->requestUpdate();
    window->windowHandle()->destroy();
    EXPECT_FALSE(clock->isRunning());
    window->windowHandle()->create();
    window->windowHandle()->show();
    EXPECT_TRUE(moreFramesCome());
}

TEST_P(FramesOfWindow, FollowTheWidgetIntoAnotherWindow) {
    run();
    QWidget other;
    other.resize(200, 100);
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&other));
    canvas->setParent(&other);
    EXPECT_TRUE(isAsleep());
    canvas->show();
    EXPECT_TRUE(moreFramesCome());
    window->hide();
    EXPECT_TRUE(moreFramesCome());
    other.hide();
    EXPECT_TRUE(isAsleep());
}

TEST_P(FramesOfWindow, FollowAWidgetThatIsAWindowItself) {
    run();
    canvas->setParent(nullptr);
    canvas->show();
    window->hide();
    EXPECT_TRUE(moreFramesCome());
    window.reset();
    EXPECT_TRUE(moreFramesCome());
    delete canvas;
}

TEST_P(FramesOfWindow, PaintNothingWhenNothingIsMarked) {
    run();
    const int before = canvas->paints;
    EXPECT_TRUE(moreFramesCome(20));
    EXPECT_EQ(canvas->paints, before);
}

TEST_P(FramesOfWindow, PaintWhatIsMarkedBeforeTheNextFrameAndNothingElse) {
    run();
    int before = 0;
    bool allWerePainted = true;
    duringFrame = [&, isFirst = true]() mutable {
        if (!std::exchange(isFirst, false)) allWerePainted = allWerePainted && canvas->paints == before + 1;
        before = canvas->paints;
        canvas->update(3, 4, 5, 6);
    };
    EXPECT_TRUE(moreFramesCome(10));
    EXPECT_TRUE(allWerePainted);
    EXPECT_EQ(canvas->lastPainted, QRect(3, 4, 5, 6));
}

TEST_P(FramesOfWindow, MayDeleteTheirClock) {
    duringFrame = [this] { clock.reset(); };
    clock->setWanted(true);
    show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !clock; }, 30000));
    QTest::qWait(20);
    EXPECT_EQ(frames, 1);
}

TEST_P(FramesOfWindow, MayDeleteTheirWidget) {
    duringFrame = [this] { delete canvas; };
    clock->setWanted(true);
    show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return frames > 0; }, 30000));
    EXPECT_TRUE(isAsleep());
    EXPECT_EQ(frames, 1);
}

TEST_P(FramesOfWindow, MayDeleteTheirWindow) {
    duringFrame = [this] { window.reset(); };
    clock->setWanted(true);
    window->show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return frames > 0; }, 30000));
    EXPECT_EQ(window, nullptr);
    EXPECT_FALSE(clock->isRunning());
    EXPECT_TRUE(timersMs().empty());
}

TEST_P(FramesOfWindow, MayDeleteBothAtOnce) {
    duringFrame = [this] {
        clock.reset();
        window.reset();
    };
    clock->setWanted(true);
    window->show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return frames > 0; }, 30000));
    EXPECT_EQ(frames, 1);
}

#ifdef Q_OS_LINUX
/// What a window manager does with a window that it minimises: the server takes it away, and no widget is told.
void takeOffTheScreen(const QWindow& window) {
    using UnmapWindow = unsigned (*)(xcb_connection_t*, std::uint32_t);
    using Flush = int (*)(xcb_connection_t*);
    QLibrary xcb("xcb", 1);
    const auto unmapWindow = reinterpret_cast<UnmapWindow>(xcb.resolve("xcb_unmap_window"));
    const auto flush = reinterpret_cast<Flush>(xcb.resolve("xcb_flush"));
    ASSERT_TRUE(unmapWindow && flush);
    auto* const connection = qApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    unmapWindow(connection, static_cast<std::uint32_t>(window.winId()));
    flush(connection);
}

TEST_P(FramesOfWindow, StopWhenTheServerTakesTheWindowOffTheScreen) {
    if (QGuiApplication::platformName() != "xcb") GTEST_SKIP() << "needs an X server";
    run();
    takeOffTheScreen(*window->windowHandle());
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window->windowHandle()->isExposed(); }, 30000));
    EXPECT_TRUE(canvas->isVisible());
    EXPECT_TRUE(isAsleep());
}
#endif

}  // namespace
}  // namespace lumo
