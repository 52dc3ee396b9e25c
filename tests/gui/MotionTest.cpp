#include "controls/Motion.h"

#include <gtest/gtest.h>

#include <QDBusPendingCallWatcher>
#include <QTest>
#include <optional>

#include "controls/Fade.h"
#include "gui/SettingsPortal.h"
#include "platform/qt/MotionPreference.h"
#include "platform/qt/SessionBus.h"

namespace lumo {
namespace {

constexpr auto kAppearance = "org.freedesktop.appearance";
constexpr auto kReducedMotion = "reduced-motion";
constexpr auto kGnomeInterface = "org.gnome.desktop.interface";
constexpr auto kEnableAnimations = "enable-animations";

class MotionOnDesktop : public testing::Test {
protected:
    test::PrivateBus bus;
    test::SettingsPortal portal{bus};
    std::optional<MotionPreference> preference;

    MotionOnDesktop() {
        portal.set(kAppearance, "color-scheme", 1U);
        portal.set(kGnomeInterface, "cursor-size", 24);
    }
    void askPortal() {
        ASSERT_TRUE(portal.open());
        preference.emplace(bus.connect());
        ASSERT_TRUE(QTest::qWaitFor([this] { return portal.questions() == 1; }, 30000));
        settle();
    }
    void announce(const QString& group, const QString& key, const QVariant& value) {
        portal.announce(group, key, value);
        settle();
    }

private:
    /// What one connection says to another arrives in order: when this answer is here, all before it is.
    void settle() {
        const QDBusPendingCallWatcher answer(bus.connect()().asyncCall(test::SettingsPortal::question({})));
        ASSERT_TRUE(QTest::qWaitFor([&answer] { return answer.isFinished(); }, 30000));
        QCoreApplication::processEvents();
    }
};

TEST_F(MotionOnDesktop, IsFullWithoutAPreference) { EXPECT_FALSE(motionIsReduced()); }

TEST_F(MotionOnDesktop, IsReducedWhereTheDesktopAsksForLess) {
    portal.set(kAppearance, kReducedMotion, 1U);
    askPortal();
    EXPECT_TRUE(motionIsReduced());
}

TEST_F(MotionOnDesktop, IsReducedWhereAnimationsAreOff) {
    portal.set(kGnomeInterface, kEnableAnimations, false);
    askPortal();
    EXPECT_TRUE(motionIsReduced());
}

TEST_F(MotionOnDesktop, IsFullWhereTheDesktopWishesNothing) {
    portal.set(kAppearance, kReducedMotion, 0U);
    portal.set(kGnomeInterface, kEnableAnimations, true);
    askPortal();
    EXPECT_FALSE(motionIsReduced());
}

TEST_F(MotionOnDesktop, IsFullWhereTheDesktopKnowsNoSuchSettings) {
    askPortal();
    EXPECT_FALSE(motionIsReduced());
}

TEST_F(MotionOnDesktop, ReadsNoWishOutOfOtherTypesOfValues) {
    portal.set(kAppearance, kReducedMotion, QString("yes"));
    portal.set(kGnomeInterface, kEnableAnimations, 0);
    askPortal();
    EXPECT_FALSE(motionIsReduced());
}

TEST_F(MotionOnDesktop, FollowsEachOfTheTwoSettings) {
    askPortal();
    announce(kAppearance, kReducedMotion, 1U);
    EXPECT_TRUE(motionIsReduced());
    announce(kAppearance, kReducedMotion, 0U);
    EXPECT_FALSE(motionIsReduced());
    announce(kGnomeInterface, kEnableAnimations, false);
    EXPECT_TRUE(motionIsReduced());
    announce(kGnomeInterface, kEnableAnimations, true);
    EXPECT_FALSE(motionIsReduced());
}

TEST_F(MotionOnDesktop, StaysReducedWhileOneOfTheTwoSettingsSaysSo) {
    portal.set(kAppearance, kReducedMotion, 1U);
    portal.set(kGnomeInterface, kEnableAnimations, false);
    askPortal();
    announce(kGnomeInterface, kEnableAnimations, true);
    EXPECT_TRUE(motionIsReduced());
    announce(kAppearance, kReducedMotion, 0U);
    EXPECT_FALSE(motionIsReduced());
}

TEST_F(MotionOnDesktop, ListensToNoOtherSetting) {
    askPortal();
    announce(kAppearance, "contrast", 1U);
    announce(kGnomeInterface, kReducedMotion, 1U);
    announce(kAppearance, kEnableAnimations, false);
    EXPECT_FALSE(motionIsReduced());
}

TEST_F(MotionOnDesktop, MakesAFadeJumpAtOnce) {
    QWidget owner;
    Fade fade(owner);
    owner.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&owner));
    askPortal();
    fade.to(1.0, 100000);
    EXPECT_LT(fade.value(), 1.0);
    announce(kAppearance, kReducedMotion, 1U);
    fade.to(0.5, 100000);
    EXPECT_EQ(fade.value(), 0.5);
}

