// The keyboard that answers in every other test is itself held to the protocol.
#include "FirmwareModel.h"

#include <gtest/gtest.h>

namespace lumo::vk {
namespace {

Bytes request(std::initializer_list<std::uint8_t> head) {
    Bytes bytes(head);
    bytes.resize(520, 0);
    return bytes;
}

class Firmware : public testing::Test {
protected:
    FirmwareModel model;

    void SetUp() override { model.recordWrites(); }

    void addFault(std::string_view text) { model.addFault(parseFault(text).value()); }
    FirmwareModel::Answer query(std::initializer_list<std::uint8_t> head) {
        EXPECT_EQ(model.setFeature(request(head)), Outcome::answered);
        return model.getFeature(520);
    }
};

TEST_F(Firmware, KeepsWhatItWasSentOnlyWhereThatIsRecorded) {
    FirmwareModel unobserved;
    EXPECT_EQ(unobserved.setFeature(request({0x06, 0x84})), Outcome::answered);
    EXPECT_TRUE(unobserved.writes().empty());
    EXPECT_EQ(unobserved.transfers(), 1U);
    EXPECT_EQ(model.setFeature(request({0x06, 0x84})), Outcome::answered);
    EXPECT_EQ(model.writes(), std::vector<Bytes>{request({0x06, 0x84})});
}

TEST_F(Firmware, AnswersTheHandshakeWithItsCommandByte) {
    const auto answer = query({0x06, 0x82, 0x01, 0x00, 0x01, 0x00, 0x06});
    ASSERT_EQ(answer.bytes.size(), 520U);
    EXPECT_EQ(answer.bytes[0], 0x06);
    EXPECT_EQ(answer.bytes[1], 0x82);
}

TEST_F(Firmware, AReadGivesTheBlockThatWasAskedFor) {
    EXPECT_EQ(query({0x06, 0x84}).bytes[1], 0x84);
    EXPECT_EQ(query({0x06, 0x8A}).bytes[1], 0x8A);
    EXPECT_EQ(query({0x06, 0x83}).bytes[1], 0x83);
}

TEST_F(Firmware, AWrittenBlockIsReadBackWithTheReadCommand) {
    auto block = request({0x06, 0x04, 0x00, 0x00, 0x01, 0x00, 0x80, 0x00});
    block[18] = 0x0F;
    EXPECT_EQ(model.setFeature(block), Outcome::answered);
    const auto answer = query({0x06, 0x84});
    EXPECT_EQ(answer.bytes[1], 0x84);
    EXPECT_EQ(answer.bytes[18], 0x0F);
    EXPECT_EQ(answer.bytes[17], 0x00);
}

TEST_F(Firmware, RegistersStartWithDistinctNeighboursThatAreNotZero) {
    for (std::size_t i = 9; i < kReportSize; ++i) {
        EXPECT_NE(model.parameterBlock()[i], 0) << i;
        EXPECT_NE(model.parameterBlock()[i], model.parameterBlock()[i - 1]) << i;
        EXPECT_NE(model.colourBlock()[i], model.colourBlock()[i - 1]) << i;
    }
}

TEST_F(Firmware, ARefusedWriteIsRecordedButNotStored) {
    addFault("set 04 refuse");
    const auto before = model.parameterBlock();
    EXPECT_EQ(model.setFeature(request({0x06, 0x04, 0x77})), Outcome::refused);
    EXPECT_EQ(model.parameterBlock(), before);
    EXPECT_EQ(model.lastWrite(0x04).at(2), 0x77);
}

TEST_F(Firmware, AFaultCanSpareTheFirstExchangesAndStrikeOnce) {
    addFault("set 04 refuse skip 1 once");
    EXPECT_EQ(model.setFeature(request({0x06, 0x04})), Outcome::answered);
    EXPECT_EQ(model.setFeature(request({0x06, 0x04})), Outcome::refused);
    EXPECT_EQ(model.setFeature(request({0x06, 0x04})), Outcome::answered);
}

TEST_F(Firmware, FaultsOfAGetFollowTheCommandItAnswers) {
    addFault("get 84 nothing");
    EXPECT_EQ(query({0x06, 0x8A}).bytes.size(), 520U);
    EXPECT_TRUE(query({0x06, 0x84}).bytes.empty());
}

TEST_F(Firmware, AnswersCanBeShortLongOrWrong) {
    addFault("get 84 short 7");
    addFault("get 8a long 600");
    addFault("get 82 wrong");
    EXPECT_EQ(query({0x06, 0x84}).bytes.size(), 7U);
    EXPECT_EQ(query({0x06, 0x8A}).bytes.size(), 520U);  // the host asked for no more
    EXPECT_EQ(model.getFeature(4096).bytes.size(), 600U);
    EXPECT_NE(query({0x06, 0x82}).bytes[1], 0x82);
}

TEST_F(Firmware, HangingAndVanishingAreToldApart) {
    addFault("set 0a hang");
    addFault("set 06 vanish");
    EXPECT_EQ(model.setFeature(request({0x06, 0x0A})), Outcome::hung);
    EXPECT_EQ(model.setFeature(request({0x06, 0x06})), Outcome::vanished);
}

TEST_F(Firmware, ClearedFaultsAreGone) {
    addFault("set any refuse");
    model.clearFaults();
    EXPECT_EQ(model.setFeature(request({0x06, 0x04})), Outcome::answered);
}

TEST_F(Firmware, AnEmptyReportDoesNoHarm) { EXPECT_EQ(model.setFeature({}), Outcome::answered); }

TEST(FaultText, WhatItCannotReadIsRefused) {
    for (const char* text : {"", "set", "set 04", "put 04 refuse", "set 4x refuse", "set 104 refuse", "set 04 explode",
                             "set 04 short 7", "get 04 short", "get 04 short x", "get 04 short 99999",
                             "get 04 hang later", "get 04 hang skip", "get 04 hang skip -1"}) {
        EXPECT_FALSE(parseFault(text)) << text;
    }
}

TEST(FaultText, ReadsEveryPart) {
    const auto fault = parseFault("get 8a short 7 skip 2 once");
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->direction, Direction::get);
    EXPECT_EQ(fault->command, 0x8A);
    EXPECT_EQ(fault->kind, FaultKind::answerShort);
    EXPECT_EQ(fault->length, 7U);
    EXPECT_EQ(fault->skip, 2U);
    EXPECT_EQ(fault->times, 1U);
    EXPECT_EQ(parseFault("set any refuse")->command, std::nullopt);
}

}  // namespace
}  // namespace lumo::vk
