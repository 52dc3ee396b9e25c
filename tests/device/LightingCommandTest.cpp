// A lighting command as a whole: what goes over the wire, when, and what is published.
#include <gmock/gmock.h>

#include "support/FasterIoThread.h"
#include "support/LinkFixture.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class LightingCommand : public test::LinkFixture {
protected:
    std::string statusAfter(std::int64_t modeId) {
        link().setLightingMode(modeId);
        time.settle();
        return link().statusMessage.get();
    }
};

TEST_F(LightingCommand, IsFourReportsInThisOrder) {
    connect();
    EXPECT_EQ(statusAfter(5), "Applied: Raindrops");
    EXPECT_THAT(commandsSent(), ElementsAre(0x8A, 0x0A, 0x84, 0x04));
    for (const auto& report : firmware.writes()) EXPECT_EQ(report.size(), 520U);
}

TEST_F(LightingCommand, PausesThreeTimesTwentyMilliseconds) {
    connect();
    const auto before = time.now();
    link().setLightingMode(5);
    time.settle();
    EXPECT_EQ(time.now() - before, 60ms);
}

TEST_F(LightingCommand, WritesTheParameterBlockForRaindrops) {
    connect();
    const auto registers = firmware.parameterBlock();
    link().setLightingMode(5);
    time.settle();
    auto expected = vk::Bytes(registers.begin(), registers.end());
    expected[1] = 0x04;
    expected[18] = 0x0F;
    expected[19] = 2;
    expected[20] = 4;
    expected[21] = 1;
    expected[96] = 4;
    expected[97] = 0x21;
    expected[134] = 0x5A;
    expected[135] = 0xA5;
    EXPECT_EQ(firmware.lastWrite(0x04), expected);
}

TEST_F(LightingCommand, KeepsEveryByteOfTheParameterBlockItDoesNotOwn) {
    connect();
    firmware.parameterBlock().fill(0xA5);
    link().setLightingMode(5);
    time.settle();
    EXPECT_EQ(firmware.lastWrite(0x04).at(17), 0xA5);
    EXPECT_EQ(firmware.lastWrite(0x04).at(18), 0x0F);
    EXPECT_EQ(firmware.lastWrite(0x04).at(22), 0xA5);
}

TEST_F(LightingCommand, WritesTheColorIntoAll21RecordsAndKeepsTheRest) {
    connect();
    const auto registers = firmware.colourBlock();
    link().setLightingMode(5, std::nullopt, std::nullopt, ColorBytes{0x11, 0x22, 0x33});
    time.settle();
    auto expected = vk::Bytes(registers.begin(), registers.end());
    expected[1] = 0x0A;
    expected[6] = 0x00;
    expected[7] = 0x02;
    expected[8] = 0x00;
    for (std::size_t k = 0; k < 21; ++k) {
        expected[9 + 21 * k] = 0x11;
        expected[10 + 21 * k] = 0x22;
        expected[11 + 21 * k] = 0x33;
    }
    expected[491] = 0x5A;
    expected[492] = 0xA5;
    expected[514] = 0x5A;
    expected[515] = 0xA5;
    EXPECT_EQ(firmware.lastWrite(0x0A), expected);
}

TEST_F(LightingCommand, SettingsOfOtherEffectsSurviveASecondCommand) {
    connect();
    link().setLightingMode(5, 1, 3);
    link().setLightingMode(2, 4, 2);
    time.settle();
    const auto write = firmware.lastWrite(0x04);
    EXPECT_EQ(write.at(96), 3);  // Raindrops, from the first command
    EXPECT_EQ(write.at(97), 0x11);
    EXPECT_EQ(write.at(72), 2);  // Respire
    EXPECT_EQ(write.at(73), 0x41);
}

TEST_F(LightingCommand, PublishesItsValuesAtOnce) {
    link().setLightingMode(5, 1, 3, ColorBytes{1, 2, 3});
    EXPECT_EQ(link().activeModeId.get(), 5);
    EXPECT_EQ(link().speed.get(), 1);
    EXPECT_EQ(link().brightness.get(), 3);
    EXPECT_EQ(link().primaryColor.get(), (ColorBytes{1, 2, 3}));
    EXPECT_EQ(link().statusMessage.get(), "Ready");
}

