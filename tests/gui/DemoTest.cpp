// What is simulated around the demo: a privacy centre, and preferences that are gone with the process.
#include <gmock/gmock.h>

#include <QDir>
#include <QTemporaryDir>
#include <optional>

#include "demo/DemoPlatform.h"
#include "support/VirtualTime.h"
#include "system/PermissionManager.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;

class Demo : public testing::Test {
protected:
    test::VirtualTime time;
    vk::PrivacyCenter centre{time.mainQueue().run};
};

TEST_F(Demo, NothingIsGrantedAtFirst) {
    EXPECT_EQ(centre.audioAuthorization(), AudioAuthorization::notDetermined);
    EXPECT_FALSE(centre.preflightListenEventAccess());
    EXPECT_FALSE(centre.isProcessTrustedWithPrompt());
    time.advance(60s);
    EXPECT_EQ(centre.audioAuthorization(), AudioAuthorization::notDetermined);
}

TEST_F(Demo, TheMicrophoneIsGrantedAfterAMoment) {
    std::optional<bool> answer;
    centre.requestAudioAccess([&answer](bool isGranted) { answer = isGranted; });
    time.advance(1s);
    EXPECT_FALSE(answer);
    time.advance(1s);
    EXPECT_EQ(answer, true);
    EXPECT_EQ(centre.audioAuthorization(), AudioAuthorization::authorized);
}

TEST_F(Demo, APaneGrantsItsOwnGrantAfterAMoment) {
    centre.openPane("x-apple.systempreferences:com.apple.preference.security?Privacy_ListenEvent");
    EXPECT_FALSE(centre.preflightListenEventAccess());
    time.advance(2s);
    EXPECT_TRUE(centre.preflightListenEventAccess());
    EXPECT_FALSE(centre.isProcessTrusted());
    EXPECT_EQ(centre.audioAuthorization(), AudioAuthorization::notDetermined);
}

TEST(DemoPreferences, NeverTouchThoseOfTheUser) {
    const QTemporaryDir folder;
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
    {
        vk::DemoPlatform platform{vk::ReportLog()};
        EXPECT_FALSE(platform.preferences().boolForKey(PermissionManager::kHasLaunchedKey));
        platform.setLaunchedBefore();
        EXPECT_TRUE(platform.preferences().boolForKey(PermissionManager::kHasLaunchedKey));
    }
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
    before.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", before);
}

}  // namespace
}  // namespace lumo
