#include "app/UIState.h"

#include <gmock/gmock.h>

#include <set>

#include "macro/Steps.h"
#include "support/LinkFixture.h"

namespace lumo {
namespace {

using test::Step;
using test::stepsOf;
using testing::ElementsAre;
using testing::IsEmpty;

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
    EXPECT_THAT(stepsOf(state.macroEvents.get()),
                ElementsAre(Step{87, true, 25}, Step{87, false, 25}, Step{83, true, 30}, Step{83, false, 30},
                            Step{65, true, 20}, Step{65, false, 20}));
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
    EXPECT_THAT(stepsOf(macros[0].events),
                ElementsAre(Step{87, true, 25}, Step{87, false, 25}, Step{83, true, 25}, Step{83, false, 25}));
    EXPECT_EQ(macros[1].name, "Super Jump");
    EXPECT_THAT(stepsOf(macros[1].events),
                ElementsAre(Step{17, true, 10}, Step{32, true, 40}, Step{32, false, 10}, Step{17, false, 10}));
    EXPECT_EQ(macros[2].name, "Rapid Fire");
    EXPECT_THAT(stepsOf(macros[2].events), ElementsAre(Step{240, true, 15}, Step{240, false, 15}));
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
