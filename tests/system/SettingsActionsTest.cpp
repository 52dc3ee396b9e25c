// What the controls of the settings page do to the keyboard.
#include "system/SettingsActions.h"

#include <gmock/gmock.h>

#include "support/LinkFixture.h"

namespace lumo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Settings : public test::LinkFixture {
protected:
    SettingsActions actions{link(), state()};

    int levelAfterEditing(double ms) {
        state().debounceMs.set(ms);
        actions.editDebounce();
        time.settle();
        return firmware.lastWrite(0x04).at(10);
    }
};

TEST_F(Settings, TheDebounceIsSentInWholeMilliseconds) {
    connect();
    EXPECT_EQ(levelAfterEditing(4.0), 0);
    EXPECT_EQ(levelAfterEditing(40.0), 4);
    EXPECT_EQ(levelAfterEditing(29.99), 2);
}

TEST_F(Settings, TheSleepTimeoutIsSentToNobody) {
    connect();
    state().sleepMinutes.set(60.0);
    time.settle();
    EXPECT_THAT(firmware.writes(), IsEmpty());
}

TEST_F(Settings, RestoringResetsTheKeyboardAtOnceAndLeavesTheUsersChoicesAlone) {
    connect();
    state().speedLevel.set(1.0);
    state().brightnessLevel.set(1.0);
    state().selectedColor.set(Color{0.0, 1.0, 0.0});
    state().debounceMs.set(40.0);
    keyboard().showColorOnAll(Color{0.0, 1.0, 0.0});
    actions.restoreFactorySettings();
    time.settle();
    EXPECT_THAT(commandsSent(), ElementsAre(0x8A, 0x0A, 0x84, 0x04, 0x84, 0x04));
    EXPECT_EQ(state().speedLevel.get(), 1.0);
    EXPECT_EQ(state().brightnessLevel.get(), 1.0);
    EXPECT_EQ(state().selectedColor.get(), (Color{0.0, 1.0, 0.0}));
    EXPECT_EQ(state().debounceMs.get(), 40.0);
    EXPECT_EQ(keyboard().keys.get().front().customColor, (Color{0.0, 1.0, 0.0}));
}

}  // namespace
}  // namespace lumo
