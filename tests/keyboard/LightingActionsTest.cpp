// What choosing an effect does.
#include "keyboard/LightingActions.h"

#include <gmock/gmock.h>

#include "support/LinkFixture.h"

namespace lumo {
namespace {

using testing::ElementsAre;

class Lighting : public test::LinkFixture {
protected:
    LightingActions actions{link(), state(), keyboard()};
};

TEST_F(Lighting, ChoosingAnEffectSendsItWithTheChosenLevelsAndColor) {
    connect();
    state().speedLevel.set(1.0);
    state().brightnessLevel.set(3.0);
    state().selectedColor.set(Color{1.0, 0.5, 0.0});
    actions.chooseEffect(5);
    time.settle();
    EXPECT_EQ(link().statusMessage.get(), "Applied: Raindrops");
    const auto write = firmware.lastWrite(0x04);
    EXPECT_EQ(write.at(18), 0x0F);
    EXPECT_EQ(write.at(19), 1);
    EXPECT_EQ(write.at(20), 3);
    const auto colors = firmware.lastWrite(0x0A);
    EXPECT_EQ(colors.at(9), 255);
    EXPECT_EQ(colors.at(10), 127);
    EXPECT_EQ(colors.at(11), 0);
}

TEST_F(Lighting, LevelsAreTruncatedToWholeSteps) {
    connect();
    state().speedLevel.set(2.9);
    actions.chooseEffect(5);
    time.settle();
    EXPECT_EQ(firmware.lastWrite(0x04).at(19), 2);
}

TEST_F(Lighting, Effect21UploadsTheKeysAndSendsNoModeCommand) {
    connect();
    actions.chooseEffect(21);
    time.settle();
    EXPECT_THAT(commandsSent(), ElementsAre(0x09, 0x09, 0x06, 0x84, 0x04));
    EXPECT_EQ(link().activeModeId.get(), 21);
}

TEST_F(Lighting, Effect18UploadsTheKeysAndEndsAsThePerKeyEffect) {
    connect();
    actions.chooseEffect(18);
    EXPECT_EQ(link().activeModeId.get(), 21);
    time.settle();
    EXPECT_THAT(commandsSent(), ElementsAre(0x09, 0x09, 0x06, 0x84, 0x04));
    EXPECT_EQ(link().statusMessage.get(), "Custom Per-Key RGB Synchronized (67 keys)");
}

TEST_F(Lighting, Effect1ShowsTheChosenColorOnEveryKeyBeforeTheCommandIsSent) {
    connect();
    state().selectedColor.set(Color{0.0, 1.0, 0.0});
    actions.chooseEffect(1);
    for (const KeyCap& key : keyboard().keys.get()) EXPECT_EQ(key.customColor, (Color{0.0, 1.0, 0.0}));
    EXPECT_EQ(keyboard().currentColor.get(), std::nullopt);
    time.settle();
    EXPECT_THAT(commandsSent(), ElementsAre(0x8A, 0x0A, 0x84, 0x04));
}

TEST_F(Lighting, OtherEffectsLeaveTheKeysColorsAlone) {
    state().selectedColor.set(Color{0.0, 1.0, 0.0});
    actions.chooseEffect(2);
    for (const KeyCap& key : keyboard().keys.get()) EXPECT_EQ(key.customColor, kDefaultColor);
}

TEST_F(Lighting, WithoutAKeyboardTheChoiceIsPreviewed) {
    actions.chooseEffect(0);
    time.settle();
    EXPECT_EQ(link().statusMessage.get(), "Previewing LED OFF (Simulated)");
    EXPECT_EQ(link().activeModeId.get(), 0);
}

}  // namespace
}  // namespace lumo
