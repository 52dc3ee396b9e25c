// The keyboard's way through the window.
#include <gmock/gmock.h>

#include <QApplication>
#include <QTest>

#include "app/BrandButton.h"
#include "gui/WindowFixture.h"
#include "keyboard/EffectRow.h"

namespace lumo {
namespace {

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

TEST_F(Focus, TheListIsOneStopAtItsSelectedRow) {
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_EQ(focusedName(), "Flash_away (Stream)");
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &only<BrandButton>());
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focusedName(), "Flash_away (Stream)");
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
    EXPECT_EQ(QApplication::focusWidget(), &only<BrandButton>());
    press(Qt::Key_Tab);
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

TEST_F(Focus, TheRingIsPaintedInsideTheRow) {
    enterList();
    const QImage picture = row("Flash_away (Stream)").grab().toImage();
    EXPECT_EQ(picture.pixelColor(200, 0), QColor(0xA8, 0x88, 0xFF));
    EXPECT_EQ(picture.pixelColor(200, 1), QColor(0xA8, 0x88, 0xFF));
    EXPECT_NE(picture.pixelColor(200, 2), QColor(0xA8, 0x88, 0xFF));
}

}  // namespace
}  // namespace lumo
