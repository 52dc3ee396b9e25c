// The window as assistive technology sees it.
#include <gmock/gmock.h>

#include "controls/Card.h"
#include "gui/AccessibleTree.h"
#include "gui/WindowFixture.h"
#include "keyboard/EffectRow.h"

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

TEST_F(Accessibility, TheCardIsAGroupLabelledByItsHeading) {
    const auto groups = accessibles(*view, QAccessible::Grouping);
    ASSERT_EQ(groups.size(), 1U);
    EXPECT_EQ(groups.front()->object(), &only<Card>());
    const auto labels = groups.front()->relations(QAccessible::Label);
    ASSERT_EQ(labels.size(), 1);
    EXPECT_EQ(nameOf(*labels.front().first), "LIGHTING EFFECT");
    EXPECT_TRUE(groups.front()->relations(QAccessible::Controlled).isEmpty());
}

TEST_F(Accessibility, EveryTextIsALeafNamedAsItReads) {
    std::vector<QString> names;
    for (const QAccessibleInterface* const text : accessibles(*view, QAccessible::StaticText)) {
        EXPECT_EQ(text->childCount(), 0);
        names.push_back(nameOf(*text));
    }
    EXPECT_THAT(names, ElementsAre("VEXA LUMO 65", "Simulated / Disconnected", "LIGHTING EFFECT", "Ready"));
}

TEST_F(Accessibility, TheStatusMessageIsTheLeafOfTheStatusBar) {
    const auto bars = accessibles(*view, QAccessible::StatusBar);
    ASSERT_EQ(bars.size(), 1U);
    ASSERT_EQ(bars.front()->childCount(), 1);
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
