// The levels of chosen steps, worked out by another program.
#include "audio/RhythmGenerator.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace lumo {
namespace {

using testing::ElementsAre;
using testing::Pointwise;

/// The system's sine and cosine may differ in the last bit.
MATCHER(IsLevel, "") { return std::abs(std::get<0>(arg) - std::get<1>(arg)) < 1e-12; }

BandLevels step(int number) {
    RhythmGenerator rhythm;
    for (int i = 1; i < number; ++i) (void)rhythm.next();
    return rhythm.next();
}

TEST(RhythmGenerator, Step1HasAllFourBassBandsCappedAt1) {
    EXPECT_THAT(step(1),
                Pointwise(IsLevel(), {1.0, 1.0, 1.0, 1.0, 0.7128686139022252, 0.7992260048910566, 0.8400771749146673,
                                      0.6774392148962656, 0.3896134631169308, 0.20627765468512455, 0.23152985327845488,
                                      0.32579292823317896, 0.29510258974712766, 0.14482666310376957,
                                      0.07345796621414102, 0.21448295928695693}));
    EXPECT_THAT(toBytes(step(1)), ElementsAre(255, 255, 255, 255, 181, 203, 214, 172, 99, 52, 59, 83, 75, 36, 18, 54));
}

TEST(RhythmGenerator, Step2) {
    EXPECT_THAT(toBytes(step(2)), ElementsAre(255, 255, 255, 255, 190, 214, 211, 156, 85, 55, 73, 92, 72, 33, 30, 78));
}

TEST(RhythmGenerator, Step10HasTheBassBandsLifted) {
    EXPECT_THAT(step(10),
                Pointwise(IsLevel(), {1.0, 0.8872764186420762, 0.9863626119801352, 1.0, 0.7745270724830011,
                                      0.5513194259602046, 0.37281200597771447, 0.40172619421723454, 0.5574453238503143,
                                      0.6237883341394559, 0.5244866634087207, 0.4152063212870305, 0.47574492743455354,
                                      0.6690648693359298, 0.7765177790619298, 0.6664610103949796}));
    EXPECT_THAT(toBytes(step(10)),
                ElementsAre(255, 226, 251, 255, 197, 140, 95, 102, 142, 159, 133, 105, 121, 170, 198, 169));
}

TEST(RhythmGenerator, Step100HasItsLowestBandAtTheFloor) {
    EXPECT_EQ(step(100).front(), 0.05);
    EXPECT_THAT(toBytes(step(100)),
                ElementsAre(12, 48, 134, 181, 122, 104, 125, 173, 194, 161, 110, 96, 126, 155, 142, 108));
}

TEST(RhythmGenerator, Step1000) {
    EXPECT_THAT(step(1000),
                Pointwise(IsLevel(), {0.6041530010337169, 0.4346750566258968, 0.2849367460846455, 0.4070480086625309,
                                      0.5559888648841791, 0.7538770099221845, 0.7613079763193451, 0.6875397592131847,
                                      0.7304149259528396, 0.9102165211630158, 1.0, 0.9341467340306325,
                                      0.6862343386254453, 0.5154165284197185, 0.5226938514545743, 0.5700164226477474}));
    EXPECT_THAT(toBytes(step(1000)),
                ElementsAre(154, 110, 72, 103, 141, 192, 194, 175, 186, 232, 255, 238, 174, 131, 133, 145));
}

TEST(RhythmGenerator, AThousandStepsStayInsideTheirBoundsAndReachBoth) {
    RhythmGenerator rhythm;
    BandLevels least = rhythm.next();
    BandLevels greatest = least;
    std::uint64_t sum = 0;
    for (const std::uint8_t byte : toBytes(least)) sum += byte;
    for (int i = 1; i < 1000; ++i) {
        const BandLevels levels = rhythm.next();
        std::ranges::transform(least, levels, least.begin(), [](double a, double b) { return std::min(a, b); });
        std::ranges::transform(greatest, levels, greatest.begin(), [](double a, double b) { return std::max(a, b); });
        for (const std::uint8_t byte : toBytes(levels)) sum += byte;
    }
    EXPECT_EQ(*std::ranges::min_element(least), 0.05);
    EXPECT_EQ(*std::ranges::max_element(greatest), 1.0);
    EXPECT_EQ(sum, 2202281U);  // of all 16,000 bytes
}

TEST(RhythmGenerator, LevelsBecomeBytesFrom12To255) {
    BandLevels levels{};
    levels.fill(0.05);
    EXPECT_EQ(toBytes(levels).back(), 12);  // 12.75, truncated
    levels.fill(1.0);
    EXPECT_EQ(toBytes(levels).front(), 255);
}

}  // namespace
}  // namespace lumo
