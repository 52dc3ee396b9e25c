// The transfer of the key table.
#include <gmock/gmock.h>

#include <limits>

#include "device/KeyTableReports.h"
#include "support/FasterIoThread.h"
#include "support/LinkFixture.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using Bytes = std::vector<std::uint8_t>;
using Table = std::optional<Bytes>;

class KeyRemap : public test::LinkFixture {
protected:
    Bytes codeAt(const Bytes& report, std::size_t offset) {
        return {report.begin() + static_cast<std::ptrdiff_t>(offset),
                report.begin() + static_cast<std::ptrdiff_t>(offset) + 4};
    }
    /// What the completion gets, once the exchange is over.
    Table read() {
        int completions = 0;
        Table result;
        link().readKeyRemapTable([&](const Table& table) {
            ++completions;
            result = table;
        });
        time.settle();
        EXPECT_EQ(completions, 1);
        return result;
    }
    void remap(std::int64_t matrixPos, const Bytes& code) {
        link().setKeyRemap(matrixPos, code);
        time.settle();
    }
    const std::string& status() { return link().statusMessage.get(); }
};

TEST_F(KeyRemap, ReadingIsOneRequestAndAnAnswerThirtyMillisecondsLater) {
    connect();
    const auto before = time.now();
    const auto table = read();
    ASSERT_TRUE(table);
    EXPECT_EQ(table->size(), 520U);
    EXPECT_EQ(table->at(1), 0x83);
    EXPECT_EQ(time.now() - before, 30ms);
    ASSERT_EQ(firmware.writes().size(), 1U);
    Bytes expected(520, 0);
    std::ranges::copy(Bytes{0x06, 0x83, 0x00, 0x00, 0x01, 0x00, 0xF8, 0x01}, expected.begin());
    EXPECT_EQ(firmware.writes().front(), expected);
    EXPECT_EQ(status(), "Connected & Authenticated");
}

TEST_F(KeyRemap, ReadingCompletesOnTheMainQueueAndWithoutAKeyboardOnTheIoQueue) {
    test::FasterIoThread io;
    VexaProtocol eager(
        time.mainQueue(), {io}, hid, [this]() -> PerKeyColors& { return keyboard(); }, [](std::string_view) {});
    int completions = 0;
    eager.readKeyRemapTable([&](const Table&) { ++completions; });
    EXPECT_EQ(completions, 1);

    hid.plugKeyboard();
    time.settle();
    for (const auto* const text : {"get 83 refuse skip 1", "set 83 refuse skip 2"}) fault(text);
    int expected = 1;
    for (const auto* const outcome : {"read", "not answered", "refused"}) {
        eager.readKeyRemapTable([&](const Table&) { ++completions; });
        EXPECT_EQ(completions, expected++) << outcome;
        time.settle();
        EXPECT_EQ(completions, expected) << outcome;
    }
}

TEST_F(KeyRemap, ReadingWithoutAKeyboardGivesTheLastTable) {
    EXPECT_EQ(read(), Table());
    connect();
    const auto table = read();
    hid.unplugAll();
    time.settle();
    EXPECT_EQ(read(), table);
}

/// The keyboard would still answer the request before.
TEST_F(KeyRemap, ARefusedRequestReadsNothing) {
    connect();
    ASSERT_TRUE(read());
    fault("set 83 refuse");
    const auto before = time.now();
    EXPECT_EQ(read(), Table());
    EXPECT_EQ(time.now(), before);
}

TEST_F(KeyRemap, AFailedReadLeavesTheKnownTable) {
    connect();
    const auto table = read();
    fault("get 83 nothing once");
    EXPECT_EQ(read(), Table());
    hid.unplugAll();
    time.settle();
    EXPECT_EQ(read(), table);
}

TEST_F(KeyRemap, AnAnswerOf511BytesOrToAnotherCommandIsNoTable) {
    connect();
    fault("get 83 short 511 once");
    EXPECT_EQ(read(), Table());
    fault("get 83 wrong once");
    EXPECT_EQ(read(), Table());
    fault("get 83 nothing once");
    EXPECT_EQ(read(), Table());
}

