// The macro page under the mouse.
#include <gmock/gmock.h>

#include "controls/ListRow.h"
#include "controls/TextLine.h"
#include "gui/AccessibleTree.h"
#include "gui/MacroFixture.h"
#include "macro/LoopRadio.h"
#include "macro/Steps.h"

namespace lumo {
namespace {

using test::Step;
using test::stepsOf;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class MacroPage : public test::MacroFixture {
protected:
    void SetUp() override { showMacros(); }

    std::vector<QString> profiles() {
        std::vector<QString> names;
        for (const ListRow* const row : view->findChildren<ListRow*>()) {
            if (row->isVisible()) names.push_back(row->text());
        }
        return names;
    }
    std::vector<QString> selectedProfiles() {
        std::vector<QString> names;
        for (const ListRow* const row : view->findChildren<ListRow*>()) {
            if (row->isVisible() && row->isSelected()) names.push_back(row->text());
        }
        return names;
    }
    std::vector<QString> selectedLoops() {
        std::vector<QString> names;
        for (const LoopRadio* const radio : view->findChildren<LoopRadio*>()) {
            if (radio->isSelected()) names.push_back(radio->text());
        }
        return names;
    }
    bool hasHeading(const QString& text) { return test::accessible(*view, QAccessible::StaticText, text) != nullptr; }
    std::string firstLine() { return bytecode().accessibleName().section('\n', 0, 0).toStdString(); }
};

TEST_F(MacroPage, AFreshStartShowsTheFirstMacroSelectedWithStepsOfItsOwn) {
    EXPECT_THAT(profiles(), ElementsAre("Rapid WASD", "Super Jump", "Rapid Fire"));
    EXPECT_THAT(selectedProfiles(), ElementsAre("Rapid WASD"));
    EXPECT_TRUE(hasHeading("TIMELINE: Rapid WASD"));
    EXPECT_THAT(timeline().steps(), SizeIs(6));
    EXPECT_THAT(selectedLoops(), ElementsAre("Cycle times (3)"));
    EXPECT_EQ(bytecode().accessibleName(), "");
}

TEST_F(MacroPage, AClickOnTheSelectedMacroBringsItsStoredSteps) {
    click("Rapid WASD");
    EXPECT_THAT(stepsOf(timeline().steps()),
                ElementsAre(Step{87, true, 25}, Step{87, false, 25}, Step{83, true, 25}, Step{83, false, 25}));
    EXPECT_EQ(firstLine(), "00: 00 01 99 57 19 57 99 53 19 53 00 00 00 00 00 00");
}

TEST_F(MacroPage, AClickOnAnotherMacroShowsIt) {
    click("Super Jump");
    EXPECT_THAT(selectedProfiles(), ElementsAre("Super Jump"));
    EXPECT_TRUE(hasHeading("TIMELINE: Super Jump"));
    EXPECT_EQ(firstLine(), "00: 00 01 8A 11 A8 20 0A 20 0A 11 00 00 00 00 00 00");
}

TEST_F(MacroPage, PlusAddsAMacroAndDeleteTakesItAway) {
    click("Add macro");
    EXPECT_THAT(profiles(), ElementsAre("Rapid WASD", "Super Jump", "Rapid Fire", "Macro 4"));
    EXPECT_THAT(selectedProfiles(), ElementsAre("Macro 4"));
    EXPECT_TRUE(hasHeading("TIMELINE: Macro 4"));
    EXPECT_THAT(stepsOf(timeline().steps()), ElementsAre(Step{49, true, 20}, Step{49, false, 20}));
    click("Delete");
    EXPECT_THAT(profiles(), ElementsAre("Rapid WASD", "Super Jump", "Rapid Fire"));
    EXPECT_THAT(selectedProfiles(), ElementsAre("Rapid WASD"));
}

TEST_F(MacroPage, TheLastMacroStaysAndItsButtonStaysEnabled) {
    for (int i = 0; i < 5; ++i) click("Delete");
    EXPECT_THAT(profiles(), ElementsAre("Rapid Fire"));
    EXPECT_TRUE(control("Delete").isEnabled());
    EXPECT_EQ(statusLine().text(), "Ready");
}

TEST_F(MacroPage, AListThatSomebodyEmptiedIsEmptyEvenUnderTheFocus) {
    static int complaints = 0;
    complaints = 0;
    const auto before =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) { ++complaints; });
    control("Rapid WASD").setFocus(Qt::TabFocusReason);
    state().macroList.set({});
    time.settle();
    EXPECT_THAT(profiles(), IsEmpty());
    state().macroList.set(builtInMacros());
    time.settle();
    EXPECT_THAT(profiles(), ElementsAre("Rapid WASD", "Super Jump", "Rapid Fire"));
    qInstallMessageHandler(before);
    EXPECT_EQ(complaints, 0);
}

TEST_F(MacroPage, InsertStepAddsAPairAtTheEnd) {
    click("Insert Step");
    EXPECT_THAT(timeline().steps(), SizeIs(8));
    EXPECT_EQ(stepsOf(timeline().steps()).back(), (Step{32, false, 25}));
    EXPECT_EQ(firstLine(), "00: 00 01 99 57 19 57 9E 53 1E 53 94 41 14 41 99 20");
}

