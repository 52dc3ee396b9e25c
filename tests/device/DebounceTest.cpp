// The debounce and the reset to the program's defaults.
#include <gmock/gmock.h>

#include <limits>

#include "support/FasterIoThread.h"
#include "support/LinkFixture.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class DebounceCommand : public test::LinkFixture {
protected:
    std::string statusAfter(std::int64_t ms) {
        link().setDebounce(ms);
        time.settle();
        return link().statusMessage.get();
    }
    int levelSent() { return firmware.lastWrite(0x04).at(10); }
};

TEST_F(DebounceCommand, SendsWholeTensOfMillisecondsAsALevelFrom0To4) {
    connect();
    const std::vector<std::pair<std::int64_t, int>> levels{
        {std::numeric_limits<std::int64_t>::min(), 0},
        {-100, 0},
        {-11, 0},
        {-10, 0},
        {-9, 0},
        {0, 0},
        {5, 0},
        {9, 0},
        {10, 1},
        {19, 1},
        {20, 2},
        {29, 2},
        {30, 3},
        {39, 3},
        {40, 4},
        {100, 4},
        {std::numeric_limits<std::int64_t>::max(), 4},
    };
    for (const auto& [ms, level] : levels) {
        (void)statusAfter(ms);
        EXPECT_EQ(levelSent(), level) << ms;
    }
}

TEST_F(DebounceCommand, FiveMillisecondsAreLevel0AndSaidToBe0) {
    connect();
    EXPECT_EQ(statusAfter(5), "Debounce set to 0ms");
    EXPECT_EQ(levelSent(), 0);
}

TEST_F(DebounceCommand, AHundredMillisecondsAreLevel4AndSaidToBe40) {
    connect();
    EXPECT_EQ(statusAfter(100), "Debounce set to 40ms");
    EXPECT_EQ(levelSent(), 4);
}

TEST_F(DebounceCommand, LessThanNoTimeIsLevel0) {
    connect();
    EXPECT_EQ(statusAfter(-10), "Debounce set to 0ms");
    EXPECT_EQ(levelSent(), 0);
}

TEST_F(DebounceCommand, SaysTheLevelInMillisecondsAndNotWhatWasAskedFor) {
    connect();
    EXPECT_EQ(statusAfter(25), "Debounce set to 20ms");
}

TEST_F(DebounceCommand, PatchesTheLevelAndTheMarkerAndNothingElse) {
    connect();
    firmware.parameterBlock().fill(0xC3);
    (void)statusAfter(30);
    vk::Bytes expected(520, 0xC3);
    expected[1] = 0x04;
    expected[10] = 3;
    expected[134] = 0x5A;
    expected[135] = 0xA5;
    EXPECT_EQ(firmware.lastWrite(0x04), expected);
}

TEST_F(DebounceCommand, IsARequestAPauseOf20MillisecondsAndAWrite) {
    connect();
    const auto before = time.now();
    (void)statusAfter(10);
    EXPECT_EQ(time.now() - before, 20ms);
    EXPECT_THAT(commandsSent(), ElementsAre(0x84, 0x04));
    vk::Bytes request(520, 0);
    request[0] = 0x06;
    request[1] = 0x84;
    request[4] = 0x01;
    request[6] = 0x80;
    EXPECT_EQ(firmware.writes().front(), request);
}

TEST_F(DebounceCommand, ARefusedWriteFails) {
    connect();
    fault("set 04 refuse");
    EXPECT_EQ(statusAfter(10), "Debounce write failed");
}

TEST_F(DebounceCommand, IsSilentWithoutAKeyboard) {
    EXPECT_EQ(statusAfter(10), "Ready");
    EXPECT_THAT(firmware.writes(), IsEmpty());
}

TEST_F(DebounceCommand, IsSilentAfterARefusedRequestAndDoesNotPause) {
    connect();
    fault("set 84 refuse");
    const auto before = time.now();
    EXPECT_EQ(statusAfter(10), "Connected & Authenticated");
    EXPECT_EQ(time.now(), before);
    EXPECT_THAT(commandsSent(), ElementsAre(0x84));
}

TEST_F(DebounceCommand, IsSilentAfterAnAnswerOf134Bytes) {
    connect();
    fault("get 84 short 134");
    EXPECT_EQ(statusAfter(10), "Connected & Authenticated");
    EXPECT_THAT(commandsSent(), ElementsAre(0x84));
}