TEST_F(KeyRemap, AnAnswerOf512BytesIsATable) {
    connect();
    fault("get 83 short 512");
    const auto table = read();
    ASSERT_TRUE(table);
    EXPECT_EQ(table->size(), 512U);
}

TEST_F(KeyRemap, Place5WithHidCode00020004WritesItsFourBytesAt28) {
    connect();
    link().setKeyRemap(5, 0x00020004U);
    time.settle();
    const auto write = firmware.lastWrite(0x03);
    ASSERT_EQ(write.size(), 520U);
    EXPECT_EQ(codeAt(write, 28), (Bytes{0x00, 0x02, 0x00, 0x04}));
    EXPECT_EQ(status(), "Key position 5 programmed");
}

TEST_F(KeyRemap, KeepsEveryByteButTheCodeAndTheHeadersThree) {
    connect();
    const auto before = firmware.keyTable();
    remap(5, {0x03, 0x00, 0xE2, 0x00});
    Bytes expected(before.begin(), before.end());
    expected[1] = 0x03;
    expected[6] = 0x00;
    expected[7] = 0x02;
    std::ranges::copy(Bytes{0x03, 0x00, 0xE2, 0x00}, expected.begin() + 28);
    EXPECT_EQ(firmware.lastWrite(0x03), expected);
}

TEST_F(KeyRemap, TheFirstChangeReadsTheTableAndTheSecondKnowsIt) {
    connect();
    remap(5, {1, 2, 3, 4});
    remap(6, {5, 6, 7, 8});
    EXPECT_THAT(commandsSent(), ElementsAre(0x83, 0x03, 0x03));
    const auto second = firmware.lastWrite(0x03);
    EXPECT_EQ(codeAt(second, 28), (Bytes{1, 2, 3, 4}));
    EXPECT_EQ(codeAt(second, 32), (Bytes{5, 6, 7, 8}));
}

TEST_F(KeyRemap, ATableThatWasReadIsNotReadAgain) {
    connect();
    (void)read();
    remap(5, {1, 2, 3, 4});
    EXPECT_THAT(commandsSent(), ElementsAre(0x83, 0x03));
}

TEST_F(KeyRemap, TheKnownTableSurvivesUnpluggingAndPluggingIn) {
    connect();
    remap(5, {1, 2, 3, 4});
    hid.unplugAll();
    time.settle();
    connect();
    remap(6, {5, 6, 7, 8});
    EXPECT_THAT(commandsSent(), ElementsAre(0x03));
    EXPECT_EQ(codeAt(firmware.lastWrite(0x03), 28), (Bytes{1, 2, 3, 4}));
}

TEST_F(KeyRemap, OtherThanFourBytesAreIgnored) {
    connect();
    for (const Bytes& code : {Bytes{}, Bytes{1, 2, 3}, Bytes{1, 2, 3, 4, 5}}) remap(5, code);
    EXPECT_THAT(commandsSent(), IsEmpty());
    EXPECT_EQ(status(), "Connected & Authenticated");
}

TEST_F(KeyRemap, Place125IsTheLastOfATableOf512Bytes) {
    connect();
    fault("get 83 short 512");
    remap(126, {1, 2, 3, 4});
    EXPECT_THAT(commandsSent(), ElementsAre(0x83));
    remap(125, {1, 2, 3, 4});
    const auto write = firmware.lastWrite(0x03);
    ASSERT_EQ(write.size(), 520U);
    EXPECT_EQ(codeAt(write, 508), (Bytes{1, 2, 3, 4}));
    EXPECT_EQ(codeAt(write, 512), (Bytes{0, 0, 0, 0}));
}

TEST_F(KeyRemap, ANegativePlaceIsIgnored) {
    connect();
    remap(-1, {1, 2, 3, 4});
    remap(std::numeric_limits<std::int64_t>::min(), {1, 2, 3, 4});
    remap(std::numeric_limits<std::int64_t>::max(), {1, 2, 3, 4});
    EXPECT_THAT(commandsSent(), ElementsAre(0x83));
    EXPECT_EQ(status(), "Connected & Authenticated");
}

