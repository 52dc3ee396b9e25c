// The keyboard's way through the window.
#include <gmock/gmock.h>

#include <QApplication>
#include <QTest>

#include "app/BrandButton.h"
#include "controls/FocusRing.h"
#include "gui/WindowFixture.h"
#include "keyboard/EffectRow.h"

namespace lumo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Focus : public test::WindowFixture {
protected:
    void SetUp() override { showActive(); }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    void enterList() { row("Flash_away (Stream)").setFocus(Qt::TabFocusReason); }
    static QString focusedName() {
        const auto* const row = dynamic_cast<EffectRow*>(QApplication::focusWidget());
        return row ? row->text() : QString();
    }
};

TEST_F(Focus, TheFirstTabGoesToTheHexagon) {
    EXPECT_EQ(QApplication::focusWidget(), view.get());
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &only<BrandButton>());
}

TEST_F(Focus, TabReachesEveryControlInItsOrder) {
    std::vector<QString> stops;
    for (int i = 0; i < 14; ++i) {
        press(Qt::Key_Tab);
        stops.push_back(QApplication::focusWidget()->accessibleName());
    }
    EXPECT_THAT(stops, ElementsAre("Vexa Lumo 65 menu", "Profile 1", "Lighting Effect", "Keyboard", "Default", "WASD",
                                   "Flash_away (Stream)", "BRIGHTNESS", "SPEED", "COLOR SPECTRUM", "Violet",
                                   "Paint Selected (0)", "Fill All", "Rainbow Preset"));
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &only<BrandButton>());
}

TEST_F(Focus, TabGoesBackTheSameWay) {
    press(Qt::Key_Tab);
    for (const QString name : {"Rainbow Preset", "Fill All", "Paint Selected (0)", "Violet", "COLOR SPECTRUM"}) {
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(QApplication::focusWidget()->accessibleName(), name);
    }
}

TEST_F(Focus, ArrowsMoveInsideAGroupAndChooseNothing) {
    control("Profile 1").setFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    EXPECT_TRUE(control("Profile 2").hasFocus());
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_TRUE(control("Profile 1").hasFocus());
    control("Lighting Effect").setFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    EXPECT_TRUE(control("Macro Manager").hasFocus());
    press(Qt::Key_End);
    EXPECT_TRUE(control("Device Settings").hasFocus());
    time.settle();
    EXPECT_EQ(state().currentTab.get(), NavTab::lighting);
    press(Qt::Key_Return);
    EXPECT_EQ(state().currentTab.get(), NavTab::settings);
}

TEST_F(Focus, PresetsAndSwatchesAreGrids) {
    control("WASD").setFocus(Qt::TabFocusReason);
    press(Qt::Key_Down);
    EXPECT_TRUE(control("All").hasFocus());
    press(Qt::Key_Right);
    press(Qt::Key_Up);
    EXPECT_TRUE(control("Arrows").hasFocus());
    control("Violet").setFocus(Qt::TabFocusReason);
    press(Qt::Key_Down);
    EXPECT_TRUE(control("Yellow").hasFocus());
    press(Qt::Key_Right);
    EXPECT_TRUE(control("Orange").hasFocus());
}

TEST_F(Focus, TheRingStandsAroundTheControlThatHasTheKeyboard) {
    QTest::qWait(0);
    EXPECT_FALSE(only<FocusRing>().isVisible());
    control("Fill All").setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(QTest::qWaitFor([this] { return only<FocusRing>().isVisible(); }));
    EXPECT_EQ(rectOf(only<FocusRing>()), rectOf(control("Fill All")).adjusted(-4, -4, 4, 4));
    view->resize(900, 680);
    ASSERT_TRUE(QTest::qWaitFor(
        [this] { return rectOf(only<FocusRing>()) == rectOf(control("Fill All")).adjusted(-4, -4, 4, 4); }));
    QTest::mouseClick(&control("Fill All"), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !only<FocusRing>().isVisible(); }));
}

