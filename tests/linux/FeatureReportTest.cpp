#include "linux/PresentInterface.h"

namespace lumo::test {
namespace {

using Bytes = std::vector<std::uint8_t>;
using Get = FeatureReportPeer::Get;

class FeatureReport : public PresentInterface {
protected:
    static Bytes pattern(std::size_t length) {
        Bytes bytes(length);
        for (std::size_t i = 0; i < length; ++i) bytes[i] = static_cast<std::uint8_t>(i * 7 + 6);
        return bytes;
    }
};

TEST_F(FeatureReport, OfSevenBytesArrivesAsSeven) {
    const Bytes bytes{0x06, 0x82, 0x01, 0x00, 0x01, 0x00, 0x06};
    EXPECT_TRUE(set(device, bytes));
    EXPECT_EQ(kernel.peer.sets(), std::vector<Bytes>{bytes});
}

TEST_F(FeatureReport, Of520BytesArrivesAs520) {
    EXPECT_TRUE(set(device, pattern(520)));
    EXPECT_EQ(kernel.peer.sets(), std::vector<Bytes>{pattern(520)});
}

TEST_F(FeatureReport, LongerThanTheDescriptorSaysArrivesAsItIs) {
    EXPECT_TRUE(set(device, pattern(600)));
    EXPECT_EQ(kernel.peer.sets(), std::vector<Bytes>{pattern(600)});
}

TEST_F(FeatureReport, KeepsAFirstByteThatIsNotItsId) {
    EXPECT_TRUE(set(device, {0x05, 0x01}));
    EXPECT_EQ(kernel.peer.sets(), (std::vector<Bytes>{{0x05, 0x01}}));
}

TEST_F(FeatureReport, IsNotSentWhenItIsEmpty) {
    EXPECT_FALSE(set(device, {}));
    EXPECT_EQ(kernel.peer.requests(), 0);
}

TEST_F(FeatureReport, IsNotSentWhenItsLengthDoesNotFitTheRequest) {
    EXPECT_FALSE(set(device, pattern(16384)));
    EXPECT_EQ(kernel.peer.requests(), 0);
}

TEST_F(FeatureReport, IsSentUpToTheLongestLengthOfTheRequest) {
    EXPECT_TRUE(set(device, pattern(16383)));
    EXPECT_EQ(kernel.peer.sets(), std::vector<Bytes>{pattern(16383)});
}

TEST_F(FeatureReport, FailsWhenTheDeviceRefusesIt) {
    kernel.peer.failWith(EPIPE);
    EXPECT_FALSE(set(device, pattern(520)));
}

TEST_F(FeatureReport, FailsWhenTheKernelTakesLessThanAllOfIt) {
    kernel.peer.acceptOnly(519);
    EXPECT_FALSE(set(device, pattern(520)));
}

TEST_F(FeatureReport, WorksAgainAfterAFailure) {
    kernel.peer.failWith(ETIMEDOUT);
    EXPECT_FALSE(set(device, pattern(520)));
    kernel.peer.failWith(0);
    EXPECT_TRUE(set(device, pattern(520)));
}

TEST_F(FeatureReport, IsReadWithTheIdAndTheLengthOfTheBuffer) {
    Bytes buffer(520, 0x00);
    buffer[0] = 0x06;
    kernel.peer.answerWith(pattern(520));
    EXPECT_EQ(get(device, buffer), 520U);
    EXPECT_EQ(buffer, pattern(520));
    EXPECT_EQ(kernel.peer.gets(), (std::vector<Get>{{0x06, 520}}));
}

TEST_F(FeatureReport, ThatComesBackShortHasItsOwnLengthAndLeavesTheRestAlone) {
    Bytes buffer{0x06, 0xA1, 0xA2, 0xA3, 0xA4};
    kernel.peer.answerWith({0x06, 0x82, 0x01});
    EXPECT_EQ(get(device, buffer), 3U);
    EXPECT_EQ(buffer, (Bytes{0x06, 0x82, 0x01, 0xA3, 0xA4}));
}

TEST_F(FeatureReport, ThatComesBackEmptyIsNoFailure) {
    Bytes buffer{0x06, 0x00};
    kernel.peer.answerWith({});
    EXPECT_EQ(get(device, buffer), 0U);
}

TEST_F(FeatureReport, CannotBeReadWhenTheDeviceRefuses) {
    Bytes buffer{0x06, 0x00};
    kernel.peer.failWith(EIO);
    EXPECT_EQ(get(device, buffer), std::nullopt);
}

TEST_F(FeatureReport, CannotBeReadIntoABufferThatDoesNotFitTheRequest) {
    Bytes empty;
    Bytes tooLong(16384, 0x06);
    EXPECT_EQ(get(device, empty), std::nullopt);
    EXPECT_EQ(get(device, tooLong), std::nullopt);
    EXPECT_EQ(kernel.peer.requests(), 0);
}

}  // namespace
}  // namespace lumo::test
