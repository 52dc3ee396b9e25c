#include "foundation/Color.h"

#include <gtest/gtest.h>

#include <limits>

namespace lumo {
namespace {

TEST(Color, DefaultColorGivesItsBytes) { EXPECT_EQ(toBytes(kDefaultColor), (ColorBytes{87, 8, 212})); }

TEST(Color, FullComponentGives255NotMore) { EXPECT_EQ(toBytes(Color{1.0, 1.0, 1.0}), (ColorBytes{255, 255, 255})); }

TEST(Color, ComponentsAreTruncatedNotRounded) {
    EXPECT_EQ(toBytes(Color{0.999, 0.5, 0.0039}), (ColorBytes{254, 127, 0}));
}

TEST(Color, ComponentsOutsideTheRangeAreClamped) {
    EXPECT_EQ(toBytes(Color{-3.0, 7.0, std::numeric_limits<double>::infinity()}), (ColorBytes{0, 255, 255}));
}

TEST(Color, AbsentColorCountsAsFailedConversion) { EXPECT_EQ(toBytes(std::nullopt), (ColorBytes{86, 7, 211})); }

TEST(Color, ColorThatIsNotANumberCountsAsFailedConversion) {
    EXPECT_EQ(toBytes(Color{0.5, std::numeric_limits<double>::quiet_NaN(), 0.5}), (ColorBytes{86, 7, 211}));
}

TEST(Color, EveryByteSurvivesTheWayThroughAComponent) {
    for (int byte = 0; byte <= 255; ++byte) {
        const auto b = static_cast<std::uint8_t>(byte);
        EXPECT_EQ(toBytes(Color::fromBytes({b, b, b})), (ColorBytes{b, b, b}));
    }
}

TEST(Color, HuesAroundTheCircle) {
    EXPECT_EQ(toBytes(Color::fromHsb(0.0, 1.0, 1.0)), (ColorBytes{255, 0, 0}));
    EXPECT_EQ(toBytes(Color::fromHsb(1.0 / 6.0, 1.0, 1.0)), (ColorBytes{255, 255, 0}));
    EXPECT_EQ(toBytes(Color::fromHsb(0.25, 1.0, 1.0)), (ColorBytes{127, 255, 0}));
    EXPECT_EQ(toBytes(Color::fromHsb(0.5, 1.0, 1.0)), (ColorBytes{0, 255, 255}));
    EXPECT_EQ(toBytes(Color::fromHsb(0.75, 1.0, 1.0)), (ColorBytes{127, 0, 255}));
    EXPECT_EQ(toBytes(Color::fromHsb(1.0, 1.0, 1.0)), (ColorBytes{255, 0, 0}));
    EXPECT_EQ(toBytes(Color::fromHsb(0.4, 0.0, 0.5)), (ColorBytes{127, 127, 127}));
}

}  // namespace
}  // namespace lumo