TEST_F(Focus, TheRingLetsThePointerThrough) {
    control("Fill All").setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(QTest::qWaitFor([this] { return only<FocusRing>().isVisible(); }));
    EXPECT_EQ(view->childAt(rectOf(control("Fill All")).center()), &control("Fill All"));
}

TEST_F(Focus, UpAndDownGoThroughTheListAsItIsOrdered) {
    enterList();
    press(Qt::Key_Down);
    EXPECT_EQ(focusedName(), "Raindrops");
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    EXPECT_EQ(focusedName(), "Rainbow (Cycle)");
    row("Retro_snake").setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(focusedName(), "Neon_stream");
}

TEST_F(Focus, LeftAndRightGoToTheOtherColumn) {
    enterList();
    press(Qt::Key_Right);
    EXPECT_EQ(focusedName(), "Retinue scanning");
    press(Qt::Key_Right);
    EXPECT_EQ(focusedName(), "Retinue scanning");
    press(Qt::Key_Left);
    EXPECT_EQ(focusedName(), "Flash_away (Stream)");
    press(Qt::Key_Left);
    EXPECT_EQ(focusedName(), "Flash_away (Stream)");
}

TEST_F(Focus, HomeAndEndGoToTheFirstAndTheLastRowAndNoFurther) {
    enterList();
    press(Qt::Key_End);
    EXPECT_EQ(focusedName(), "LED OFF");
    press(Qt::Key_Down);
    EXPECT_EQ(focusedName(), "LED OFF");
    press(Qt::Key_Home);
    EXPECT_EQ(focusedName(), "Fixed_on (Static)");
    press(Qt::Key_Up);
    EXPECT_EQ(focusedName(), "Fixed_on (Static)");
}

TEST_F(Focus, MovingTheFocusChoosesNothing) {
    connect();
    enterList();
    press(Qt::Key_Down);
    press(Qt::Key_Right);
    time.settle();
    EXPECT_THAT(firmware.writes(), IsEmpty());
    EXPECT_EQ(link().activeModeId.get(), 4);
}

TEST_F(Focus, TheListIsLeftFromAnyRowAndEnteredAgainAtTheSelectedOne) {
    enterList();
    press(Qt::Key_Down);
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget()->accessibleName(), "BRIGHTNESS");
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focusedName(), "Flash_away (Stream)");
}

TEST_F(Focus, AnEffectChosenFromElsewhereLeavesTheFocusWhereItIs) {
    enterList();
    press(Qt::Key_Down);
    link().activeModeId.set(12);
    time.settle();
    EXPECT_EQ(focusedName(), "Raindrops");
}

TEST_F(Focus, TheRingIsShownForTheKeyboardOnly) {
    EffectRow& raindrops = row("Raindrops");
    QTest::mouseClick(&raindrops, Qt::LeftButton);
    EXPECT_TRUE(raindrops.hasFocus());
    EXPECT_FALSE(raindrops.showsRing());
    press(Qt::Key_Down);
    EXPECT_TRUE(row("Rainbow_wheel").showsRing());
    QTest::mouseClick(&row("Rainbow_wheel"), Qt::LeftButton);
    EXPECT_FALSE(row("Rainbow_wheel").showsRing());
}

TEST_F(Focus, TheRingOfARowIsPaintedInsideIt) {
    enterList();
    const QRect row = rectOf(this->row("Flash_away (Stream)"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return rectOf(only<FocusRing>()) == row && only<FocusRing>().isVisible(); }));
    const QImage picture = view->grab(row).toImage();
    EXPECT_EQ(picture.pixelColor(100, 0), QColor(0xA8, 0x88, 0xFF));
    EXPECT_EQ(picture.pixelColor(100, 1), QColor(0xA8, 0x88, 0xFF));
    EXPECT_NE(picture.pixelColor(100, 2), QColor(0xA8, 0x88, 0xFF));
}

}  // namespace
}  // namespace lumo
