// What every key does as it leaves the factory.
#include "remap/FactoryCode.h"

#include <gmock/gmock.h>

#include "keyboard/KeyboardLayout.h"

namespace lumo {
namespace {

using testing::ElementsAre;

KeyCode codeFor(const std::string& label, std::uint8_t hidCode) {
    KeyCap key;
    key.label = label;
    key.hidCode = hidCode;
    return factoryCode(key);
}

TEST(FactoryCode, ModifiersHaveTheirBitInByte1AndNoKey) {
    EXPECT_THAT(codeFor("LShift", 0xA0), ElementsAre(0x00, 0x02, 0x00, 0x00));
    EXPECT_THAT(codeFor("RShift", 0xA1), ElementsAre(0x00, 0x20, 0x00, 0x00));
    EXPECT_THAT(codeFor("LCtrl", 0xA2), ElementsAre(0x00, 0x01, 0x00, 0x00));
    EXPECT_THAT(codeFor("RCtrl", 0xA3), ElementsAre(0x00, 0x10, 0x00, 0x00));
    EXPECT_THAT(codeFor("LAlt", 0xA4), ElementsAre(0x00, 0x04, 0x00, 0x00));
    EXPECT_THAT(codeFor("RAlt", 0xA5), ElementsAre(0x00, 0x40, 0x00, 0x00));
    EXPECT_THAT(codeFor("LWin", 0x5B), ElementsAre(0x00, 0x08, 0x00, 0x00));
}

TEST(FactoryCode, FnHasATypeOfItsOwnWhateverItsKeyCode) {
    EXPECT_THAT(codeFor("FN", 0xFA), ElementsAre(0x0D, 0x00, 0x00, 0x00));
    EXPECT_THAT(codeFor("FN", 0x00), ElementsAre(0x0D, 0x00, 0x00, 0x00));
    EXPECT_THAT(codeFor("FN", 0xFF), ElementsAre(0x0D, 0x00, 0x00, 0x00));
}

TEST(FactoryCode, AnyOtherKeyKeepsItsVirtualKeyNumberUnchanged) {
    EXPECT_THAT(codeFor("A", 0x41), ElementsAre(0x00, 0x00, 0x00, 0x41));
    EXPECT_THAT(codeFor("Esc", 0x1B), ElementsAre(0x00, 0x00, 0x00, 0x1B));
    EXPECT_THAT(codeFor("=", 0xBB), ElementsAre(0x00, 0x00, 0x00, 0xBB));
}

TEST(FactoryCode, LabelsAreComparedExactly) {
    EXPECT_THAT(codeFor("RWin", 0x5C), ElementsAre(0x00, 0x00, 0x00, 0x5C));
    EXPECT_THAT(codeFor("Fn", 0x12), ElementsAre(0x00, 0x00, 0x00, 0x12));
    EXPECT_THAT(codeFor("LShift ", 0x13), ElementsAre(0x00, 0x00, 0x00, 0x13));
    EXPECT_THAT(codeFor("", 0x14), ElementsAre(0x00, 0x00, 0x00, 0x14));
}

TEST(FactoryCode, EightKeysOfTheLayoutAreSpecial) {
    int special = 0;
    for (const KeyCap& key : defaultLayout()) {
        if (factoryCode(key) != KeyCode{0x00, 0x00, 0x00, key.hidCode}) ++special;
    }
    EXPECT_EQ(special, 8);
}

}  // namespace
}  // namespace lumo