TEST_F(MacroPage, TheTrashDeletesItsStep) {
    clickRemove(2);
    EXPECT_THAT(timeline().steps(), SizeIs(5));
    EXPECT_EQ(stepsOf(timeline().steps())[2], (Step{83, false, 30}));
    EXPECT_EQ(firstLine(), "00: 00 01 99 57 19 57 1E 53 94 41 14 41 00 00 00 00");
}

TEST_F(MacroPage, TheLastStepCanBeDeletedAndAddedAgain) {
    for (int i = 0; i < 6; ++i) clickRemove(0);
    EXPECT_THAT(timeline().steps(), IsEmpty());
    EXPECT_EQ(firstLine(), "00: 00 01 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
    click("Insert Step");
    EXPECT_EQ(firstLine(), "00: 00 01 99 20 19 20 00 00 00 00 00 00 00 00 00 00");
}

TEST_F(MacroPage, APressThatEndsBesideTheTrashDeletesNothing) {
    QTest::mousePress(&timeline(), Qt::LeftButton, {}, removeButton(2));
    QTest::mouseRelease(&timeline(), Qt::LeftButton, {}, removeButton(3));
    QTest::mouseClick(&timeline(), Qt::RightButton, {}, removeButton(2));
    QTest::mouseClick(&timeline(), Qt::LeftButton, {}, removeButton(2) - QPoint(20, 0));
    settle();
    EXPECT_THAT(timeline().steps(), SizeIs(6));
}

TEST_F(MacroPage, RecordingChangesTheButtonAndTheStatusAndNoStep) {
    EXPECT_FALSE(control("Record Action").isSelected());
    click("Record Action");
    EXPECT_TRUE(control("Stop Recording").isSelected());
    EXPECT_EQ(statusLine().text(), "Macro recording started...");
    EXPECT_EQ(bytecode().accessibleName(), "");
    QTest::keyClick(view.get(), Qt::Key_A);
    click("Stop Recording");
    EXPECT_FALSE(control("Record Action").isSelected());
    EXPECT_EQ(statusLine().text(), "Recording saved to 'Rapid WASD'");
    EXPECT_THAT(timeline().steps(), SizeIs(6));
    EXPECT_EQ(firstLine(), "00: 00 01 99 57 19 57 9E 53 1E 53 94 41 14 41 00 00");
}

TEST_F(MacroPage, ALoopModeIsChosenByItsRadio) {
    click("Until key pressed");
    EXPECT_EQ(state().macroLoopMode.get(), 2);
    EXPECT_THAT(selectedLoops(), ElementsAre("Until key pressed"));
    click("Until key released");
    EXPECT_EQ(state().macroLoopMode.get(), 1);
    click("Cycle times (3)");
    EXPECT_EQ(state().macroLoopMode.get(), 0);
    EXPECT_THAT(selectedLoops(), ElementsAre("Cycle times (3)"));
}

TEST_F(MacroPage, TheLoopCountStandsInItsTitle) {
    state().macroLoopCount.set(12);
    settle();
    EXPECT_THAT(selectedLoops(), ElementsAre("Cycle times (12)"));
}

TEST_F(MacroPage, RecompileShowsTheBytesOfTheStepsAsTheyAre) {
    click("Recompile Bytecode");
    EXPECT_EQ(bytecode().accessibleName(),
              "00: 00 01 99 57 19 57 9E 53 1E 53 94 41 14 41 00 00\n"
              "10: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
              "20: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
              "30: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
              "40: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
              "50: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
              "60: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
              "70: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
}

TEST_F(MacroPage, LeavingThePageKeepsWhatWasEdited) {
    click("Insert Step");
    click("Until key released");
    click("Device Settings");
    click("Macro Manager");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_THAT(timeline().steps(), SizeIs(8));
    EXPECT_THAT(selectedLoops(), ElementsAre("Until key released"));
    EXPECT_EQ(firstLine(), "00: 00 01 99 57 19 57 9E 53 1E 53 94 41 14 41 99 20");
}

TEST_F(MacroPage, NothingReachesTheKeyboard) {
    connect();
    for (const auto* const name : {"Super Jump", "Add macro", "Insert Step", "Record Action", "Stop Recording",
                                   "Until key pressed", "Recompile Bytecode", "Delete"}) {
        click(name);
    }
    clickRemove(0);
    EXPECT_THAT(firmware.writes(), IsEmpty());
}

TEST_F(MacroPage, AMacroOfAnOddNameIsShownAsPlainText) {
    state().macroList.set({MacroItem("<b>one</b>\ntwo", {})});
    state().macroName.set("<b>one</b>\ntwo");
    settle();
    EXPECT_THAT(profiles(), ElementsAre("<b>one</b>two"));
    EXPECT_TRUE(hasHeading("TIMELINE: <b>one</b>two"));
}

}  // namespace
}  // namespace lumo
