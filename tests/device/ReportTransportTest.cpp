// The two report primitives, without any command around them.
#include <gmock/gmock.h>

#include <chrono>

#include "device/Exchange.h"
#include "support/TestPlatform.h"

namespace lumo {
namespace {

using testing::IsEmpty;

class ReportTransport : public testing::Test {
protected:
    test::TestPlatform platform;
    Exchange exchange{platform.time.ioQueue(), platform.hid().plug(vk::configurationInterface())};
    Exchange withoutDevice{platform.time.ioQueue(), nullptr};

    void fault(std::string_view text) { platform.firmware.addFault(vk::parseFault(text).value()); }
};

TEST_F(ReportTransport, SevenBytesAreSentAs520) {
    EXPECT_TRUE(exchange.sendReport(vk::Bytes{6, 1, 2, 3, 4, 5, 0xAA}));
    vk::Bytes expected(520, 0);
    expected[0] = 6;
    expected[1] = 1;
    expected[2] = 2;
    expected[3] = 3;
    expected[4] = 4;
    expected[5] = 5;
    expected[6] = 0xAA;
    EXPECT_EQ(platform.firmware.writes().back(), expected);
}

TEST_F(ReportTransport, SixHundredBytesAreSentAs600) {
    const vk::Bytes data(600, 0x11);
    EXPECT_TRUE(exchange.sendReport(data));
    EXPECT_EQ(platform.firmware.writes().back(), data);
}

TEST_F(ReportTransport, FiveHundredAndTwentyBytesAreSentAsTheyStand) {
    const vk::Bytes data(520, 0x22);
    EXPECT_TRUE(exchange.sendReport(data));
    EXPECT_EQ(platform.firmware.writes().back(), data);
}

TEST_F(ReportTransport, ARefusedReportIsFalse) {
    fault("set any refuse");
    EXPECT_FALSE(exchange.sendReport(vk::Bytes{6, 1}));
}

TEST_F(ReportTransport, WithoutADeviceNothingIsSentOrRead) {
    EXPECT_FALSE(withoutDevice.sendReport(vk::Bytes{6, 1}));
    EXPECT_THAT(withoutDevice.recvReport(), IsEmpty());
    EXPECT_THAT(platform.firmware.writes(), IsEmpty());
}

TEST_F(ReportTransport, AWholeAnswerHas520Bytes) {
    (void)exchange.sendReport(vk::Bytes{6, 0x84});
    const auto answer = exchange.recvReport();
    ASSERT_EQ(answer.size(), 520U);
    EXPECT_EQ(answer[0], 0x06);
    EXPECT_EQ(answer[1], 0x84);
}

TEST_F(ReportTransport, AShortAnswerKeepsItsLength) {
    fault("get any short 7");
    EXPECT_EQ(exchange.recvReport().size(), 7U);
}

TEST_F(ReportTransport, AnEmptyAnswerIsEmpty) {
    fault("get any nothing");
    EXPECT_THAT(exchange.recvReport(), IsEmpty());
}

TEST_F(ReportTransport, ARefusedReadIsEmpty) {
    fault("get any refuse");
    EXPECT_THAT(exchange.recvReport(), IsEmpty());
}

/// A system that claims more bytes than the buffer holds.
class BoastingDevice final : public HidDevice {
public:
    std::optional<std::int64_t> maxFeatureReportSize() const override { return 520; }
    std::optional<std::string> product() const override { return std::nullopt; }
    bool setFeatureReport(std::uint8_t id, std::span<const std::uint8_t>) override {
        ids.push_back(id);
        return true;
    }
    std::optional<std::size_t> getFeatureReport(std::uint8_t id, std::span<std::uint8_t> buffer) override {
        ids.push_back(id);
        bufferSize = buffer.size();
        firstByte = buffer[0];
        return 600;
    }
    std::vector<std::uint8_t> ids;
    std::size_t bufferSize = 0;
    std::uint8_t firstByte = 0;
};

TEST_F(ReportTransport, NeverReturnsMoreThan520Bytes) {
    const auto device = std::make_shared<BoastingDevice>();
    EXPECT_EQ(Exchange(platform.time.ioQueue(), device).recvReport().size(), 520U);
    EXPECT_EQ(device->bufferSize, 520U);
}

TEST_F(ReportTransport, BothDirectionsNameReportSixAndPutNothingInFrontOfTheBytes) {
    const auto device = std::make_shared<BoastingDevice>();
    const Exchange talk(platform.time.ioQueue(), device);
    EXPECT_TRUE(talk.sendReport(vk::Bytes{6, 1}));
    (void)talk.recvReport();
    EXPECT_THAT(device->ids, testing::ElementsAre(6, 6));
    EXPECT_EQ(device->firstByte, 6);
}

}  // namespace
}  // namespace lumo