TEST_F(LightingCommand, WithAllOptionalValuesAbsentItSendsThePublishedOnesAgain) {
    connect();
    link().setLightingMode(5, 1, 3, ColorBytes{1, 2, 3});
    time.settle();
    firmware.forgetWrites();
    link().setLightingMode(5);
    time.settle();
    EXPECT_EQ(firmware.lastWrite(0x04).at(19), 1);
    EXPECT_EQ(firmware.lastWrite(0x04).at(20), 3);
    EXPECT_EQ(firmware.lastWrite(0x0A).at(9), 1);
    EXPECT_EQ(firmware.lastWrite(0x0A).at(11), 3);
}

TEST_F(LightingCommand, AModeOutsideTheCatalogueIsSentUnderItsOwnNumber) {
    connect();
    const auto registers = firmware.parameterBlock();
    EXPECT_EQ(statusAfter(99), "Applied: Mode 99");
    const auto write = firmware.lastWrite(0x04);
    EXPECT_EQ(write.at(18), 99);
    EXPECT_EQ(write.at(21), 0);
    for (std::size_t i = 66; i < 132; ++i) EXPECT_EQ(write.at(i), registers.at(i)) << i;
}

TEST_F(LightingCommand, AModeThatDoesNotExistButHasARecordPatchesIt) {
    connect();
    EXPECT_EQ(statusAfter(19), "Applied: Mode 19");
    EXPECT_EQ(firmware.lastWrite(0x04).at(104), 4);
    EXPECT_EQ(firmware.lastWrite(0x04).at(105), 0x20);
}

TEST_F(LightingCommand, Mode21UploadsTheKeysColorsAndSendsNoModeCommand) {
    connect();
    link().setLightingMode(21);
    time.settle();
    EXPECT_THAT(commandsSent(), ElementsAre(0x09, 0x09, 0x06, 0x84, 0x04));
    EXPECT_EQ(link().statusMessage.get(), "Custom Per-Key RGB Synchronized (67 keys)");
}

TEST_F(LightingCommand, Mode18SendsAModeCommand) {
    connect();
    EXPECT_EQ(statusAfter(18), "Applied: Rotating storm");
    EXPECT_THAT(commandsSent(), ElementsAre(0x8A, 0x0A, 0x84, 0x04));
    EXPECT_EQ(firmware.lastWrite(0x04).at(18), 0x1D);
}

TEST_F(LightingCommand, WithoutAKeyboardItPreviews) {
    EXPECT_EQ(statusAfter(5), "Previewing Raindrops (Simulated)");
    EXPECT_EQ(statusAfter(99), "Previewing Mode 99 (Simulated)");
    EXPECT_THAT(firmware.writes(), IsEmpty());
}

TEST_F(LightingCommand, ARefusedParameterWriteFails) {
    connect();
    fault("set 04 refuse");
    EXPECT_EQ(statusAfter(5), "Hardware command failed");
    EXPECT_EQ(link().activeModeId.get(), 5);
}

TEST_F(LightingCommand, ARefusedColorWriteGoesUnnoticed) {
    connect();
    fault("set 0a refuse");
    EXPECT_EQ(statusAfter(5), "Applied: Raindrops");
}

TEST_F(LightingCommand, ShortReadsAreReplacedByBlankBlocks) {
    connect();
    fault("get 8a short 515");
    fault("get 84 short 134");
    EXPECT_EQ(statusAfter(5), "Applied: Raindrops");
    EXPECT_EQ(firmware.lastWrite(0x0A).at(12), 0);
    EXPECT_EQ(firmware.lastWrite(0x04).at(6), 0x80);
    EXPECT_EQ(firmware.lastWrite(0x04).at(17), 0);
    EXPECT_EQ(firmware.lastWrite(0x04).at(98), 0);
}

