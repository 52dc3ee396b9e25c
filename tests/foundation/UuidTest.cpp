#include "foundation/Uuid.h"

#include <gtest/gtest.h>

namespace lumo {
namespace {

constexpr Uuid kUuid{{0xE6, 0x21, 0xE1, 0xF8, 0xC3, 0x6C, 0x49, 0x5A, 0x93, 0xFC, 0x0C, 0x24, 0x7A, 0x3E, 0x6E, 0x5F}};

TEST(Uuid, IsWrittenInFiveGroupsOfCapitals) { EXPECT_EQ(kUuid.text(), "E621E1F8-C36C-495A-93FC-0C247A3E6E5F"); }

TEST(Uuid, IsReadInCapitalsAndInSmallLetters) {
    EXPECT_EQ(Uuid::fromText("E621E1F8-C36C-495A-93FC-0C247A3E6E5F"), kUuid);
    EXPECT_EQ(Uuid::fromText("e621e1f8-c36c-495a-93fc-0c247a3e6e5f"), kUuid);
}

TEST(Uuid, NothingElseIsOne) {
    for (const auto* const text : {"", "E621E1F8", "E621E1F8C36C495A93FC0C247A3E6E5F",
                                   "E621E1F8-C36C-495A-93FC-0C247A3E6E5", "E621E1F8-C36C-495A-93FC-0C247A3E6E5F0",
                                   "E621E1F8-C36C-495A-93FC-0C247A3E6E5G", "E621E1F8+C36C-495A-93FC-0C247A3E6E5F",
                                   "-621E1F8-C36C-495A-93FC-0C247A3E6E5F", "{621E1F8-C36C-495A-93FC-0C247A3E6E5}"}) {
        EXPECT_EQ(Uuid::fromText(text), std::nullopt) << text;
    }
}

TEST(Uuid, ARandomOneIsOfVersion4AndComesBack) {
    const Uuid uuid = Uuid::random();
    EXPECT_EQ(uuid.text().at(14), '4');
    EXPECT_EQ(Uuid::fromText(uuid.text()), uuid);
    EXPECT_NE(Uuid::random(), uuid);
}

}  // namespace
}  // namespace lumo
