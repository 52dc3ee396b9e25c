// Turning and paling a colour by the keyboard.
#include <chrono>

#include "gui/ColorWheelFixture.h"

namespace lumo {
namespace {

using std::chrono::milliseconds;

class WheelKeys : public test::ColorWheelFixture {};

TEST_F(WheelKeys, ArrowsTurnTheHueAndChangeTheSaturation) {
    wheel.setColor(Color{1.0, 0.0, 0.0});
    focus();
    keyClick(Qt::Key_Right);
    EXPECT_EQ(wheel.valueText(), "Hue 5°, saturation 100%");
    keyClick(Qt::Key_Left);
    keyClick(Qt::Key_Left);
    EXPECT_EQ(wheel.valueText(), "Hue 355°, saturation 100%");
    keyClick(Qt::Key_Down);
    EXPECT_EQ(wheel.valueText(), "Hue 355°, saturation 95%");
    keyClick(Qt::Key_Left, Qt::ShiftModifier);
    keyClick(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(wheel.valueText(), "Hue 354°, saturation 96%");
    EXPECT_EQ(reported.size(), 6U);
    EXPECT_EQ(toBytes(reported.front()), (ColorBytes{255, 21, 0}));
}

TEST_F(WheelKeys, AHeldArrowIsReportedAtTheSamePaceAndAtLastWhenItIsReleased) {
    wheel.setColor(Color{1.0, 0.0, 0.0});
    focus();
    keyDown(Qt::Key_Right);
    for (int i = 0; i < 9; ++i) {
        time.advance(milliseconds(25));
        keyDown(Qt::Key_Right, {}, true);
        wheel.setColor(reported.back());
    }
    EXPECT_EQ(wheel.valueText(), "Hue 50°, saturation 100%");
    EXPECT_EQ(reported.size(), 2U);
    QTest::keyRelease(&wheel, Qt::Key_Right);
    EXPECT_EQ(reported.size(), 3U);
    EXPECT_EQ(toBytes(reported.back()), toBytes(Color::fromHsb(50.0 / 360.0, 1.0, 1.0)));
}

TEST_F(WheelKeys, ATurnOfTheHueIsKeptWhereThereIsNoSaturation) {
    wheel.setColor(Color{1.0, 1.0, 1.0});
    focus();
    for (int i = 0; i < 24; ++i) keyClick(Qt::Key_Right);
    EXPECT_TRUE(reported.empty());  // white all the time
    wheel.setColor(Color{1.0, 1.0, 1.0});
    EXPECT_EQ(wheel.valueText(), "Hue 120°, saturation 0%");
    for (int i = 0; i < 20; ++i) keyClick(Qt::Key_Up);
    EXPECT_EQ(toBytes(reported.back()), (ColorBytes{0, 255, 0}));
}

TEST_F(WheelKeys, OtherKeysAreNotTaken) {
    focus();
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_PageUp, Qt::Key_Home}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&wheel, &event);
        EXPECT_FALSE(event.isAccepted()) << key;
    }
    EXPECT_TRUE(reported.empty());
}

}  // namespace
}  // namespace lumo
