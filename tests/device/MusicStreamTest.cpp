// The brightness that follows the music: when it is sent, and every byte of it.
#include <gmock/gmock.h>

#include <array>

#include "support/LinkFixture.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class MusicStream : public test::LinkFixture {
protected:
    void stream(const std::vector<std::uint8_t>& bands) { link().streamAudioVisualizerFrame(bands); }
    void stream(std::uint8_t everyBand) { stream(std::vector<std::uint8_t>(16, everyBand)); }
    std::int64_t levelOf(const std::vector<std::uint8_t>& bands) {
        link().brightness.set(0);
        stream(bands);
        return link().brightness.get();
    }
    std::int64_t levelOf(std::uint8_t everyBand) { return levelOf(std::vector<std::uint8_t>(16, everyBand)); }
};

TEST_F(MusicStream, TheMeanOfTheBandsBecomesALevelFrom1To4) {
    EXPECT_EQ(levelOf(49), 1);
    EXPECT_EQ(levelOf(50), 1);
    EXPECT_EQ(levelOf(149), 2);
    EXPECT_EQ(levelOf(150), 3);
    EXPECT_EQ(levelOf(199), 3);
    EXPECT_EQ(levelOf(200), 4);
}

TEST_F(MusicStream, SilenceIsLevel1AndTheGreatestLoudnessLevel4) {
    EXPECT_EQ(levelOf(0), 1);
    EXPECT_EQ(levelOf(255), 4);
}

TEST_F(MusicStream, AMeanOf100IsLevel2AndOneOf99Level1) {
    EXPECT_EQ(levelOf(100), 2);
    EXPECT_EQ(levelOf(99), 1);
}

TEST_F(MusicStream, TheMeanIsRoundedTowardsZero) {
    EXPECT_EQ(levelOf({99, 100}), 1);
    EXPECT_EQ(levelOf({149, 150, 150}), 2);
    EXPECT_EQ(levelOf({200, 200, 199}), 3);
}

TEST_F(MusicStream, NoBandsAreLevel1) { EXPECT_EQ(levelOf(std::vector<std::uint8_t>{}), 1); }

TEST_F(MusicStream, ManyBandsDoNotOverflow) { EXPECT_EQ(levelOf(std::vector<std::uint8_t>(100000, 255)), 4); }

TEST_F(MusicStream, PatchesTheBrightnessAndTheMarkerAndNothingElse) {
    connect();
    firmware.parameterBlock().fill(0xC3);
    stream(120);
    time.settle();
    vk::Bytes expected(520, 0xC3);
    expected[1] = 0x04;
    expected[20] = 2;
    expected[134] = 0x5A;
    expected[135] = 0xA5;
    EXPECT_EQ(firmware.lastWrite(0x04), expected);
}

TEST_F(MusicStream, IsARequestAPauseOf10MillisecondsAndAWrite) {
    connect();
    const auto before = time.now();
    stream(120);
    EXPECT_THAT(firmware.writes(), IsEmpty());  // returns at once
    time.settle();
    EXPECT_EQ(time.now() - before, 10ms);
    EXPECT_THAT(commandsSent(), ElementsAre(0x84, 0x04));
    vk::Bytes request(520, 0);
    request[0] = 0x06;
    request[1] = 0x84;
    request[4] = 0x01;
    request[6] = 0x80;
    EXPECT_EQ(firmware.writes().front(), request);
}

TEST_F(MusicStream, PublishesTheLevelAtOnce) {
    connect();
    stream(160);
    EXPECT_EQ(link().brightness.get(), 3);
}

TEST_F(MusicStream, TheSameLevelTwiceIsSentOnce) {
    connect();
    stream(120);
    stream(130);
    time.settle();
    stream(149);
    time.settle();
    EXPECT_THAT(commandsSent(), ElementsAre(0x84, 0x04));
}

TEST_F(MusicStream, ThePublishedLevelIsNotSentWhateverTheKeyboardHas) {
    connect();
    link().brightness.set(3);
    firmware.parameterBlock()[20] = 1;
    stream(160);
    time.settle();
    EXPECT_THAT(firmware.writes(), IsEmpty());
}

TEST_F(MusicStream, EveryChangeIsSentInItsOrder) {
    connect();
    for (const auto mean : std::to_array<std::uint8_t>({120, 160, 120, 20})) stream(mean);
    time.settle();
    std::vector<int> levels;
    for (const auto& report : firmware.writes()) {
        if (report.at(1) == 0x04) levels.push_back(report.at(20));
    }
    EXPECT_THAT(levels, ElementsAre(2, 3, 2, 1));
}

TEST_F(MusicStream, GoesBehindACommandAlreadyGiven) {
    connect();
    link().setLightingMode(5);
    stream(120);
    time.settle();
    EXPECT_THAT(commandsSent(), ElementsAre(0x8A, 0x0A, 0x84, 0x04, 0x84, 0x04));
    EXPECT_EQ(firmware.lastWrite(0x04).at(18), 0x0F);
    EXPECT_EQ(firmware.lastWrite(0x04).at(20), 2);
}

TEST_F(MusicStream, SaysNothing) {
    connect();
    recordStatuses();
    stream(120);
    time.settle();
    fault("set 04 refuse");
    stream(160);
    time.settle();
    EXPECT_THAT(statuses(), IsEmpty());
}

TEST_F(MusicStream, WithoutAKeyboardTheLevelIsPublishedAndNotTriedAgain) {
    stream(120);
    time.settle();
    connect();
    stream(120);
    time.settle();
    EXPECT_THAT(firmware.writes(), IsEmpty());
    EXPECT_EQ(link().brightness.get(), 2);
}

TEST_F(MusicStream, ARefusedRequestDropsTheFrameWithoutAPause) {
    connect();
    fault("set 84 refuse");
    const auto before = time.now();
    stream(120);
    time.settle();
    EXPECT_EQ(time.now(), before);
    EXPECT_THAT(commandsSent(), ElementsAre(0x84));
    EXPECT_EQ(link().brightness.get(), 2);
}

TEST_F(MusicStream, AnAnswerOf134BytesDropsTheFrame) {
    connect();
    fault("get 84 short 134");
    stream(120);
    time.settle();
    EXPECT_THAT(commandsSent(), ElementsAre(0x84));
}

TEST_F(MusicStream, AnAnswerOf135BytesIsPatchedAndPadded) {
    connect();
    fault("get 84 short 135");
    const auto kept = firmware.parameterBlock().at(17);
    stream(120);
    time.settle();
    const auto write = firmware.lastWrite(0x04);
    ASSERT_EQ(write.size(), 520U);
    EXPECT_EQ(write.at(17), kept);
    EXPECT_EQ(write.at(20), 2);
    EXPECT_EQ(write.at(135), 0xA5);
    EXPECT_EQ(write.at(136), 0);
}

}  // namespace
}  // namespace lumo
