#include <gmock/gmock.h>

#include <thread>
#include <utility>

#include "HidTest.h"

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

namespace lumo::test {
namespace {

class IoKitHidDevice : public HidTest {
protected:
    void SetUp() override {
        HidTest::SetUp();
        keyboard = plugKeyboard();
        device = openedDevice();
        ASSERT_NE(device, nullptr);
    }
    void TearDown() override {
        device.reset();
        keyboard.reset();
        HidTest::TearDown();
    }

    std::shared_ptr<fakemac::Interface> keyboard;
    std::shared_ptr<HidDevice> device;
};

TEST_F(IoKitHidDevice, TellsTheSizeOfTheVendorInterface) {
    keyboard->properties["MaxFeatureReportSize"] = number(520);
    EXPECT_EQ(device->maxFeatureReportSize(), 520);
}

TEST_F(IoKitHidDevice, TellsASizeOneShortAsItIs) {
    keyboard->properties["MaxFeatureReportSize"] = number(519);
    EXPECT_EQ(device->maxFeatureReportSize(), 519);
}

TEST_F(IoKitHidDevice, HasNoSizeWithoutTheProperty) { EXPECT_EQ(device->maxFeatureReportSize(), std::nullopt); }

TEST_F(IoKitHidDevice, HasNoSizeWhenThePropertyIsText) {
    keyboard->properties["MaxFeatureReportSize"] = text("520");
    EXPECT_EQ(device->maxFeatureReportSize(), std::nullopt);
}

TEST_F(IoKitHidDevice, HasNoSizeWhenThePropertyIsABoolean) {
    keyboard->properties["MaxFeatureReportSize"] = boolean();
    EXPECT_EQ(device->maxFeatureReportSize(), std::nullopt);
}

TEST_F(IoKitHidDevice, HasNoSizeWhenThePropertyIsAFraction) {
    keyboard->properties["MaxFeatureReportSize"] = real(520.5);
    EXPECT_EQ(device->maxFeatureReportSize(), std::nullopt);
}

TEST_F(IoKitHidDevice, TellsTheProductName) {
    keyboard->properties["Product"] = text("Lumo 65 – Tastatur ⌨️ 𝄞");
    EXPECT_EQ(device->product(), "Lumo 65 – Tastatur ⌨️ 𝄞");
}

TEST_F(IoKitHidDevice, TellsAProductNameOfAnyLength) {
    keyboard->properties["Product"] = text(std::string(5000, 'x'));
    EXPECT_EQ(device->product(), std::string(5000, 'x'));
}

TEST_F(IoKitHidDevice, TellsAnEmptyProductNameAsEmpty) {
    keyboard->properties["Product"] = text("");
    EXPECT_EQ(device->product(), "");
}

TEST_F(IoKitHidDevice, HasNoProductNameWithoutTheProperty) { EXPECT_EQ(device->product(), std::nullopt); }

TEST_F(IoKitHidDevice, HasNoProductNameWhenThePropertyIsANumber) {
    keyboard->properties["Product"] = number(65);
    EXPECT_EQ(device->product(), std::nullopt);
}

class FeatureReportLength : public IoKitHidDevice, public testing::WithParamInterface<std::size_t> {};

TEST_P(FeatureReportLength, IsWrittenAsGiven) {
    std::vector<std::uint8_t> bytes(GetParam(), 0xA5);
    bytes[0] = 0x06;
    ASSERT_TRUE(device->setFeatureReport(6, bytes));
    ASSERT_EQ(keyboard->written.size(), 1U);
    EXPECT_EQ(keyboard->written[0].type, 2);
    EXPECT_EQ(keyboard->written[0].id, 6);
    EXPECT_EQ(keyboard->written[0].bytes, bytes);
}

TEST_P(FeatureReportLength, IsAskedForAsGiven) {
    std::vector<std::uint8_t> buffer(GetParam());
    buffer[0] = 0x06;
    keyboard->answer = std::vector<std::uint8_t>(GetParam(), 0x5A);
    EXPECT_EQ(device->getFeatureReport(6, buffer), GetParam());
    ASSERT_EQ(keyboard->read.size(), 1U);
    EXPECT_EQ(keyboard->read[0].type, 2);
    EXPECT_EQ(keyboard->read[0].id, 6);
    EXPECT_EQ(keyboard->read[0].length, static_cast<CFIndex>(GetParam()));
    EXPECT_EQ(keyboard->read[0].firstByte, 0x06);
    EXPECT_THAT(buffer, Each(0x5A));
}

INSTANTIATE_TEST_SUITE_P(IoKit, FeatureReportLength, testing::Values(7U, 520U, 600U));

TEST_F(IoKitHidDevice, TellsThatAWriteWasRefused) {
    keyboard->writeResult = kIOReturnNotPermitted;
    EXPECT_FALSE(device->setFeatureReport(6, std::vector<std::uint8_t>(520)));
}

TEST_F(IoKitHidDevice, TellsTheLengthOfAShortAnswer) {
    keyboard->answer = {0x06, 0x82, 0x01};
    std::vector<std::uint8_t> buffer(520);
    EXPECT_EQ(device->getFeatureReport(6, buffer), 3U);
    EXPECT_THAT(std::vector(buffer.begin(), buffer.begin() + 4), ElementsAre(0x06, 0x82, 0x01, 0x00));
}

TEST_F(IoKitHidDevice, TellsAnEmptyAnswerAsEmpty) {
    std::vector<std::uint8_t> buffer(520);
    EXPECT_EQ(device->getFeatureReport(6, buffer), 0U);
}

TEST_F(IoKitHidDevice, HasNoAnswerWhenTheReadFails) {
    keyboard->answer = {0x06, 0x82};
    keyboard->readResult = kIOReturnNotPermitted;
    std::vector<std::uint8_t> buffer(520);
    EXPECT_EQ(device->getFeatureReport(6, buffer), std::nullopt);
}

TEST_F(IoKitHidDevice, FailsItsReportsAfterTheKeyboardIsGone) {
    ioKit->unplug(keyboard);
    turn();
    keyboard->writeResult = kIOReturnNotPermitted;
    EXPECT_FALSE(device->setFeatureReport(6, std::vector<std::uint8_t>(520)));
}

TEST_F(IoKitHidDevice, ReportsAndGoesOnAnotherThread) {
    bool sent = false;
    std::thread([&sent, mine = std::exchange(device, nullptr)]() mutable {
        sent = mine->setFeatureReport(6, std::vector<std::uint8_t>(520));
        mine.reset();
    }).join();
    EXPECT_TRUE(sent);
    EXPECT_EQ(keyboard->written.size(), 1U);
}

TEST_F(IoKitHidDevice, GoesOnAnotherThreadWhenItIsTheLastToKnowTheInterface) {
    ioKit->unplug(keyboard);
    turn();
    told.clear();
    const std::weak_ptr<HidDevice> watched = device;
    std::thread([mine = std::exchange(device, nullptr)]() mutable { mine.reset(); }).join();
    EXPECT_TRUE(watched.expired());
}

TEST_F(IoKitHidDevice, OutlivesItsManager) {
    hid.reset();
    EXPECT_TRUE(device->setFeatureReport(6, std::vector<std::uint8_t>(520)));
}

}  // namespace
}  // namespace lumo::test
