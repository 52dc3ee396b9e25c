// The handshake: one query, one answer, and what becomes of the connection.
#include <gmock/gmock.h>

#include "support/LinkFixture.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using vk::InterfaceFacts;

class Handshake : public test::LinkFixture {};

TEST_F(Handshake, ThePasswordIsNothingButZeros) {
    EXPECT_THAT(VexaProtocol::handshakePassword, ElementsAre(0, 0, 0, 0, 0, 0));
}

TEST_F(Handshake, TheHandshakeIsOneQueryAndAnAnswerThirtyMillisecondsLater) {
    link();
    hid.plugKeyboard();
    time.settle();
    ASSERT_EQ(firmware.writes().size(), 1U);
    auto query = vk::Bytes(520, 0);
    const vk::Bytes head{0x06, 0x82, 0x01, 0x00, 0x01, 0x00, 0x06};
    std::ranges::copy(head, query.begin());
    EXPECT_EQ(firmware.writes().front(), query);
    EXPECT_EQ(time.now(), 30ms);
}

TEST_F(Handshake, AnAnswerOfSevenBytesFallsBackSilently) {
    fault("get 82 short 7");
    connect();
    EXPECT_TRUE(link().isConnected.get());
    EXPECT_FALSE(link().isAuthenticated.get());
    EXPECT_EQ(link().statusMessage.get(), "Connected (Simulation Fallback)");
    EXPECT_THAT(platform.console, IsEmpty());
}

TEST_F(Handshake, AnAnswerOfEightBytesIsEnough) {
    fault("get 82 short 8");
    connect();
    EXPECT_TRUE(link().isAuthenticated.get());
}

TEST_F(Handshake, AnAnswerToAnotherCommandFallsBackSilently) {
    fault("get 82 wrong");
    connect();
    EXPECT_EQ(link().statusMessage.get(), "Connected (Simulation Fallback)");
    EXPECT_THAT(platform.console, IsEmpty());
}

TEST_F(Handshake, ARefusedReadFallsBackSilently) {
    fault("get 82 refuse");
    connect();
    EXPECT_EQ(link().statusMessage.get(), "Connected (Simulation Fallback)");
    EXPECT_THAT(platform.console, IsEmpty());
}

TEST_F(Handshake, ARefusedQueryFallsBackAndSaysSoOnTheConsole) {
    fault("set 82 refuse");
    connect();
    EXPECT_EQ(link().statusMessage.get(), "Connected (Simulation Fallback)");
    EXPECT_THAT(platform.console, ElementsAre("[VexaProtocol] Handshake query failed"));
}

TEST_F(Handshake, NothingRetriesTheHandshakeUntilTheInterfaceIsMatchedAgain) {
    fault("get 82 refuse once");
    connect();
    time.advance(60s);
    EXPECT_THAT(firmware.writes(), IsEmpty());
    hid.unplugAll();
    hid.plugKeyboard();
    time.settle();
    EXPECT_TRUE(link().isAuthenticated.get());
}

TEST_F(Handshake, InFallbackCommandsStillSendTheirReports) {
    fault("get 82 refuse");
    connect();
    link().setLightingMode(5);
    time.settle();
    EXPECT_EQ(link().statusMessage.get(), "Applied: Raindrops");
}

TEST_F(Handshake, AuthenticationIsKeptUntilTheNextHandshakeEnds) {
    connect();
    bool seen = false;
    hid.plug(InterfaceFacts{{0x258A, 0x010C}, 520, "Second"});
    time.at(10ms, [&] { seen = link().isAuthenticated.get(); });
    time.settle();
    EXPECT_TRUE(seen);
}

TEST_F(Handshake, ADeviceLostDuringTheHandshakeFallsBackAfterTheDisconnectText) {
    recordStatuses();
    hid.plugKeyboard();
    time.at(10ms, [&] { hid.unplugAll(); });
    time.settle();
    EXPECT_THAT(statuses(),
                ElementsAre("Device detected. Performing authentication handshake...",
                            "Keyboard disconnected. Running in preview mode.", "Connected (Simulation Fallback)"));
    EXPECT_FALSE(link().isConnected.get());
}

TEST_F(Handshake, ADeviceLostBeforeTheHandshakeCountsAsVerified) {
    link();
    time.ioQueue().run.post([&] { time.ioQueue().run.pause(50ms); });  // something else holds the queue
    hid.plugKeyboard();
    time.at(10ms, [&] { hid.unplugAll(); });
    time.settle();
    EXPECT_THAT(firmware.writes(), IsEmpty());
    EXPECT_EQ(link().statusMessage.get(), "Connected & Authenticated");
    EXPECT_FALSE(link().isConnected.get());
}

TEST_F(Handshake, WithoutADeviceTheHandshakeIsTrueAndSendsNothing) {
    EXPECT_TRUE(link().performHandshake());
    EXPECT_THAT(firmware.writes(), IsEmpty());
}

TEST_F(Handshake, AKeyboardThatHangsInTheHandshakeFallsBackWhenTheSystemGivesUp) {
    fault("get 82 hang");
    link();
    hid.plugKeyboard();
    std::string meanwhile;
    time.at(4s, [&] { meanwhile = link().statusMessage.get(); });
    time.settle();
    EXPECT_EQ(meanwhile, "Device detected. Performing authentication handshake...");
    EXPECT_EQ(link().statusMessage.get(), "Connected (Simulation Fallback)");
}

}  // namespace
}  // namespace lumo
