// What the controls of the music page do.
#include "audio/MusicActions.h"

#include <gmock/gmock.h>

#include "audio/MusicModes.h"
#include "support/LinkFixture.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class Music : public test::LinkFixture {
protected:
    AudioVisualizerEngine& engine() { return objects.audioVisualizerEngine(); }
    MusicActions actions{link(), engine(), state(), objects.permissionManager()};

    void allowMicrophone() {
        platform.grants.audio = AudioAuthorization::authorized;
        objects.permissionManager().checkPermissions();
        time.advance(0ms);
    }
    std::string statusAfterChoosing(std::int64_t id) {
        actions.chooseMode(id);
        return link().statusMessage.get();
    }
};

TEST_F(Music, TheToggleStartsAndStopsOnceTheMicrophoneIsAllowed) {
    allowMicrophone();
    actions.toggleStream();
    EXPECT_TRUE(engine().isRunning.get());
    actions.toggleStream();
    EXPECT_FALSE(engine().isRunning.get());
    EXPECT_THAT(platform.journal, IsEmpty());
}

TEST_F(Music, TheToggleAsksForTheMicrophoneAndStartsWithItsGrant) {
    actions.toggleStream();
    EXPECT_FALSE(engine().isRunning.get());
    EXPECT_THAT(platform.journal, ElementsAre("request audio"));
    platform.grants.answerMicrophone(true);
    EXPECT_FALSE(engine().isRunning.get());
    time.advance(0ms);
    EXPECT_TRUE(engine().isRunning.get());
}

TEST_F(Music, TheToggleDoesNothingWhenTheAnswerIsNo) {
    actions.toggleStream();
    platform.grants.answerMicrophone(false);
    time.advance(1s);
    EXPECT_FALSE(engine().isRunning.get());
}

TEST_F(Music, WithARefusedMicrophoneTheToggleLeadsToTheSettingsAndStartsNothing) {
    platform.grants.audio = AudioAuthorization::denied;
    actions.toggleStream();
    time.advance(1s);
    EXPECT_FALSE(engine().isRunning.get());
    EXPECT_THAT(platform.journal,
                ElementsAre("open x-apple.systempreferences:com.apple.preference.security?Privacy_Microphone"));
}

TEST_F(Music, WithARefusedMicrophoneAModeStartsTheStream) {
    platform.grants.audio = AudioAuthorization::denied;
    actions.chooseMode(1);
    EXPECT_TRUE(engine().isRunning.get());
    EXPECT_THAT(platform.journal, IsEmpty());
}

TEST_F(Music, ARunningStreamIsStoppedWithoutAnyPermission) {
    actions.chooseMode(1);
    actions.toggleStream();
    EXPECT_FALSE(engine().isRunning.get());
    EXPECT_THAT(platform.journal, IsEmpty());
}

TEST_F(Music, GrantAccessAsksAndStartsNothing) {
    actions.grantAccess();
    EXPECT_THAT(platform.journal, ElementsAre("request audio"));
    platform.grants.answerMicrophone(true);
    time.advance(1s);
    EXPECT_TRUE(objects.permissionManager().isMicrophoneAuthorized.get());
    EXPECT_FALSE(engine().isRunning.get());
}

TEST_F(Music, AModeIsStoredShownAsEffect17AndSaidAndNothingIsSent) {
    connect();
    actions.chooseMode(2);
    EXPECT_EQ(state().activeMusicMode.get(), 2);
    EXPECT_EQ(link().activeModeId.get(), 17);
    EXPECT_EQ(link().statusMessage.get(), "Music reactive mode: Dazzling - rock");
    time.settle();
    EXPECT_THAT(firmware.writes(), IsEmpty());  // the first tick comes later
}

TEST_F(Music, OfAModeTheKeyboardHearsOnlyTheBrightness) {
    connect();
    const auto registers = firmware.parameterBlock();
    actions.chooseMode(9);
    time.advance(50ms);
    EXPECT_THAT(commandsSent(), ElementsAre(0x84, 0x04));
    EXPECT_EQ(firmware.lastWrite(0x04).at(18), registers.at(18));
    EXPECT_EQ(firmware.lastWrite(0x04).at(20), 2);
}

TEST_F(Music, AnotherModeLeavesTheRunningStreamAlone) {
    actions.chooseMode(1);
    time.advance(20ms);
    actions.chooseMode(2);
    time.advance(13ms);
    EXPECT_NE(engine().frequencyLevels.get().front(), 0.1);
}

TEST_F(Music, TheTenModesAreNamedInTheStatus) {
    EXPECT_EQ(statusAfterChoosing(1), "Music reactive mode: Audio dance - soft");
    EXPECT_EQ(statusAfterChoosing(2), "Music reactive mode: Dazzling - rock");
    EXPECT_EQ(statusAfterChoosing(3), "Music reactive mode: Clouds rise and snow fly - routine");
    EXPECT_EQ(statusAfterChoosing(4), "Music reactive mode: Light Field Change - voice");
    EXPECT_EQ(statusAfterChoosing(5), "Music reactive mode: The gurgling stream - regular");
    EXPECT_EQ(statusAfterChoosing(6), "Music reactive mode: Blooming - passion");
    EXPECT_EQ(statusAfterChoosing(7), "Music reactive mode: Pearl falling jade plate - rock");
    EXPECT_EQ(statusAfterChoosing(8), "Music reactive mode: Clouds follow the moon - passion");
    EXPECT_EQ(statusAfterChoosing(9), "Music reactive mode: Mountains and Flowing Waters - regular");
    EXPECT_EQ(statusAfterChoosing(10), "Music reactive mode: Raining like silk - regular");
    EXPECT_EQ(kMusicModes.size(), 10U);
}

TEST_F(Music, AModeThatDoesNotExistIsCalledMode17) {
    EXPECT_EQ(statusAfterChoosing(11), "Music reactive mode: Mode 17");
    EXPECT_EQ(state().activeMusicMode.get(), 11);
}

}  // namespace
}  // namespace lumo
