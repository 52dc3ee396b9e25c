#include "controls/LowStripes.h"

#include <gtest/gtest.h>

namespace lumo {
namespace {

TEST(LowStripes, AreTheRegionAndNothingTwice) {
    const QRegion region = QRegion(10, 92, 650, 247).subtracted(QRegion(257, 197, 446, 380));
    QRegion together;
    for (const QRect& stripe : lowStripes(region)) {
        EXPECT_FALSE(stripe.isEmpty());
        EXPECT_FALSE(together.intersects(stripe));
        together += stripe;
    }
    EXPECT_EQ(together, region);
}

TEST(LowStripes, AreLowerThanWhatQtSharesOutAmongThreadsAlsoAtThreeTimesTheScale) {
    for (const QRect& stripe : lowStripes(QRect(0, 0, 3840, 2161))) EXPECT_LE(stripe.height() * 3, 95);
}

TEST(LowStripes, OfNothingAreNone) { EXPECT_TRUE(lowStripes(QRegion()).empty()); }

}  // namespace
}  // namespace lumo
