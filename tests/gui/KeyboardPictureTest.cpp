// The on-screen keyboard's picture: what it shows, and how little of it is done anew.
#include "keyboard/KeyboardPicture.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <functional>

#include "UncachedKeyboardPainter.h"
#include "device/LightingModes.h"
#include "keyboard/KeyShade.h"
#include "keyboard/KeyboardLayout.h"

namespace lumo {
namespace {

constexpr double kFullBrightness = 4.0;
constexpr double kMiddleSpeed = 2.0;
const QRect kWhole(0, 0, 650, 247);

/// The shipped picture, or the drawn case where the tests run elsewhere.
QImage shippedPicture() { return QImage(LUMO_ASSETS_FOLDER "/keyimg.png"); }

int differenceOf(QRgb a, QRgb b) {
    return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
}

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

class KeyboardPictureTest : public testing::Test {
protected:
    std::vector<KeyCap> keys = defaultLayout();
    std::vector<KeyLook> looks = std::vector<KeyLook>(keys.size());
    QImage shipped = shippedPicture();
    KeyboardPicture picture{keys, shipped};

    KeyLook& look(std::string_view label) { return looks[indexOf(label)]; }

    QRect rect(std::string_view label) const {
        const KeyCap& key = keys[indexOf(label)];
        return QRectF(key.x, key.y, key.width, key.height).toRect();
    }

    void light(std::int64_t mode, double time) {
        for (std::size_t i = 0; i < keys.size(); ++i) {
            looks[i].light = LightingEngine::color(keys[i], mode, time, {0, 210, 255}, kFullBrightness, kMiddleSpeed);
        }
    }

    void lightAll(const Color& color, double glow) {
        for (KeyLook& each : looks) each.light = {color, glow};
    }

    static QImage window(double scale) {
        QImage image((QSizeF(kWhole.size()) * scale).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::magenta);
        return image;
    }

    static QImage paintWith(double scale, const std::function<void(QPainter&)>& paint) {
        QImage image = window(scale);
        {
            QPainter painter(&image);
            paint(painter);
        }
        image.setDevicePixelRatio(1.0);
        return image;
    }

    QImage painted(KeyboardPicture& from, double scale, QPointF origin = {}) {
        from.compose(looks);
        return paintWith(scale, [&](QPainter& painter) { from.paint(painter, origin, kWhole); });
    }

    QImage painted(double scale = 1.0) { return painted(picture, scale); }

    QImage paintedAnew(double scale) {
        KeyboardPicture fresh(keys, shipped);
        return painted(fresh, scale);
    }

    QImage expected(double scale, QPointF origin = {}) const {
        const bench::UncachedKeyboardPainter uncached(keys, shipped);
        return paintWith(scale, [&](QPainter& painter) {
            painter.translate(origin);
            uncached.paint(painter, looks);
        });
    }

private:
    std::size_t indexOf(std::string_view label) const {
        return static_cast<std::size_t>(std::ranges::find(keys, label, &KeyCap::label) - keys.begin());
    }
};

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
    KeyboardPicture overWhite(keys, white);
    lightAll({1.0, 1.0, 1.0}, 1.0);
    EXPECT_EQ(painted(overWhite, 1.0).pixel(300, 66), 0xFFFFFFFF);
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

TEST_F(KeyboardPictureTest, PutsAWhiteRingAroundASelectedKey) {
    look("W").selected = true;  // at 115, 69
    const QImage image = painted(2.0);
    const int middle = 2 * 86;
    EXPECT_EQ(image.pixel(228, middle), 0xFFFFFFFF);
    EXPECT_EQ(image.pixel(2 * (115 + 34) + 1, middle), 0xFFFFFFFF);
    EXPECT_EQ(image.pixel(2 * 132, 2 * 69 - 2), 0xFFFFFFFF);
    EXPECT_EQ(image.pixel(2 * 132, 2 * 103 + 1), 0xFFFFFFFF);
    EXPECT_LT(qRed(image.pixel(231, middle)), 0x18) << "the shadow within";
    EXPECT_LT(qRed(image.pixel(224, middle)), 0x18) << "the plate around";
}

/// Lengths of the pieces of ring and gap along a row, without those at its ends.
std::vector<int> pieces(const QImage& image, int y, int left, int right) {
    std::vector<int> lengths{0};
    bool wasRing = false;
    for (int x = left; x <= right; ++x) {
        const bool isRing = qBlue(image.pixel(x, y)) > 0x90;
        if (isRing != wasRing) lengths.push_back(0);
        wasRing = isRing;
        ++lengths.back();
    }
    return {lengths.begin() + 1, lengths.end() - 1};
}

TEST_F(KeyboardPictureTest, PutsDashesAroundTheKeyInTheFocus) {
    look("L").focused = true;  // at 396, 107
    const QImage image = painted(2.0);
    const std::vector<int> lengths = pieces(image, 2 * 107 - 2, 2 * 402, 2 * 424);
    ASSERT_GE(lengths.size(), 4U);
    for (const int length : lengths) EXPECT_TRUE(length >= 4 && length <= 9) << length;
    int ringPixels = 0;
    for (int x = 2 * 402; x < 2 * 424; ++x) ringPixels += image.pixel(x, 2 * 107 - 2) == 0xFFC3B0FF ? 1 : 0;
    EXPECT_GT(ringPixels, 16);
}

TEST_F(KeyboardPictureTest, PutsTheDashesInsideOfTheSelection) {
    look("L").selected = true;
    look("L").focused = true;
    const QImage image = painted(2.0);
    EXPECT_TRUE(pieces(image, 2 * 107 - 2, 2 * 402, 2 * 424).empty()) << "the selection's ring has no gaps";
    EXPECT_EQ(image.pixel(2 * 413, 2 * 107 - 2), 0xFFFFFFFF);
    EXPECT_GE(pieces(image, 2 * 107 + 2, 2 * 402, 2 * 424).size(), 4U);
}

TEST_F(KeyboardPictureTest, MovesThePressedFaceDownByAPoint) {
    light(1, 0.0);
    const QImage before = painted();
    look("H").press = 1.0;
    const QImage after = painted();
    const QRect face = rect("H").adjusted(5, 3, -5, -7);
    for (int y = face.top(); y <= face.bottom(); ++y) {
        for (int x = face.left(); x <= face.right(); ++x) {
            ASSERT_LE(differenceOf(after.pixel(x, y + 1), before.pixel(x, y)), 6) << x << ", " << y;
        }
    }
    const QPoint onSkirt = rect("H").bottomLeft() + QPoint(17, -2);
    EXPECT_EQ(after.pixel(onSkirt), before.pixel(onSkirt));
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
    KeyboardPicture drawn(keys, QImage());
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
