#include "system/PermissionFixture.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

using PermissionCheck = test::PermissionFixture;

TEST_F(PermissionCheck, SamplesAtOnceAndPublishesInALaterTurn) {
    (void)manager();
    turn();
    grantBoth();
    manager().checkPermissions();
    grants.audio = AudioAuthorization::denied;  // after the sample
    EXPECT_THAT(authorized(), ElementsAre(false, false, false));
    turn();
    EXPECT_THAT(authorized(), ElementsAre(true, true, false));
}

TEST_F(PermissionCheck, OnlyTheNumberOfAuthorizedMeansAuthorized) {
    for (const int status : {0, 1, 2, 4, -1}) {
        grants.audio = static_cast<AudioAuthorization>(status);
        manager().checkPermissions();
        turn();
        EXPECT_FALSE(manager().isMicrophoneAuthorized.get()) << status;
    }
    grants.audio = static_cast<AudioAuthorization>(3);
    manager().checkPermissions();
    turn();
    EXPECT_TRUE(manager().isMicrophoneAuthorized.get());
}

TEST_F(PermissionCheck, AccessibilityAloneAlsoAllowsInputMonitoring) {
    grants.isTrusted = true;
    manager().checkPermissions();
    turn();
    EXPECT_THAT(authorized(), ElementsAre(false, true, true));
}

TEST_F(PermissionCheck, ListeningAloneIsNotAccessibility) {
    grants.canListen = true;
    manager().checkPermissions();
    turn();
    EXPECT_THAT(authorized(), ElementsAre(false, true, false));
}

TEST_F(PermissionCheck, PublishesMicrophoneThenInputMonitoringThenAccessibility) {
    grants.isTrusted = true;  // not the microphone: no prompt is touched
    std::vector<std::vector<bool>> seen;
    (void)manager();
    const auto watching = manager().observe([&] { seen.push_back(authorized()); });
    turn();
    EXPECT_THAT(seen, ElementsAre(ElementsAre(false, false, false), ElementsAre(false, false, false),
                                  ElementsAre(false, true, false)));
    EXPECT_THAT(authorized(), ElementsAre(false, true, true));
}

TEST_F(PermissionCheck, RevokingAGrantLowersItsFlagAndRaisesNoPrompt) {
    launchedBefore();
    grantBoth();
    (void)manager();
    turn();
    grants.canListen = false;
    time.advance(2s);
    EXPECT_THAT(authorized(), ElementsAre(true, false, false));
    EXPECT_THAT(prompts(), ElementsAre(false, false, false));
}

TEST_F(PermissionCheck, IsMadeEveryTwoSecondsForAsLongAsTheProcessLives) {
    (void)manager();
    time.advance(1999ms);
    EXPECT_EQ(grants.timesSampled, 1);  // the launch
    time.advance(1ms);
    EXPECT_EQ(grants.timesSampled, 2);
    time.advance(3600s);
    EXPECT_EQ(grants.timesSampled, 1802);
}

TEST_F(PermissionCheck, IsMadeAtOnceAndTwiceMoreAfterTheProgramCameToTheFront) {
    (void)manager();
    time.advance(100ms);
    platform.surroundings.becomeActive();
    EXPECT_EQ(grants.timesSampled, 2);
    time.advance(299ms);
    EXPECT_EQ(grants.timesSampled, 2);
    time.advance(1ms);
    EXPECT_EQ(grants.timesSampled, 3);
    time.advance(699ms);
    EXPECT_EQ(grants.timesSampled, 3);
    time.advance(1ms);
    EXPECT_EQ(grants.timesSampled, 4);
}

TEST_F(PermissionCheck, NothingHoldsTheManagerButACheckThatHasNotPublishedYet) {
    auto alone = PermissionManager::make(time.mainQueue(), grants, platform.surroundings, platform.kept);
    platform.surroundings.becomeActive();  // and delayed checks to come
    const std::weak_ptr<PermissionManager> seen = alone;
    alone.reset();
    EXPECT_FALSE(seen.expired());
    turn();
    EXPECT_TRUE(seen.expired());
    const int sampled = grants.timesSampled;
    time.advance(10s);
    platform.surroundings.becomeActive();
    EXPECT_EQ(grants.timesSampled, sampled);
}

}  // namespace
}  // namespace lumo
