#include "controls/Fade.h"

#include <gtest/gtest.h>

#include <QTest>

namespace lumo {
namespace {

class FadeOfWidget : public testing::Test {
protected:
    QWidget owner;
    Fade fade{owner};

    void show() {
        owner.resize(40, 40);
        owner.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&owner));
    }
};

TEST_F(FadeOfWidget, JumpsWhileNobodySeesIt) {
    fade.to(1.0, 100000);
    EXPECT_EQ(fade.value(), 1.0);
}

TEST_F(FadeOfWidget, JumpsWithoutADuration) {
    show();
    fade.to(0.5, 0);
    EXPECT_EQ(fade.value(), 0.5);
}

TEST_F(FadeOfWidget, ReachesItsTargetExactly) {
    show();
    fade.to(1.0, 20);
    EXPECT_LT(fade.value(), 1.0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return fade.value() == 1.0; }, 30000));
}

TEST_F(FadeOfWidget, TurnsRoundFromWhereItStands) {
    show();
    fade.to(1.0, 100000);
    const double before = fade.value();
    fade.to(0.0, 0);
    EXPECT_LT(before, 1.0);
    EXPECT_EQ(fade.value(), 0.0);
}

TEST(Mix, GoesFromOneColorToTheOtherWithItsOpacity) {
    EXPECT_EQ(mix(QColor(0, 100, 200, 0), QColor(100, 200, 0, 255), 0.0), QColor(0, 100, 200, 0));
    EXPECT_EQ(mix(QColor(0, 100, 200, 0), QColor(100, 200, 0, 200), 0.5), QColor(50, 150, 100, 100));
    EXPECT_EQ(mix(QColor(0, 100, 200, 0), QColor(100, 200, 0, 255), 1.0), QColor(100, 200, 0, 255));
}

}  // namespace
}  // namespace lumo
