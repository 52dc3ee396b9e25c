// One use of a slider is one begin and one end, whatever happens in between.
#include <chrono>
#include <cmath>

#include "gui/SliderFixture.h"

namespace lumo {
namespace {

using std::chrono::milliseconds;

class SliderUse : public test::SliderFixture {};

TEST_F(SliderUse, ADragIsOneBeginTheValuesPassedThroughAndOneEnd) {
    press(28);
    for (int x = 28; x <= 181; x += 3) moveTo(x);
    release(181);
    EXPECT_EQ(log, (Log{"begin", "1", "2", "3", "end"}));
    EXPECT_EQ(slider->value(), 3.0);
}

TEST_F(SliderUse, TheOldValueStandsWhileTheBeginIsTold) {
    slider->setValue(4.0);
    double atBegin = -1.0;
    double atEnd = -1.0;
    QObject::connect(slider, &Slider::editingChanged, &page,
                     [&](bool begins) { (begins ? atBegin : atEnd) = slider->value(); });
    press(79);
    EXPECT_EQ(atBegin, 4.0);
    release(79);
    EXPECT_EQ(atEnd, 1.0);
}

TEST_F(SliderUse, APressOnTheKnobMovesNothing) {
    slider->setValue(2.0);
    press(136, 36);
    release(136, 36);
    EXPECT_EQ(log, (Log{"begin", "end"}));
    EXPECT_EQ(slider->value(), 2.0);
}

TEST_F(SliderUse, AValueBetweenTheStepsStaysUntilItIsMoved) {
    make({0.0, 40.0, 10.0});
    slider->setValue(4.0);
    EXPECT_DOUBLE_EQ(slider->knobX(4.0), 34.4);
    press(48);
    moveTo(50);
    release(48);
    EXPECT_EQ(log, (Log{"begin", "end"}));
    EXPECT_EQ(slider->value(), 4.0);
    press(48);
    moveTo(90);
    release(90);
    EXPECT_EQ(slider->value(), 10.0);
}

TEST_F(SliderUse, TheKnobIsHeldWhereItWasTaken) {
    slider->setValue(2.0);
    press(136);   // 6 points right of the centre
    moveTo(160);  // the centre at 154, before the middle of the next step
    EXPECT_EQ(log, (Log{"begin"}));
    moveTo(162);
    EXPECT_EQ(log, (Log{"begin", "3"}));
    release(162);
}

TEST_F(SliderUse, APressOnTheTrackBringsTheKnobThereAndTakesIt) {
    press(170);
    EXPECT_EQ(log, (Log{"begin", "3"}));
    moveTo(240);
    release(240);
    EXPECT_EQ(log, (Log{"begin", "3", "4", "end"}));
}

TEST_F(SliderUse, ADragMayLeaveTheSliderAndStaysInItsRange) {
    slider->setValue(2.0);
    press(130);
    moveTo(290, 90);
    moveTo(2, 2);
    release(2, 2);
    EXPECT_EQ(log, (Log{"begin", "4", "0", "end"}));
}

TEST_F(SliderUse, ThePlaceOfTheReleaseCounts) {
    press(130);
    QMouseEvent event(QEvent::MouseButtonRelease, QPointF(218, 14), slider->mapToGlobal(QPointF(218, 14)),
                      Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(slider, &event);  // without the move to it that the window would add
    EXPECT_EQ(log, (Log{"begin", "2", "4", "end"}));
    release(232);
}

TEST_F(SliderUse, OtherButtonsAndPressesBesideTheTrackAreNotTaken) {
    const test::EventCount presses(page, QEvent::MouseButtonPress);
    QTest::mouseClick(page.windowHandle(), Qt::RightButton, {}, QPoint(200, 40));
    QTest::mouseClick(page.windowHandle(), Qt::LeftButton, {}, QPoint(130, 28));  // the halo's room
    EXPECT_EQ(presses.count(), 2);
    EXPECT_EQ(log, Log{});
    EXPECT_FALSE(slider->hasFocus());
}

TEST_F(SliderUse, AnotherButtonDoesNotEndADrag) {
    press(130);
    QTest::mouseClick(page.windowHandle(), Qt::RightButton, {}, QPoint(130, 40));
    EXPECT_EQ(log, (Log{"begin", "2"}));
    release(130);
}

TEST_F(SliderUse, KeysAndWheelLeaveADragAlone) {
    press(130);
    keyClick(Qt::Key_Right);
    turnWheel(120);
    time.advance(milliseconds(1000));
    EXPECT_EQ(log, (Log{"begin", "2"}));
    release(130);
    EXPECT_EQ(log, (Log{"begin", "2", "end"}));
}

TEST_F(SliderUse, APressEndsTheUseByKeysBeforeItsOwnBegins) {
    focus();
    keyClick(Qt::Key_Right);
    press(79);
    EXPECT_EQ(log, (Log{"begin", "1", "end", "begin"}));
    time.advance(milliseconds(1000));
    EXPECT_EQ(log, (Log{"begin", "1", "end", "begin"}));
    release(79);
    EXPECT_EQ(log, (Log{"begin", "1", "end", "begin", "end"}));
}

TEST_F(SliderUse, LosingTheFocusEndsIt) {
    focus();
    keyDown(Qt::Key_Right);
    page.setFocus();
    EXPECT_EQ(log, (Log{"begin", "1", "end"}));
    press(181);
    page.setFocus();
    EXPECT_EQ(log, (Log{"begin", "1", "end", "begin", "3", "end"}));
    moveTo(232);
    release(232);
    time.advance(milliseconds(1000));
    EXPECT_EQ(log.size(), 6U);
}

TEST_F(SliderUse, HidingOrDisablingEndsIt) {
    slider->setFocusProxy(&page);  // as in a window that is not active: no loss of the focus comes first
    press(130);
    slider->hide();
    EXPECT_EQ(log, (Log{"begin", "2", "end"}));
    release(130);
    slider->show();
    log.clear();
    press(181);
    slider->setEnabled(false);
    EXPECT_EQ(log, (Log{"begin", "3", "end"}));
    release(181);
    EXPECT_EQ(log.size(), 3U);
}

TEST_F(SliderUse, HidingThePageEndsIt) {
    focus();
    keyDown(Qt::Key_Right);
    page.hide();
    EXPECT_EQ(log, (Log{"begin", "1", "end"}));
}

TEST_F(SliderUse, ALostReleaseEndsItAtTheNextMoveOfTheMouse) {
    press(130);
    QMouseEvent move(QEvent::MouseMove, QPointF(170, 14), slider->mapToGlobal(QPointF(170, 14)), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(slider, &move);
    EXPECT_EQ(log, (Log{"begin", "2", "end"}));
    release(130);
    EXPECT_EQ(log.size(), 3U);
}

TEST_F(SliderUse, ATakenMouseEndsIt) {
    press(130);
    QEvent taken(QEvent::UngrabMouse);
    QApplication::sendEvent(slider, &taken);
    EXPECT_EQ(log, (Log{"begin", "2", "end"}));
    release(130);
}

TEST_F(SliderUse, ADestroyedSliderEndsItOnce) {
    press(130);
    delete slider;
    slider = nullptr;
    EXPECT_EQ(log, (Log{"begin", "2", "end"}));
    release(130);
    make({0.0, 4.0, 1.0});
    focus();
    keyClick(Qt::Key_Right);
    delete slider;
    slider = nullptr;
    time.advance(milliseconds(1000));
    EXPECT_EQ(log, (Log{"begin", "2", "end", "begin", "1", "end"}));
}

/// A listener whose own part is gone when its children are deleted.
class Listener final : public QWidget {
public:
    Listener(std::vector<std::string>& log, MainQueue main, QWidget* parent) : QWidget(parent), m_log(log) {
        auto* const slider = new Slider({0.0, 4.0, 1.0}, main, this);
        slider->placeHitArea({6, 4, 220, 20});
        connect(slider, &Slider::editingChanged, this,
                [this](bool begins) { m_log.emplace_back(m_isWhole ? (begins ? "begin" : "end") : "too late"); });
        setGeometry(14, 26, 240, 40);
    }
    ~Listener() override { m_isWhole = false; }

private:
    std::vector<std::string>& m_log;
    bool m_isWhole = true;
};

TEST_F(SliderUse, ADestroyedListenerHearsNothingMore) {
    slider->hide();
    auto* const listener = new Listener(log, time.mainQueue(), &page);
    listener->show();
    press(130);
    delete listener;
    EXPECT_EQ(log, (Log{"begin"}));
    release(130);
}

TEST_F(SliderUse, ADestroyedWindowEndsItWhileTheListenerIsWhole) {
    auto window = std::make_unique<QWidget>();
    new Listener(log, time.mainQueue(), window.get());
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, QPoint(130, 40));
    window.reset();
    EXPECT_EQ(log, (Log{"begin", "end"}));
}

TEST_F(SliderUse, AListenerMayEndItFromWithinItsBegin) {
    QObject::connect(slider, &Slider::editingChanged, &page, [this](bool begins) {
        if (begins) slider->hide();
    });
    press(130);
    EXPECT_EQ(log, (Log{"begin", "end"}));
    EXPECT_EQ(slider->value(), 0.0);
    release(130);
    EXPECT_EQ(log.size(), 2U);
}

TEST_F(SliderUse, TheModelsValueIsSilent) {
    slider->setValue(3.0);
    EXPECT_EQ(slider->value(), 3.0);
    EXPECT_EQ(log, Log{});
}

class AccessibleSlider : public test::SliderFixture {
protected:
    QAccessibleInterface& element() { return *QAccessible::queryAccessibleInterface(slider); }
    QAccessibleValueInterface& values() { return *element().valueInterface(); }
};

TEST_F(AccessibleSlider, IsASliderOfItsNameWhereItCanBePressed) {
    slider->setAccessibleName("BRIGHTNESS");
    EXPECT_EQ(element().role(), QAccessible::Slider);
    EXPECT_EQ(element().text(QAccessible::Name), "BRIGHTNESS");
    EXPECT_TRUE(element().state().focusable);
    EXPECT_EQ(element().rect(), QRect(page.mapToGlobal(QPoint(20, 30)), QSize(220, 20)));
}

TEST_F(AccessibleSlider, TellsItsRangeAndItsTrueValue) {
    make({0.0, 40.0, 10.0});
    slider->setValue(4.0);
    EXPECT_EQ(values().currentValue().toDouble(), 4.0);
    EXPECT_EQ(values().minimumValue().toDouble(), 0.0);
    EXPECT_EQ(values().maximumValue().toDouble(), 40.0);
    EXPECT_EQ(values().minimumStepSize().toDouble(), 10.0);
}

TEST_F(AccessibleSlider, AValueFromThereIsAWholeUseThatEndsOnAStep) {
    values().setCurrentValue(2.6);
    EXPECT_EQ(log, (Log{"begin", "3", "end"}));
    values().setCurrentValue(99);
    EXPECT_EQ(slider->value(), 4.0);
    log.clear();
    values().setCurrentValue("much");
    values().setCurrentValue(std::nan(""));
    EXPECT_EQ(log, Log{});
}

}  // namespace
}  // namespace lumo
