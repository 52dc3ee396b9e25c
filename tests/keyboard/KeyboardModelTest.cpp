// Selecting, painting and the upload that follows.
#include <gmock/gmock.h>

#include "support/LinkFixture.h"

namespace lumo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr Color kGreen{0.0, 1.0, 0.0};

class Keyboard : public test::LinkFixture {
protected:
    std::optional<Color> colorOf(const std::string& id) {
        return std::ranges::find(keyboard().keys.get(), id, &KeyCap::id)->customColor;
    }
    /// The status of an upload tells that it was asked for, and for how many keys.
    void expectUploads(int count) {
        time.settle();
        EXPECT_EQ(uploads(), count);
    }
    int uploads() const { return static_cast<int>(std::ranges::count(commandsSent(), 0x06)); }
};

TEST_F(Keyboard, StartsWithTheLayoutAndNothingSelected) {
    ASSERT_EQ(keyboard().keys.get().size(), 67U);
    EXPECT_EQ(keyboard().keys.get().front().id, "K1");
    EXPECT_EQ(keyboard().keys.get().back().id, "K67");
    EXPECT_THAT(keyboard().selectedKeyIds.get(), IsEmpty());
    EXPECT_EQ(keyboard().currentColor.get(), std::nullopt);
    EXPECT_EQ(keyboard().activeLayer.get(), 0);
}

TEST_F(Keyboard, LoadingTheLayoutAnnouncesOnce) {
    int announced = 0;
    const auto subscription = keyboard().observe([&] { ++announced; });
    keyboard().loadDefaultLayout();
    EXPECT_EQ(announced, 1);
}

TEST_F(Keyboard, SelectingTwiceWithMultiSelectLeavesTheKeyUnselected) {
    keyboard().selectKey("K5", true);
    EXPECT_THAT(keyboard().selectedKeyIds.get(), ElementsAre("K5"));
    keyboard().selectKey("K5", true);
    EXPECT_THAT(keyboard().selectedKeyIds.get(), IsEmpty());
}

TEST_F(Keyboard, TheFirstSelectedKeyIsTheFirstInTheLayout) {
    EXPECT_EQ(keyboard().firstSelectedKey(), nullptr);
    keyboard().selectedKeyIds.set({"K10", "K2"});
    ASSERT_NE(keyboard().firstSelectedKey(), nullptr);
    EXPECT_EQ(keyboard().firstSelectedKey()->id, "K2");
    keyboard().selectedKeyIds.set({"K99"});
    EXPECT_EQ(keyboard().firstSelectedKey(), nullptr);
}

TEST_F(Keyboard, BindingAKeyAnnouncesOnceAndSendsNothing) {
    connect();
    int announced = 0;
    const auto subscription = keyboard().observe([&] { ++announced; });
    keyboard().bindKey("K31", {2, 0, 0, 0xE2}, "Mute");
    EXPECT_EQ(announced, 1);
    const KeyCap& key = keyboard().keys.get().at(30);
    EXPECT_EQ(key.remapBytes, (std::vector<std::uint8_t>{2, 0, 0, 0xE2}));
    EXPECT_EQ(key.remapLabel, "Mute");
    keyboard().bindKey("K99", {2, 0, 0, 0xE2}, "Mute");
    EXPECT_EQ(announced, 1);
    keyboard().unbindKeys();
    EXPECT_EQ(announced, 2);
    EXPECT_EQ(keyboard().keys.get().at(30).remapBytes, std::nullopt);
    time.settle();
    EXPECT_THAT(commandsSent(), IsEmpty());
}

TEST_F(Keyboard, MultiSelectAddsToTheSelection) {
    keyboard().selectKey("K5", true);
    keyboard().selectKey("K6", true);
    EXPECT_THAT(keyboard().selectedKeyIds.get(), UnorderedElementsAre("K5", "K6"));
}

TEST_F(Keyboard, SelectingWithoutMultiSelectLeavesExactlyThatKey) {
    keyboard().selectPresetGroup("All");
    keyboard().selectKey("K5", false);
    EXPECT_THAT(keyboard().selectedKeyIds.get(), ElementsAre("K5"));
}

TEST_F(Keyboard, SelectingUploadsNothingAndChecksNoId) {
    connect();
    keyboard().selectKey("K999", false);
    EXPECT_THAT(keyboard().selectedKeyIds.get(), ElementsAre("K999"));
    expectUploads(0);
}

TEST_F(Keyboard, PresetGroupsSelectTheirKeys) {
    keyboard().selectPresetGroup("WASD");
    EXPECT_THAT(keyboard().selectedKeyIds.get(), UnorderedElementsAre("K18", "K32", "K33", "K34"));
    keyboard().selectPresetGroup("Arrows");
    EXPECT_THAT(keyboard().selectedKeyIds.get(), UnorderedElementsAre("K57", "K64", "K65", "K66"));
    keyboard().selectPresetGroup("Numbers");
    EXPECT_THAT(keyboard().selectedKeyIds.get(),
                UnorderedElementsAre("K2", "K3", "K4", "K5", "K6", "K7", "K8", "K9", "K10", "K11", "K12", "K13"));
    keyboard().selectPresetGroup("All");
    EXPECT_EQ(keyboard().selectedKeyIds.get().size(), 67U);
}

TEST_F(Keyboard, AGroupNameInOtherLettersSelectsNothing) {
    keyboard().selectPresetGroup("All");
    keyboard().selectPresetGroup("wasd");
    EXPECT_THAT(keyboard().selectedKeyIds.get(), IsEmpty());
}

