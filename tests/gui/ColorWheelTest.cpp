// Picking a colour by hue and saturation.
#include <chrono>
#include <cmath>
#include <memory>
#include <numbers>

#include "gui/ColorWheelFixture.h"
#include "gui/EventCount.h"

namespace lumo {
namespace {

using std::chrono::milliseconds;

class Wheel : public test::ColorWheelFixture {};

TEST_F(Wheel, RedIsAtThreeOClockAndTheHuesRunCounterClockwise) {
    press(248, 120);
    release(248, 120);
    press(150, 22);
    release(150, 22);
    press(52, 120);
    release(52, 120);
    EXPECT_EQ(reportedBytes(), (Bytes{{255, 0, 0}, {127, 255, 0}, {0, 255, 255}}));
}

TEST_F(Wheel, SaturationIsTheDistanceFromTheWhiteCentre) {
    press(199, 120);
    release(199, 120);
    press(150, 120);
    release(150, 120);
    EXPECT_EQ(reportedBytes(), (Bytes{{255, 127, 127}, {255, 255, 255}}));
}

TEST_F(Wheel, ADragOutsideStaysOnTheRim) {
    press(200, 120);
    moveTo(299, 120);
    expectMarkerAt(248, 120);
    moveTo(150, 2);
    expectMarkerAt(150, 22);
    release(150, 2);
    EXPECT_EQ(toBytes(reported.back()), (ColorBytes{127, 255, 0}));
}

TEST_F(Wheel, APressOutsideTheDiscOrWithAnotherButtonBelongsToTheWindow) {
    const test::EventCount presses(page, QEvent::MouseButtonPress);
    press(60, 30);
    moveTo(150, 120);
    release(150, 120);
    press(249, 120);
    release(249, 120);
    QTest::mouseClick(page.windowHandle(), Qt::RightButton, {}, QPoint(150, 120));
    EXPECT_EQ(presses.count(), 3);
    EXPECT_TRUE(reported.empty());
    EXPECT_FALSE(wheel.hasFocus());
    press(150, 120);
    release(150, 120);
    EXPECT_EQ(presses.count(), 3);
    EXPECT_TRUE(wheel.hasFocus());
}

TEST_F(Wheel, TheMarkerFollowsEveryMoveWhateverTheModelSays) {
    press(150, 60);
    for (int x = 100; x <= 200; x += 7) {
        moveTo(x, 100);
        expectMarkerAt(x, 100);
        wheel.setColor(Color{0.0, 0.0, 1.0});
        expectMarkerAt(x, 100);
    }
    release(200, 100);
    expectMarkerAt(200, 100);
}

TEST_F(Wheel, SixtyMovesInASecondAreSixReportsAndTheLast) {
    press(150, 30);
    for (int i = 1; i <= 60; ++i) {
        time.advance(std::chrono::microseconds(1000000 / 60));
        moveTo(150 + i, 60);
    }
    EXPECT_LE(reported.size(), 6U);
    EXPECT_GE(reported.size(), 5U);
    release(210, 60);
    EXPECT_LE(reported.size(), 7U);
    const double hue = std::atan2(60.0, 60.0) / (2.0 * std::numbers::pi);
    EXPECT_EQ(toBytes(reported.back()), toBytes(Color::fromHsb(hue, std::hypot(60.0, 60.0) / 98.0, 1.0)));
    const std::size_t count = reported.size();
    time.advance(milliseconds(1000));
    EXPECT_EQ(reported.size(), count);
}

TEST_F(Wheel, TheFirstChangeIsReportedAtOnceAndLaterOnesTwoHundredMillisecondsApart) {
    press(248, 120);
    EXPECT_EQ(reported.size(), 1U);
    time.advance(milliseconds(1));
    moveTo(150, 22);
    moveTo(52, 120);
    EXPECT_EQ(reported.size(), 1U);
    time.advance(milliseconds(198));
    EXPECT_EQ(reported.size(), 1U);
    time.advance(milliseconds(1));
    EXPECT_EQ(reportedBytes(), (Bytes{{255, 0, 0}, {0, 255, 255}}));
    time.advance(milliseconds(200));  // nothing new, so that the next change need not wait
    moveTo(150, 22);
    EXPECT_EQ(reported.size(), 3U);
    release(150, 22);
    EXPECT_EQ(reported.size(), 3U);
}

TEST_F(Wheel, TheSameColorIsNoChangeDuringADrag) {
    press(248, 120);
    moveTo(150, 22);
    moveTo(248, 120);
    time.advance(milliseconds(1000));
    moveTo(249, 120);
    release(248, 120);
    EXPECT_EQ(reportedBytes(), (Bytes{{255, 0, 0}}));
}

TEST_F(Wheel, EveryPressPicksAlsoTheColorItHas) {
    press(248, 120);
    release(248, 120);
    wheel.setColor(reported.back());
    press(248, 120);
    EXPECT_EQ(reportedBytes(), (Bytes{{255, 0, 0}, {255, 0, 0}}));
    release(248, 120);
    wheel.setColor(Color{0.0, 1.0, 0.0});  // somebody else's
    press(248, 120);
    time.advance(milliseconds(1000));
    release(248, 120);
    EXPECT_EQ(reportedBytes(), (Bytes{{255, 0, 0}, {255, 0, 0}, {255, 0, 0}}));
}

TEST_F(Wheel, APickGivenBackByTheModelLeavesTheMarkerWhereItIs) {
    for (const QPointF place : {QPointF(150, 120), QPointF(153, 118), QPointF(90, 170), QPointF(220, 60)}) {
        press(place.x(), place.y());
        release(place.x(), place.y());
        wheel.setColor(reported.back());
        expectMarkerAt(place.x(), place.y());
        wheel.setColor(Color::fromBytes(toBytes(reported.back())));
        expectMarkerAt(place.x(), place.y());
    }
}

TEST_F(Wheel, TheMarkerIsAtTheModelsHueAndSaturation) {
    wheel.setColor(kDefaultColor);  // 263 degrees, 96 %
    const double angle = 263.235 / 180.0 * std::numbers::pi;
    expectMarkerAt(150 + 94.4 * std::cos(angle), 120 - 94.4 * std::sin(angle));
    wheel.setColor(Color{0.4, 0.4, 0.4});
    expectMarkerAt(150, 120);
    EXPECT_TRUE(reported.empty());
}

TEST_F(Wheel, WhatTheModelWasGivenMeanwhileIsShownAfterTheDrag) {
    press(248, 120);
    wheel.setColor(Color{0.0, 1.0, 1.0});
    release(248, 120);
    EXPECT_EQ(reported.size(), 2U);  // the pointer's colour came last
    expectMarkerAt(248, 120);
    wheel.setFocusProxy(&page);
    press(150, 22);
    wheel.setColor(Color{0.0, 1.0, 1.0});
    wheel.setEnabled(false);
    expectMarkerAt(52, 120);
    release(150, 22);
}

TEST_F(Wheel, LosingTheFocusOrBeingHiddenReportsTheLastAtOnce) {
    focus();
    keyDown(Qt::Key_Up);
    keyDown(Qt::Key_Up);
    EXPECT_EQ(reported.size(), 1U);
    page.setFocus();
    EXPECT_EQ(reported.size(), 2U);
    wheel.setFocusProxy(&page);  // as in a window that is not active: no loss of the focus comes first
    press(150, 100);
    moveTo(150, 90);
    EXPECT_EQ(reported.size(), 3U);
    wheel.hide();
    EXPECT_EQ(reported.size(), 4U);
    moveTo(150, 60);
    release(150, 60);
    time.advance(milliseconds(1000));
    EXPECT_EQ(reported.size(), 4U);
}

TEST_F(Wheel, ALostReleaseEndsTheDragAtTheNextMove) {
    press(150, 100);
    moveTo(150, 90);
    QMouseEvent move(QEvent::MouseMove, QPointF(30, 30), wheel.mapToGlobal(QPointF(30, 30)), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&wheel, &move);
    expectMarkerAt(150, 90);
    EXPECT_EQ(reported.size(), 2U);
    release(150, 90);
}

TEST_F(Wheel, ADestroyedWheelReportsNothingMore) {
    auto other = std::make_unique<ColorWheel>([] { return QImage(); }, time.mainQueue(), nullptr);
    QObject::connect(other.get(), &ColorWheel::picked, &page,
                     [this](const Color& color) { reported.push_back(color); });
    for (int i = 0; i < 3; ++i) QTest::keyPress(other.get(), Qt::Key_Up);
    EXPECT_EQ(reported.size(), 1U);
    other.reset();
    time.advance(milliseconds(1000));
    EXPECT_EQ(reported.size(), 1U);
}

TEST_F(Wheel, IsOneElementWithItsValueInWords) {
    wheel.setAccessibleName("COLOR SPECTRUM");
    wheel.setColor(kDefaultColor);
    QAccessibleInterface& element = *QAccessible::queryAccessibleInterface(&wheel);
    EXPECT_EQ(element.role(), QAccessible::ColorChooser);
    EXPECT_EQ(element.text(QAccessible::Name), "COLOR SPECTRUM");
    EXPECT_EQ(element.text(QAccessible::Value), "Hue 263°, saturation 96%");
#ifndef Q_OS_MACOS
    EXPECT_EQ(element.text(QAccessible::Description), "Hue 263°, saturation 96%");
#endif
    EXPECT_EQ(element.childCount(), 0);
    EXPECT_EQ(element.rect(), QRect(page.mapToGlobal(QPoint(52, 22)), QSize(196, 196)));
}

}  // namespace
}  // namespace lumo