TEST_F(MotionOnDesktop, FollowsAPortalThatComesLater) {
    preference.emplace(bus.connect());
    QTest::qWait(20);
    ASSERT_TRUE(portal.open());
    EXPECT_TRUE(QTest::qWaitFor([this] {
        portal.announce(kAppearance, kReducedMotion, 1U);  // again, until somebody listens
        return motionIsReduced();
    }));
}

/// All that the program and its libraries write to the console.
class SilentMotion : public testing::Test {
protected:
    SilentMotion() {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
    }
    [[nodiscard]] static std::string said() {
        return testing::internal::GetCapturedStdout() + testing::internal::GetCapturedStderr();
    }
};

TEST_F(SilentMotion, IsFullWithABusThatIsNotThere) {
    {
        const MotionPreference preference([] { return QDBusConnection::connectToBus("unix:path=/nowhere", "nobody"); });
        QTest::qWait(20);
        EXPECT_FALSE(motionIsReduced());
    }
    EXPECT_EQ(said(), "");
}

TEST_F(SilentMotion, IsFullWithABusWithoutAPortalAndAfterThatBusIsGone) {
    test::PrivateBus bus;
    const MotionPreference preference(bus.connect());
    QTest::qWait(50);
    bus.stop();
    QTest::qWait(20);
    EXPECT_FALSE(motionIsReduced());
    EXPECT_EQ(said(), "");
}

/// Of the environment; is at the end what it was at the start.
class KeptVariable final {
public:
    explicit KeptVariable(const char* name) : m_name(name), m_wasSet(qEnvironmentVariableIsSet(name)) {}
    ~KeptVariable() { m_wasSet ? qputenv(m_name, m_value) : qunsetenv(m_name); }
    KeptVariable(const KeptVariable&) = delete;
    KeptVariable& operator=(const KeptVariable&) = delete;

private:
    const char* m_name;
    bool m_wasSet;
    QByteArray m_value = qgetenv(m_name);
};

class SessionBus : public testing::Test {
protected:
    const KeptVariable address{"DBUS_SESSION_BUS_ADDRESS"};
    const KeptVariable folder{"XDG_RUNTIME_DIR"};
};

TEST_F(SessionBus, IsTheOneTheSessionNames) {
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/somewhere");
    qputenv("XDG_RUNTIME_DIR", "/nonexistent");
    EXPECT_TRUE(hasSessionBus());
}

TEST_F(SessionBus, IsTheOneInTheUsersFolderOtherwise) {
    const QTemporaryDir runtime;
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
    EXPECT_FALSE(hasSessionBus());
    ASSERT_TRUE(QFile(runtime.filePath("bus")).open(QFile::WriteOnly));
    EXPECT_TRUE(hasSessionBus());
}

TEST_F(SessionBus, IsNeverStarted) {
    qputenv("DBUS_SESSION_BUS_ADDRESS", "autolaunch:");
    EXPECT_FALSE(hasSessionBus());
}

}  // namespace
}  // namespace lumo
