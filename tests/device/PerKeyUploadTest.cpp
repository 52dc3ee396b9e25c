// The per-key upload: five reports, byte for byte.
#include <gmock/gmock.h>

#include <initializer_list>

#include "device/PerKeyReports.h"
#include "support/LinkFixture.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

vk::Bytes headed(std::initializer_list<std::uint8_t> head) {
    vk::Bytes bytes(520, 0);
    std::ranges::copy(head, bytes.begin());
    bytes[514] = 0x5A;
    bytes[515] = 0xA5;
    return bytes;
}

void put(vk::Bytes& bytes, std::size_t at, ColorBytes color) {
    bytes[at] = color.r;
    bytes[at + 1] = color.g;
    bytes[at + 2] = color.b;
}

class PerKeyUpload : public test::LinkFixture {
protected:
    void upload(LedColors colors) {
        link().setPerKeyRGB(std::move(colors));
        time.settle();
    }
};

TEST_F(PerKeyUpload, IsFiveReportsInThisOrder) {
    connect();
    upload({});
    EXPECT_THAT(commandsSent(), ElementsAre(0x09, 0x09, 0x06, 0x84, 0x04));
    EXPECT_EQ(firmware.writes()[0][2], 0xBC);
    EXPECT_EQ(firmware.writes()[1][2], 0xC0);
    for (const auto& report : firmware.writes()) EXPECT_EQ(report.size(), 520U);
}

TEST_F(PerKeyUpload, PausesFourTimes) {
    connect();
    const auto before = time.now();
    upload({});
    EXPECT_EQ(time.now() - before, 150ms);
}

TEST_F(PerKeyUpload, AnEmptyMapSendsTheDefaultColorInTheBanksAndZerosInThePlanes) {
    connect();
    upload({});
    auto first = headed({0x06, 0x09, 0xBC, 0x00, 0x01, 0x00, 0x00, 0x02});
    for (const std::size_t offset : std::initializer_list<std::size_t>{
             3,   21,  39,  57,  75,  93,  111, 129, 147, 165, 183, 6,   24,  42,  60,  78,  96,
             114, 132, 150, 168, 186, 9,   27,  45,  63,  81,  99,  117, 135, 153, 171, 189, 12,
             30,  48,  66,  84,  102, 120, 138, 156, 174, 15,  33,  51,  105, 159, 177}) {
        put(first, 8 + offset, {87, 8, 212});
    }
    EXPECT_EQ(firmware.colourBank(0xBC), first);
    auto second = headed({0x06, 0x09, 0xC0, 0x00, 0x01, 0x00, 0x00, 0x02});
    for (const std::size_t offset :
         std::initializer_list<std::size_t>{9, 27, 45, 84, 12, 30, 48, 87, 15, 51, 90, 0, 54, 72, 57, 75, 93, 3}) {
        put(second, 8 + offset, {87, 8, 212});
    }
    EXPECT_EQ(firmware.colourBank(0xC0), second);
    auto planes = headed({0x06, 0x06, 0x00, 0x00, 0x01, 0x00, 0x7A, 0x01});
    planes[386] = 0x5A;
    planes[387] = 0xA5;
    EXPECT_EQ(firmware.ledPlanes(), planes);
    EXPECT_EQ(link().statusMessage.get(), "Custom Per-Key RGB Synchronized (0 keys)");
}

TEST_F(PerKeyUpload, PutsAKeysColorIntoItsBankAndItsLedPlanes) {
    connect();
    upload({{0, {1, 2, 3}}, {66, {4, 5, 6}}});  // Esc: bank 1 at 3; Right: bank 2 at 93
    const auto& first = firmware.colourBank(0xBC);
    EXPECT_THAT(vk::Bytes(first.begin() + 11, first.begin() + 14), ElementsAre(1, 2, 3));
    EXPECT_THAT(vk::Bytes(first.begin() + 29, first.begin() + 32), ElementsAre(87, 8, 212));
    const auto& second = firmware.colourBank(0xC0);
    EXPECT_THAT(vk::Bytes(second.begin() + 101, second.begin() + 104), ElementsAre(4, 5, 6));
    const auto& planes = firmware.ledPlanes();
    EXPECT_EQ(planes[8], 1);
    EXPECT_EQ(planes[134], 2);
    EXPECT_EQ(planes[260], 3);
    EXPECT_EQ(planes[74], 4);
    EXPECT_EQ(planes[200], 5);
    EXPECT_EQ(planes[326], 6);
    EXPECT_EQ(planes[9], 0);
}

TEST_F(PerKeyUpload, Led125IsWrittenAndLed126IsNot) {
    connect();
    upload({{125, {1, 2, 3}}, {126, {9, 9, 9}}, {-1, {9, 9, 9}}});
    auto planes = headed({0x06, 0x06, 0x00, 0x00, 0x01, 0x00, 0x7A, 0x01});
    planes[133] = 1;
    planes[259] = 2;
    planes[385] = 3;
    planes[386] = 0x5A;
    planes[387] = 0xA5;
    EXPECT_EQ(firmware.ledPlanes(), planes);
    EXPECT_EQ(link().statusMessage.get(), "Custom Per-Key RGB Synchronized (3 keys)");
}