TEST_F(Keyboard, SelectingAGroupPaintsAndUploadsNothing) {
    connect();
    keyboard().selectPresetGroup("All");
    EXPECT_EQ(colorOf("K1"), kDefaultColor);
    expectUploads(0);
}

TEST_F(Keyboard, PaintingAKeyColorsItAloneAndUploads) {
    connect();
    keyboard().paintKey("K1", kGreen);
    EXPECT_EQ(colorOf("K1"), kGreen);
    EXPECT_EQ(colorOf("K2"), kDefaultColor);
    EXPECT_EQ(keyboard().currentColor.get(), kGreen);
    expectUploads(1);
    EXPECT_EQ(firmware.ledPlanes().at(134), 255);  // LED 0, green
    EXPECT_EQ(firmware.ledPlanes().at(8), 0);
}

TEST_F(Keyboard, PaintingAnUnknownKeyOnlyChangesTheCurrentColor) {
    connect();
    keyboard().paintKey("K99", kGreen);
    EXPECT_EQ(keyboard().currentColor.get(), kGreen);
    for (const KeyCap& key : keyboard().keys.get()) EXPECT_EQ(key.customColor, kDefaultColor);
    expectUploads(0);
}

TEST_F(Keyboard, ColoringTheSelectionLeavesTheOthersAlone) {
    connect();
    keyboard().selectPresetGroup("WASD");
    keyboard().applyColorToSelection(kGreen);
    EXPECT_EQ(colorOf("K18"), kGreen);
    EXPECT_EQ(colorOf("K34"), kGreen);
    EXPECT_EQ(colorOf("K17"), kDefaultColor);
    EXPECT_EQ(keyboard().currentColor.get(), kGreen);
    expectUploads(1);
}

TEST_F(Keyboard, ColoringAnEmptySelectionStillUploads) {
    connect();
    keyboard().applyColorToSelection(kGreen);
    EXPECT_EQ(colorOf("K18"), kDefaultColor);
    expectUploads(1);
}

TEST_F(Keyboard, ColoringAllColorsEveryKeyAndUploadsOnce) {
    connect();
    keyboard().applyColorToAll(kGreen);
    for (const KeyCap& key : keyboard().keys.get()) EXPECT_EQ(key.customColor, kGreen);
    EXPECT_EQ(keyboard().currentColor.get(), kGreen);
    expectUploads(1);
}

TEST_F(Keyboard, AKeyWithoutColorUploadsAsAFailedConversion) {
    connect();
    keyboard().applyColorToAll(std::nullopt);
    time.settle();
    EXPECT_EQ(firmware.ledPlanes().at(8), 86);
    EXPECT_EQ(firmware.ledPlanes().at(134), 7);
    EXPECT_EQ(firmware.ledPlanes().at(260), 211);
    EXPECT_EQ(firmware.colourBank(0xBC).at(11), 86);
}

TEST_F(Keyboard, TheRainbowRunsByLedNumber) {
    connect();
    keyboard().selectKey("K5", false);
    keyboard().applyRainbowPreset();
    EXPECT_EQ(toBytes(colorOf("K1")), (ColorBytes{255, 0, 0}));
    EXPECT_EQ(colorOf("K23"), Color::fromHsb(33.0 / 67.0, 1.0, 1.0));  // U has LED 33
    EXPECT_EQ(toBytes(colorOf("K23")), (ColorBytes{0, 255, 243}));
    EXPECT_EQ(toBytes(colorOf("K66")), (ColorBytes{255, 0, 22}));  // LED 66, just short of red again
    EXPECT_THAT(keyboard().selectedKeyIds.get(), ElementsAre("K5"));
    EXPECT_EQ(keyboard().currentColor.get(), std::nullopt);
    expectUploads(1);
}

TEST_F(Keyboard, WhiteGives255InEveryComponent) {
    connect();
    keyboard().applyColorToAll(Color{1.0, 1.0, 1.0});
    time.settle();
    EXPECT_EQ(firmware.ledPlanes().at(8), 255);
    EXPECT_EQ(firmware.ledPlanes().at(134), 255);
    EXPECT_EQ(firmware.ledPlanes().at(260), 255);
}

TEST_F(Keyboard, AnEmptyKeyListUploadsAnEmptyMap) {
    connect();
    keyboard().keys.set({});
    keyboard().syncToDevice();
    time.settle();
    EXPECT_EQ(link().statusMessage.get(), "Custom Per-Key RGB Synchronized (0 keys)");
    EXPECT_EQ(firmware.colourBank(0xBC).at(11), 0);
}

TEST_F(Keyboard, KeysWithLedNumbersFrom67AreNotUploaded) {
    connect();
    auto keys = keyboard().keys.get();
    keys[0].ledIndex = 67;
    keyboard().keys.set(keys);
    keyboard().syncToDevice();
    time.settle();
    EXPECT_EQ(link().statusMessage.get(), "Custom Per-Key RGB Synchronized (66 keys)");
    EXPECT_EQ(firmware.ledPlanes().at(8 + 67), 0);
}

TEST_F(Keyboard, OfTwoKeysWithTheSameLedTheLaterOneGivesTheColor) {
    connect();
    auto keys = keyboard().keys.get();
    keys[1].ledIndex = 0;
    keys[1].customColor = kGreen;
    keyboard().keys.set(keys);
    keyboard().syncToDevice();
    time.settle();
    EXPECT_EQ(firmware.ledPlanes().at(134), 255);
    EXPECT_EQ(link().statusMessage.get(), "Custom Per-Key RGB Synchronized (66 keys)");
}

}  // namespace
}  // namespace lumo
