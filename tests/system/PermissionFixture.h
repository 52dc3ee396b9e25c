// The manager of permissions over doubles, in virtual time.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/SharedObjects.h"
#include "support/TestPlatform.h"

namespace lumo::test {

class PermissionFixture : public testing::Test {
protected:
    TestPlatform platform;
    VirtualTime& time = platform.time;
    FakePrivacy& grants = platform.grants;
    Journal& journal = platform.journal;
    SharedObjects objects{platform};

    static constexpr auto kFlag = "VexaLumoHasLaunchedBefore";

    void launchedBefore() { platform.kept.values[kFlag] = true; }
    void grantBoth() {
        grants.audio = AudioAuthorization::authorized;
        grants.canListen = true;
    }
    PermissionManager& manager() { return objects.permissionManager(); }

    /// Welcome, recheck, toast.
    std::vector<bool> prompts() {
        return {manager().showFirstLaunchPopup.get(), manager().showRecheckPopup.get(),
                manager().showPermissionToast.get()};
    }
    /// Microphone, input monitoring, accessibility.
    std::vector<bool> authorized() {
        return {manager().isMicrophoneAuthorized.get(), manager().isInputMonitoringAuthorized.get(),
                manager().isAccessibilityAuthorized.get()};
    }
    void turn() { time.advance(Duration{0}); }
};

}  // namespace lumo::test
