// What choosing an effect does.
#include "keyboard/LightingActions.h"

#include <gmock/gmock.h>

#include "support/LinkFixture.h"

namespace lumo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Color kGreen{0.0, 1.0, 0.0};

class Lighting : public test::LinkFixture {
protected:
    LightingActions actions{link(), state(), keyboard()};

    std::ptrdiff_t greenKeys() { return std::ranges::count(keyboard().keys.get(), kGreen, &KeyCap::customColor); }
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

TEST_F(Lighting, Effect1PublishesTheKeysBeforeWhatIsSent) {
    std::vector<std::string> writes;
    const auto ofLink = link().observe([&writes] { writes.emplace_back("link"); });
    const auto ofKeys = keyboard().observe([&writes] { writes.emplace_back("keys"); });
    actions.chooseEffect(1);
    EXPECT_THAT(writes, ElementsAre("link", "keys", "link", "link", "link", "link"));
}

TEST_F(Lighting, OtherEffectsLeaveTheKeysColorsAlone) {
    state().selectedColor.set(Color{0.0, 1.0, 0.0});
    actions.chooseEffect(2);
    for (const KeyCap& key : keyboard().keys.get()) EXPECT_EQ(key.customColor, kDefaultColor);
}

TEST_F(Lighting, AColorIsSentWithTheEffect) {
    connect();
    actions.pickColor(Color{0.0, 0.5, 1.0});
    EXPECT_EQ(state().selectedColor.get(), (Color{0.0, 0.5, 1.0}));
    time.settle();
    EXPECT_EQ(link().statusMessage.get(), "Applied: Flash_away (Stream)");
    const auto colors = firmware.lastWrite(0x0A);
    EXPECT_EQ(colors.at(9), 0);
    EXPECT_EQ(colors.at(10), 127);
    EXPECT_EQ(colors.at(11), 255);
}

TEST_F(Lighting, AColorInThePerKeyEffectPaintsEveryKeyWhenNoneIsSelected) {
    connect();
    for (const std::int64_t mode : {21, 18}) {
        keyboard().showColorOnAll(kDefaultColor);
        link().activeModeId.set(mode);
        firmware.forgetWrites();
        actions.pickColor(kGreen);
        time.settle();
        EXPECT_EQ(greenKeys(), 67) << mode;
        EXPECT_THAT(commandsSent(), ElementsAre(0x09, 0x09, 0x06, 0x84, 0x04)) << mode;
    }
}

TEST_F(Lighting, AColorInThePerKeyEffectPaintsOnlyTheSelection) {
    connect();
    link().activeModeId.set(21);
    keyboard().selectPresetGroup("WASD");
    actions.pickColor(kGreen);
    time.settle();
    EXPECT_EQ(greenKeys(), 4);
    EXPECT_THAT(commandsSent(), ElementsAre(0x09, 0x09, 0x06, 0x84, 0x04));
}

TEST_F(Lighting, ThePaletteIsItsEightColors) {
    const ColorBytes expected[] = {{87, 8, 212},  {0, 210, 255}, {255, 0, 120}, {0, 255, 100},
                                   {255, 200, 0}, {255, 60, 0},  {255, 20, 20}, {242, 242, 242}};
    for (std::int64_t index = 0; index < 8; ++index) {
        actions.pickPresetColor(index);
        EXPECT_EQ(toBytes(state().selectedColor.get()), expected[index]) << index;
    }
    EXPECT_EQ(state().selectedColor.get(), (Color{0.95, 0.95, 0.95, 1.0}));
}

TEST_F(Lighting, AnIndexOutsideThePaletteDoesNothing) {
    connect();
    for (const std::int64_t index : {std::int64_t{-1}, std::int64_t{8}, std::int64_t{1} << 40}) {
        actions.pickPresetColor(index);
    }
    time.settle();
    EXPECT_EQ(state().selectedColor.get(), kDefaultColor);
    EXPECT_THAT(commandsSent(), IsEmpty());
}

TEST_F(Lighting, PaintingTheSelectionUploadsFromAnyEffect) {
    connect();
    state().selectedColor.set(kGreen);
    keyboard().selectPresetGroup("Arrows");
    actions.paintSelected();
    time.settle();
    EXPECT_EQ(greenKeys(), 4);
    EXPECT_EQ(link().activeModeId.get(), 21);
    EXPECT_EQ(link().statusMessage.get(), "Custom Per-Key RGB Synchronized (67 keys)");
}

TEST_F(Lighting, FillingAllLeavesEveryKeySelected) {
    connect();
    state().selectedColor.set(kGreen);
    actions.fillAll();
    time.settle();
    EXPECT_EQ(greenKeys(), 67);
    EXPECT_EQ(keyboard().selectedKeyIds.get().size(), 67U);
    EXPECT_THAT(commandsSent(), ElementsAre(0x09, 0x09, 0x06, 0x84, 0x04));
}

TEST_F(Lighting, TheRainbowUploadsOnceAndKeepsTheSelection) {
    connect();
    keyboard().selectKey("K5", false);
    actions.applyRainbow();
    time.settle();
    EXPECT_EQ(keyboard().keys.get().front().customColor, (Color{1.0, 0.0, 0.0}));
    EXPECT_THAT(keyboard().selectedKeyIds.get(), ElementsAre("K5"));
    EXPECT_THAT(commandsSent(), ElementsAre(0x09, 0x09, 0x06, 0x84, 0x04));
}

TEST_F(Lighting, WithoutAKeyboardTheChoiceIsPreviewed) {
    actions.chooseEffect(0);
    time.settle();
    EXPECT_EQ(link().statusMessage.get(), "Previewing LED OFF (Simulated)");
    EXPECT_EQ(link().activeModeId.get(), 0);
}

}  // namespace
}  // namespace lumo
