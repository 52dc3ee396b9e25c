// The on-screen keyboard's picture: what it shows, and how little of it is done anew.
#include "keyboard/KeyboardPicture.h"

#include <gtest/gtest.h>

#include <QPainterPath>

#include "device/LightingModes.h"
#include "gui/KeyboardPictureFixture.h"
#include "keyboard/KeyShade.h"

namespace lumo {
namespace {

using test::differenceOf;
using test::kWhole;

using KeyboardPictureTest = test::KeyboardPictureFixture;

/// Of 255, over the channels of those pixels.
double averageDifference(const QImage& a, const QImage& b, const QRect& part) {
    double sum = 0.0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) sum += differenceOf(a.pixel(x, y), b.pixel(x, y));
    }
    return sum / 3.0 / part.width() / part.height();
}

/// Sum over the channels of one pixel.
int greatestDifference(const QImage& a, const QImage& b) {
    int greatest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) greatest = std::max(greatest, differenceOf(a.pixel(x, y), b.pixel(x, y)));
    }
    return greatest;
}

double luminanceOf(QRgb color) {
    return relativeLuminance({static_cast<std::uint8_t>(qRed(color)), static_cast<std::uint8_t>(qGreen(color)),
                              static_cast<std::uint8_t>(qBlue(color))});
}

double contrast(double brighter, double darker) { return (brighter + 0.05) / (darker + 0.05); }

struct Moment {
    std::int64_t mode;
    double time;
    int scale;
};

class KeyboardPictureInEffect : public KeyboardPictureTest, public testing::WithParamInterface<Moment> {};

TEST_P(KeyboardPictureInEffect, LooksAsWhenEverythingIsDrawnAnew) {
    ASSERT_FALSE(shipped.isNull());
    const auto [mode, time, scale] = GetParam();
    light(mode, time);
    const QImage image = painted(scale);
    const QImage reference = expected(scale);
    const auto part = [&, scale = scale](QRectF points) {
        return averageDifference(image, reference, QRectF(points.topLeft() * scale, points.size() * scale).toRect());
    };
    EXPECT_LE(part(kWhole), 1.0);
    EXPECT_LE(part({14, 64, 600, 5}), 2.0) << "light between the first two rows";
    EXPECT_LE(part({166, 186, 232, 34}), 2.0) << "the space bar";
    EXPECT_LE(part({0, 236, 650, 11}), 1.0) << "light below the case";
    EXPECT_LE(part({0, 0, 650, 13}), 1.0) << "light above the case";
}

INSTANTIATE_TEST_SUITE_P(Moments, KeyboardPictureInEffect,
                         testing::Values(Moment{0, 0.0, 1}, Moment{1, 0.0, 1}, Moment{4, 1.0, 1}, Moment{4, 2.3, 2},
                                         Moment{5, 0.7, 2}, Moment{6, 5.0, 1}, Moment{8, 0.2, 1}, Moment{14, 1.0, 2},
                                         Moment{17, 3.0, 1}, Moment{21, 0.0, 2}));

TEST_F(KeyboardPictureTest, NeverLeavesTheRangeOfAByte) {
    for (const Color& color : {Color{0, 0, 0}, Color{1, 1, 1}, Color{1, 1, 0}, Color{0, 0, 1}}) {
        for (const double glow : {0.14, 1.0}) {
            lightAll(color, glow);
            EXPECT_LT(greatestDifference(painted(), expected(1.0)), 100) << color.red << color.blue << glow;
        }
    }
}

TEST_F(KeyboardPictureTest, NeverLeavesTheRangeOfAByteOverAnyPicture) {
    QImage white(1300, 494, QImage::Format_ARGB32);
    white.fill(Qt::white);
    KeyboardPicture overWhite(keys, [&] { return white; });
    lightAll({1.0, 1.0, 1.0}, 1.0);
    EXPECT_EQ(painted(overWhite, 1.0).pixel(300, 66), 0xFFFFFFFF);
}

TEST_F(KeyboardPictureTest, IsTheSameWhenItsKeysAreDrawnAhead) {
    light(4, 1.0);
    for (const double scale : {1.0, 1.25, 2.0}) {
        KeyboardPicture ahead(keys, [this] { return shipped; });
        ahead.drawAhead(scale);
        EXPECT_EQ(painted(ahead, scale), paintedAnew(scale)) << scale;
    }
}

TEST_F(KeyboardPictureTest, IsTheSameWhenItsKeysWereDrawnAheadForAnotherScreen) {
    light(4, 1.0);
    KeyboardPicture ahead(keys, [this] { return shipped; });
    ahead.drawAhead(2.0);
    EXPECT_EQ(painted(ahead, 1.0), paintedAnew(1.0));
    EXPECT_EQ(painted(ahead, 2.0), paintedAnew(2.0));
}

