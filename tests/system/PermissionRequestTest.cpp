#include <optional>

#include "system/PermissionFixture.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto kMicrophoneLink = "open x-apple.systempreferences:com.apple.preference.security?Privacy_Microphone";
constexpr auto kListenLink = "open x-apple.systempreferences:com.apple.preference.security?Privacy_ListenEvent";
constexpr auto kAccessibilityLink =
    "open x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility";

class PermissionRequest : public test::PermissionFixture {
protected:
    PermissionRequest() {
        (void)manager();
        turn();
        grants.timesSampled = 0;
    }
    std::optional<bool> answer;
    std::function<void(bool)> noteAnswer = [this](bool isGranted) { answer = isGranted; };
};

TEST_F(PermissionRequest, OfAnAuthorizedMicrophoneIsAnsweredInALaterTurnAfterACheck) {
    grants.audio = AudioAuthorization::authorized;
    int sampledAtAnswer = 0;
    manager().requestMicrophoneAccess([&](bool isGranted) {
        answer = isGranted;
        sampledAtAnswer = grants.timesSampled;
        EXPECT_TRUE(manager().isMicrophoneAuthorized.get());
    });
    EXPECT_FALSE(answer);
    turn();
    EXPECT_EQ(answer, true);
    EXPECT_EQ(sampledAtAnswer, 2);  // for the request itself, and by the check
    EXPECT_THAT(journal, IsEmpty());
}

TEST_F(PermissionRequest, OfTheMicrophonePublishesTheAnswerBeforeTheCheckThatFollows) {
    grants.audio = AudioAuthorization::authorized;
    manager().requestMicrophoneAccess();
    std::optional<int> sampledAtFirstWrite;
    const auto watching = manager().observe([&] {
        if (!sampledAtFirstWrite) sampledAtFirstWrite = grants.timesSampled;
    });
    turn();
    EXPECT_EQ(sampledAtFirstWrite, 1);  // for the request itself
}

TEST_F(PermissionRequest, OfARefusedMicrophoneOpensItsPaneAndIsAnsweredNoAtOnce) {
    for (const int status : {1, 2, 4}) {
        journal.clear();
        answer.reset();
        grants.audio = static_cast<AudioAuthorization>(status);
        manager().requestMicrophoneAccess(noteAnswer);
        EXPECT_EQ(answer, false) << status;
        EXPECT_THAT(journal, ElementsAre(kMicrophoneLink)) << status;
    }
}

TEST_F(PermissionRequest, OfAMicrophoneNeverAskedForAsksAndWaitsForTheAnswer) {
    manager().requestMicrophoneAccess(noteAnswer);
    EXPECT_THAT(journal, ElementsAre("request audio"));
    time.advance(10s);
    EXPECT_FALSE(answer);
    grants.answerMicrophone(true);
    EXPECT_FALSE(answer);  // the system may answer on another thread: nothing happens in its call
    EXPECT_FALSE(manager().isMicrophoneAuthorized.get());
    turn();
    EXPECT_EQ(answer, true);
    EXPECT_TRUE(manager().isMicrophoneAuthorized.get());
}

TEST_F(PermissionRequest, OfAMicrophoneThatIsThenRefusedOpensNothing) {
    manager().requestMicrophoneAccess(noteAnswer);
    grants.answerMicrophone(false);
    turn();
    EXPECT_EQ(answer, false);
    EXPECT_FALSE(manager().isMicrophoneAuthorized.get());
    EXPECT_THAT(journal, ElementsAre("request audio"));
}

TEST_F(PermissionRequest, OfTheMicrophoneNeedsNobodyToWaitForIt) {
    for (const int status : {0, 2, 3}) {
        grants.audio = static_cast<AudioAuthorization>(status);
        manager().requestMicrophoneAccess();
        if (grants.asksForMicrophone()) grants.answerMicrophone(true);
        turn();
    }
    EXPECT_THAT(journal, ElementsAre("request audio", kMicrophoneLink));
}

TEST_F(PermissionRequest, OfInputMonitoringAsksForBothGrantsAndThenOpensThePane) {
    manager().requestInputMonitoringAccess();
    EXPECT_THAT(journal, ElementsAre("request listen", "trusted, with prompt", kListenLink));
}

TEST_F(PermissionRequest, OfInputMonitoringOpensNoPaneWhereEitherGrantIsThere) {
    grants.canListen = true;
    manager().requestInputMonitoringAccess();
    grants.canListen = false;
    grants.isTrusted = true;
    manager().requestInputMonitoringAccess();
    EXPECT_THAT(journal,
                ElementsAre("request listen", "trusted, with prompt", "request listen", "trusted, with prompt"));
}

TEST_F(PermissionRequest, OfInputMonitoringIsFollowedByACheckFourTenthsOfASecondLater) {
    manager().requestInputMonitoringAccess();
    time.advance(399ms);
    EXPECT_EQ(grants.timesSampled, 0);
    time.advance(1ms);
    EXPECT_EQ(grants.timesSampled, 1);
}

TEST_F(PermissionRequest, OfAllAsksForTheKeysOnceTheMicrophoneIsSettledWhateverTheAnswer) {
    for (const bool isGranted : {true, false}) {
        journal.clear();
        grants.audio = AudioAuthorization::notDetermined;
        manager().requestAllInitialPermissions();
        turn();
        EXPECT_THAT(journal, ElementsAre("request audio"));
        grants.answerMicrophone(isGranted);
        turn();
        EXPECT_THAT(journal, ElementsAre("request audio", "request listen", "trusted, with prompt", kListenLink));
    }
}

TEST_F(PermissionRequest, OfAllWithARefusedMicrophoneOpensThatPaneFirst) {
    grants.audio = AudioAuthorization::denied;
    manager().requestAllInitialPermissions();
    EXPECT_THAT(journal, ElementsAre(kMicrophoneLink, "request listen", "trusted, with prompt", kListenLink));
}

TEST_F(PermissionRequest, SettingsOpenAtThePaneOfTheType) {
    manager().openSystemSettings(PermissionType::microphone);
    manager().openSystemSettings(PermissionType::inputMonitoring);
    manager().openSystemSettings(PermissionType::accessibility);
    EXPECT_THAT(journal, ElementsAre(kMicrophoneLink, kListenLink, kAccessibilityLink));
}

TEST_F(PermissionRequest, ARelaunchEndsThisProcessInALaterTurnOnceTheOtherWasAskedFor) {
    manager().relaunchApp();
    time.advance(10s);
    EXPECT_THAT(journal, ElementsAre("open this application"));  // no time is waited, only the answer
    platform.surroundings.completeOpening();
    EXPECT_THAT(journal, ElementsAre("open this application"));
    turn();
    EXPECT_THAT(journal, ElementsAre("open this application", "terminate"));
}

}  // namespace
}  // namespace lumo
