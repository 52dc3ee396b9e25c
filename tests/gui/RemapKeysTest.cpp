// The remap page without a mouse, and as assistive technology sees it.
#include <gmock/gmock.h>

#include <QApplication>

#include "gui/AccessibleTree.h"
#include "gui/RemapFixture.h"

namespace lumo {
namespace {

using test::accessible;
using test::accessibles;
using test::nameOf;
using testing::ElementsAre;
using Bytes = std::vector<std::uint8_t>;

class RemapKeys : public test::RemapFixture {
protected:
    void SetUp() override {
        openPage();
        view->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
        connect();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        time.settle();
    }
    static QString focused() { return QApplication::focusWidget()->accessibleName(); }
    std::vector<QString> stops(int count) {
        std::vector<QString> names;
        for (int i = 0; i < count; ++i) {
            press(Qt::Key_Tab);
            names.push_back(focused());
        }
        return names;
    }
};

TEST_F(RemapKeys, TabGoesThroughThePageInItsOrder) {
    control("WASD").setFocus(Qt::TabFocusReason);
    EXPECT_THAT(stops(4), ElementsAre("Multimedia", "Play / Pause", "Save Key Matrix", "Reset to Defaults"));
    click("Letters & Numbers");
    control("WASD").setFocus(Qt::TabFocusReason);
    EXPECT_THAT(stops(5), ElementsAre("Letters & Numbers", "A", "1", "Save Key Matrix", "Reset to Defaults"));
}

TEST_F(RemapKeys, APageThatIsOpenedLaterHasTheSamePlaceInTheOrder) {
    click("Lighting Effect");
    click("Key Assignment");
    control("WASD").setFocus(Qt::TabFocusReason);
    EXPECT_THAT(stops(4), ElementsAre("Multimedia", "Play / Pause", "Save Key Matrix", "Reset to Defaults"));
}

TEST_F(RemapKeys, AKeyIsBoundWithTheKeyboardAlone) {
    only<KeyboardCanvas>().setFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);  // from Esc to 1
    press(Qt::Key_Space);
    EXPECT_EQ(panelTexts().at(1), "1 (Matrix Pos 7)");
    while (focused() != "Play / Pause") press(Qt::Key_Tab);
    press(Qt::Key_Right);
    press(Qt::Key_Down);
    EXPECT_EQ(focused(), "Stop");
    EXPECT_EQ(key("1").remapLabel, std::nullopt);
    press(Qt::Key_Space);
    EXPECT_EQ(codeInKeyboard(7), Bytes({0x02, 0x00, 0x00, 0xB7}));
    EXPECT_EQ(panelTexts().back(), "Current: Stop");
    EXPECT_EQ(focused(), "Stop");
}

TEST_F(RemapKeys, TheArrowsGoThroughTheCategoriesAndSpaceChoosesOne) {
    control("Multimedia").setFocus(Qt::TabFocusReason);
    press(Qt::Key_Down);
    EXPECT_EQ(focused(), "Mouse");
    EXPECT_EQ(state().remapCategory.get(), "Multimedia");
    press(Qt::Key_Space);
    EXPECT_EQ(state().remapCategory.get(), "Mouse");
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "Left Click");
}

TEST_F(RemapKeys, TheAmpersandOfATitleIsNoShortcut) {
    only<KeyboardCanvas>().setFocus(Qt::TabFocusReason);
    press(Qt::Key_Space, Qt::AltModifier);
    EXPECT_FALSE(control("Letters & Numbers").isDown());
    EXPECT_EQ(state().remapCategory.get(), "Multimedia");
}

TEST_F(RemapKeys, TheArrowsGoThroughTheLettersAsTheyStand) {
    click("Letters & Numbers");
    control("A").setFocus(Qt::TabFocusReason);
    press(Qt::Key_Down);
    EXPECT_EQ(focused(), "N");
    press(Qt::Key_End);
    EXPECT_EQ(focused(), "Z");
}

TEST_F(RemapKeys, TheCardsAreEnteredAtTheBoundAction) {
    clickKey("A");
    click("Calculator");
    control("Multimedia").setFocus(Qt::TabFocusReason);
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "Calculator");
}

TEST_F(RemapKeys, ExactlyTheShownCategoryIsSelected) {
    std::vector<QString> selected;
    for (const QAccessibleInterface* const tab : accessibles(only<KeyRemapView>(), QAccessible::PageTab)) {
        if (tab->state().selected) selected.push_back(nameOf(*tab));
    }
    EXPECT_THAT(selected, ElementsAre("Multimedia"));
}

TEST_F(RemapKeys, ActionsOfOtherCategoriesAreNotShowing) {
    auto& page = only<KeyRemapView>();
    EXPECT_FALSE(accessible(page, QAccessible::PushButton, "Mute")->state().invisible);
    EXPECT_TRUE(accessible(page, QAccessible::PushButton, "Disable Key")->state().invisible);
    EXPECT_TRUE(accessible(page, QAccessible::PushButton, "F5")->state().invisible);
}

TEST_F(RemapKeys, PressingACardBinds) {
    clickKey("A");
    QAccessibleInterface* const card = accessible(only<KeyRemapView>(), QAccessible::PushButton, "Mute");
    ASSERT_NE(card, nullptr);
    EXPECT_FALSE(card->state().selected);
    card->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    time.settle();
    EXPECT_TRUE(card->state().selected);
    EXPECT_EQ(codeInKeyboard(9), Bytes({0x02, 0x00, 0x00, 0xE2}));
}

TEST_F(RemapKeys, ABoundKeySaysSoUntilItIsReset) {
    QAccessibleInterface& keys = *QAccessible::queryAccessibleInterface(&only<KeyboardCanvas>());
    clickKey("A");
    click("Mute");
    EXPECT_EQ(nameOf(*keys.child(31)), "A, bound to Mute");
    click("Reset to Defaults");
    EXPECT_EQ(nameOf(*keys.child(31)), "A");
}

TEST_F(RemapKeys, TheHeadingsOfLettersAndDigitsAreShownWithThem) {
    for (const char* const heading : {"LETTERS (A-Z)", "NUMBERS (0-9)"}) {
        const QAccessibleInterface* const leaf = accessible(only<KeyRemapView>(), QAccessible::StaticText, heading);
        ASSERT_NE(leaf, nullptr) << heading;
        EXPECT_TRUE(leaf->state().invisible) << heading;
        click("Letters & Numbers");
        EXPECT_FALSE(leaf->state().invisible) << heading;
        click("Multimedia");
    }
}

TEST_F(RemapKeys, TheTextsOfTheTargetAreLeaves) {
    clickKey("CapsLock");
    for (const char* const text : {"TARGET SWITCH: ", "CapsLock (Matrix Pos 3)", "Default Mapping", "CATEGORIES"}) {
        QAccessibleInterface* const leaf = accessible(only<KeyRemapView>(), QAccessible::StaticText, text);
        ASSERT_NE(leaf, nullptr) << text;
        EXPECT_FALSE(leaf->state().invisible) << text;
    }
}

}  // namespace
}  // namespace lumo
