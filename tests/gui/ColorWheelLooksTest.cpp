// The colour wheel's pixels, and what of it is painted when.
#include "gui/ColorWheelFixture.h"

namespace lumo {
namespace {

class WheelPicture : public test::ColorWheelFixture {};

TEST_F(WheelPicture, IsPaintedWithItsMarker) {
    wheel.setColor(Color{1.0, 1.0, 1.0});
    EXPECT_EQ(wheel.discRect(), QRectF(10, 10, 196, 196));
    for (const int scale : {1, 2}) {
        const QImage picture = painted(scale);
        const auto at = [&](double x, double y) { return picture.pixelColor(QPointF(x * scale, y * scale).toPoint()); };
        EXPECT_EQ(at(8, 108).alpha(), 0);
        EXPECT_EQ(at(108, 208).alpha(), 0);
        EXPECT_NEAR(at(203, 108).green(), 7, 4);
        EXPECT_EQ(at(203, 108).red(), 255);
        EXPECT_NEAR(at(157, 108).green(), 128, 3);
        EXPECT_NEAR(at(108, 59).red(), 191, 3);
        EXPECT_EQ(at(108, 59).green(), 255);
        EXPECT_GE(at(108, 108).green(), 252);
    }
}

TEST_F(WheelPicture, TheMarkerIsAWhiteRingWithDarkEdges) {
    wheel.setColor(Color{0.0, 0.0, 1.0});  // at (59, 192.9) in the wheel
    const QPointF centre = wheel.markerCentre();
    EXPECT_NEAR(centre.x(), 59.0, 0.01);
    EXPECT_NEAR(centre.y(), 192.87, 0.01);
    const QImage picture = painted(2.0);
    const auto fromCentre = [&](double x) { return picture.pixelColor((centre + QPointF(x, 0.0)).toPoint() * 2); };
    EXPECT_EQ(picture.pixelColor(118 + 14, 386), QColor(Qt::white));
    EXPECT_EQ(picture.pixelColor(118 - 14, 386), QColor(Qt::white));
    EXPECT_LT(picture.pixelColor(118 + 11, 385).blue(), 160);
    EXPECT_LT(picture.pixelColor(118 + 17, 385).blue(), 140);
    EXPECT_GT(fromCentre(0.0).blue(), 250);
}

TEST_F(WheelPicture, AMoveOfTheMarkerPaintsOnlyItsOldAndItsNewPlace) {
    class Paints final : public QObject {
    public:
        QRegion region;
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() == QEvent::Paint) region += static_cast<QPaintEvent*>(event)->region();
            return false;
        }
    } paints;
    wheel.setColor(Color{1.0, 0.0, 0.0});
    wheel.installEventFilter(&paints);
    wheel.update();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !paints.region.isEmpty(); }, 30000));
    paints.region = {};
    wheel.setColor(Color{1.0, 0.0, 0.0});
    wheel.setColor(Color{0.0, 1.0, 1.0});
    ASSERT_TRUE(QTest::qWaitFor([&] { return !paints.region.isEmpty(); }, 30000));
    EXPECT_TRUE(paints.region.contains(QPoint(206, 108)));
    EXPECT_TRUE(paints.region.contains(QPoint(10, 108)));
    EXPECT_FALSE(paints.region.contains(QPoint(108, 108)));
    EXPECT_FALSE(paints.region.contains(QPoint(108, 30)));
}

TEST(WheelDisc, IsDrawnOncePerSize) {
    QImage artwork(800, 800, QImage::Format_ARGB32);
    artwork.fill(Qt::red);
    for (WheelDisc disc : {WheelDisc([] { return QImage(); }), WheelDisc([&] { return artwork; })}) {
        const qint64 first = disc.drawn(196).cacheKey();
        EXPECT_EQ(disc.drawn(196).cacheKey(), first);
        EXPECT_EQ(disc.drawn(392).width(), 392);
        EXPECT_EQ(disc.drawn(392).height(), 392);
    }
}

TEST(WheelDisc, IsTheArtworkWhereThereIsOne) {
    QImage artwork(800, 800, QImage::Format_ARGB32);
    artwork.fill(QColor(10, 200, 30));
    WheelDisc disc([&] { return artwork; });
    EXPECT_EQ(disc.drawn(200).pixelColor(100, 100), QColor(10, 200, 30));
}

}  // namespace
}  // namespace lumo
