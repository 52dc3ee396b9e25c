#include "app/AppDelegate.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "app/HeaderBar.h"
#include "app/MainView.h"
#include "app/StatusBar.h"
#include "gui/EventCount.h"
#include "support/LinkFixture.h"

namespace lumo {
namespace {

class Delegate : public test::LinkFixture {
protected:
    AppDelegate delegate;

    QMainWindow& launch() {
        delegate.applicationDidFinishLaunching();
        return *delegate.window();
    }
};

TEST_F(Delegate, HasNoWindowBeforeTheLaunch) { EXPECT_EQ(delegate.window(), nullptr); }

TEST_F(Delegate, TheWindowHasTheStatedSizesTitleAndContent) {
    const QMainWindow& window = launch();
    EXPECT_EQ(window.size(), QSize(960, 760));
    EXPECT_EQ(window.minimumSize(), QSize(900, 680));
    EXPECT_EQ(window.windowTitle(), "Vexa Lumo 65");
    EXPECT_NE(dynamic_cast<MainView*>(window.centralWidget()), nullptr);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.palette().color(QPalette::Window), QColor(0x1A, 0x1A, 0x1A));
}

TEST_F(Delegate, TheWindowCannotBeMadeSmallerThanItsMinimum) {
    QMainWindow& window = launch();
    window.resize(300, 200);
    EXPECT_EQ(window.size(), QSize(900, 680));
}

TEST_F(Delegate, TheWindowStandsInTheMiddleOfTheScreenOrAtItsCornerWhenTheScreenIsTooSmall) {
    const QRect place = launch().geometry();
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_NEAR(place.left(), screen.left() + std::max(0, (screen.width() - 960) / 2), 1);
    EXPECT_NEAR(place.top(), screen.top() + std::max(0, (screen.height() - 760) / 2), 1);
}

TEST_F(Delegate, TheWindowComesBackFromTheDockWhenTheProgramIsStartedOnceMore) {
    QMainWindow& window = launch();
    window.showMinimized();
    delegate.applicationShouldHandleReopen();
    EXPECT_FALSE(window.isMinimized());
    EXPECT_TRUE(window.isVisible());
}

TEST_F(Delegate, LaunchingBringsTheDeviceLinkToLife) {
    EXPECT_TRUE(platform.ioQueueLabel.empty());
    launch();
    EXPECT_EQ(platform.ioQueueLabel, "com.vexalumo.lumo65.ioqueue");
    hid.plugKeyboard();
    time.settle();
    EXPECT_EQ(link().statusMessage.get(), "Connected & Authenticated");
}

/// Notes what is asked of a platform, in order.
class NotingPlatform final : public Platform {
public:
    explicit NotingPlatform(Platform& noted) : m_noted(noted) {}
    std::vector<std::string> asked;

    MainQueue mainQueue() override { return m_noted.mainQueue(); }
    std::unique_ptr<BlockingExecutor> makeIoQueue(std::string_view label) override {
        asked.emplace_back("I/O queue");
        return m_noted.makeIoQueue(label);
    }
    std::unique_ptr<HidManager> makeHidManager(IoQueue io) override {
        asked.emplace_back("HID manager");
        return m_noted.makeHidManager(io);
    }
    Bundle& bundle() override { return m_noted.bundle(); }
    Desktop& desktop() override { return m_noted.desktop(); }
    Preferences& preferences() override {
        asked.emplace_back("preferences");
        return m_noted.preferences();
    }
    Privacy& privacy() override { return m_noted.privacy(); }
    void print(std::string_view line) override { m_noted.print(line); }

private:
    Platform& m_noted;
};

TEST(DelegateLaunch, TakesTheLinkBeforeThePermissions) {
    test::TestPlatform platform;
    NotingPlatform noting(platform);
    SharedObjects objects(noting);
    AppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    EXPECT_EQ(noting.asked, (std::vector<std::string>{"I/O queue", "HID manager", "preferences"}));
}

class DelegatePaints : public Delegate {
protected:
    std::unique_ptr<test::EventCount> header;
    std::unique_ptr<test::EventCount> status;

