// What pointer and buttons of the on-screen keyboard do.
#include "keyboard/KeyboardActions.h"

#include <gmock/gmock.h>

#include "support/LinkFixture.h"

namespace lumo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr Color kOrange{1.0, 0.5, 0.0};

class KeyboardClicks : public test::LinkFixture {
protected:
    KeyboardActions actions{link(), state(), keyboard()};

    std::optional<Color> colorOf(const std::string& id) {
        return std::ranges::find(keyboard().keys.get(), id, &KeyCap::id)->customColor;
    }
};

TEST_F(KeyboardClicks, ThePointerMarksTheKeyBelowIt) {
    actions.pointerEntered("K5");
    EXPECT_EQ(state().hoveredKeyId.get(), "K5");
    actions.pointerLeft();
    EXPECT_EQ(state().hoveredKeyId.get(), std::nullopt);
}

TEST_F(KeyboardClicks, APlainClickReplacesTheSelection) {
    actions.click("K5", false);
    actions.click("K6", false);
    EXPECT_THAT(keyboard().selectedKeyIds.get(), ElementsAre("K6"));
}

TEST_F(KeyboardClicks, AMultipleClickAddsAndRemoves) {
    actions.click("K5", false);
    actions.click("K6", true);
    EXPECT_THAT(keyboard().selectedKeyIds.get(), UnorderedElementsAre("K5", "K6"));
    actions.click("K5", true);
    EXPECT_THAT(keyboard().selectedKeyIds.get(), ElementsAre("K6"));
}

TEST_F(KeyboardClicks, InEffects21And18AClickSelectsAndPaints) {
    connect();
    state().selectedColor.set(kOrange);
    for (const auto& [mode, id] : {std::pair{21, "K5"}, std::pair{18, "K6"}}) {
        link().activeModeId.set(mode);
        firmware.forgetWrites();
        actions.click(id, false);
        time.settle();
        EXPECT_THAT(keyboard().selectedKeyIds.get(), ElementsAre(id));
        EXPECT_EQ(colorOf(id), kOrange);
        EXPECT_THAT(commandsSent(), ElementsAre(0x09, 0x09, 0x06, 0x84, 0x04));
    }
}

TEST_F(KeyboardClicks, InEveryOtherEffectAClickOnlySelects) {
    connect();
    state().selectedColor.set(kOrange);
    for (std::int64_t mode = 0; mode <= 17; ++mode) {
        link().activeModeId.set(mode);
        actions.click("K5", false);
        time.settle();
        EXPECT_EQ(colorOf("K5"), kDefaultColor) << mode;
    }
    EXPECT_THAT(commandsSent(), IsEmpty());
    EXPECT_THAT(keyboard().selectedKeyIds.get(), ElementsAre("K5"));
}

TEST_F(KeyboardClicks, ChoosingALayerChangesNothingElse) {
    connect();
    const std::string status = link().statusMessage.get();
    actions.chooseLayer(3);
    time.settle();
    EXPECT_EQ(keyboard().activeLayer.get(), 3);
    EXPECT_EQ(link().statusMessage.get(), status);
    EXPECT_THAT(commandsSent(), IsEmpty());
    EXPECT_THAT(keyboard().selectedKeyIds.get(), IsEmpty());
}

TEST_F(KeyboardClicks, PresetsSelectTheirKeysAndClearNone) {
    actions.choosePreset("WASD");
    EXPECT_THAT(keyboard().selectedKeyIds.get(), UnorderedElementsAre("K18", "K32", "K33", "K34"));
    actions.choosePreset("Clear");
    EXPECT_THAT(keyboard().selectedKeyIds.get(), IsEmpty());
    actions.choosePreset("All");
    EXPECT_EQ(keyboard().selectedKeyIds.get().size(), 67U);
}

TEST_F(KeyboardClicks, PresetsPaintNothing) {
    connect();
    link().activeModeId.set(21);
    for (const std::string_view name : kSelectionPresets) actions.choosePreset(name);
    time.settle();
    EXPECT_THAT(commandsSent(), IsEmpty());
}

}  // namespace
}  // namespace lumo
