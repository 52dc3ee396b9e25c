// The window as assistive technology sees it.
#include <gmock/gmock.h>

#include <QTest>

#include "gui/AccessibleTree.h"
#include "gui/WindowFixture.h"
#include "keyboard/EffectRow.h"
#include "keyboard/KeyboardCanvas.h"

namespace lumo {
namespace {

using test::accessible;
using test::accessibles;
using test::nameOf;
using testing::ElementsAre;

class Accessibility : public test::WindowFixture {
protected:
    void SetUp() override { show(); }

    QAccessibleInterface& list() { return *accessibles(*view, QAccessible::List).at(0); }
    std::vector<QString> selectedItems() {
        std::vector<QString> names;
        for (const QAccessibleInterface* const item : accessibles(*view, QAccessible::ListItem)) {
            if (item->state().selected) names.push_back(nameOf(*item));
        }
        return names;
    }
};

TEST_F(Accessibility, TheEffectsAreTheItemsOfOneList) {
    ASSERT_EQ(accessibles(*view, QAccessible::List).size(), 1U);
    ASSERT_EQ(list().childCount(), 20);
    for (int i = 0; i < 20; ++i) EXPECT_EQ(list().child(i)->role(), QAccessible::ListItem) << i;
    EXPECT_EQ(nameOf(*list().child(0)), "Fixed_on (Static)");
    EXPECT_EQ(nameOf(*list().child(18)), "Self-define (Per-Key RGB)");
    EXPECT_EQ(nameOf(*list().child(19)), "LED OFF");
}

TEST_F(Accessibility, AnItemIsALeafThatCanBeFocusedAndSelected) {
    const QAccessibleInterface& item = *list().child(4);
    EXPECT_EQ(item.childCount(), 0);
    EXPECT_TRUE(item.state().selectable);
    EXPECT_TRUE(item.state().focusable);
    EXPECT_FALSE(item.state().invisible);
}

TEST_F(Accessibility, ExactlyTheActiveEffectIsSelected) {
    EXPECT_THAT(selectedItems(), ElementsAre("Flash_away (Stream)"));
    link().activeModeId.set(5);
    time.settle();
    EXPECT_THAT(selectedItems(), ElementsAre("Raindrops"));
}

TEST_F(Accessibility, PressingAnItemChoosesItsEffect) {
    connect();
    QAccessibleActionInterface* const actions = list().child(4)->actionInterface();
    ASSERT_NE(actions, nullptr);
    EXPECT_TRUE(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    time.settle();
    EXPECT_EQ(firmware.parameterBlock().at(18), 0x0F);
    EXPECT_THAT(selectedItems(), ElementsAre("Raindrops"));
}

TEST_F(Accessibility, AnItemStandsWhereItsRowIs) {
    const QWidget& raindrops = row("Raindrops");
    EXPECT_EQ(list().child(4)->rect(), QRect(raindrops.mapToGlobal(QPoint()), raindrops.size()));
}

TEST_F(Accessibility, EverySectionIsAGroupLabelledByItsHeading) {
    std::vector<QString> headings;
    for (const QAccessibleInterface* const group : accessibles(*view, QAccessible::Grouping)) {
        const auto labels = group->relations(QAccessible::Label);
        if (labels.size() == 1) headings.push_back(nameOf(*labels.front().first));
        EXPECT_TRUE(group->relations(QAccessible::Controlled).isEmpty());
    }
    EXPECT_THAT(headings, ElementsAre("LAYER:", "Select:", "LIGHTING EFFECT", "BRIGHTNESS", "SPEED", "COLOR SPECTRUM",
                                      "COLOR PALETTE"));
}

TEST_F(Accessibility, EveryTextIsALeafNamedAsItReads) {
    std::vector<QString> names;
    for (const QAccessibleInterface* const text : accessibles(*view, QAccessible::StaticText)) {
        EXPECT_EQ(text->childCount(), 0);
        if (!text->state().invisible) names.push_back(nameOf(*text));
    }
    EXPECT_THAT(names,
                ElementsAre("VEXA LUMO 65", "Simulated / Disconnected", "LAYER:", "Select:",
                            "Click any key on the keyboard to customize lighting or remap function.", "LIGHTING EFFECT",
                            "BRIGHTNESS", "100", "%", "SPEED", "Level 2", "COLOR SPECTRUM", "COLOR PALETTE",
                            "Tip: In Per-Key RGB mode, clicking any switch on the keyboard immediately paints it with "
                            "the selected color.",
                            "Ready", "Audio Sync", "Macro Tap", "Protocol: SinoWealth K916 (BYCOMBO4)",
                            "VID: 0x258A | PID: 0x010C"));
}

TEST_F(Accessibility, NothingThatCanBeFocusedIsWithoutAName) {
    for (QAccessibleInterface* const element : test::accessibleTree(*view)) {
        if (!element->state().focusable) continue;
        EXPECT_FALSE(nameOf(*element).isEmpty()) << element->role();
    }
}

TEST_F(Accessibility, The67KeysAreChildrenOfOneElement) {
    QAccessibleInterface& keyboard = *QAccessible::queryAccessibleInterface(&only<KeyboardCanvas>());
    ASSERT_EQ(keyboard.childCount(), 67);
    EXPECT_EQ(nameOf(*keyboard.child(0)), "Esc");
    EXPECT_EQ(nameOf(*keyboard.child(66)), "RCtrl");
    for (int i = 0; i < 67; ++i) {
        QAccessibleInterface* const key = keyboard.child(i);
        ASSERT_EQ(key->parent(), &keyboard);
        EXPECT_EQ(keyboard.indexOfChild(key), i);
        EXPECT_FALSE(key->state().selected);
        EXPECT_TRUE(key->state().selectable);
        EXPECT_FALSE(key->state().invisible);
    }
    EXPECT_EQ(keyboard.child(67), nullptr);
    EXPECT_EQ(keyboard.child(-1), nullptr);
}

TEST_F(Accessibility, AKeyStandsWhereItIsDrawn) {
    auto& canvas = only<KeyboardCanvas>();
    QAccessibleInterface& keyboard = *QAccessible::queryAccessibleInterface(&canvas);
    const QRect onScreen = QRect(19, 29, 34, 34).translated(canvas.mapToGlobal(QPoint()));
    EXPECT_EQ(keyboard.child(0)->rect(), onScreen);
    EXPECT_EQ(keyboard.childAt(onScreen.center().x(), onScreen.center().y()), keyboard.child(0));
}

TEST_F(Accessibility, ASelectedKeyIsSelectedAndABoundOneSaysSo) {
    QAccessibleInterface& element = *QAccessible::queryAccessibleInterface(&only<KeyboardCanvas>());
    keyboard().selectKey("K32", false);
    std::vector<KeyCap> keys = keyboard().keys.get();
    keys[31].remapLabel = "Mute";
    keyboard().keys.set(keys);
    time.settle();
    EXPECT_TRUE(element.child(31)->state().selected);
    EXPECT_FALSE(element.child(30)->state().selected);
    EXPECT_EQ(nameOf(*element.child(31)), "A, bound to Mute");
}

TEST_F(Accessibility, PressingAKeySelectsIt) {
    QAccessibleInterface& element = *QAccessible::queryAccessibleInterface(&only<KeyboardCanvas>());
    element.child(3)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_THAT(keyboard().selectedKeyIds.get(), ElementsAre("K4"));
}

TEST_F(Accessibility, TheFocusOfTheKeyboardIsItsCurrentKey) {
    auto& canvas = only<KeyboardCanvas>();
    QAccessibleInterface& element = *QAccessible::queryAccessibleInterface(&canvas);
    view->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
    element.child(7)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(canvas.hasFocus());
    EXPECT_EQ(element.focusChild(), element.child(7));
    EXPECT_TRUE(element.child(7)->state().focused);
}

TEST_F(Accessibility, ExactlyOneProfilePageAndLayerIsChosen) {
    std::vector<QString> checked;
    for (const QAccessibleInterface* const radio : accessibles(*view, QAccessible::RadioButton)) {
        if (radio->state().checked) checked.push_back(nameOf(*radio));
    }
    EXPECT_THAT(checked, ElementsAre("Profile 1", "Default"));
    std::vector<QString> selected;
    for (const QAccessibleInterface* const tab : accessibles(*view, QAccessible::PageTab)) {
        if (tab->state().selected) selected.push_back(nameOf(*tab));
    }
    EXPECT_THAT(selected, ElementsAre("Lighting Effect"));
}

TEST_F(Accessibility, SlidersAreNamedByTheirHeadingAndTellTheirRange) {
    const auto sliders = accessibles(*view, QAccessible::Slider);
    ASSERT_EQ(sliders.size(), 2U);
    EXPECT_EQ(nameOf(*sliders[0]), "BRIGHTNESS");
    EXPECT_EQ(nameOf(*sliders[1]), "SPEED");
    QAccessibleValueInterface& value = *sliders[1]->valueInterface();
    EXPECT_EQ(value.minimumValue().toDouble(), 0.0);
    EXPECT_EQ(value.maximumValue().toDouble(), 4.0);
    EXPECT_EQ(value.currentValue().toDouble(), 2.0);
}

TEST_F(Accessibility, TheSwatchesShareOneParentAndNameTheirColor) {
    QAccessibleInterface* const first = accessible(*view, QAccessible::PushButton, "Violet");
    QAccessibleInterface* const last = accessible(*view, QAccessible::PushButton, "White");
    ASSERT_NE(first, nullptr);
    ASSERT_NE(last, nullptr);
    EXPECT_EQ(first->parent(), last->parent());
    EXPECT_TRUE(first->state().selected);
    EXPECT_FALSE(last->state().selected);
}

TEST_F(Accessibility, AButtonWhoseTextChangesIsRenamed) {
    keyboard().selectPresetGroup("WASD");
    time.settle();
    EXPECT_NE(accessible(*view, QAccessible::PushButton, "Paint Selected (4)"), nullptr);
}

TEST_F(Accessibility, TheStatusMessageIsTheFirstLeafOfTheStatusBar) {
    const auto bars = accessibles(*view, QAccessible::StatusBar);
    ASSERT_EQ(bars.size(), 1U);
    EXPECT_EQ(nameOf(*bars.front()->child(0)), "Ready");
}

TEST_F(Accessibility, ElidedTextsAreNamedInFull) {
    const std::string longName(200, 'W');
    link().connectionType.set(longName);
    link().statusMessage.set(longName + longName);
    time.settle();
    EXPECT_NE(accessible(*view, QAccessible::StaticText, QString(200, 'W')), nullptr);
    EXPECT_NE(accessible(*view, QAccessible::StaticText, QString(400, 'W')), nullptr);
}

TEST_F(Accessibility, TheDotSaysItsStateInWordsCloseToTheConnectionText) {
    QAccessibleInterface* const off = accessible(*view, QAccessible::Graphic, "Disconnected");
    ASSERT_NE(off, nullptr);
    EXPECT_EQ(off->rect().size(), QSize(8, 8));
    connect();
    QAccessibleInterface* const dot = accessible(*view, QAccessible::Graphic, "Connected");
    QAccessibleInterface* const text = accessible(*view, QAccessible::StaticText, "Vexa Lumo 65 (Connected)");
    ASSERT_NE(dot, nullptr);
    ASSERT_NE(text, nullptr);
    EXPECT_LT(dot->rect().right(), text->rect().left());
    EXPECT_GE(dot->rect().left(), text->rect().left() - 30);
    EXPECT_NEAR(dot->rect().center().y(), text->rect().center().y(), 1);
}

TEST_F(Accessibility, TheMenuIsFoundBelowItsButtonThoughItIsClosed) {
    const auto buttons = accessibles(*view, QAccessible::ButtonMenu);
    ASSERT_EQ(buttons.size(), 1U);
    EXPECT_TRUE(buttons.front()->state().hasPopup);
    ASSERT_EQ(buttons.front()->childCount(), 1);
    QAccessibleInterface& menu = *buttons.front()->child(0);
    EXPECT_EQ(menu.role(), QAccessible::PopupMenu);
    EXPECT_TRUE(menu.state().invisible);
    EXPECT_EQ(buttons.front()->indexOfChild(&menu), 0);
    ASSERT_EQ(menu.childCount(), 1);
    EXPECT_EQ(nameOf(*menu.child(0)), "Quit Vexa Lumo 65");
}

}  // namespace
}  // namespace lumo
