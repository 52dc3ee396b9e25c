// What marks a key on the picture: selected, in the focus, pressed.
#include <gtest/gtest.h>

#include "gui/KeyboardPictureFixture.h"

namespace lumo {
namespace {

using test::differenceOf;

using KeyMarks = test::KeyboardPictureFixture;

TEST_F(KeyMarks, PutsAWhiteRingAroundASelectedKey) {
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

TEST_F(KeyMarks, PutsDashesAroundTheKeyInTheFocus) {
    look("L").focused = true;  // at 396, 107
    const QImage image = painted(2.0);
    const std::vector<int> lengths = pieces(image, 2 * 107 - 2, 2 * 402, 2 * 424);
    ASSERT_GE(lengths.size(), 4U);
    for (const int length : lengths) EXPECT_TRUE(length >= 4 && length <= 9) << length;
    int ringPixels = 0;
    for (int x = 2 * 402; x < 2 * 424; ++x) ringPixels += image.pixel(x, 2 * 107 - 2) == 0xFFC3B0FF ? 1 : 0;
    EXPECT_GT(ringPixels, 16);
}

TEST_F(KeyMarks, PutsTheDashesInsideOfTheSelection) {
    look("L").selected = true;
    look("L").focused = true;
    const QImage image = painted(2.0);
    EXPECT_TRUE(pieces(image, 2 * 107 - 2, 2 * 402, 2 * 424).empty()) << "the selection's ring has no gaps";
    EXPECT_EQ(image.pixel(2 * 413, 2 * 107 - 2), 0xFFFFFFFF);
    EXPECT_GE(pieces(image, 2 * 107 + 2, 2 * 402, 2 * 424).size(), 4U);
}

TEST_F(KeyMarks, MovesThePressedFaceDownByAPoint) {
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

}  // namespace
}  // namespace lumo