TEST_F(KeyboardPictureTest, CanGoWhileItsKeysAreDrawn) {
    for (int time = 0; time < 3; ++time) KeyboardPicture(keys, [this] { return shipped; }).drawAhead(1.0);
}

TEST_F(KeyboardPictureTest, LetsLightOutBelowTheCaseAndHardlyAboveIt) {
    const QImage dark = painted();
    lightAll({1.0, 1.0, 1.0}, 1.0);
    const QImage lit = painted();
    const auto added = [&](int x, int y) { return qRed(lit.pixel(x, y)) - qRed(dark.pixel(x, y)); };
    EXPECT_NEAR(added(300, 236), 19, 2);
    EXPECT_NEAR(added(300, 240), 11, 2);
    EXPECT_NEAR(added(300, 245), 3, 2);
    EXPECT_NEAR(added(300, 12), 2, 2);
    EXPECT_EQ(added(300, 18), 0) << "the case itself takes none";
    EXPECT_EQ(added(300, 233), 0) << "nor its lower edge";
}

TEST_F(KeyboardPictureTest, PutsTheLightAroundALegendWhereTheLegendStands) {
    const QImage dark = painted(2.0);
    lightAll({0.0, 0.0, 1.0}, 1.0);
    const QImage lit = painted(2.0);
    const auto added = [&](const QPointF& place) {
        const QPoint pixel = (place * 2.0).toPoint();
        return qBlue(lit.pixel(pixel)) - qBlue(dark.pixel(pixel));
    };
    const QPointF beside(24.0, 0.0);  // of the letters
    const QPointF onQ = QPointF(rect("Q").topLeft()) + beside;
    EXPECT_GE(added(onQ + QPointF(0.0, 15.0)), added(onQ + QPointF(0.0, 8.0)) + 5) << "in the middle of the face";
    const QPointF onOne = QPointF(rect("1").topLeft()) + beside;
    EXPECT_GE(added(onOne + QPointF(0.0, 9.7)), added(onOne + QPointF(0.0, 16.7)) + 5) << "above its second legend";
}

TEST_F(KeyboardPictureTest, ShowsGreyLegendsAndNoLightWhenDark) {
    lightAll({1.0, 0.0, 0.0}, 0.0);
    const QImage image = painted(2.0);
    const QRect onCap(QPoint(348, 69) * 2, QSize(34, 34) * 2);  // "I" has a stem of more than a pixel
    bool hasLegend = false;
    for (int y = onCap.top(); y <= onCap.bottom(); ++y) {
        for (int x = onCap.left(); x <= onCap.right(); ++x) hasLegend |= image.pixel(x, y) == 0xFFB0B1B8;
    }
    EXPECT_TRUE(hasLegend);
    for (int x = 40; x < 1190; ++x) {
        const QRgb pixel = image.pixel(x, 2 * 26);  // the plate above the keys
        EXPECT_LE(qRed(pixel) - qGreen(pixel), 1);
        EXPECT_LE(qRed(pixel), 0x0E);
    }
}

TEST_F(KeyboardPictureTest, ChangesNothingForTheSameLooks) {
    light(4, 1.0);
    EXPECT_EQ(picture.compose(looks), kWhole);
    const QImage before = painted();
    EXPECT_TRUE(picture.compose(looks).isEmpty());
    light(4, 1.000001);  // less than any pixel shows
    EXPECT_TRUE(picture.compose(looks).isEmpty());
    light(4, 1.1);
    EXPECT_EQ(picture.compose(looks), kWhole);
    EXPECT_NE(painted(), before);
}

TEST_F(KeyboardPictureTest, ChangesOneKeyForAHover) {
    light(1, 0.0);
    const QImage before = painted(2.0);
    look("G").hover = 0.5;
    EXPECT_EQ(picture.compose(looks), rect("G").adjusted(-2, -2, 2, 2));
    const QImage after = painted(2.0);
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x) {
            if (rect("G").contains(x / 2, y / 2)) continue;
            ASSERT_EQ(after.pixel(x, y), before.pixel(x, y)) << x << ", " << y;
        }
    }
    const QPoint onFace = (rect("G").topLeft() + QPoint(7, 24)) * 2;
    EXPECT_NEAR(qRed(after.pixel(onFace)), qRed(before.pixel(onFace)) * 0.94 + 255 * 0.06, 2.0);
}

