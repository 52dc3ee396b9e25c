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

TEST(Color, AHueTooCloseToTheFullCircleToTellIsRed) {
    constexpr Color kRed{1.0, 0.0, 0.0};
    EXPECT_EQ(Color::fromHsb(1.0, 1.0, 1.0), kRed);
    EXPECT_EQ(Color::fromHsb(-1e-17, 1.0, 1.0), kRed);
}

TEST(Color, HueSaturationAndBrightnessOfKnownColors) {
    const auto expect = [](const Color& color, double hue, double saturation, double brightness) {
        const Hsb hsb = toHsb(color);
        EXPECT_NEAR(hsb.hue * 360.0, hue, 1e-9);
        EXPECT_NEAR(hsb.saturation, saturation, 1e-12);
        EXPECT_NEAR(hsb.brightness, brightness, 1e-12);
    };
    expect({1.0, 0.0, 0.0}, 0.0, 1.0, 1.0);
    expect({1.0, 1.0, 0.0}, 60.0, 1.0, 1.0);
    expect({0.0, 0.5, 0.0}, 120.0, 1.0, 0.5);
    expect({0.5, 1.0, 1.0}, 180.0, 0.5, 1.0);
    expect({0.0, 0.0, 1.0}, 240.0, 1.0, 1.0);
    expect({1.0, 0.0, 0.5}, 330.0, 1.0, 1.0);
    expect({0.5, 0.0, 1.0}, 270.0, 1.0, 1.0);
}

TEST(Color, GreyHasNoHueAndBlackNoSaturation) {
    for (const double grey : {0.0, 0.3, 1.0}) {
        const Hsb hsb = toHsb({grey, grey, grey});
        EXPECT_EQ(hsb.hue, 0.0);
        EXPECT_EQ(hsb.saturation, 0.0);
        EXPECT_EQ(hsb.brightness, grey);
    }
}

TEST(Color, EveryHueSurvivesTheWayThroughTheComponents) {
    for (int degree = 0; degree < 360; ++degree) {
        for (const double saturation : {0.01, 0.5, 1.0}) {
            const Hsb hsb = toHsb(Color::fromHsb(degree / 360.0, saturation, 0.8));
            EXPECT_NEAR(hsb.hue, degree / 360.0, 1e-9);
            EXPECT_NEAR(hsb.saturation, saturation, 1e-9);
            EXPECT_NEAR(hsb.brightness, 0.8, 1e-9);
        }
    }
}

TEST(Color, WhatIsNoColorStillHasAHueToShow) {
    const double infinity = std::numeric_limits<double>::infinity();
    const Hsb clamped = toHsb({infinity, -3.0, 0.0});
    EXPECT_EQ(clamped.hue, 0.0);
    EXPECT_EQ(clamped.saturation, 1.0);
    EXPECT_EQ(clamped.brightness, 1.0);
    const Hsb unknown = toHsb({std::numeric_limits<double>::quiet_NaN(), 0.0, 0.0});
    EXPECT_NEAR(unknown.hue * 360.0, 263.25, 1e-9);
    EXPECT_NEAR(unknown.brightness, 0.83, 1e-12);
}

}  // namespace
}  // namespace lumo
