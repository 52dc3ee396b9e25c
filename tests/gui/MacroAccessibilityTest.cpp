// The macro page as assistive technology sees it, and the keyboard's way through it.
#include <gmock/gmock.h>

#include <QApplication>

#include "gui/AccessibleTree.h"
#include "gui/MacroFixture.h"
#include "macro/AccessibleSteps.h"

namespace lumo {
namespace {

using test::accessible;
using test::accessibles;
using test::nameOf;
using testing::ElementsAre;
using testing::SizeIs;

class MacroAccessibility : public test::MacroFixture {
protected:
    void SetUp() override { showMacrosActive(); }

    QAccessibleInterface& steps() { return *QAccessible::queryAccessibleInterface(&timeline()); }
    std::vector<QString> childNames(QAccessibleInterface& element) {
        std::vector<QString> names;
        for (int i = 0; i < element.childCount(); ++i) names.push_back(nameOf(*element.child(i)));
        return names;
    }
};

TEST_F(MacroAccessibility, TheSectionsAreGroupsLabelledByTheirHeadings) {
    std::vector<QString> headings;
    for (const QAccessibleInterface* const group : accessibles(only<MacroEditorView>(), QAccessible::Grouping)) {
        const auto labels = group->relations(QAccessible::Label);
        if (labels.size() == 1) headings.push_back(nameOf(*labels.front().first));
    }
    EXPECT_THAT(headings,
                ElementsAre("MACRO PROFILES", "TIMELINE: Rapid WASD", "LOOP MODES", "FIRMWARE BYTECODE (128B)"));
}

TEST_F(MacroAccessibility, AStepReadsOnOneLineWithItsButtonAtTheRight) {
    ASSERT_EQ(steps().childCount(), 6);
    QAccessibleInterface& third = *steps().child(2);
    EXPECT_EQ(third.role(), QAccessible::ListItem);
    EXPECT_EQ(nameOf(third), "Step 3");
    EXPECT_THAT(childNames(third), ElementsAre("3", "KEY DOWN", "0x53", "30", "ms", "Delete step 3"));
    QAccessibleInterface& button = *third.child(5);
    EXPECT_EQ(button.role(), QAccessible::PushButton);
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(third.child(i)->role(), QAccessible::StaticText);
        EXPECT_EQ(third.child(i)->parent(), &third);
        EXPECT_NEAR(third.child(i)->rect().center().y(), button.rect().center().y(), 1) << i;
        EXPECT_LT(third.child(i)->rect().right(), button.rect().left()) << i;
    }
    EXPECT_EQ(third.indexOfChild(&button), 5);
    EXPECT_EQ(steps().indexOfChild(&third), 2);
    EXPECT_EQ(steps().child(6), nullptr);
    EXPECT_EQ(steps().child(-1), nullptr);
}

TEST_F(MacroAccessibility, AStepStandsWhereItIsDrawnAlsoAfterScrolling) {
    setSteps(50);
    QAccessibleInterface& tenth = *steps().child(9);
    EXPECT_EQ(tenth.rect(), QRect(timeline().mapToGlobal(timeline().rowRect(9).topLeft()), QSize(348, 34)));
    EXPECT_TRUE(tenth.state().offscreen);
    const QRect before = tenth.child(5)->rect();
    timeline().setCurrentStep(9);
    EXPECT_FALSE(tenth.state().offscreen);
    EXPECT_LT(tenth.child(5)->rect().top(), before.top());
    EXPECT_EQ(steps().childAt(tenth.rect().center().x(), tenth.rect().center().y()), &tenth);
    EXPECT_TRUE(steps().child(0)->state().offscreen);
}

TEST_F(MacroAccessibility, PressingTheButtonOfAStepDeletesIt) {
    QAccessibleActionInterface* const actions = steps().child(2)->child(5)->actionInterface();
    ASSERT_NE(actions, nullptr);
    actions->doAction(QAccessibleActionInterface::pressAction());
    settle();
    EXPECT_THAT(timeline().steps(), SizeIs(5));
    EXPECT_EQ(steps().childCount(), 5);
    EXPECT_THAT(childNames(*steps().child(2)), ElementsAre("3", "KEY UP", "0x53", "30", "ms", "Delete step 3"));
}

TEST_F(MacroAccessibility, OfTheStepsThatWereAskedForWhatReadsOtherwiseThanBeforeIsKnown) {
    for (int i = 0; i < 3; ++i) (void)childNames(*steps().child(i));
    const auto before = state().macroEvents.get();
    auto now = before;
    now[1] = {Uuid::random(), 87, true, 26};
    now[2].id = Uuid::random();
    now[5].delayMs = 1;
    state().macroEvents.set(now);
    settle();
    const auto& described = static_cast<AccessibleSteps&>(steps());
    EXPECT_THAT(described.changedSince(before), ElementsAre(steps().child(1)->child(1), steps().child(1)->child(3)));
    state().macroEvents.set({});
    settle();
    EXPECT_THAT(described.changedSince(now), SizeIs(0));
}

TEST_F(MacroAccessibility, AStepThatIsGoneIsNoLongerValid) {
    QAccessibleInterface& last = *steps().child(5);
    QAccessibleInterface& button = *last.child(5);
    state().macroEvents.set({});
    settle();
    EXPECT_FALSE(last.isValid());
    EXPECT_FALSE(button.isValid());
    EXPECT_EQ(nameOf(button), "");
    button.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(steps().childCount(), 0);
}

TEST_F(MacroAccessibility, TheFocusOfTheTimelineIsTheButtonOfItsStep) {
    steps().child(4)->child(5)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(timeline().hasFocus());
    EXPECT_EQ(steps().focusChild(), steps().child(4)->child(5));
    EXPECT_TRUE(steps().child(4)->child(5)->state().focused);
    EXPECT_FALSE(steps().child(3)->child(5)->state().focused);
}

TEST_F(MacroAccessibility, ExactlyOneProfileAndOneLoopModeIsChosen) {
    std::vector<QString> chosen;
    for (const QAccessibleInterface* const item : accessibles(only<MacroEditorView>(), QAccessible::ListItem)) {
        if (item->state().selected) chosen.push_back(nameOf(*item));
    }
    for (const QAccessibleInterface* const radio : accessibles(only<MacroEditorView>(), QAccessible::RadioButton)) {
        if (radio->state().checked) chosen.push_back(nameOf(*radio));
    }
    EXPECT_THAT(chosen, ElementsAre("Rapid WASD", "Cycle times (3)"));
}

TEST_F(MacroAccessibility, TheByteCodeIsOneText) {
    click("Recompile Bytecode");
    QAccessibleInterface& text = *QAccessible::queryAccessibleInterface(&bytecode());
    EXPECT_EQ(text.role(), QAccessible::StaticText);
    EXPECT_EQ(text.childCount(), 0);
    EXPECT_EQ(nameOf(text).count('\n'), 7);
    EXPECT_TRUE(nameOf(text).startsWith("00: 00 01 99 57"));
}

TEST_F(MacroAccessibility, NothingThatCanBeFocusedIsWithoutAName) {
    for (const bool isCompiled : {false, true}) {
        if (isCompiled) click("Recompile Bytecode");
        for (QAccessibleInterface* const element : test::accessibleTree(only<MacroEditorView>())) {
            if (!element->state().focusable) continue;
            EXPECT_FALSE(nameOf(*element).isEmpty()) << element->role();
        }
    }
}

TEST_F(MacroAccessibility, EveryButtonIsNamedAsItReads) {
    for (const auto* const name :
         {"Add macro", "Delete", "Record Action", "Insert Step", "Delete step 1", "Recompile Bytecode"}) {
        EXPECT_NE(accessible(only<MacroEditorView>(), QAccessible::PushButton, name), nullptr) << name;
    }
    click("Record Action");
    EXPECT_NE(accessible(only<MacroEditorView>(), QAccessible::PushButton, "Stop Recording"), nullptr);
}

TEST_F(MacroAccessibility, TabGoesThroughThePageInReadingOrder) {
    click("Add macro");
    click("Recompile Bytecode");
    control("WASD").setFocus(Qt::TabFocusReason);
    std::vector<QString> stops;
    for (int i = 0; i < 9; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        stops.push_back(QApplication::focusWidget()->accessibleName().section('\n', 0, 0));
    }
    EXPECT_THAT(stops, ElementsAre("Macro 4", "Add macro", "Delete", "Record Action", "Insert Step", "TIMELINE",
                                   "Cycle times (3)", "Recompile Bytecode",
                                   "00: 00 01 94 31 14 31 00 00 00 00 00 00 00 00 00 00"));
}

TEST_F(MacroAccessibility, ArrowsMoveInsideTheListsAndChooseNothing) {
    control("Rapid WASD").setFocus(Qt::TabFocusReason);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    EXPECT_TRUE(control("Super Jump").hasFocus());
    settle();
    EXPECT_EQ(state().selectedMacroIndex.get(), 0);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    settle();
    EXPECT_EQ(state().selectedMacroIndex.get(), 1);
    control("Cycle times (3)").setFocus(Qt::TabFocusReason);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    EXPECT_TRUE(control("Until key released").hasFocus());
    EXPECT_EQ(state().macroLoopMode.get(), 0);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(state().macroLoopMode.get(), 1);
}

TEST_F(MacroAccessibility, AProfileReachedByTheKeyboardComesIntoView) {
    for (int i = 0; i < 20; ++i) click("Add macro");
    control("Macro 23").setFocus(Qt::TabFocusReason);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
    EXPECT_TRUE(control("Rapid WASD").hasFocus());
    EXPECT_EQ(control("Rapid WASD").visibleRegion().boundingRect().height(), 32);
}

TEST_F(MacroAccessibility, ADeletedMacroThatHadTheFocusHandsItOn) {
    click("Add macro");
    control("Macro 4").setFocus(Qt::TabFocusReason);
    state().selectedMacroIndex.set(3);
    auto macros = state().macroList.get();
    macros.pop_back();
    state().macroList.set(macros);
    settle();
    EXPECT_TRUE(control("Rapid Fire").hasFocus());
    EXPECT_TRUE(control("Rapid Fire").showsRing());
}

TEST_F(MacroAccessibility, ADeletedMacroThatHadTheFocusFromTheMouseHandsItOnWithoutARing) {
    click("Add macro");
    click("Macro 4");
    QAccessibleInterface& button = *accessible(only<MacroEditorView>(), QAccessible::PushButton, "Delete");
    button.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    settle();
    EXPECT_TRUE(control("Rapid Fire").hasFocus());
    EXPECT_FALSE(control("Rapid Fire").showsRing());
}

}  // namespace
}  // namespace lumo