TEST_F(DebounceCommand, PatchesAnAnswerOf135BytesAndPadsIt) {
    connect();
    fault("get 84 short 135");
    const auto kept = firmware.parameterBlock().at(17);
    EXPECT_EQ(statusAfter(10), "Debounce set to 10ms");
    const auto write = firmware.lastWrite(0x04);
    ASSERT_EQ(write.size(), 520U);
    EXPECT_EQ(write.at(17), kept);
    EXPECT_EQ(write.at(135), 0xA5);
    EXPECT_EQ(write.at(136), 0);
}

TEST_F(DebounceCommand, KeepsTheLightingThatWasSetBefore) {
    connect();
    link().setLightingMode(5, 1, 3);
    (void)statusAfter(20);
    const auto write = firmware.lastWrite(0x04);
    EXPECT_EQ(write.at(10), 2);
    EXPECT_EQ(write.at(18), 0x0F);
    EXPECT_EQ(write.at(19), 1);
    EXPECT_EQ(write.at(20), 3);
}

using FactoryReset = DebounceCommand;

TEST_F(FactoryReset, IsTheDefaultLightingAndThenTheDefaultDebounce) {
    connect();
    link().setLightingMode(5, 1, 1, ColorBytes{1, 2, 3});
    time.settle();
    firmware.forgetWrites();
    link().factoryReset();
    time.settle();
    EXPECT_THAT(commandsSent(), ElementsAre(0x8A, 0x0A, 0x84, 0x04, 0x84, 0x04));
    const auto lighting = firmware.writes().at(3);
    EXPECT_EQ(lighting.at(18), 0x13);  // Flash_away
    EXPECT_EQ(lighting.at(19), 2);
    EXPECT_EQ(lighting.at(20), 4);
    EXPECT_EQ(lighting.at(21), 1);
    EXPECT_EQ(lighting.at(104), 4);
    EXPECT_EQ(lighting.at(105), 0x21);
    const auto colors = firmware.lastWrite(0x0A);
    EXPECT_EQ(colors.at(9), 87);
    EXPECT_EQ(colors.at(10), 8);
    EXPECT_EQ(colors.at(11), 212);
    const auto debounce = firmware.writes().at(5);
    EXPECT_EQ(debounce.at(10), 1);
    EXPECT_EQ(debounce.at(18), 0x13);  // as the command before has left it
}

TEST_F(FactoryReset, PublishesTheDefaultsOfTheLink) {
    link().setLightingMode(5, 1, 1, ColorBytes{1, 2, 3});
    link().factoryReset();
    EXPECT_EQ(link().activeModeId.get(), 4);
    EXPECT_EQ(link().speed.get(), 2);
    EXPECT_EQ(link().brightness.get(), 4);
    EXPECT_EQ(link().primaryColor.get(), (ColorBytes{87, 8, 212}));
}

TEST_F(FactoryReset, SaysItsOwnTextFirstAndThenThoseOfTheExchanges) {
    connect();
    recordStatuses();
    link().factoryReset();
    time.settle();
    EXPECT_THAT(statuses(), ElementsAre("Device restored to factory defaults.", "Applied: Flash_away (Stream)",
                                        "Debounce set to 10ms"));
}

TEST_F(FactoryReset, SaysWhatFailed) {
    connect();
    fault("set 04 refuse");
    recordStatuses();
    link().factoryReset();
    time.settle();
    EXPECT_THAT(statuses(), ElementsAre("Device restored to factory defaults.", "Hardware command failed",
                                        "Debounce write failed"));
}

TEST_F(FactoryReset, WithoutAKeyboardPreviewsAfterItsOwnText) {
    recordStatuses();
    link().factoryReset();
    time.settle();
    EXPECT_THAT(statuses(),
                ElementsAre("Device restored to factory defaults.", "Previewing Flash_away (Stream) (Simulated)"));
}

TEST_F(FactoryReset, SaysItsOwnTextFirstHoweverFastTheIoThreadIs) {
    test::FasterIoThread io;
    VexaProtocol eager(
        time.mainQueue(), {io}, hid, [this]() -> PerKeyColors& { return keyboard(); }, [](std::string_view) {});
    eager.factoryReset();
    time.settle();
    EXPECT_EQ(eager.statusMessage.get(), "Previewing Flash_away (Stream) (Simulated)");
}

}  // namespace
}  // namespace lumo
