// Where an effect's colours come from, as its dot shows it.
#include "keyboard/EffectDot.h"

#include <gtest/gtest.h>

#include "gui/WindowFixture.h"
#include "keyboard/EffectRow.h"

namespace lumo {
namespace {

QImage dot(EffectColors colors, const QColor& chosen) {
    QImage picture(10, 10, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paintEffectDot(painter, QRectF(0, 0, 10, 10), colors, chosen);
    return picture;
}

TEST(EffectDot, KnowsWhereEachKindOfEffectHasItsColors) {
    EXPECT_EQ(effectColors(*findLightingMode(0)), EffectColors::none);
    EXPECT_EQ(effectColors(*findLightingMode(5)), EffectColors::chosen);
    EXPECT_EQ(effectColors(*findLightingMode(3)), EffectColors::own);
    EXPECT_EQ(effectColors(*findLightingMode(18)), EffectColors::chosen);
    EXPECT_EQ(effectColors(*findLightingMode(21)), EffectColors::perKey);
}

TEST(EffectDot, IsADiscOfTheChosenColor) {
    EXPECT_EQ(dot(EffectColors::chosen, QColor(255, 0, 120)).pixelColor(5, 5), QColor(255, 0, 120));
}

TEST(EffectDot, HasFourQuartersForThePerKeyEffect) {
    const QImage picture = dot(EffectColors::perKey, Qt::white);
    EXPECT_EQ(picture.pixelColor(7, 2), QColor(0x00, 0xD2, 0xFF));
    EXPECT_EQ(picture.pixelColor(7, 7), QColor(0xFF, 0x00, 0x78));
    EXPECT_EQ(picture.pixelColor(2, 7), QColor(0xFF, 0xC8, 0x00));
    EXPECT_EQ(picture.pixelColor(2, 2), QColor(0x00, 0xFF, 0x64));
}

TEST(EffectDot, IsAnEmptyRingForNoLight) {
    const QImage picture = dot(EffectColors::none, Qt::white);
    EXPECT_EQ(picture.pixelColor(5, 5).alpha(), 0);
    EXPECT_GT(picture.pixelColor(5, 0).alpha(), 200);
}

TEST(EffectDot, TurnsThroughItsOwnColorsClockwiseFromRed) {
    const QImage picture = dot(EffectColors::own, Qt::white);
    EXPECT_GT(picture.pixelColor(5, 1).red(), 200);
    EXPECT_LT(picture.pixelColor(5, 1).green(), 130);
    EXPECT_GT(picture.pixelColor(8, 5).green(), 200);
    EXPECT_GT(picture.pixelColor(1, 5).blue(), 190);
}

class EffectDotInList : public test::WindowFixture {
protected:
    QColor dotOf(const QString& name) { return row(name).grab().toImage().pixelColor(14, row(name).height() / 2); }
};

TEST_F(EffectDotInList, FollowsTheChosenColorWhereTheEffectTakesIt) {
    show();
    EXPECT_EQ(dotOf("Raindrops"), QColor(87, 8, 212));
    const QColor own = dotOf("Rainbow (Cycle)");
    state().selectedColor.set(Color{1.0, 0.0, 0.0});
    time.settle();
    EXPECT_EQ(dotOf("Raindrops"), QColor(255, 0, 0));
    EXPECT_EQ(dotOf("Rainbow (Cycle)"), own);
}

}  // namespace
}  // namespace lumo
