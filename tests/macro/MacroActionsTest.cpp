// What the controls of the macro page do.
#include "macro/MacroActions.h"

#include <gmock/gmock.h>

#include "macro/Steps.h"
#include "support/LinkFixture.h"

namespace lumo {
namespace {

using test::Step;
using test::stepsOf;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class Macros : public test::LinkFixture {
protected:
    MacroActions actions{link(), state()};

    std::vector<Step> steps() { return stepsOf(state().macroEvents.get()); }
    std::vector<std::string> names() {
        std::vector<std::string> names;
        for (const MacroItem& item : state().macroList.get()) names.push_back(item.name);
        return names;
    }
    const std::string& text() { return state().compiledMacroHex.get(); }
    std::string firstLine() { return text().substr(0, text().find('\n')); }
    /// Makes a compilation visible: the text comes back.
    void forgetText() { state().compiledMacroHex.set(""); }
    void forgetSteps() { state().macroEvents.set({}); }
};

TEST_F(Macros, AtFirstNothingIsCompiled) { EXPECT_EQ(text(), ""); }

TEST_F(Macros, SelectingTheMacroThatIsShownAlreadyBringsItsStoredSteps) {
    EXPECT_THAT(steps(), SizeIs(6));
    actions.selectMacro(0);
    EXPECT_EQ(state().selectedMacroIndex.get(), 0);
    EXPECT_EQ(state().macroName.get(), "Rapid WASD");
    EXPECT_THAT(steps(), ElementsAre(Step{87, true, 25}, Step{87, false, 25}, Step{83, true, 25}, Step{83, false, 25}));
    EXPECT_EQ(firstLine(), "00: 00 01 99 57 19 57 99 53 19 53 00 00 00 00 00 00");
}

TEST_F(Macros, SelectingAnotherBringsItsNameItsStepsAndItsBytes) {
    actions.selectMacro(1);
    EXPECT_EQ(state().selectedMacroIndex.get(), 1);
    EXPECT_EQ(state().macroName.get(), "Super Jump");
    EXPECT_EQ(state().macroEvents.get(), state().macroList.get()[1].events);  // their identities, too
    EXPECT_EQ(firstLine(), "00: 00 01 8A 11 A8 20 0A 20 0A 11 00 00 00 00 00 00");
}

TEST_F(Macros, AnIndexOutsideTheListSelectsNothing) {
    actions.selectMacro(3);
    actions.selectMacro(-1);
    EXPECT_EQ(state().selectedMacroIndex.get(), 0);
    EXPECT_THAT(steps(), SizeIs(6));
    EXPECT_EQ(text(), "");
}

TEST_F(Macros, SelectingAnotherMacroForgetsWhatWasEdited) {
    actions.selectMacro(2);
    actions.addKeyStep();
    EXPECT_THAT(steps(), SizeIs(4));
    EXPECT_THAT(state().macroList.get()[2].events, SizeIs(2));
    actions.selectMacro(0);
    actions.selectMacro(2);
    EXPECT_THAT(steps(), ElementsAre(Step{240, true, 15}, Step{240, false, 15}));
}

TEST_F(Macros, AddingMakesAMacroThatTypes1AndSelectsIt) {
    actions.addNewMacro();
    EXPECT_THAT(names(), ElementsAre("Rapid WASD", "Super Jump", "Rapid Fire", "Macro 4"));
    EXPECT_EQ(state().selectedMacroIndex.get(), 3);
    EXPECT_EQ(state().macroName.get(), "Macro 4");
    EXPECT_THAT(steps(), ElementsAre(Step{49, true, 20}, Step{49, false, 20}));
    EXPECT_EQ(state().macroEvents.get(), state().macroList.get()[3].events);
    EXPECT_EQ(firstLine(), "00: 00 01 94 31 14 31 00 00 00 00 00 00 00 00 00 00");
}

TEST_F(Macros, ANewMacroIsNumberedByTheCountAndNotByTheNamesInUse) {
    actions.addNewMacro();
    actions.addNewMacro();
    actions.selectMacro(0);
    actions.deleteMacro();
    actions.addNewMacro();
    EXPECT_THAT(names(), ElementsAre("Super Jump", "Rapid Fire", "Macro 4", "Macro 5", "Macro 5"));
}

TEST_F(Macros, EveryMacroAndEveryStepMadeHereHasAnIdentityOfItsOwn) {
    actions.addNewMacro();
    actions.addNewMacro();
    const auto& macros = state().macroList.get();
    EXPECT_NE(macros[3].id, macros[4].id);
    EXPECT_NE(macros[3].events[0].id, macros[3].events[1].id);
    EXPECT_NE(macros[3].events[0].id, macros[4].events[0].id);
}

TEST_F(Macros, DeletingTheAddedMacroSelectsTheFirstOne) {
    actions.addNewMacro();
    actions.deleteMacro();
    EXPECT_THAT(names(), ElementsAre("Rapid WASD", "Super Jump", "Rapid Fire"));
    EXPECT_EQ(state().selectedMacroIndex.get(), 0);
    EXPECT_EQ(state().macroName.get(), "Rapid WASD");
    EXPECT_THAT(steps(), SizeIs(4));
    EXPECT_EQ(firstLine(), "00: 00 01 99 57 19 57 99 53 19 53 00 00 00 00 00 00");
}

TEST_F(Macros, DeletingTheFirstMacroSelectsTheOneThatMovesUp) {
    actions.deleteMacro();
    EXPECT_THAT(names(), ElementsAre("Super Jump", "Rapid Fire"));
    EXPECT_EQ(state().selectedMacroIndex.get(), 0);
    EXPECT_EQ(state().macroName.get(), "Super Jump");
}

TEST_F(Macros, TheLastMacroStaysAndNothingIsCompiled) {
    actions.deleteMacro();
    actions.deleteMacro();
    forgetText();
    recordStatuses();
    actions.deleteMacro();
    EXPECT_THAT(names(), ElementsAre("Rapid Fire"));
    EXPECT_EQ(text(), "");
    EXPECT_THAT(statuses(), IsEmpty());
}

TEST_F(Macros, ASelectionOutsideTheListDeletesNothing) {
    for (const std::int64_t index : {3, 99, -1}) {
        state().selectedMacroIndex.set(index);
        actions.deleteMacro();
        EXPECT_THAT(names(), SizeIs(3));
        EXPECT_EQ(state().selectedMacroIndex.get(), index);
        EXPECT_EQ(text(), "");
    }
}

TEST_F(Macros, InsertingAStepIntoNothingTypesSpace) {
    forgetSteps();
    actions.addKeyStep();
    EXPECT_THAT(steps(), ElementsAre(Step{32, true, 25}, Step{32, false, 25}));
    EXPECT_EQ(text(),
              "00: 00 01 99 20 19 20 00 00 00 00 00 00 00 00 00 00\n"
              "10: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
              "20: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
              "30: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
              "40: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
              "50: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
              "60: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
              "70: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
}

TEST_F(Macros, InsertedStepsStandAtTheEndAndLeaveTheListAlone) {
    actions.addKeyStep();
    EXPECT_THAT(steps(), SizeIs(8));
    EXPECT_EQ(steps()[5], (Step{65, false, 20}));
    EXPECT_EQ(steps()[6], (Step{32, true, 25}));
    EXPECT_EQ(steps()[7], (Step{32, false, 25}));
    EXPECT_THAT(state().macroList.get()[0].events, SizeIs(4));
    EXPECT_EQ(state().macroName.get(), "Rapid WASD");
}

TEST_F(Macros, AStepIsDeletedByItsPlace) {
    actions.deleteStep(2);
    EXPECT_THAT(steps(), ElementsAre(Step{87, true, 25}, Step{87, false, 25}, Step{83, false, 30}, Step{65, true, 20},
                                     Step{65, false, 20}));
    EXPECT_EQ(firstLine(), "00: 00 01 99 57 19 57 1E 53 94 41 14 41 00 00 00 00");
}

TEST_F(Macros, TheLastStepCanBeDeletedToo) {
    for (int i = 0; i < 6; ++i) actions.deleteStep(0);
    EXPECT_THAT(steps(), IsEmpty());
    EXPECT_EQ(firstLine(), "00: 00 01 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
}

TEST_F(Macros, DeletingNoStepCompilesNothing) {
    actions.deleteStep(6);
    actions.deleteStep(-1);
    EXPECT_THAT(steps(), SizeIs(6));
    EXPECT_EQ(text(), "");
}

TEST_F(Macros, StartingToRecordSaysSoAndCompilesNothing) {
    actions.toggleRecording();
    EXPECT_TRUE(state().isRecording.get());
    EXPECT_EQ(link().statusMessage.get(), "Macro recording started...");
    EXPECT_EQ(text(), "");
}

TEST_F(Macros, EndingARecordingNamesTheMacroAndCompilesTheStepsAsTheyWere) {
    const auto before = state().macroEvents.get();
    actions.toggleRecording();
    actions.toggleRecording();
    EXPECT_FALSE(state().isRecording.get());
    EXPECT_EQ(link().statusMessage.get(), "Recording saved to 'Rapid WASD'");
    EXPECT_EQ(state().macroEvents.get(), before);
    EXPECT_EQ(firstLine(), "00: 00 01 99 57 19 57 9E 53 1E 53 94 41 14 41 00 00");
}

TEST_F(Macros, ARecordingIsSavedUnderTheNameThatIsShownWhenItEnds) {
    actions.toggleRecording();
    actions.selectMacro(1);
    EXPECT_TRUE(state().isRecording.get());
    actions.toggleRecording();
    EXPECT_EQ(link().statusMessage.get(), "Recording saved to 'Super Jump'");
}

TEST_F(Macros, ALoopModeChangesNothingElse) {
    for (const std::int64_t mode : {2, 1, 0}) {
        actions.chooseLoopMode(mode);
        EXPECT_EQ(state().macroLoopMode.get(), mode);
    }
    EXPECT_EQ(state().macroLoopCount.get(), 3);
    EXPECT_EQ(text(), "");
}

TEST_F(Macros, CompilingShowsTheStepsBeingEditedWhateverTheLoop) {
    actions.compileBytecode();
    const std::string once = text();
    EXPECT_EQ(firstLine(), "00: 00 01 99 57 19 57 9E 53 1E 53 94 41 14 41 00 00");
    actions.chooseLoopMode(2);
    actions.compileBytecode();
    EXPECT_EQ(text(), once);
}

TEST_F(Macros, NothingHereReachesTheKeyboard) {
    connect();
    actions.selectMacro(1);
    actions.addNewMacro();
    actions.deleteMacro();
    actions.addKeyStep();
    actions.deleteStep(0);
    actions.toggleRecording();
    actions.toggleRecording();
    actions.chooseLoopMode(1);
    actions.compileBytecode();
    time.settle();
    EXPECT_THAT(firmware.writes(), IsEmpty());
}

}  // namespace
}  // namespace lumo
