// A slider moved by the keyboard and by the mouse wheel.
#include <QLocale>
#include <chrono>

#include "gui/SliderFixture.h"

namespace lumo {
namespace {

using std::chrono::milliseconds;

class SliderKeys : public test::SliderFixture {};

TEST_F(SliderKeys, AClickOnAKeyIsOneUseThatEndsAfterItsRest) {
    focus();
    keyClick(Qt::Key_Right);
    EXPECT_EQ(log, (Log{"begin", "1"}));
    time.advance(milliseconds(249));
    EXPECT_EQ(log, (Log{"begin", "1"}));
    time.advance(milliseconds(1));
    EXPECT_EQ(log, (Log{"begin", "1", "end"}));
    time.advance(milliseconds(1000));
    EXPECT_EQ(log, (Log{"begin", "1", "end"}));
}

TEST_F(SliderKeys, AHeldKeyIsOneUseHoweverLateItRepeats) {
    focus();
    keyDown(Qt::Key_Right);
    time.advance(milliseconds(660));
    for (int i = 0; i < 5; ++i) {
        keyUp(Qt::Key_Right, true);
        keyDown(Qt::Key_Right, true);
        time.advance(milliseconds(40));
    }
    time.advance(milliseconds(1000));
    EXPECT_EQ(log, (Log{"begin", "1", "2", "3", "4"}));
    keyUp(Qt::Key_Right);
    time.advance(milliseconds(250));
    EXPECT_EQ(log, (Log{"begin", "1", "2", "3", "4", "end"}));
}

TEST_F(SliderKeys, KeysThatFollowEachOtherAreOneUse) {
    focus();
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_End, Qt::Key_Left, Qt::Key_Home}) {
        keyClick(key);
        time.advance(milliseconds(200));
    }
    EXPECT_EQ(log, (Log{"begin", "1", "2", "1", "4", "3", "0"}));
    time.advance(milliseconds(50));
    EXPECT_EQ(log.back(), "end");
}

TEST_F(SliderKeys, AKeyHeldSoonAfterAnotherIsOneUseWithIt) {
    focus();
    keyClick(Qt::Key_Right);
    time.advance(milliseconds(100));
    keyDown(Qt::Key_Right);
    time.advance(milliseconds(1000));
    EXPECT_EQ(log, (Log{"begin", "1", "2"}));
}

TEST_F(SliderKeys, PagesAreLargerSteps) {
    focus();
    keyClick(Qt::Key_PageUp);
    keyClick(Qt::Key_PageUp);
    keyClick(Qt::Key_PageDown);
    EXPECT_EQ(log, (Log{"begin", "2", "4", "2"}));
}

TEST_F(SliderKeys, AKeyThatCannotMoveTheValueIsAUseAsWell) {
    focus();
    keyClick(Qt::Key_Left);
    time.advance(milliseconds(250));
    EXPECT_EQ(log, (Log{"begin", "end"}));
}

TEST_F(SliderKeys, AKeyWithControlOrAnotherKeyIsNotTakenAndLetsTheHeldOneGo) {
    focus();
    QTest::keyClick(slider, Qt::Key_Right, Qt::ControlModifier);
    QTest::keyClick(slider, Qt::Key_A);
    EXPECT_EQ(log, Log{});
    keyDown(Qt::Key_Right);
    keyDown(Qt::Key_Control);
    time.advance(milliseconds(250));
    EXPECT_EQ(log, (Log{"begin", "1", "end"}));
}

TEST_F(SliderKeys, FromBetweenTwoStepsAKeyLeadsToTheNextOne) {
    make({0.0, 40.0, 10.0});
    focus();
    slider->setValue(4.0);
    keyClick(Qt::Key_Right);
    slider->setValue(4.0);
    keyClick(Qt::Key_Left);
    EXPECT_EQ(log, (Log{"begin", "10", "0"}));
}

TEST_F(SliderKeys, StepsOfATenthAreCountedExactly) {
    make({1.0, 5.0, 0.1});
    focus();
    for (int i = 0; i < 40; ++i) keyClick(Qt::Key_Right);
    EXPECT_EQ(slider->value(), 5.0);
    EXPECT_EQ(log.size(), 41U);
    for (int i = 0; i < 40; ++i) keyClick(Qt::Key_Left);
    EXPECT_EQ(slider->value(), 1.0);
}

TEST_F(SliderKeys, ASpunWheelIsOneUse) {
    focus();
    for (int i = 0; i < 3; ++i) {
        turnWheel(120);
        time.advance(milliseconds(240));
    }
    EXPECT_EQ(log, (Log{"begin", "1", "2", "3"}));
    time.advance(milliseconds(10));
    EXPECT_EQ(log, (Log{"begin", "1", "2", "3", "end"}));
    turnWheel(-240);
    time.advance(milliseconds(250));
    EXPECT_EQ(log, (Log{"begin", "1", "2", "3", "end", "begin", "1", "end"}));
}

TEST_F(SliderKeys, SmallAnglesOfATouchpadAddUpToAStep) {
    focus();
    for (int i = 0; i < 7; ++i) turnWheel(15);
    EXPECT_EQ(log, Log{});
    turnWheel(15);
    EXPECT_EQ(log, (Log{"begin", "1"}));
    for (int i = 0; i < 7; ++i) turnWheel(15);
    turnWheel(-15);  // turning round begins anew
    turnWheel(15);
    EXPECT_EQ(log, (Log{"begin", "1"}));
}

TEST_F(SliderKeys, AWheelWithoutTheFocusIsLeftToThePage) {
    const test::EventCount wheels(page, QEvent::Wheel);
    turnWheel(120);
    EXPECT_EQ(wheels.count(), 1);
    EXPECT_EQ(log, Log{});
    EXPECT_FALSE(slider->hasFocus());
    focus();
    turnWheel(-120);  // at its end already
    EXPECT_EQ(wheels.count(), 1);
}

TEST_F(SliderKeys, TheLeftIsLessInEveryLanguage) {
    page.setLayoutDirection(Qt::RightToLeft);
    QLocale::setDefault(QLocale(QLocale::Arabic));
    focus();
    slider->setValue(2.0);
    EXPECT_EQ(slider->knobX(0.0), 14.0);
    keyClick(Qt::Key_Right);
    press(28);
    release(28);
    EXPECT_EQ(log, (Log{"begin", "3", "end", "begin", "0", "end"}));
    QLocale::setDefault(QLocale::c());
}

TEST_F(SliderKeys, TheRingIsShownForTheKeyboardOnly) {
    focus();
    EXPECT_TRUE(slider->showsRing());
    press(130);
    release(130);
    EXPECT_TRUE(slider->hasFocus());
    EXPECT_FALSE(slider->showsRing());
    keyClick(Qt::Key_Left);
    EXPECT_TRUE(slider->showsRing());
}

}  // namespace
}  // namespace lumo