TEST_F(KeyRemap, ARefusedWriteSaysSoAndLeavesTheKnownTable) {
    connect();
    const auto table = read();
    fault("set 03 refuse once");
    remap(5, {1, 2, 3, 4});
    EXPECT_EQ(status(), "Key remap write failed");
    hid.unplugAll();
    time.settle();
    EXPECT_EQ(read(), table);
}

TEST_F(KeyRemap, AnAcceptedWriteIsTheKnownTable) {
    connect();
    remap(5, {1, 2, 3, 4});
    const auto write = firmware.lastWrite(0x03);
    hid.unplugAll();
    time.settle();
    EXPECT_EQ(read(), Table(write));
}

TEST_F(KeyRemap, AFailedReadEndsAChangeSilently) {
    connect();
    for (const auto* const text : {"set 83 refuse once", "get 83 nothing once", "get 83 wrong once"}) {
        fault(text);
        remap(5, {1, 2, 3, 4});
    }
    EXPECT_TRUE(firmware.lastWrite(0x03).empty());
    EXPECT_EQ(status(), "Connected & Authenticated");
}

TEST_F(KeyRemap, AChangeWithoutAKeyboardIsSilent) {
    remap(5, {1, 2, 3, 4});
    EXPECT_EQ(status(), "Ready");
    EXPECT_EQ(read(), Table());
}

TEST_F(KeyRemap, AChangeOfAKnownTableWithoutAKeyboardIsSilentToo) {
    connect();
    const auto table = read();
    hid.unplugAll();
    time.settle();
    recordStatuses();
    remap(5, {1, 2, 3, 4});
    EXPECT_THAT(statuses(), IsEmpty());
    EXPECT_EQ(read(), table);
}

TEST_F(KeyRemap, AWholeTableIsFilledUpAndGetsOurHeader) {
    connect();
    link().setKeyRemapTable(Bytes(100, 0xAA));
    time.settle();
    Bytes expected(520, 0);
    std::fill_n(expected.begin(), 100, std::uint8_t{0xAA});
    std::ranges::copy(Bytes{0x06, 0x03, 0x00, 0x00, 0x01, 0x00, 0x00, 0x02}, expected.begin());
    EXPECT_EQ(firmware.lastWrite(0x03), expected);
    EXPECT_EQ(status(), "Key Remap Matrix Programmed");
}

TEST_F(KeyRemap, AWholeTableOf600BytesGoesOutAtItsLength) {
    connect();
    link().setKeyRemapTable(Bytes(600, 0xAA));
    time.settle();
    EXPECT_EQ(firmware.lastWrite(0x03).size(), 600U);
}

TEST_F(KeyRemap, AWholeTableLeavesTheKnownTableAlone) {
    connect();
    const auto table = read();
    link().setKeyRemapTable(Bytes(520, 0xAA));
    time.settle();
    hid.unplugAll();
    time.settle();
    EXPECT_EQ(read(), table);
}

TEST_F(KeyRemap, ARefusedWholeTableSaysSoWithACapital) {
    connect();
    fault("set 03 refuse");
    link().setKeyRemapTable(Bytes(520, 0xAA));
    time.settle();
    EXPECT_EQ(status(), "Key Remap write failed");
}

TEST_F(KeyRemap, AWholeTableWithoutAKeyboardIsSimulated) {
    link().setKeyRemapTable({});
    time.settle();
    EXPECT_EQ(status(), "Key Remap Matrix Programmed (Simulated)");
}

TEST(KeyTable, Of600BytesIsKeptAndWrittenBackAtItsOwnLength) {
    Bytes answer(600, 0x55);
    answer[1] = 0x83;
    ASSERT_TRUE(isKeyTable(answer));
    Bytes expected(600, 0x55);  // its own header, too
    expected[1] = 0x03;
    expected[6] = 0x00;
    expected[7] = 0x02;
    std::ranges::copy(Bytes{1, 2, 3, 4}, expected.begin() + 596);
    EXPECT_EQ(keyTableWith(answer, 147, {1, 2, 3, 4}), Table(expected));
    EXPECT_FALSE(keyTableWith(answer, 148, {1, 2, 3, 4}));
}

}  // namespace
}  // namespace lumo