TEST_F(PerKeyUpload, TwoKeysWithTheSameLedBothGetItsColor) {
    connect();
    auto keys = keyboard().keys.get();
    keys[1].ledIndex = 0;  // "1" beside Esc
    keyboard().keys.set(keys);
    upload({{0, {1, 2, 3}}});
    const auto& bank = firmware.colourBank(0xBC);
    EXPECT_THAT(vk::Bytes(bank.begin() + 11, bank.begin() + 14), ElementsAre(1, 2, 3));
    EXPECT_THAT(vk::Bytes(bank.begin() + 29, bank.begin() + 32), ElementsAre(1, 2, 3));
}

TEST(ColorBank, KeysOutsideBothBanksAndOffsetsBeyondTheTableAreLeftOut) {
    const std::vector<KeyColorPlace> places{{0, 3, 0}, {1, 1, 497}, {2, 1, 498}, {3, 1, -1}};
    const LedColors colors{{0, {9, 9, 9}}, {1, {1, 2, 3}}, {2, {9, 9, 9}}, {3, {9, 9, 9}}};
    auto expected = headed({0x06, 0x09, 0xBC, 0x00, 0x01, 0x00, 0x00, 0x02});
    put(expected, 505, {1, 2, 3});
    const Report write = colorBankWrite(ColorBank::first, places, colors);
    EXPECT_EQ(vk::Bytes(write.begin(), write.end()), expected);
}

TEST_F(PerKeyUpload, SelectsTheCustomEffectWithThePublishedLevels) {
    connect();
    link().setLightingMode(5, 3, 2);
    time.settle();
    const auto registers = firmware.parameterBlock();
    upload({});
    auto expected = vk::Bytes(registers.begin(), registers.end());
    expected[1] = 0x04;
    expected[18] = 29;
    expected[19] = 3;
    expected[20] = 2;
    expected[21] = 1;
    expected[124] = 2;
    expected[125] = 0x31;
    expected[134] = 0x5A;
    expected[135] = 0xA5;
    EXPECT_EQ(firmware.lastWrite(0x04), expected);
}

TEST_F(PerKeyUpload, TakesTheLevelsOfTheMomentTheLastReportIsBuilt) {
    connect();
    link().setPerKeyRGB({});
    time.at(140ms, [&] { link().brightness.set(1); });
    time.settle();
    EXPECT_EQ(firmware.lastWrite(0x04).at(20), 1);
}

TEST_F(PerKeyUpload, TakesTheKeysOfTheMomentTheUploadBegins) {
    connect();
    time.ioQueue().run.post([&] { time.ioQueue().run.pause(20ms); });
    link().setPerKeyRGB({{0, {1, 2, 3}}});
    time.at(10ms, [&] {
        auto keys = keyboard().keys.get();
        keys[0].bankOffset = 0;
        keyboard().keys.set(keys);
    });
    time.settle();
    EXPECT_EQ(firmware.colourBank(0xBC).at(8), 1);
    EXPECT_EQ(firmware.colourBank(0xBC).at(11), 0);
}

TEST_F(PerKeyUpload, PublishesTheModeAtOnce) {
    link().setPerKeyRGB({});
    EXPECT_EQ(link().activeModeId.get(), 21);
}

TEST_F(PerKeyUpload, WithoutAKeyboardItPreviews) {
    upload({{0, {1, 2, 3}}, {1, {1, 2, 3}}});
    EXPECT_EQ(link().statusMessage.get(), "Previewed Custom Per-Key RGB Matrix (2 keys)");
    EXPECT_EQ(link().activeModeId.get(), 21);
    EXPECT_THAT(firmware.writes(), IsEmpty());
}

TEST_F(PerKeyUpload, RefusedBanksAndPlanesGoUnnoticed) {
    connect();
    fault("set 09 refuse");
    fault("set 06 refuse");
    upload({});
    EXPECT_EQ(link().statusMessage.get(), "Custom Per-Key RGB Synchronized (0 keys)");
}

TEST_F(PerKeyUpload, ARefusedLastWriteFails) {
    connect();
    fault("set 04 refuse");
    upload({});
    EXPECT_EQ(link().statusMessage.get(), "Per-Key RGB sync failed");
}

TEST_F(PerKeyUpload, AShortParameterAnswerIsReplacedByABlankBlock) {
    connect();
    fault("get 84 short 134");
    upload({});
    const auto write = firmware.lastWrite(0x04);
    EXPECT_EQ(write.at(6), 0x80);
    EXPECT_EQ(write.at(17), 0);
    EXPECT_EQ(write.at(18), 29);
    EXPECT_EQ(link().statusMessage.get(), "Custom Per-Key RGB Synchronized (0 keys)");
}

using PerKeyUploadDeathTest = PerKeyUpload;

TEST_F(PerKeyUploadDeathTest, AnOutOfRangeLevelStopsTheProcessWhenTheLastReportIsBuilt) {
    connect();
    link().brightness.set(256);
    EXPECT_DEATH(upload({}), "brightness does not fit a byte: 256");
}

}  // namespace
}  // namespace lumo
