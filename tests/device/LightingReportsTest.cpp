// The two configuration blocks, byte for byte.
#include "device/LightingReports.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <vector>

#include "device/ParameterBlock.h"

namespace lumo {
namespace {

using Bytes = std::vector<std::uint8_t>;

/// All places where two reports of 520 bytes differ.
std::vector<std::size_t> differences(const Report& a, const Report& b) {
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i] != b[i]) places.push_back(i);
    }
    return places;
}

Report filled(std::uint8_t value) {
    Report report;
    report.fill(value);
    return report;
}

TEST(ColorBlock, TheReadRequestIsEightBytesAndZeros) {
    Report expected{};
    const Bytes head{0x06, 0x8A, 0x00, 0x00, 0x01, 0x00, 0xE3, 0x01};
    std::ranges::copy(head, expected.begin());
    EXPECT_EQ(kColorBlockRead, expected);
}

TEST(ColorBlock, PatchesTheAnswerAndKeepsEveryOtherByte) {
    Report expected = filled(0xC3);
    expected[1] = 0x0A;
    expected[6] = 0x00;
    expected[7] = 0x02;
    expected[8] = 0x00;
    constexpr std::array<std::size_t, 21> kRecords{9,   30,  51,  72,  93,  114, 135, 156, 177, 198, 219,
                                                   240, 261, 282, 303, 324, 345, 366, 387, 408, 429};
    for (const std::size_t record : kRecords) {
        expected[record] = 0x11;
        expected[record + 1] = 0x22;
        expected[record + 2] = 0x33;
    }
    expected[491] = 0x5A;
    expected[492] = 0xA5;
    expected[514] = 0x5A;
    expected[515] = 0xA5;
    EXPECT_EQ(colorBlockWrite(filled(0xC3), {0x11, 0x22, 0x33}), expected);
}

TEST(ColorBlock, AnAnswerOf516BytesIsPatchedAndPadded) {
    const Report write = colorBlockWrite(Bytes(516, 0xC3), {1, 2, 3});
    EXPECT_EQ(write[12], 0xC3);
    EXPECT_EQ(write[513], 0xC3);
    EXPECT_EQ(write[516], 0x00);
}

TEST(ColorBlock, AnAnswerOf515BytesIsReplacedByABlankBlock) {
    const Report write = colorBlockWrite(Bytes(515, 0xC3), {1, 2, 3});
    const Bytes head{0x06, 0x0A, 0x00, 0x00, 0x01, 0x00, 0x00, 0x02, 0x00, 1, 2, 3, 0, 0};
    EXPECT_EQ(Bytes(write.begin(), write.begin() + 14), head);
    EXPECT_EQ(write[30], 1);
    EXPECT_EQ(write[33], 0);
    EXPECT_EQ(write[491], 0x5A);
    EXPECT_EQ(write[515], 0xA5);
}

TEST(ParameterBlock, TheReadRequestIsSevenBytesAndZeros) {
    Report expected{};
    const Bytes head{0x06, 0x84, 0x00, 0x00, 0x01, 0x00, 0x80};
    std::ranges::copy(head, expected.begin());
    EXPECT_EQ(kParameterBlockRead, expected);
}

TEST(ParameterBlock, PatchesHeaderAndTheEffectsOwnRecordAndKeepsEveryOtherByte) {
    Report expected = filled(0xC3);
    expected[1] = 0x04;
    expected[18] = 0x0F;  // Raindrops
    expected[19] = 3;
    expected[20] = 4;
    expected[21] = 1;
    expected[96] = 4;
    expected[97] = 0x31;
    expected[134] = 0x5A;
    expected[135] = 0xA5;
    EXPECT_EQ(parameterBlockWrite(filled(0xC3), {0x0F, 3, 4, true}), expected);
}

TEST(ParameterBlock, WithoutTheUsersColorTheFlagIsZeroInBothPlaces) {
    const Report write = parameterBlockWrite(filled(0xC3), {0x0D, 2, 4, false});
    EXPECT_EQ(write[21], 0);
    EXPECT_EQ(write[92], 4);
    EXPECT_EQ(write[93], 0x20);
}

TEST(ParameterBlock, AnAnswerOf135BytesIsPaddedAndPatched) {
    const Report write = parameterBlockWrite(Bytes(135, 0xC3), {0x0F, 3, 4, true});
    EXPECT_EQ(write[9], 0xC3);
    EXPECT_EQ(write[133], 0xC3);
    EXPECT_EQ(write[134], 0x5A);
    EXPECT_EQ(write[135], 0xA5);
    EXPECT_EQ(write[136], 0x00);
}

TEST(ParameterBlock, AnAnswerOf134BytesIsReplacedByABlankBlock) {
    Report expected{};
    const Bytes head{0x06, 0x04, 0x00, 0x00, 0x01, 0x00, 0x80, 0x00};
    std::ranges::copy(head, expected.begin());
    expected[18] = 0x01;
    expected[19] = 2;
    expected[20] = 4;
    expected[21] = 1;
    expected[68] = 4;
    expected[69] = 0x21;
    expected[134] = 0x5A;
    expected[135] = 0xA5;
    EXPECT_EQ(parameterBlockWrite(Bytes(134, 0xC3), {0x01, 2, 4, true}), expected);
}

TEST(ParameterBlock, TheRecordOfHardwareId32IsTheLast) {
    const Report write = parameterBlockWrite(filled(0), {32, 2, 4, false});
    EXPECT_EQ(write[130], 4);
    EXPECT_EQ(write[131], 0x20);
}

TEST(ParameterBlock, AHardwareIdAbove32ChangesOnlyTheHeader) {
    const Report write = parameterBlockWrite(filled(0xC3), {33, 2, 4, true});
    EXPECT_EQ(differences(write, filled(0xC3)), (std::vector<std::size_t>{1, 18, 19, 20, 21, 134, 135}));
    EXPECT_EQ(write[18], 33);
}

TEST(ParameterBlock, SpeedTimesSixteenKeepsItsLowEightBits) {
    const Report write = parameterBlockWrite(filled(0), {1, 0x2F, 4, true});
    EXPECT_EQ(write[19], 0x2F);
    EXPECT_EQ(write[69], 0xF1);
}

TEST(ParameterBlock, LevelsUpTo255AreSentAsGiven) {
    const Report write = parameterBlockWrite(filled(0), {255, 255, 255, false});
    EXPECT_EQ(write[18], 255);
    EXPECT_EQ(write[19], 255);
    EXPECT_EQ(write[20], 255);
}

TEST(ParameterBlockDeathTest, ASpeedOutsideAByteStopsTheProcess) {
    EXPECT_DEATH((void)parameterBlockWrite({}, {1, 256, 4, true}), "speed does not fit a byte: 256");
    EXPECT_DEATH((void)parameterBlockWrite({}, {1, -1, 4, true}), "speed does not fit a byte: -1");
}

TEST(ParameterBlockDeathTest, ABrightnessOutsideAByteStopsTheProcess) {
    EXPECT_DEATH((void)parameterBlockWrite({}, {1, 2, 256, true}), "brightness does not fit a byte: 256");
}

TEST(ParameterBlockDeathTest, AHardwareIdOutsideAByteStopsTheProcess) {
    EXPECT_DEATH((void)parameterBlockWrite({}, {300, 2, 4, false}), "hardware id does not fit a byte: 300");
}

}  // namespace
}  // namespace lumo