TEST_F(KeyboardPictureTest, PaintsTheAskedPartOnly) {
    picture.compose(looks);
    const QImage image =
        paintWith(2.0, [&](QPainter& painter) { picture.paint(painter, QPointF(), QRect(100, 50, 30, 20)); });
    const QRect part(200, 100, 60, 40);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ASSERT_EQ(image.pixel(x, y) != 0xFFFF00FF, part.contains(x, y)) << x << ", " << y;
        }
    }
}

TEST_F(KeyboardPictureTest, HasTheSamePixelsHoweverItCameToThem) {
    for (const double scale : {1.0, 1.25, 2.0}) {
        light(4, scale);
        painted(scale);
        look("W").selected = true;
        look("PgUp").hover = 1.0;
        painted(scale);
        look("PgDn").focused = true;
        look("PgUp").hover = 0.3;
        look("Delete").press = 1.0;
        painted(scale);
        look("W").selected = look("PgDn").focused = false;
        look("S").selected = true;
        EXPECT_EQ(painted(scale), paintedAnew(scale)) << scale;
        look("PgUp").hover = look("Delete").press = 0.0;
        look("S").selected = false;
        EXPECT_EQ(painted(scale), paintedAnew(scale)) << scale;
    }
}

TEST_F(KeyboardPictureTest, LetsNoLightOnTheCornerBlock) {
    const QImage dark = painted(2.0);
    lightAll({1.0, 1.0, 1.0}, 1.0);
    const QImage lit = painted(2.0);
    const QRect block(2 * 598, 2 * 24, 2 * 39, 2 * 40);
    for (int y = block.top(); y <= block.bottom(); ++y) {
        for (int x = block.left(); x <= block.right(); ++x) {
            const bool isInCorner = x < 2 * 605 && y > 2 * 58;  // round
            if (isInCorner) continue;
            ASSERT_EQ(lit.pixel(x, y), dark.pixel(x, y)) << x << ", " << y;
        }
    }
    EXPECT_GT(qRed(lit.pixel(2 * 595 + 1, 2 * 45)), 0x60) << "left of it there is light";
}

TEST_F(KeyboardPictureTest, ShowsAllCapsWithLegendsWithoutItsFile) {
    KeyboardPicture drawn(keys, [] { return QImage(); });
    light(1, 0.0);
    const QImage image = painted(drawn, 2.0);
    EXPECT_LE(averageDifference(image, painted(2.0), image.rect()), 2.0);
    for (const KeyCap& key : keys) {
        const QRect face(QPoint(static_cast<int>(key.x) + 5, static_cast<int>(key.y) + 4) * 2,
                         QSize(static_cast<int>(key.width) - 10, 22) * 2);
        int letters = 0;
        for (int y = face.top(); y <= face.bottom(); ++y) {
            for (int x = face.left(); x <= face.right(); ++x) letters += qBlue(image.pixel(x, y)) > 0xD0 ? 1 : 0;
        }
        EXPECT_GE(letters, 4) << key.label;
    }
}

TEST_F(KeyboardPictureTest, FollowsToAScreenOfAnotherScale) {
    light(4, 1.0);
    painted(1.0);
    EXPECT_EQ(painted(2.0), paintedAnew(2.0));
    EXPECT_EQ(painted(1.0), paintedAnew(1.0));
}

TEST_F(KeyboardPictureTest, IsComposedForThePixelsItLiesOn) {
    light(4, 1.0);
    for (const double scale : {1.25, 1.5}) {
        for (const QPointF origin : {QPointF(0, 0), QPointF(0.2, 0.4)}) {
            const QImage image = painted(picture, scale, origin);
            const QRect shown = image.rect().adjusted(1, 1, -1, -1);  // outermost pixels belong to it in part
            EXPECT_LE(averageDifference(image, expected(scale, origin), shown), 1.5) << scale << origin.x();
        }
    }
}

TEST_F(KeyboardPictureTest, KeepsLegendsReadableInAnyLight) {
    constexpr int kScale = 4;
    double lowest = 21.0;
    for (int hue = 0; hue < 12; ++hue) {
        for (const double saturation : {1.0, 0.5}) {
            for (const double glow : {0.1, 0.3, 0.6, 1.0}) {
                lightAll(Color::fromHsb(hue / 12.0, saturation, 1.0), glow);
                const QImage image = painted(kScale);
                const QPoint stem = QPoint(348 + 17, 69 + 15) * kScale;  // in the middle of "I"
                const QPoint beside = stem - QPoint(2 * kScale, 0);
                const double letter = luminanceOf(image.pixel(stem));
                lowest = std::min(lowest, contrast(letter, luminanceOf(image.pixel(beside))));
            }
        }
    }
    EXPECT_GE(lowest, 4.5);
    EXPECT_LE(lowest, 7.0) << "or the pixels are not those of letter and cap";
}

}  // namespace
}  // namespace lumo
