#include "app/UIState.h"

#include <gmock/gmock.h>

#include <set>

#include "support/LinkFixture.h"

namespace lumo {
namespace {

using testing::IsEmpty;

struct Step {
    int keyCode;
    bool isDown;
    int delayMs;
};

void expectSteps(const std::vector<MacroEvent>& events, const std::vector<Step>& steps) {
    ASSERT_EQ(events.size(), steps.size());
    for (std::size_t i = 0; i < steps.size(); ++i) {
        EXPECT_EQ(events[i].keyCode, steps[i].keyCode) << i;
        EXPECT_EQ(events[i].isDown, steps[i].isDown) << i;
        EXPECT_EQ(events[i].delayMs, steps[i].delayMs) << i;
    }
}

TEST(UIState, AFreshLaunchShowsTheLightingPageWithItsDefaults) {
    const UIState state;
    EXPECT_EQ(state.currentTab.get(), NavTab::lighting);
    EXPECT_EQ(static_cast<int>(state.currentTab.get()), 2);
    EXPECT_EQ(state.activeProfile.get(), 1);
    EXPECT_EQ(state.selectedColor.get(), (Color{0.3411764705882353, 0.03137254901960784, 0.8313725490196079, 1.0}));
    EXPECT_EQ(state.speedLevel.get(), 2.0);
    EXPECT_EQ(state.brightnessLevel.get(), 4.0);
    EXPECT_FALSE(state.isColorWheelActive.get());
    EXPECT_EQ(state.activeMusicMode.get(), 1);
    EXPECT_EQ(state.musicGain.get(), 2.5);
    EXPECT_EQ(state.musicSmooth.get(), 3.0);
    EXPECT_EQ(state.remapCategory.get(), "Multimedia");
    EXPECT_EQ(state.sleepMinutes.get(), 10.0);
    EXPECT_EQ(state.debounceMs.get(), 4.0);
    EXPECT_TRUE(state.autorun.get());
}

TEST(UIState, NoKeyIsHoveredAtLaunch) { EXPECT_EQ(UIState().hoveredKeyId.get(), std::nullopt); }

TEST(UIState, TheMacroEditorStartsWithItsOwnSixSteps) {
    const UIState state;
    EXPECT_EQ(state.selectedMacroIndex.get(), 0);
    EXPECT_EQ(state.macroName.get(), "Rapid WASD");
    expectSteps(state.macroEvents.get(),
                {{87, true, 25}, {87, false, 25}, {83, true, 30}, {83, false, 30}, {65, true, 20}, {65, false, 20}});
    EXPECT_FALSE(state.isRecording.get());
    EXPECT_EQ(state.macroLoopMode.get(), 0);
    EXPECT_EQ(state.macroLoopCount.get(), 3);
    EXPECT_THAT(state.compiledMacroHex.get(), IsEmpty());
}

TEST(UIState, HoldsTheThreeSampleMacros) {
    const UIState state;
    const auto& macros = state.macroList.get();
    ASSERT_EQ(macros.size(), 3U);
    EXPECT_EQ(macros[0].name, "Rapid WASD");
    expectSteps(macros[0].events, {{87, true, 25}, {87, false, 25}, {83, true, 25}, {83, false, 25}});
    EXPECT_EQ(macros[1].name, "Super Jump");
    expectSteps(macros[1].events, {{17, true, 10}, {32, true, 40}, {32, false, 10}, {17, false, 10}});
    EXPECT_EQ(macros[2].name, "Rapid Fire");
    expectSteps(macros[2].events, {{240, true, 15}, {240, false, 15}});
}

TEST(UIState, EveryMacroAndStepHasAnIdentityOfItsOwn) {
    const UIState state;
    std::set<Uuid> ids;
    std::size_t count = 0;
    for (const MacroItem& item : state.macroList.get()) {
        ids.insert(item.id);
        ++count;
        for (const MacroEvent& event : item.events) ids.insert(event.id), ++count;
    }
    EXPECT_EQ(ids.size(), count);
    for (const Uuid& id : ids) EXPECT_EQ(id.bytes[6] >> 4, 4);
}

TEST(UIState, EveryWriteIsAnnouncedBeforeItIsStored) {
    UIState state;
    double seen = 0.0;
    const auto subscription = state.observe([&] { seen = state.speedLevel.get(); });
    state.speedLevel.set(3.0);
    EXPECT_EQ(seen, 2.0);
}

class UIStateWithKeyboard : public test::LinkFixture {};

TEST_F(UIStateWithKeyboard, ChangingDebounceOrSleepSendsNothing) {
    connect();
    state().debounceMs.set(20.0);
    state().sleepMinutes.set(30.0);
    time.settle();
    EXPECT_THAT(firmware.writes(), IsEmpty());
}

}  // namespace
}  // namespace lumo