    void SetUp() override {
        platform.grants.audio = AudioAuthorization::authorized;
        platform.grants.canListen = true;
        platform.kept.values["VexaLumoHasLaunchedBefore"] = true;  // no popup fades in
        // From the event loop, as the program does it.
        const auto watch = [this] {
            const QMainWindow& window = launch();
            header = std::make_unique<test::EventCount>(*window.findChild<HeaderBar*>(), QEvent::Paint);
            status = std::make_unique<test::EventCount>(*window.findChild<StatusBar*>(), QEvent::Paint);
        };
        QMetaObject::invokeMethod(qApp, watch, Qt::QueuedConnection);
        ASSERT_TRUE(QTest::qWaitFor([this] { return status && header->count() > 0 && status->count() > 0; }, 30000));
    }

    /// Shows a message and waits for its paint: whatever was to be painted before is painted with it.
    void paintStatus() {
        status->forget();
        link().statusMessage.set("Good morning");
        time.settle();
        ASSERT_TRUE(QTest::qWaitFor([this] { return status->count() > 0; }, 30000));
    }
};

TEST_F(DelegatePaints, ANewWindowIsPaintedOnce) {
    paintStatus();
    EXPECT_EQ(header->count(), 1);
}

TEST_F(DelegatePaints, AFocusThatNoControlHasIsNotSeenAndPaintsNothing) {
    header->forget();
    delegate.window()->centralWidget()->clearFocus();
    delegate.window()->centralWidget()->setFocus();
    paintStatus();
    EXPECT_EQ(header->count(), 0);
}

TEST_F(Delegate, ClosingTheOnlyWindowQuitsTheApplication) {
    EXPECT_TRUE(AppDelegate::applicationShouldTerminateAfterLastWindowClosed());
    QGuiApplication::setQuitOnLastWindowClosed(AppDelegate::applicationShouldTerminateAfterLastWindowClosed());
    QMainWindow& window = launch();
    QMetaObject::invokeMethod(
        qApp, [&] { window.close(); }, Qt::QueuedConnection);
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(Delegate, TheMenuHoldsOnlyTheQuitItemWithItsKeyEquivalent) {
    const QMainWindow& window = launch();
    const auto menus = window.findChildren<QMenu*>();
    ASSERT_EQ(menus.size(), 1);
    ASSERT_EQ(menus.front()->actions().size(), 1);
    const QAction& quit = *menus.front()->actions().front();
    EXPECT_EQ(&quit, &delegate.quitAction());
    EXPECT_EQ(quit.text(), "Quit Vexa Lumo 65");
    EXPECT_EQ(quit.shortcut(), QKeySequence("Ctrl+Q"));
}

TEST_F(Delegate, CtrlQQuitsTheApplication) {
    QMainWindow& window = launch();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));  // a shortcut counts in the active window only
    QMetaObject::invokeMethod(
        qApp, [&] { QTest::keyClick(&window, Qt::Key_Q, Qt::ControlModifier); }, Qt::QueuedConnection);
    EXPECT_EQ(QApplication::exec(), 0);
}

TEST_F(Delegate, QuittingTakesTheWindowAwayAndEndsTheTrafficWithoutWaiting) {
    const QMainWindow& window = launch();
    connect();
    link().setLightingMode(5);
    delegate.applicationWillTerminate();
    EXPECT_FALSE(window.isVisible());
    time.settle();
    EXPECT_TRUE(commandsSent().empty());
}

TEST(DelegateWithoutLaunch, QuittingBeforeTheLaunchIsHarmless) {
    test::TestPlatform platform;
    SharedObjects objects(platform);
    AppDelegate delegate;
    delegate.applicationWillTerminate();
    EXPECT_EQ(delegate.window(), nullptr);
}

}  // namespace
}  // namespace lumo