TEST_F(LightingCommand, FailedReadsAreReplacedByBlankBlocks) {
    connect();
    fault("get any refuse");
    EXPECT_EQ(statusAfter(5), "Applied: Raindrops");
    EXPECT_EQ(firmware.lastWrite(0x04).at(17), 0);
}

TEST_F(LightingCommand, AnAnswerOf135BytesIsEnoughForTheParameters) {
    connect();
    fault("get 84 short 135");
    const auto kept = firmware.parameterBlock().at(17);
    EXPECT_EQ(statusAfter(5), "Applied: Raindrops");
    EXPECT_EQ(firmware.lastWrite(0x04).at(17), kept);
    EXPECT_EQ(firmware.lastWrite(0x04).at(135), 0xA5);
    EXPECT_EQ(firmware.lastWrite(0x04).at(136), 0);
}

TEST_F(LightingCommand, AKeyboardThatVanishesInTheMiddleFailsTheCommand) {
    connect();
    recordStatuses();
    fault("get 84 vanish");
    link().setLightingMode(5);
    time.settle();
    EXPECT_THAT(statuses(), ElementsAre("Hardware command failed", "Keyboard disconnected. Running in preview mode."));
}

TEST_F(LightingCommand, TwoCommandsNeverInterleave) {
    connect();
    link().setLightingMode(5);
    link().setLightingMode(2);
    time.settle();
    EXPECT_THAT(commandsSent(), ElementsAre(0x8A, 0x0A, 0x84, 0x04, 0x8A, 0x0A, 0x84, 0x04));
    EXPECT_EQ(link().statusMessage.get(), "Applied: Respire (Breathing)");
}

TEST_F(LightingCommand, LevelsOutsideAByteAreHarmlessWithoutAKeyboard) {
    link().setLightingMode(5, 300, -1);
    time.settle();
    EXPECT_EQ(link().statusMessage.get(), "Previewing Raindrops (Simulated)");
}

using LightingCommandDeathTest = LightingCommand;

TEST_F(LightingCommandDeathTest, ALevelOutsideAByteStopsTheProcessWhenTheReportIsBuilt) {
    connect();
    link().setLightingMode(5, 256, 4);
    EXPECT_DEATH(time.settle(), "speed does not fit a byte: 256");
}

TEST_F(LightingCommand, BurstIsTheColorfulWaterfallWithItsOwnText) {
    connect();
    recordStatuses();
    link().triggerBurstMode({9, 8, 7});
    time.settle();
    EXPECT_THAT(statuses(), ElementsAre("Burst Mode Triggered", "Applied: Colorful waterfall"));
    EXPECT_EQ(link().activeModeId.get(), 16);
    const auto write = firmware.lastWrite(0x04);
    EXPECT_EQ(write.at(18), 0x1E);
    EXPECT_EQ(write.at(19), 3);
    EXPECT_EQ(write.at(20), 4);
    EXPECT_EQ(firmware.lastWrite(0x0A).at(9), 9);
}

TEST_F(LightingCommand, BurstTakesItsOwnSpeedAndBrightness) {
    connect();
    link().triggerBurstMode({9, 8, 7}, 1, 2);
    time.settle();
    EXPECT_EQ(firmware.lastWrite(0x04).at(19), 1);
    EXPECT_EQ(firmware.lastWrite(0x04).at(20), 2);
}

TEST_F(LightingCommand, BurstSaysItsOwnTextFirstHoweverFastTheIoThreadIs) {
    test::FasterIoThread io;
    VexaProtocol eager(
        time.mainQueue(), {io}, hid, [this]() -> PerKeyColors& { return keyboard(); }, [](std::string_view) {});
    eager.triggerBurstMode({9, 8, 7});
    time.settle();
    EXPECT_EQ(eager.statusMessage.get(), "Previewing Colorful waterfall (Simulated)");
}

TEST_F(LightingCommand, BurstWithoutAKeyboardPreviewsAfterItsOwnText) {
    recordStatuses();
    link().triggerBurstMode({9, 8, 7});
    time.settle();
    EXPECT_THAT(statuses(), ElementsAre("Burst Mode Triggered", "Previewing Colorful waterfall (Simulated)"));
}

}  // namespace
}  // namespace lumo
